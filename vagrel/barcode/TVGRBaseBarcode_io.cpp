// SPDX-License-Identifier: MIT
// The linear barcode in files and in SVG.
#include <vagrel/barcode/TVGRBaseBarcode.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/items/text/TextSvg.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>
#include <vagrel/svg/TExSVG.h>

#include <algorithm>

namespace vagrel {

void TVGRBaseBarcode::Members(TMembers& members) {
    TVGRBaseCode::Members(members);
    members(fDistance, fShowNumber, fCheckSum, fCheckType, fCodeType, f128Auto, fIgnoreParentheses, fFontName,
            fFontHeight, fMeasured, fCCode, fDrCode, fIsValid);
}

void TVGRBaseBarcode::TakeRead() {
    LimitSizes();
    StoreCode(std::u16string(fCode)); // behind the flags that it needs
    fFontHeight = std::max(fFontHeight, SmallestFont);
    aIsData = fBinding.IsSet();
    CheckFactor();
    Encode();
    StateCalc(); // lets a host measure the digits
}

void TVGRBaseBarcode::Keys(TJsonFields& keys) {
    TVGRBaseCode::Keys(keys);
    keys(u"CodeType", fCodeType);
    keys(u"CheckType", fCheckType);
    keys(u"HorzAlign", fHorzAlign);
    keys(u"AutoType128", f128Auto);
    BarKeys(keys);
    SizeKey(keys, u"Distance", fDistance);
    PaddingKeys(keys);
    keys(u"Factor", fFactor);
    keys(u"Code", fCode);
    keys(u"IgnoreParentheses", fIgnoreParentheses);
    keys(u"CheckSum", fCheckSum);
    keys(u"ShowNumber", fShowNumber);
    keys.Inner(u"Font", [this](TJsonFields& font) {
        font(u"Name", fFontName);
        SizeKey(font, u"FontHeight", fFontHeight);
    });
    fBinding.Keys(keys);
    if (keys.Reads())
        TakeRead();
}

void TVGRBaseBarcode::Fields(TBinaryFields& fields) {
    TVGRBaseCode::Fields(fields);
    fields(fCodeType, fCheckType, f128Auto);
    fields.As<std::int16_t>(fHorzAlign);
    fields(fBarWidth, fBarHeight, fDistance, fPaddingX, fPaddingY, fFontName, fFontHeight, fFactor);
    fields(fShowNumber, fCheckSum, fIgnoreParentheses, fCode);
    fBinding.Fields(fields);
    if (fields.Reads())
        TakeRead();
}

void TVGRBaseBarcode::WriteSVG(TSVGOutput& out) const {
    if (!fIsValid)
        return;
    WriteFrame(out);
    WriteSymbol(out, fColor);
}

void TVGRBaseBarcode::WriteSymbol(TSVGOutput& out, TAlphaColor color) const {
    // Not the stored pattern: a change may wait for its calculation.
    const TPrepared prepared = Prepare();
    WriteRects(out, Bars(prepared.pattern), color);
    for (const TPlacedDigits& digits : Digits(prepared.code, prepared.pattern))
        WriteDigits(out, digits, color);
}

std::string TExSVG::Barcode(const TVGRBaseBarcode& aBarcode, TAlphaColor fColor, float aFactor,
                            TKSLExportSVG ExportType) {
    TSVGOutput out{ExportType, aFactor, false, false, {}, {}};
    if (aBarcode.IsValid())
        aBarcode.WriteSymbol(out, fColor);
    std::string text;
    for (const std::string& element : out.svg)
        (text += text.empty() ? "" : "\r\n") += element;
    return text;
}

void TVGRBaseBarcode::WriteDigits(TSVGOutput& out, const TPlacedDigits& digits, TAlphaColor color) const {
    const float x = GetMM(digits.at.bX), y = GetMM(digits.at.bY);
    SvgElement text = out.Element();
    (text << "<text").Attr("x", x).Attr("y", out.portable ? y + GetBaseValue(fMeasured.ascent) : y)
        << " font-family=\"";
    (text.Name(fFontName) << "\"")
            .Attr("font-size", float(double(GetBaseValue(fFontHeight)) * fMeasured.ratio))
            .Fill(color)
        << " xml:space=\"preserve\"" << TextAnchor(digits.align, vaTop, out.portable);
    if (fAngle >= ag90 && fAngle <= ag270) {
        (text << "transform=\"rotate(" << std::to_string(DegAngle(fAngle)) << " ").Val(x) << " ";
        text.Val(y) << ")\"";
    }
    (text << ">").Text(digits.text) << "</text>";
    out.svg.push_back(text.Take());
}

} // namespace vagrel
