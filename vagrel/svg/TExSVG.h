// SPDX-License-Identifier: MIT
// Values as SVG text, one function each. `SvgElement` does the same without a string for every piece.
#pragma once

#include <vagrel/foundation/Colors.h>
#include <vagrel/foundation/Enumerations.h>

#include <string>
#include <string_view>

namespace vagrel {

class TVGRBaseBarcode;

/// Stateless functions that turn values into SVG text in UTF-8. Lengths are millimetres on paper. Values of
/// enumerations that do not exist give an empty text unless told otherwise.
struct TExSVG {
    /// A bare number for a position or length: no decimals for a whole number, else two.
    static std::string GetVal(float aValue, float aFactor, TKSLExportSVG ExportType);

    /// A bare number with the precision of a unit: no decimals for a whole number, else two for `unMM` and for units
    /// that do not exist, three for all others.
    static std::string GetVal(float aValue, TKSLUnits aUnit);

    /// A number with the suffix of its unit where the mode has one; empty for units other than `unMM`, `unCM` and
    /// `unINCH` in all modes but `svFactorPx`.
    static std::string GetValUnit(float aValue, float aFactor, TKSLUnits aUnit, TKSLExportSVG ExportType);

    /// Stroke attributes; they start with a blank.
    static std::string GetLineColor(TAlphaColor aValue);

    /// Fill attributes; they start with a blank.
    static std::string GetFillColor(TAlphaColor aValue, bool Filled);

    /// The dash attribute with a blank on either side, or nothing.
    static std::string GetLineStyle(TKSLineType aLineType);

    /// The line cap attribute with a blank on either side.
    static std::string GetCap(bool aRound);

    /// Font style attributes for a place directly behind the font name, inside `font-family="`: they close that
    /// attribute and leave their own last one open.
    static std::string GetTextStyle(bool aBold, bool aItalic, bool aUnderline);

    /// Radians as degrees with one decimal.
    static std::string GetDegAngle(float aValue);

    /// The short name of a unit, as "mm".
    static std::string GetUnit(TKSLUnits aUnit);

    /// The unit of a short name, without regard to case; `unMM` for anything else.
    static TKSLUnits GetUnit(std::u16string_view aUnit);

    /// Text with `"`, `&`, `<` and `>` escaped.
    static std::string ScapeText(std::u16string_view aText);

    /// The elements of the terminal of a line at (p1x, p1y), two of them joined by CR LF; empty for `ttNone`. The line
    /// comes from (p2x, p2y), or with `IsArc` in the direction of p2x radians. `aTerm` is the size; arrows take it as
    /// a whole number of millimetres and open by π ÷ `aOpen` to either side.
    static std::string DrawTerm(TKSLTermType aType, TKSLExportSVG ExportType, float p1x, float p1y, float p2x,
                                float p2y, float pW, float Factor, float aTerm, TAlphaColor Color,
                                TAlphaColor FillColor, int aOpen, bool IsArc);

    /// The bars of a linear barcode in a colour, then its digits, each an element, joined by CR LF; empty for a text
    /// that its symbology refuses. The barcode is an item of a document: the body stands with it, and the library of
    /// these texts alone does not have it.
    static std::string Barcode(const TVGRBaseBarcode& aBarcode, TAlphaColor fColor, float aFactor,
                               TKSLExportSVG ExportType);
};

} // namespace vagrel
