// SPDX-License-Identifier: MIT
// Values as SVG text, and the terminals of lines.
#include <vagrel/svg/TExSVG.h>

#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/svg/SvgElement.h>
#include <vagrel/svg/TermShape.h>

#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace vagrel {

namespace {

constexpr std::array<std::u16string_view, 7> UnitNames{u"mm", u"in", u"cm", u"dm", u"m", u"ft", u"yd"};

// For pieces without lengths.
SvgElement Plain() { return SvgElement(svCurrentUnit, 1); }

// Writes the elements of one terminal.
class TTermWriter {
public:
    TTermWriter(TKSLExportSVG type, float factor, float pen, TAlphaColor color, TAlphaColor fill)
        : fOut(type, factor), fPen(pen), fColor(color), fFill(fill) {}

    std::string Write(const TTermPart& part) {
        switch (part.kind) {
        case TTermPart::Circle:
            return Circle(part.spots[0], part.size, part.filled);
        case TTermPart::Square:
            return Square(part.spots[0], part.size, part.filled);
        case TTermPart::Polygon:
            return Polygon(part);
        case TTermPart::Line:
            break;
        }
        return Line(part.spots[0], part.spots[1]);
    }

private:
    std::string Circle(TSpot center, float radius, bool filled) {
        (fOut << "<circle").Attr("cx", center.x).Attr("cy", center.y).Attr("r", radius);
        return Figure(filled);
    }

    std::string Square(TSpot corner, float size, bool filled) {
        (fOut << "<rect").Box(corner.x, corner.y, size, size) << (filled ? "" : " ");
        return Figure(filled);
    }

    std::string Polygon(const TTermPart& part) {
        std::string_view between = R"(<polygon points=")";
        for (int i = 0; i < part.count; ++i) {
            fOut << std::exchange(between, " ");
            fOut.Val(part.spots[std::size_t(i)].x) << ",";
            fOut.Val(part.spots[std::size_t(i)].y);
        }
        fOut << "\"";
        return Figure(part.filled);
    }

    std::string Line(TSpot from, TSpot to) {
        (fOut << "<line").Attr("x1", from.x).Attr("y1", from.y).Attr("x2", to.x).Attr("y2", to.y);
        return Stroke();
    }

    std::string Figure(bool filled) {
        if (filled)
            (fOut << " ").Fill(fFill);
        else
            fOut << R"( fill="none")";
        return Stroke();
    }

    std::string Stroke() {
        (fOut << " ").Stroke(fColor).StrokeWidth(fPen) << "/>";
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
    const double direction = IsArc ? double(p2x) : std::atan2(double(p1y) - double(p2y), double(p1x) - double(p2x));
    TTermWriter out(ExportType, Factor, pW, Color, FillColor);
    std::string text;
    for (const TTermPart& part : TermShape(aType, {p1x, p1y}, direction, aTerm, aOpen))
        (text += text.empty() ? "" : LineEnd) += out.Write(part);
    return text;
}

} // namespace vagrel
