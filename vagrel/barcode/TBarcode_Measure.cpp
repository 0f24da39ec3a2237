// SPDX-License-Identifier: MIT
// What the characters of a pattern mean, and how wide a pattern is.
#include <vagrel/barcode/TBarcode.h>

#include <vagrel/foundation/Rounding.h>

#include <array>
#include <optional>

namespace vagrel {

namespace {

struct TElement {
    TKSLDrawWidth Width;
    TKSLDrawBar Bar;
};

/// An element by its character. C and e, which no symbology here uses, are drawn but not measured.
constexpr std::optional<TElement> ElementOf(char element) {
    switch (element) {
    case 'N':
        return TElement{dw1, dbB};
    case 'M':
        return TElement{dw1F, dbB};
    case 'D':
        return TElement{dw2, dbB};
    case 'T':
        return TElement{dw3, dbB};
    case 'W':
        return TElement{dw4, dbB};
    case 'F':
        return TElement{dw32, dbB};
    case 'A':
        return TElement{dw1, dbB2};
    case 'B':
        return TElement{dw1F, dbB2};
    case 'C':
        return TElement{dw2, dbB2};
    case '9':
        return TElement{dw1, dbEB};
    case '1':
    case '5':
        return TElement{dw1, dbW};
    case '6':
        return TElement{dw1F, dbW};
    case '2':
        return TElement{dw2, dbW};
    case '3':
    case '8':
        return TElement{dw3, dbW};
    case '7':
        return TElement{dw32, dbW};
    case '4':
        return TElement{dw4, dbEW};
    case 'e':
        return TElement{dw1, dbEW};
    default:
        return {};
    }
}

constexpr std::size_t Unmeasured = 6;

/// Position of each character's width in TKSLDrawWidth.
constexpr std::array<std::uint8_t, 256> WidthTable = [] {
    std::array<std::uint8_t, 256> table{};
    table.fill(Unmeasured);
    for (const char character : std::string_view("NMDTWFAB915623874"))
        table[static_cast<std::size_t>(character)] = static_cast<std::uint8_t>(ElementOf(character)->Width);
    return table;
}();

/// Sum of the widths of a pattern, `widths` in the order of TKSLDrawWidth, then 0.
template <class Number>
Number Measure(std::string_view pattern, const std::array<Number, Unmeasured + 1>& widths) {
    Number sum = 0;
    for (const char character : pattern)
        sum += widths[WidthTable[static_cast<unsigned char>(character)]];
    return sum;
}

double Offset(std::string_view pattern, std::size_t elements, double w, double factor) {
    return Measure<double>(pattern.substr(0, elements), {w, w * factor, 2 * w, 3 * w, 4 * w, 1.5 * w, 0});
}

} // namespace

std::int32_t TBarcode::BarCodeWidth(std::string_view pattern, std::int32_t barWidth, float factor, bool isValid) {
    const std::int64_t w = barWidth;
    if (!isValid)
        return ToInt32(60 * w);
    return ToInt32(Measure<std::int64_t>(
        pattern, {w, Round32(static_cast<double>(w) * factor), 2 * w, 3 * w, 4 * w, 3 * w / 2, 0}));
}

void TBarcode::Ean13Pos(std::string_view pattern, double barWidth, double factor, double& text1, double& text2) {
    text1 = Offset(pattern, 15, barWidth, factor);
    text2 = Offset(pattern, 44, barWidth, factor);
}

void TBarcode::Ean8Pos(std::string_view pattern, double barWidth, double factor, double& text1, double& text2) {
    text1 = Offset(pattern, 11, barWidth, factor);
    text2 = Offset(pattern, 32, barWidth, factor);
}

void TBarcode::UPCEPos(std::string_view pattern, double barWidth, double factor, double& text1, double& text2) {
    text1 = Offset(pattern, 15, barWidth, factor);
    text2 = Offset(pattern, 33, barWidth, factor);
}

void TBarcode::UPCAPos(std::string_view pattern, double barWidth, double factor, double& text1, double& text2,
                       double& text3) {
    Ean13Pos(pattern, barWidth, factor, text1, text2);
    text3 = Offset(pattern, 59, barWidth, factor);
}

void TBarcode::FillBarData(char element, TKSLDrawWidth& width, TKSLDrawBar& bar) {
    if (const auto known = ElementOf(element)) {
        width = known->Width;
        bar = known->Bar;
    }
}

} // namespace vagrel
