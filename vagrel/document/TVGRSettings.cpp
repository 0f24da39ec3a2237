// SPDX-License-Identifier: MIT
// Defaults of terminals and links.
#include <vagrel/document/TVGRSettings.h>

#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>

#include <algorithm>

namespace vagrel {

float TVGRSettings::GetTermSize() const { return fOwner.GetValMM(fTermSize); }
float TVGRSettings::GetLinkGap() const { return fOwner.GetValMM(fLinkGap); }
void TVGRSettings::SetTermSize(float mm) { fTermSize = std::max(ToInt32(fOwner.SetValMM(mm)), 500); }
void TVGRSettings::SetLinkGap(float mm) { fLinkGap = std::max(ToInt32(fOwner.SetValMM(mm)), 0); }

void TVGRSettings::Assign(const TVGRSettings& s) {
    fTermColor = s.fTermColor, fFillTermColor = s.fFillTermColor, fTermSize = s.fTermSize, fLinkGap = s.fLinkGap;
}

void TVGRSettings::Keys(TJsonFields& keys) {
    keys.Color(u"TermColor", fTermColor);
    keys.Color(u"FillTermColor", fFillTermColor);
    keys.Number(u"TermSize", GetBaseValue(fTermSize), [this](float mm) { SetTermSize(mm); });
    keys.Number(u"LinkGap", GetBaseValue(fLinkGap), [this](float mm) { SetLinkGap(mm); });
}

void TVGRSettings::Fields(TBinaryFields& fields) { fields(fTermColor, fFillTermColor, fTermSize, fLinkGap); }
void TVGRSettings::Members(TMembers& members) { members(fTermColor, fFillTermColor, fTermSize, fLinkGap); }

void TVGRSettings::WriteJson(TJsonObject& parent) const { WriteKeys(*this, parent.AddObject(u"Settings")); }
void TVGRSettings::ReadJson(std::int32_t, TJsonObject& json) { ReadKeys(*this, json); }
void TVGRSettings::WriteData(TBinaryWriter& writer) const { WriteFields(*this, writer); }
void TVGRSettings::ReadData(std::int32_t version, TBinaryReader& reader) { ReadFields(*this, reader, version); }

} // namespace vagrel
