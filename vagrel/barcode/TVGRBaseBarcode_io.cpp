// SPDX-License-Identifier: MIT
// The linear barcode in files and in SVG.
#include <vagrel/barcode/TVGRBaseBarcode.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/items/text/TextSvg.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>

namespace vagrel {

void TVGRBaseBarcode::TakeRead() {
    fFontHeight = std::max(fFontHeight, SmallestFont);
    aIsData = fBinding.IsSet();
    CheckFactor();
    Encode();
    StateCalc(); // lets a host measure the digits
}

void TVGRBaseBarcode::WriteKeys(TJsonObject& json) const {
    TVGRBaseCode::WriteKeys(json);
    json.SetInt(u"CodeType", fCodeType);
    json.SetInt(u"CheckType", fCheckType);
    json.SetInt(u"HorzAlign", fHorzAlign);
    json.SetInt(u"AutoType128", f128Auto);
    WriteBarKeys(json);
    json.SetFloat(u"Distance", RoundTo3(GetDistance()));
    WritePaddingKeys(json);
    json.SetFloat(u"Factor", RoundTo3(fFactor));
    json.SetString(u"Code", fCode);
    json.SetBool(u"IgnoreParentheses", fIgnoreParentheses);
    json.SetBool(u"CheckSum", fCheckSum);
    json.SetBool(u"ShowNumber", fShowNumber);
    TJsonObject& font = json.AddObject(u"Font");
    font.SetString(u"Name", fFontName);
    font.SetFloat(u"FontHeight", RoundTo3(GetFontHeight()));
    fBinding.WriteJson(json);
}

void TVGRBaseBarcode::ReadKeys(std::int32_t version, TJsonObject& json) {
    TVGRBaseCode::ReadKeys(version, json);
    fCodeType = TKSLBarType(json.GetInt(u"CodeType"));
    fCheckType = TKSLCheckType(json.GetInt(u"CheckType"));
    fHorzAlign = TKSLHorzAlign(json.GetInt(u"HorzAlign"));
    f128Auto = TKSL128AutoType(json.GetInt(u"AutoType128"));
    ReadBarKeys(json);
    fDistance = ToBase(float(json.GetFloat(u"Distance")));
    fFactor = float(json.GetFloat(u"Factor"));
    fIgnoreParentheses = json.GetBool(u"IgnoreParentheses");
    fCheckSum = json.GetBool(u"CheckSum");
    fShowNumber = json.GetBool(u"ShowNumber");
    StoreCode(json.GetString(u"Code"));
    TJsonObject& font = json.GetObject(u"Font");
    fFontName = font.GetString(u"Name");
    fFontHeight = ToBase(float(font.GetFloat(u"FontHeight")));
    fBinding.ReadJson(json);
    TakeRead();
}

void TVGRBaseBarcode::WriteFields(TBinaryWriter& writer) const {
    TVGRBaseCode::WriteFields(writer);
    writer.Write(std::int32_t(fCodeType));
    writer.Write(std::int32_t(fCheckType));
    writer.Write(std::int32_t(f128Auto));
    writer.Write(std::int16_t(fHorzAlign));
    for (const std::int32_t size : {fBarWidth, fBarHeight, fDistance, fPaddingX, fPaddingY})
        writer.Write(size);
    writer.Write(fFontName);
    writer.Write(fFontHeight);
    writer.Write(fFactor);
    for (const bool flag : {fShowNumber, fCheckSum, fIgnoreParentheses})
        writer.Write(flag);
    writer.Write(fCode);
    fBinding.WriteData(writer);
}

void TVGRBaseBarcode::ReadFields(std::int32_t version, TBinaryReader& reader) {
    TVGRBaseCode::ReadFields(version, reader);
    fCodeType = TKSLBarType(reader.Read<std::int32_t>());
    fCheckType = TKSLCheckType(reader.Read<std::int32_t>());
    f128Auto = TKSL128AutoType(reader.Read<std::int32_t>());
    fHorzAlign = TKSLHorzAlign(reader.Read<std::int16_t>());
    for (std::int32_t* size : {&fBarWidth, &fBarHeight, &fDistance, &fPaddingX, &fPaddingY})
        *size = reader.Read<std::int32_t>();
    StoreLimited(fBarWidth, fBarHeight, fPaddingX, fPaddingY);
    fFontName = reader.ReadString();
    fFontHeight = reader.Read<std::int32_t>();
    fFactor = reader.Read<float>();
    for (bool* flag : {&fShowNumber, &fCheckSum, &fIgnoreParentheses})
        *flag = reader.ReadBool();
    StoreCode(reader.ReadString());
    fBinding.ReadData(reader);
    TakeRead();
}

void TVGRBaseBarcode::WriteSVG(TSVGOutput& out) const {
    if (!fIsValid)
        return;
    WriteFrame(out);
    // Not the stored pattern: a change may wait for its calculation.
    const TPrepared prepared = Prepare();
    WriteRects(out, Bars(prepared.pattern));
    for (const TPlacedDigits& digits : Digits(prepared.code, prepared.pattern))
        WriteDigits(out, digits);
}

void TVGRBaseBarcode::WriteDigits(TSVGOutput& out, const TPlacedDigits& digits) const {
    const float x = GetMM(digits.at.bX), y = GetMM(digits.at.bY);
    SvgElement text = out.Element();
    (text << "<text").Attr("x", x).Attr("y", out.portable ? y + GetBaseValue(fMeasured.ascent) : y)
        << " font-family=\"";
    (text.Name(fFontName) << "\"")
            .Attr("font-size", float(double(GetBaseValue(fFontHeight)) * fMeasured.ratio))
            .Fill(fColor)
        << " xml:space=\"preserve\"" << TextAnchor(digits.align, vaTop, out.portable);
    if (fAngle >= ag90 && fAngle <= ag270) {
        (text << "transform=\"rotate(" << std::to_string(DegAngle(fAngle)) << " ").Val(x) << " ";
        text.Val(y) << ")\"";
    }
    (text << ">").Text(digits.text) << "</text>";
    out.svg.push_back(text.Take());
}

} // namespace vagrel
