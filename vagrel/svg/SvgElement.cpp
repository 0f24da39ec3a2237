// SPDX-License-Identifier: MIT
// Numbers, colours and texts of SVG elements.
#include <vagrel/svg/SvgElement.h>

#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Text.h>

#include <array>
#include <cmath>

namespace vagrel {

namespace {

constexpr bool IsMode(TKSLExportSVG type) { return type >= svCurrentUnit && type <= svFactorPx; }
constexpr bool IsScaled(TKSLExportSVG type) { return type == svFactor || type == svFactorPx; }

bool IsWhole(double value) {
    // Beyond 2^53 there are no fractions, and a cast would not fit much further on.
    return !(std::fabs(value) < 0x1p53) || double(std::int64_t(value)) == value;
}

// A dash style as an attribute and as its lengths.
struct TDash {
    std::string_view attribute;
    std::array<double, 4> lengths;
    std::size_t count;
};

// ii12 is drawn as ii21: documents and their readers rely on it.
constexpr std::array<TDash, 12> Dashes{{
    {"", {}, 0},
    {R"( stroke-dasharray="0.5 0.5" )", {0.5, 0.5}, 2},
    {R"( stroke-dasharray="1" )", {1}, 1},
    {R"( stroke-dasharray="2 1" )", {2, 1}, 2},
    {R"( stroke-dasharray="2 1" )", {2, 1}, 2},
    {R"( stroke-dasharray="2 2" )", {2, 2}, 2},
    {R"( stroke-dasharray="3 1" )", {3, 1}, 2},
    {R"( stroke-dasharray="3 3" )", {3, 3}, 2},
    {R"( stroke-dasharray="4 1" )", {4, 1}, 2},
    {R"( stroke-dasharray="4 2" )", {4, 2}, 2},
    {R"( stroke-dasharray="4 4" )", {4, 4}, 2},
    {R"( stroke-dasharray="4 1 1 1" )", {4, 1, 1, 1}, 4},
}};

const TDash& DashOf(TKSLineType type) {
    return Dashes[type >= iiSolid && std::size_t(type) < Dashes.size() ? std::size_t(type) : 0];
}

// How a character is escaped; empty for one that stands for itself.
std::string_view Entity(char16_t unit) {
    switch (unit) {
    case u'"':
        return "&quot;";
    case u'&':
        return "&amp;";
    case u'<':
        return "&lt;";
    case u'>':
        return "&gt;";
    default:
        return "";
    }
}

// Whether XML 1.0 has the character. Half a surrogate pair counts: as UTF-8 it is another one.
bool IsXml(char16_t unit) { return unit < 0x20 ? unit == u'\t' || unit == u'\n' || unit == u'\r' : unit < 0xFFFE; }

} // namespace

void AppendNumber(std::string& out, double value, int decimals) {
    AppendFixed(out, value, IsWhole(value) ? 0 : decimals);
}

SvgElement& SvgElement::operator<<(std::u16string_view text) {
    AppendUtf8(fText, text);
    return *this;
}

SvgElement& SvgElement::Val(float value) {
    if (IsMode(fType))
        AppendNumber(fText, IsScaled(fType) ? double(value) * double(fFactor) : double(value), 2);
    return *this;
}

void SvgElement::Length(float value, TKSLUnits unit, TKSLExportSVG type) {
    const double length = IsScaled(type) ? double(value) * double(fFactor) : double(value);
    if (type == svFactorPx)
        return AppendNumber(fText, length, 2);
    const std::string_view suffix = unit == unMM ? "mm" : unit == unCM ? "cm" : unit == unINCH ? "in" : "";
    if (suffix.empty() || !IsMode(type))
        return;
    AppendNumber(fText, length, unit == unMM ? 1 : 2);
    if (type != svCurUnitNoMed)
        fText += suffix;
}

SvgElement& SvgElement::ValUnit(float value, TKSLUnits unit) {
    Length(value, unit, fType);
    return *this;
}

SvgElement& SvgElement::Pen(float width) {
    Length(width, unMM, svCurUnitNoMed);
    return *this;
}

SvgElement& SvgElement::Attr(std::string_view name, float value) {
    fText.append(1, ' ').append(name).append("=\"");
    Val(value);
    fText += '"';
    return *this;
}

SvgElement& SvgElement::Box(float x, float y, float width, float height) {
    return Attr("x", x).Attr("y", y).Attr("width", width).Attr("height", height);
}

SvgElement& SvgElement::StrokeWidth(float width) {
    fText += " stroke-width=\"";
    Pen(width);
    fText += '"';
    return *this;
}

void SvgElement::Paint(std::string_view name, TAlphaColor color) {
    constexpr char hex[] = "0123456789ABCDEF";
    char digits[] = "=\"#RRGGBB\"";
    for (int i = 0; i < 6; ++i)
        digits[3 + i] = hex[(color >> (20 - 4 * i)) & 15];
    fText.append(1, ' ').append(name).append(digits, sizeof digits - 1);
    const std::uint32_t alpha = color >> 24;
    if (alpha < 255) {
        fText.append(1, ' ').append(name).append("-opacity=\"");
        AppendFixed(fText, alpha / 255.0, 1);
        fText += '"';
    }
}

SvgElement& SvgElement::Stroke(TAlphaColor color) {
    Paint("stroke", color);
    return *this;
}

SvgElement& SvgElement::Fill(TAlphaColor color) {
    Paint("fill", color);
    return *this;
}

SvgElement& SvgElement::Dash(TKSLineType type) {
    fText += DashOf(type).attribute;
    return *this;
}

SvgElement& SvgElement::Name(std::u16string_view name) { return fWellFormed ? Text(name) : *this << name; }

SvgElement& SvgElement::Text(std::u16string_view text) {
    std::size_t done = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool dropped = fWellFormed && !IsXml(text[i]);
        const std::string_view entity = Entity(text[i]);
        if (!dropped && entity.empty())
            continue;
        AppendUtf8(fText, text.substr(done, i - done));
        fText += entity;
        done = i + 1;
    }
    AppendUtf8(fText, text.substr(done));
    return *this;
}

// A copy of exact size: an export keeps all its elements, and spare room in each of them costs more than copying.
std::string SvgElement::Take() {
    std::string out(fText);
    fText.clear();
    return out;
}

std::span<const double> DashLengths(TKSLineType type) {
    const TDash& dash = DashOf(type);
    return {dash.lengths.data(), dash.count};
}

} // namespace vagrel
