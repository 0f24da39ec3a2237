// SPDX-License-Identifier: MIT
// Values as SVG text, and the terminals of lines.
#include <vagrel/svg/TExSVG.h>

#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/svg/SvgElement.h>

#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <utility>

namespace vagrel {

namespace {

constexpr std::array<std::u16string_view, 7> UnitNames{u"mm", u"in", u"cm", u"dm", u"m", u"ft", u"yd"};

// For pieces without lengths.
SvgElement Plain() { return SvgElement(svCurrentUnit, 1); }

struct TSpot {
    float x = 0;
    float y = 0;
};

// Writes the elements of one terminal.
class TTermWriter {
public:
    TTermWriter(TKSLExportSVG type, float factor, float pen, TAlphaColor color, TAlphaColor fill)
        : fOut(type, factor), fPen(pen), fColor(color), fFill(fill) {}

    std::string Circle(TSpot center, float radius, bool filled) {
        fOut << R"(<circle cx=")";
        fOut.Val(center.x) << R"(" cy=")";
        fOut.Val(center.y) << R"(" r=")";
        fOut.Val(radius) << "\"";
        return Figure(filled);
    }

    std::string Square(TSpot corner, float size, bool filled) {
        fOut << R"(<rect x=")";
        fOut.Val(corner.x) << R"(" y=")";
        fOut.Val(corner.y) << R"(" width=")";
        fOut.Val(size) << R"(" height=")";
        fOut.Val(size) << (filled ? "\"" : "\" ");
        return Figure(filled);
    }

    std::string Polygon(std::initializer_list<TSpot> spots, bool filled) {
        std::string_view between = R"(<polygon points=")";
        for (const TSpot& spot : spots) {
            fOut << std::exchange(between, " ");
            fOut.Val(spot.x) << ",";
            fOut.Val(spot.y);
        }
        fOut << "\"";
        return Figure(filled);
    }

    std::string Line(TSpot from, TSpot to) {
        fOut << R"(<line x1=")";
        fOut.Val(from.x) << R"(" y1=")";
        fOut.Val(from.y) << R"(" x2=")";
        fOut.Val(to.x) << R"(" y2=")";
        fOut.Val(to.y) << "\"";
        return Stroke();
    }

private:
    std::string Figure(bool filled) {
        if (filled)
            (fOut << " ").Fill(fFill);
        else
            fOut << R"( fill="none")";
        return Stroke();
    }

    std::string Stroke() {
        (fOut << " ").Stroke(fColor) << R"( stroke-width=")";
        fOut.Pen(fPen) << R"("/>)";
        return fOut.Take();
    }

    SvgElement fOut;
    float fPen;
    TAlphaColor fColor;
    TAlphaColor fFill;
};

constexpr const char* LineEnd = "\r\n";

} // namespace

std::string TExSVG::GetVal(float aValue, float aFactor, TKSLExportSVG ExportType) {
    return SvgElement(ExportType, aFactor).Val(aValue).Take();
}

std::string TExSVG::GetVal(float aValue, TKSLUnits aUnit) {
    std::string out;
    AppendNumber(out, double(aValue), aUnit > unMM && aUnit <= unYd ? 3 : 2);
    return out;
}

std::string TExSVG::GetValUnit(float aValue, float aFactor, TKSLUnits aUnit, TKSLExportSVG ExportType) {
    return SvgElement(ExportType, aFactor).ValUnit(aValue, aUnit).Take();
}

std::string TExSVG::GetLineColor(TAlphaColor aValue) { return Plain().Stroke(aValue).Take(); }

std::string TExSVG::GetFillColor(TAlphaColor aValue, bool Filled) {
    return Filled ? Plain().Fill(aValue).Take() : R"( fill="none")";
}

std::string TExSVG::GetLineStyle(TKSLineType aLineType) { return Plain().Dash(aLineType).Take(); }

std::string TExSVG::GetCap(bool aRound) {
    return aRound ? R"( stroke-linecap="round" )" : R"( stroke-linecap="butt" )";
}

std::string TExSVG::GetTextStyle(bool aBold, bool aItalic, bool aUnderline) {
    SvgElement out = Plain();
    out << (aBold ? R"(" font-weight="bold)" : "") << (aItalic ? R"(" font-style="italic)" : "")
        << (aUnderline ? R"(" text-decoration="underline)" : "");
    return out.Take();
}

std::string TExSVG::GetDegAngle(float aValue) {
    std::string out;
    AppendFixed(out, double(aValue) * 180 / std::numbers::pi, 1);
    return out;
}

std::string TExSVG::GetUnit(TKSLUnits aUnit) {
    return aUnit >= unMM && aUnit <= unYd ? ToUtf8(UnitNames[std::size_t(aUnit)]) : std::string();
}

TKSLUnits TExSVG::GetUnit(std::u16string_view aUnit) {
    for (std::size_t i = 0; i < UnitNames.size(); ++i)
        if (SameText(UnitNames[i], aUnit))
            return TKSLUnits(i);
    return unMM;
}

std::string TExSVG::ScapeText(std::u16string_view aText) { return Plain().Text(aText).Take(); }

std::string TExSVG::DrawTerm(TKSLTermType aType, TKSLExportSVG ExportType, float p1x, float p1y, float p2x, float p2y,
                             float pW, float Factor, float aTerm, TAlphaColor Color, TAlphaColor FillColor, int aOpen,
                             bool IsArc) {
    TTermWriter out(ExportType, Factor, pW, Color, FillColor);
    const TSpot tip{p1x, p1y};
    const float half = aTerm / 2;
    const float left = p1x - half, right = p1x + half, top = p1y - half, bottom = p1y + half;

    const double direction = IsArc ? double(p2x) : std::atan2(double(p1y) - double(p2y), double(p1x) - double(p2x));
    TSpot one, two;
    TDraw2D::DrawArrow(p1x, p1y, direction, float(Round(double(aTerm))), one.x, one.y, two.x, two.y, aOpen);

    switch (aType) {
    case ttCircle:
    case ttFillCircle:
        return out.Circle(tip, half, aType == ttFillCircle);
    case ttArrow:
        return out.Line(tip, one) + LineEnd + out.Line(tip, two);
    case ttFillArrow:
        return out.Polygon({tip, one, two}, true);
    case ttSquare:
    case ttFillSquare:
        return out.Square({left, top}, aTerm, aType == ttFillSquare);
    case ttRhombus:
    case ttFillRhombus:
        return out.Polygon({{p1x, top}, {right, p1y}, {p1x, bottom}, {left, p1y}}, aType == ttFillRhombus);
    case ttLeftDia:
        return out.Line({left, top}, {right, bottom});
    case ttRightDia:
        return out.Line({right, top}, {left, bottom});
    case ttCross:
        return out.Line({left, top}, {right, bottom}) + LineEnd + out.Line({right, top}, {left, bottom});
    case ttNone:
        break;
    }
    return {};
}

} // namespace vagrel
