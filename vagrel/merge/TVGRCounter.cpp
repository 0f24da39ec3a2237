// SPDX-License-Identifier: MIT
// Ranges, values and stored forms of counters.
#include <vagrel/merge/TVGRCounter.h>

#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonFields.h>

#include <algorithm>
#include <limits>

namespace vagrel {

namespace {

// Where a counter with a negative step ends.
constexpr TInt128 Least = std::numeric_limits<std::int64_t>::min();

} // namespace

TVGRCounter::TVGRCounter(TVGRBaseLabel& owner) : fOwner(owner) { owner.Adopt(*this); }

TVGRCounter::~TVGRCounter() { fOwner.Forget(*this); }

void TVGRCounter::StoreText(std::u16string& field, std::u16string_view value) {
    fOwner.Touch(*this);
    field = value;
}

void TVGRCounter::SetNumFrom(std::int64_t value) {
    fOwner.Touch(*this);
    fNumFrom = value;
    fNumTo = std::max(fNumTo, value);
    CalcNumLabs();
}

void TVGRCounter::SetNumTo(std::int64_t value) {
    fOwner.Touch(*this);
    fNumTo = value;
    fNumFrom = std::min(fNumFrom, value);
    CalcNumLabs();
}

void TVGRCounter::SetRepeat(std::int16_t value) {
    fOwner.Touch(*this);
    fRepeat = std::max<std::int16_t>(value, 1);
    CalcNumLabs();
}

void TVGRCounter::SetStep(std::int32_t value) {
    fOwner.Touch(*this);
    fStep = value == 0 ? 1 : value;
    CalcNumLabs();
}

void TVGRCounter::CalcNumLabs() {
    const TInt128 values = (TInt128(fNumTo) - fNumFrom + 1) / fStep;
    constexpr TInt128 most = std::numeric_limits<std::int32_t>::max();
    fNumLabs = std::int32_t(std::clamp<TInt128>(std::clamp<TInt128>(values, -most, most) * fRepeat, -most, most));
}

void TVGRCounter::CalcValue() { fValue = fBefore + FormatInt(fFormat, fCounter) + fAfter; }

void TVGRCounter::Reset() { MoveTo(1); }

void TVGRCounter::Next() {
    if (fRepeatPos < fRepeat) {
        ++fRepeatPos;
    } else if (const TInt128 next = TInt128(fCounter) + fStep; next >= Least && next <= fNumTo) {
        fRepeatPos = 1;
        fCounter = std::int64_t(next);
        CalcValue();
    }
}

void TVGRCounter::MoveTo(std::int64_t label) {
    const std::int64_t before = std::max<std::int64_t>(label - 1, 0);
    const TInt128 counter = fNumFrom + TInt128(before / fRepeat) * fStep;
    const TInt128 last = fNumTo - (TInt128(fNumTo) - fNumFrom) % fStep;
    const bool isPast = fStep > 0 && counter > last;
    fCounter = std::int64_t(isPast ? last : std::max(counter, Least));
    fRepeatPos = isPast ? fRepeat : std::int16_t(before % fRepeat + 1);
    CalcValue();
}

void TVGRCounter::Keys(TJsonFields& keys) {
    keys(u"Name", fName);
    keys(u"NumFrom", fNumFrom);
    keys(u"NumTo", fNumTo);
    keys(u"Step", fStep);
    keys(u"Repeat", fRepeat);
    keys(u"Format", fFormat);
    keys(u"Before", fBefore);
    keys(u"After", fAfter);
}

void TVGRCounter::Fields(TBinaryFields& fields) {
    fields(fName, fNumFrom, fNumTo, fStep, fRepeat, fFormat, fBefore, fAfter);
}

void TVGRCounter::Members(TMembers& members) {
    members(fNumFrom, fNumTo, fRepeat, fStep, fBefore, fAfter, fFormat, fName, fNumLabs);
}

// Within their limits: step and repeat divide, and a range that is turned round has no values.
void TVGRCounter::TakeRead() {
    fRepeat = std::max<std::int16_t>(fRepeat, 1);
    SetStep(fStep);
    SetNumTo(fNumTo);
}

void TVGRCounter::WriteJson(TJsonArray& counters) const { WriteKeys(*this, counters.AddObject()); }

void TVGRCounter::ReadJson(std::int32_t, TJsonObject& json) {
    fOwner.Touch(*this);
    ReadKeys(*this, json);
    TakeRead();
}

void TVGRCounter::WriteData(TBinaryWriter& writer) const { WriteFields(*this, writer); }

void TVGRCounter::ReadData(std::int32_t version, TBinaryReader& reader) {
    fOwner.Touch(*this);
    ReadFields(*this, reader, version);
    TakeRead();
}

} // namespace vagrel
