// SPDX-License-Identifier: MIT
// The builder of one SVG element. All numbers, colours and texts of the SVG export are formatted here.
#pragma once

#include <vagrel/foundation/Colors.h>
#include <vagrel/foundation/Enumerations.h>

#include <span>
#include <string>
#include <string_view>

namespace vagrel {

/// Builds the text of one element, or of a short group, from literals and values in millimetres on paper. Values of
/// enumerations that do not exist write nothing.
class SvgElement {
public:
    /// `factor` scales positions and lengths in the modes `svFactor` and `svFactorPx`. With `wellFormed` names are
    /// escaped, and names and texts lose the characters that XML cannot hold.
    SvgElement(TKSLExportSVG type, float factor, bool wellFormed = false)
        : fType(type), fFactor(factor), fWellFormed(wellFormed) {
        fText.reserve(Usual);
    }

    /// Appends text as it is.
    SvgElement& operator<<(std::string_view literal) {
        fText += literal;
        return *this;
    }
    /// Appends text as it is, in UTF-8.
    SvgElement& operator<<(std::u16string_view text);

    /// A position or length: no decimals for a whole number, else two.
    SvgElement& Val(float value);
    /// A length with the suffix of `unit` in `svCurrentUnit` and `svFactor`: no decimals for a whole number, else one
    /// for `unMM` and two for `unCM` and `unINCH`. Other units write nothing, but `svFactorPx` never looks at the unit
    /// and has two decimals.
    SvgElement& ValUnit(float value, TKSLUnits unit);
    /// A pen width: as `ValUnit` in millimetres, but never scaled and without suffix.
    SvgElement& Pen(float width);

    /// ` name="value"`, a position or length by `Val`.
    SvgElement& Attr(std::string_view name, float value);
    /// The four attributes of a rectangle.
    SvgElement& Box(float x, float y, float width, float height);
    /// ` stroke-width="width"` by `Pen`.
    SvgElement& StrokeWidth(float width);

    /// ` stroke="#RRGGBB"`, with a stroke-opacity below alpha 255.
    SvgElement& Stroke(TAlphaColor color);
    /// ` fill="#RRGGBB"`, with a fill-opacity below alpha 255.
    SvgElement& Fill(TAlphaColor color);
    /// ` stroke-dasharray="..." `, a blank on either side; nothing for `iiSolid`. The lengths are not scaled.
    SvgElement& Dash(TKSLineType type);

    /// Appends an identifier or the name of a font in UTF-8: as it is stored or, well-formed, as `Text` does.
    SvgElement& Name(std::u16string_view name);
    /// Appends text in UTF-8 with `"`, `&`, `<` and `>` escaped.
    SvgElement& Text(std::u16string_view text);

    /// Hands the text over and is empty afterwards.
    std::string Take();

private:
    // Most elements are shorter.
    static constexpr std::size_t Usual = 240;

    void Length(float value, TKSLUnits unit, TKSLExportSVG type);
    void Paint(std::string_view name, TAlphaColor color);

    std::string fText;
    TKSLExportSVG fType;
    float fFactor;
    bool fWellFormed;
};

/// The lengths of a dash style in millimetres, dash and gap by turns from the start of a line; none for `iiSolid`. An
/// odd number of them is repeated with dash and gap exchanged.
std::span<const double> DashLengths(TKSLineType type);

/// Appends `value` without decimals when it is whole, else with `decimals` of them.
void AppendNumber(std::string& out, double value, int decimals);

} // namespace vagrel
