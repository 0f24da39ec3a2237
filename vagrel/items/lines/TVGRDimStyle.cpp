// SPDX-License-Identifier: MIT
// Rules and file forms of dimension styles.
#include <vagrel/items/lines/TVGRDimStyle.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/JsonColors.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

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
    field = base;
    fChanged = true;
}

void TVGRDimStyle::SetArrowOpen(std::int16_t degrees) {
    degrees = std::clamp<std::int16_t>(degrees, 4, 22);
    if (degrees == fArrowOpen)
        return;
    fArrowOpen = degrees;
    fChanged = true;
}

void TVGRDimStyle::SetDimSpace(float mm) {
    StoreLength(fDimSpace, mm, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
}

void TVGRDimStyle::SetExtSize(float mm) {
    StoreLength(fExtSize, mm, 2000, 25000);
    fExtGap = std::min(fExtGap, fExtSize - 1000);
}

void TVGRDimStyle::SetExtGap(float mm) { StoreLength(fExtGap, mm, 0, std::min(15000, fExtSize - 1000)); }

void TVGRDimStyle::WriteJson(TJsonArray& styles) const {
    TJsonObject& json = styles.AddObject();
    auto length = [](TJsonObject& to, std::u16string_view key, std::int32_t base) {
        to.SetFloat(key, RoundTo3(GetBaseValue(base)));
    };
    json.SetInt(u"ID", fID);
    json.SetString(u"Name", fName);
    SetAlphaColor(json, u"DimColor", fDimColor);
    SetAlphaColor(json, u"FillColor", fFillColor);
    SetAlphaColor(json, u"ExtColor", fExtColor);
    SetAlphaColor(json, u"HeadColor", fHeadColor);
    json.SetInt(u"DimLineType", fDimLineType);
    length(json, u"DimPenWidth", fDimPenWidth);
    json.SetInt(u"ExtLineType", fExtLineType);
    length(json, u"ExtPenWidth", fExtPenWidth);
    json.SetInt(u"HeadType", fHeadType);
    length(json, u"HeadSize", fHeadSize);
    json.SetInt(u"ArrowOpen", fArrowOpen);
    fFont.WriteJson(json);
    json.SetInt(u"TextPos", fTextPos);
    json.SetInt(u"RadialStyle", fRadialStyle);
    length(json, u"DimBreak", fDimBreak);
    length(json, u"DimSpace", fDimSpace);
    length(json, u"ExtSize", fExtSize);
    length(json, u"ExtGap", fExtGap);
    json.SetString(u"Format", fFormat);
    json.SetString(u"Prefix", fPrefix);
    json.SetString(u"Suffix", fSuffix);
    json.SetInt(u"Unit", fUnit);
}

void TVGRDimStyle::ReadJson(std::int32_t, TJsonObject& json) {
    auto mm = [&](std::u16string_view key) { return float(json.GetFloat(key)); };
    fID = std::int16_t(std::clamp(json.GetInt(u"ID"), -0x8000, 0x7FFF));
    fName = json.GetString(u"Name");
    fDimColor = GetAlphaColor(json.GetObject(u"DimColor"));
    fFillColor = GetAlphaColor(json.GetObject(u"FillColor"));
    fExtColor = GetAlphaColor(json.GetObject(u"ExtColor"));
    fHeadColor = GetAlphaColor(json.GetObject(u"HeadColor"));
    fDimLineType = TKSLineType(json.GetInt(u"DimLineType"));
    SetDimPenWidth(mm(u"DimPenWidth"));
    fExtLineType = TKSLineType(json.GetInt(u"ExtLineType"));
    SetExtPenWidth(mm(u"ExtPenWidth"));
    fHeadType = TKSLTermType(json.GetInt(u"HeadType"));
    SetHeadSize(mm(u"HeadSize"));
    SetArrowOpen(std::int16_t(std::clamp(json.GetInt(u"ArrowOpen"), 4, 22)));
    fFont.ReadJson(json);
    SetFontHeight(GetBaseValue(fFont.height)); // within its limits
    fTextPos = TKSLTextPos(json.GetInt(u"TextPos"));
    fRadialStyle = TKSLRadialStyle(json.GetInt(u"RadialStyle"));
    SetDimBreak(mm(u"DimBreak"));
    SetDimSpace(mm(u"DimSpace"));
    SetExtSize(mm(u"ExtSize"));
    SetExtGap(mm(u"ExtGap"));
    fFormat = json.GetString(u"Format");
    fPrefix = json.GetString(u"Prefix");
    fSuffix = json.GetString(u"Suffix");
    fUnit = TKSLUnits(json.GetInt(u"Unit"));
}

void TVGRDimStyle::WriteData(TBinaryWriter& writer) const {
    writer.Write(fID);
    writer.Write(fName);
    for (TAlphaColor color : {fDimColor, fFillColor, fExtColor, fHeadColor})
        writer.Write(color);
    writer.Write(std::int16_t(fDimLineType));
    writer.Write(std::int16_t(fExtLineType));
    writer.Write(std::int16_t(fHeadType));
    writer.Write(fHeadSize);
    writer.Write(fArrowOpen);
    writer.Write(fDimPenWidth);
    writer.Write(fExtPenWidth);
    for (bool flag : {fFont.bold, fFont.italic, fFont.underline, fFont.strikeout})
        writer.Write(flag);
    writer.Write(fFont.height);
    writer.Write(fFont.name);
    writer.Write(fFont.color);
    writer.Write(std::int16_t(fTextPos));
    writer.Write(std::int16_t(fRadialStyle));
    for (std::int32_t length : {fDimBreak, fDimSpace, fExtSize, fExtGap})
        writer.Write(length);
    for (const std::u16string* text : {&fFormat, &fPrefix, &fSuffix})
        writer.Write(*text);
    writer.Write(std::int16_t(fUnit));
}

void TVGRDimStyle::ReadData(std::int32_t, TBinaryReader& reader) {
    fID = reader.Read<std::int16_t>();
    fName = reader.ReadString();
    for (TAlphaColor* color : {&fDimColor, &fFillColor, &fExtColor, &fHeadColor})
        *color = reader.Read<TAlphaColor>();
    fDimLineType = TKSLineType(reader.Read<std::int16_t>());
    fExtLineType = TKSLineType(reader.Read<std::int16_t>());
    fHeadType = TKSLTermType(reader.Read<std::int16_t>());
    fHeadSize = reader.Read<std::int32_t>();
    fArrowOpen = reader.Read<std::int16_t>();
    fDimPenWidth = reader.Read<std::int32_t>();
    fExtPenWidth = reader.Read<std::int32_t>();
    for (bool* flag : {&fFont.bold, &fFont.italic, &fFont.underline, &fFont.strikeout})
        *flag = reader.ReadBool();
    fFont.height = reader.Read<std::int32_t>();
    fFont.name = reader.ReadString();
    fFont.color = reader.Read<TAlphaColor>();
    fTextPos = TKSLTextPos(reader.Read<std::int16_t>());
    fRadialStyle = TKSLRadialStyle(reader.Read<std::int16_t>());
    for (std::int32_t* length : {&fDimBreak, &fDimSpace, &fExtSize, &fExtGap})
        *length = reader.Read<std::int32_t>();
    for (std::u16string* text : {&fFormat, &fPrefix, &fSuffix})
        *text = reader.ReadString();
    fUnit = TKSLUnits(reader.Read<std::int16_t>());
}

} // namespace vagrel
