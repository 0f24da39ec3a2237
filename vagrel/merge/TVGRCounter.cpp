// SPDX-License-Identifier: MIT
// Ranges and JSON form of counters.
#include <vagrel/merge/TVGRCounter.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>

namespace vagrel {

TVGRCounter::TVGRCounter(TVGRBaseLabel& owner) : fOwner(owner) { owner.Adopt(*this); }

TVGRCounter::~TVGRCounter() { fOwner.Forget(*this); }

void TVGRCounter::SetNumFrom(std::int64_t value) {
    fNumFrom = value;
    fNumTo = std::max(fNumTo, value);
}

void TVGRCounter::SetNumTo(std::int64_t value) {
    fNumTo = value;
    fNumFrom = std::min(fNumFrom, value);
}

void TVGRCounter::SetRepeat(std::int16_t value) { fRepeat = std::max<std::int16_t>(value, 1); }
void TVGRCounter::SetStep(std::int32_t value) { fStep = value == 0 ? 1 : value; }

void TVGRCounter::CalcNumLabs() {
    const TInt128 values = (TInt128(fNumTo) - fNumFrom + 1) / fStep;
    constexpr TInt128 most = std::numeric_limits<std::int32_t>::max();
    fNumLabs = std::int32_t(std::clamp<TInt128>(std::clamp<TInt128>(values, -most, most) * fRepeat, -most, most));
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
    CalcNumLabs();
}

} // namespace vagrel
