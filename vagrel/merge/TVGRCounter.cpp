// SPDX-License-Identifier: MIT
// Ranges, values and stored forms of counters.
#include <vagrel/merge/TVGRCounter.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>
#include <limits>

namespace vagrel {

namespace {

// Where a counter with a negative step ends.
constexpr TInt128 Least = std::numeric_limits<std::int64_t>::min();

} // namespace

TVGRCounter::TVGRCounter(TVGRBaseLabel& owner) : fOwner(owner) { owner.Adopt(*this); }

TVGRCounter::~TVGRCounter() { fOwner.Forget(*this); }

void TVGRCounter::SetNumFrom(std::int64_t value) {
    fNumFrom = value;
    fNumTo = std::max(fNumTo, value);
    CalcNumLabs();
}

void TVGRCounter::SetNumTo(std::int64_t value) {
    fNumTo = value;
    fNumFrom = std::min(fNumFrom, value);
    CalcNumLabs();
}

void TVGRCounter::SetRepeat(std::int16_t value) {
    fRepeat = std::max<std::int16_t>(value, 1);
    CalcNumLabs();
}

void TVGRCounter::SetStep(std::int32_t value) {
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

void TVGRCounter::WriteJson(TJsonArray& counters) const {
    TJsonObject& json = counters.AddObject();
    json.SetString(u"Name", fName);
    json.SetLong(u"NumFrom", fNumFrom);
    json.SetLong(u"NumTo", fNumTo);
    json.SetInt(u"Step", fStep);
    json.SetInt(u"Repeat", fRepeat);
    json.SetString(u"Format", fFormat);
    json.SetString(u"Before", fBefore);
    json.SetString(u"After", fAfter);
}

void TVGRCounter::ReadJson(std::int32_t, TJsonObject& json) {
    fName = json.GetString(u"Name");
    SetNumFrom(json.GetLong(u"NumFrom"));
    SetNumTo(json.GetLong(u"NumTo"));
    SetStep(json.GetInt(u"Step"));
    SetRepeat(std::int16_t(std::clamp(json.GetInt(u"Repeat"), 1, 0x7FFF)));
    fFormat = json.GetString(u"Format");
    fBefore = json.GetString(u"Before");
    fAfter = json.GetString(u"After");
}

void TVGRCounter::WriteData(TBinaryWriter& writer) const {
    writer.Write(fName);
    writer.Write(fNumFrom);
    writer.Write(fNumTo);
    writer.Write(fStep);
    writer.Write(fRepeat);
    for (const std::u16string* text : {&fFormat, &fBefore, &fAfter})
        writer.Write(*text);
}

void TVGRCounter::ReadData(std::int32_t, TBinaryReader& reader) {
    fName = reader.ReadString();
    // Within their limits: step and repeat divide, and a range that is turned round has no values.
    SetNumFrom(reader.Read<std::int64_t>());
    SetNumTo(reader.Read<std::int64_t>());
    SetStep(reader.Read<std::int32_t>());
    SetRepeat(reader.Read<std::int16_t>());
    for (std::u16string* text : {&fFormat, &fBefore, &fAfter})
        *text = reader.ReadString();
}

} // namespace vagrel
