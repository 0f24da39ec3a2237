// SPDX-License-Identifier: MIT
// Rules and file forms of dimension styles.
#include <vagrel/items/lines/TVGRDimStyle.h>

#include <vagrel/document/TMembers.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonFields.h>

#include <algorithm>
#include <limits>

namespace vagrel {

TVGRDimStyle::TVGRDimStyle(TVGRBaseLabel& owner) : TVGRDimStyle(owner, {}, 0, 0, false, false) {}

TVGRDimStyle::TVGRDimStyle(TVGRBaseLabel& owner, std::u16string_view name, TAlphaColor, TAlphaColor, bool assignID,
                           bool active)
    : fOwner(owner), fName(name), fUnit(owner.GetUnits()) {
    owner.Adopt(*this);
    if (assignID)
        AsignId();
    if (active)
        owner.SetActiveDimStyle(owner.DimStylesCount());
}

TVGRDimStyle::~TVGRDimStyle() { fOwner.Forget(*this); }

void TVGRDimStyle::AsignId() {
    std::int16_t highest = 0;
    for (int i = 1; i <= fOwner.DimStylesCount(); ++i)
        if (const TVGRDimStyle* other = fOwner.GetDimStyle(i); other != this)
            highest = std::max(highest, other->fID);
    fID = std::int16_t(highest + 1);
}

void TVGRDimStyle::StoreLength(std::int32_t& field, float mm, std::int32_t low, std::int32_t high) {
    const std::int32_t base = std::clamp(ToInt32(SetBaseValue(mm)), low, high);
    if (base == field)
        return;
    fOwner.Touch(*this);
    field = base;
    fChanged = true;
}

void TVGRDimStyle::SetArrowOpen(std::int16_t degrees) {
    degrees = std::clamp<std::int16_t>(degrees, 4, 22);
    if (degrees == fArrowOpen)
        return;
    fOwner.Touch(*this);
    fArrowOpen = degrees;
    fChanged = true;
}

void TVGRDimStyle::SetDimSpace(float mm) {
    StoreLength(fDimSpace, mm, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
}

void TVGRDimStyle::SetExtSize(float mm) {
    StoreLength(fExtSize, mm, 2000, 25000);
    if (fExtGap <= fExtSize - 1000)
        return;
    fOwner.Touch(*this);
    fExtGap = fExtSize - 1000;
}

void TVGRDimStyle::SetExtGap(float mm) { StoreLength(fExtGap, mm, 0, std::min(15000, fExtSize - 1000)); }

void TVGRDimStyle::Keys(TJsonFields& keys) {
    auto length = [&](std::u16string_view key, std::int32_t base, void (TVGRDimStyle::*set)(float)) {
        keys.Number(key, GetBaseValue(base), [=, this](float mm) { (this->*set)(mm); });
    };
    keys(u"ID", fID);
    keys(u"Name", fName);
    keys.Color(u"DimColor", fDimColor);
    keys.Color(u"FillColor", fFillColor);
    keys.Color(u"ExtColor", fExtColor);
    keys.Color(u"HeadColor", fHeadColor);
    keys(u"DimLineType", fDimLineType);
    length(u"DimPenWidth", fDimPenWidth, &TVGRDimStyle::SetDimPenWidth);
    keys(u"ExtLineType", fExtLineType);
    length(u"ExtPenWidth", fExtPenWidth, &TVGRDimStyle::SetExtPenWidth);
    keys(u"HeadType", fHeadType);
    length(u"HeadSize", fHeadSize, &TVGRDimStyle::SetHeadSize);
    keys.Through(u"ArrowOpen", fArrowOpen, [this](std::int16_t degrees) { SetArrowOpen(degrees); });
    fFont.Keys(keys);
    if (keys.Reads())
        SetFontHeight(GetBaseValue(fFont.height)); // within its limits
    keys(u"TextPos", fTextPos);
    keys(u"RadialStyle", fRadialStyle);
    length(u"DimBreak", fDimBreak, &TVGRDimStyle::SetDimBreak);
    length(u"DimSpace", fDimSpace, &TVGRDimStyle::SetDimSpace);
    length(u"ExtSize", fExtSize, &TVGRDimStyle::SetExtSize);
    length(u"ExtGap", fExtGap, &TVGRDimStyle::SetExtGap);
    keys(u"Format", fFormat);
    keys(u"Prefix", fPrefix);
    keys(u"Suffix", fSuffix);
    keys(u"Unit", fUnit);
}

void TVGRDimStyle::Fields(TBinaryFields& fields) {
    fields(fID, fName, fDimColor, fFillColor, fExtColor, fHeadColor);
    fields.As<std::int16_t>(fDimLineType, fExtLineType, fHeadType);
    fields(fHeadSize, fArrowOpen, fDimPenWidth, fExtPenWidth);
    fields(fFont.bold, fFont.italic, fFont.underline, fFont.strikeout, fFont.height, fFont.name, fFont.color);
    fields.As<std::int16_t>(fTextPos, fRadialStyle);
    fields(fDimBreak, fDimSpace, fExtSize, fExtGap, fFormat, fPrefix, fSuffix);
    fields.As<std::int16_t>(fUnit);
}

void TVGRDimStyle::Members(TMembers& members) {
    members(fID, fName, fDimColor, fFillColor, fExtColor, fHeadColor, fDimLineType, fExtLineType, fHeadType, fHeadSize,
            fDimPenWidth, fExtPenWidth, fArrowOpen, fTextPos, fRadialStyle, fFont, fDimBreak, fDimSpace, fExtGap,
            fExtSize, fFormat, fPrefix, fSuffix, fUnit, fAscent, fDescent, fChanged);
}

void TVGRDimStyle::WriteJson(TJsonArray& styles) const { WriteKeys(*this, styles.AddObject()); }

void TVGRDimStyle::ReadJson(std::int32_t, TJsonObject& json) {
    fOwner.Touch(*this);
    ReadKeys(*this, json);
}

void TVGRDimStyle::WriteData(TBinaryWriter& writer) const { WriteFields(*this, writer); }

void TVGRDimStyle::ReadData(std::int32_t version, TBinaryReader& reader) {
    fOwner.Touch(*this);
    ReadFields(*this, reader, version);
}

} // namespace vagrel
