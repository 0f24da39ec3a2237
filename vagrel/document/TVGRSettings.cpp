// SPDX-License-Identifier: MIT
// Defaults of terminals and links.
#include <vagrel/document/TVGRSettings.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/JsonColors.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>

namespace vagrel {

float TVGRSettings::GetTermSize() const { return fOwner.GetValMM(fTermSize); }
float TVGRSettings::GetLinkGap() const { return fOwner.GetValMM(fLinkGap); }
void TVGRSettings::SetTermSize(float mm) { fTermSize = std::max(ToInt32(fOwner.SetValMM(mm)), 500); }
void TVGRSettings::SetLinkGap(float mm) { fLinkGap = std::max(ToInt32(fOwner.SetValMM(mm)), 0); }

void TVGRSettings::Assign(const TVGRSettings& s) {
    fTermColor = s.fTermColor, fFillTermColor = s.fFillTermColor, fTermSize = s.fTermSize, fLinkGap = s.fLinkGap;
}

void TVGRSettings::WriteJson(TJsonObject& parent) const {
    TJsonObject& json = parent.AddObject(u"Settings");
    SetAlphaColor(json, u"TermColor", fTermColor);
    SetAlphaColor(json, u"FillTermColor", fFillTermColor);
    json.SetFloat(u"TermSize", RoundTo3(GetBaseValue(fTermSize)));
    json.SetFloat(u"LinkGap", RoundTo3(GetBaseValue(fLinkGap)));
}

void TVGRSettings::ReadJson(std::int32_t, TJsonObject& json) {
    fTermColor = GetAlphaColor(json.GetObject(u"TermColor"));
    fFillTermColor = GetAlphaColor(json.GetObject(u"FillTermColor"));
    SetTermSize(float(json.GetFloat(u"TermSize")));
    SetLinkGap(float(json.GetFloat(u"LinkGap")));
}

} // namespace vagrel
