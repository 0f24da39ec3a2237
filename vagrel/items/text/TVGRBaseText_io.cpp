// SPDX-License-Identifier: MIT
// The single-line text in files and in SVG.
#include <vagrel/items/text/TVGRBaseText.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/items/text/LabelPosition.h>
#include <vagrel/items/text/TextSvg.h>
#include <vagrel/persistence/TBinaryFields.h>
#include <vagrel/persistence/TJsonFields.h>
#include <vagrel/svg/TExSVG.h>

namespace vagrel {

void TVGRBaseText::Members(TMembers& members) {
    TVGRBaseItem::Members(members);
    members(fFont, fBackColor, fFill, fRadio, fText, fHorzAlign, fVertAlign, fPaddingX, fPaddingY, fBinding, fMeasured,
            fScaleX, dText, fDispWidth);
}

void TVGRBaseText::Keys(TJsonFields& keys) {
    keys(u"HorzAlign", fHorzAlign);
    keys(u"VertAlign", fVertAlign);
    keys(u"DispWidth", fDispWidth);
    keys.Number(u"ScaleX", double(Round(double(fScaleX) * 100)) / 100, [this](float value) { SetScaleX(value); });
    fFont.Keys(keys);
    if (keys.Reads())
        SetFontHeight(GetBaseValue(fFont.height)); // within its limit
    keys.Number(u"Radio", GetRadio(), [this](float mm) { SetRadio(mm); });
    keys.Number(u"PaddingX", GetPaddingX(), [this](float mm) { SetPaddingX(mm); });
    keys.Number(u"PaddingY", GetPaddingY(), [this](float mm) { SetPaddingY(mm); });
    keys(u"Filled", fFill);
    keys.Color(u"BackColor", fBackColor);
    keys(u"Text", fText);
    fBinding.Keys(keys);
    if (keys.Reads())
        TakeRead();
}

void TVGRBaseText::TakeRead() {
    ShowBinding();
    StateCalc();
}

void TVGRBaseText::Fields(TBinaryFields& fields) {
    if (!fields.Reads() && ToInt32(fRadio) != fRadio)
        throw EOutOfRange(u"The corner radius of \"" + fID + u"\" does not fit the binary form");
    fields(fFont.height);
    fields.As<std::int32_t>(fRadio);
    fields(fDispWidth, fPaddingX, fPaddingY, fScaleX);
    fields(fFont.bold, fFont.italic, fFont.underline, fFont.strikeout);
    fields(fFont.name, fFont.color, fBackColor, fFill, fText);
    fBinding.Fields(fields);
    fields.As<std::int16_t>(fHorzAlign, fVertAlign);
    if (fields.Reads())
        TakeRead();
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
