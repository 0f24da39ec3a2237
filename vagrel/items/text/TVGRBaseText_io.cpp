// SPDX-License-Identifier: MIT
// The single-line text in files and in SVG.
#include <vagrel/items/text/TVGRBaseText.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/items/text/LabelPosition.h>
#include <vagrel/items/text/TextSvg.h>
#include <vagrel/persistence/JsonColors.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/svg/TExSVG.h>

#include <limits>

namespace vagrel {

void TVGRBaseText::WriteKeys(TJsonObject& json) const {
    json.SetInt(u"HorzAlign", fHorzAlign);
    json.SetInt(u"VertAlign", fVertAlign);
    json.SetInt(u"DispWidth", fDispWidth);
    json.SetFloat(u"ScaleX", double(Round(double(fScaleX) * 100)) / 100);
    fFont.WriteJson(json);
    json.SetFloat(u"Radio", RoundTo3(GetRadio()));
    json.SetFloat(u"PaddingX", RoundTo3(GetPaddingX()));
    json.SetFloat(u"PaddingY", RoundTo3(GetPaddingY()));
    json.SetBool(u"Filled", fFill);
    SetAlphaColor(json, u"BackColor", fBackColor);
    json.SetString(u"Text", fText);
    fBinding.WriteJson(json);
}

void TVGRBaseText::ReadKeys(std::int32_t, TJsonObject& json) {
    fHorzAlign = TKSLHorzAlign(json.GetInt(u"HorzAlign"));
    fVertAlign = TKSLVertAlign(json.GetInt(u"VertAlign"));
    fDispWidth = json.GetInt(u"DispWidth");
    SetScaleX(float(json.GetFloat(u"ScaleX")));
    fFont.ReadJson(json);
    SetFontHeight(GetBaseValue(fFont.height)); // within its limit
    SetRadio(float(json.GetFloat(u"Radio")));
    SetPaddingX(float(json.GetFloat(u"PaddingX")));
    SetPaddingY(float(json.GetFloat(u"PaddingY")));
    fFill = json.GetBool(u"Filled");
    fBackColor = GetAlphaColor(json.GetObject(u"BackColor"));
    fText = json.GetString(u"Text");
    fBinding.ReadJson(json);
    ShowBinding();
    StateCalc();
}

void TVGRBaseText::WriteFields(TBinaryWriter& writer) const {
    if (fRadio > std::numeric_limits<std::int32_t>::max() || fRadio < std::numeric_limits<std::int32_t>::min())
        throw EOutOfRange(u"The corner radius of \"" + fID + u"\" does not fit the binary form");
    writer.Write(fFont.height);
    writer.Write(std::int32_t(fRadio));
    writer.Write(fDispWidth);
    writer.Write(fPaddingX);
    writer.Write(fPaddingY);
    writer.Write(fScaleX);
    for (bool flag : {fFont.bold, fFont.italic, fFont.underline, fFont.strikeout})
        writer.Write(flag);
    writer.Write(fFont.name);
    writer.Write(fFont.color);
    writer.Write(fBackColor);
    writer.Write(fFill);
    writer.Write(fText);
    fBinding.WriteData(writer);
    writer.Write(std::int16_t(fHorzAlign));
    writer.Write(std::int16_t(fVertAlign));
}

void TVGRBaseText::ReadFields(std::int32_t, TBinaryReader& reader) {
    fFont.height = reader.Read<std::int32_t>();
    fRadio = reader.Read<std::int32_t>();
    fDispWidth = reader.Read<std::int32_t>();
    fPaddingX = reader.Read<std::int32_t>();
    fPaddingY = reader.Read<std::int32_t>();
    fScaleX = reader.Read<float>();
    for (bool* flag : {&fFont.bold, &fFont.italic, &fFont.underline, &fFont.strikeout})
        *flag = reader.ReadBool();
    fFont.name = reader.ReadString();
    fFont.color = reader.Read<TAlphaColor>();
    fBackColor = reader.Read<TAlphaColor>();
    fFill = reader.ReadBool();
    fText = reader.ReadString();
    fBinding.ReadData(reader);
    fHorzAlign = TKSLHorzAlign(reader.Read<std::int16_t>());
    fVertAlign = TKSLVertAlign(reader.Read<std::int16_t>());
    ShowBinding();
    StateCalc();
}

void TVGRBaseText::WriteSVG(TSVGOutput& out) const {
    WriteTextFrame(out, *this, {fFill, fBackColor, GetRadio()});
    float x = GetPointMMX(1), y = GetPointMMY(1);
    AdjustPos(GetPaddingX(), GetPaddingY(), fHorzAlign, fVertAlign, fAngle, x, y);
    SvgElement transform = out.Element();
    transform << " transform=\"";
    if (fAngle >= ag90 && fAngle <= ag270) {
        (transform << "rotate(" << std::to_string(DegAngle(fAngle)) << " ").Val(x) << " ";
        transform.Val(y) << ") ";
    }
    transform << "scale(" << TExSVG::GetVal(fScaleX, 1, out.ExportType) << ", 1)\"";

    SvgElement text = out.Element();
    const float below =
        out.portable ? BaselineBelow(fVertAlign, GetBaseValue(fMeasured.ascent), GetBaseValue(fMeasured.descent)) : 0;
    (text << "<text" << GetSVGID(out)).Attr("x", float(double(x) / double(fScaleX))).Attr("y", y + below)
        << " font-family=\"";
    text.Name(fFont.name) << TExSVG::GetTextStyle(fFont.bold, fFont.italic, fFont.underline) << "\"";
    (text.Attr("font-size", float(double(GetFontHeight()) * fMeasured.ratio)) << " ").Fill(fFont.color)
        << " xml:space=\"preserve\"" << TextAnchor(fHorzAlign, fVertAlign, out.portable) << transform.Take() << ">";
    text.Text(fText) << "</text>";
    out.svg.push_back(text.Take());
}

} // namespace vagrel
