// SPDX-License-Identifier: MIT
// What the characters of a pattern mean, and how wide a pattern is.
#include <vagrel/barcode/TBarcode.h>

#include <vagrel/foundation/Rounding.h>

#include <array>

namespace vagrel {

namespace {

struct TElement {
    char Character;
    TKSLDrawWidth Width;
    TKSLDrawBar Bar;
};

// clang-format off
constexpr TElement Elements[] = {
    {'N', dw1, dbB}, {'M', dw1F, dbB}, {'D', dw2, dbB}, {'T', dw3, dbB}, {'W', dw4, dbB}, {'F', dw32, dbB},
    {'A', dw1, dbB2}, {'B', dw1F, dbB2}, {'C', dw2, dbB2},
    {'9', dw1, dbEB},
    {'1', dw1, dbW}, {'5', dw1, dbW}, {'6', dw1F, dbW}, {'2', dw2, dbW}, {'3', dw3, dbW}, {'8', dw3, dbW}, {'7', dw32, dbW},
    {'4', dw4, dbEW}, {'e', dw1, dbEW},
};
// clang-format on

constexpr std::size_t Unmeasured = 6;

/// Position of each character's width in TKSLDrawWidth. C and e, which no symbology here uses, are not measured.
constexpr std::array<std::uint8_t, 256> WidthTable = [] {
    std::array<std::uint8_t, 256> table{};
    table.fill(Unmeasured);
    for (const TElement& element : Elements)
        if (element.Character != 'C' && element.Character != 'e')
            table[static_cast<std::size_t>(element.Character)] = static_cast<std::uint8_t>(element.Width);
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
    for (const TElement& known : Elements)
        if (known.Character == element) {
            width = known.Width;
            bar = known.Bar;
        }
}

} // namespace vagrel
