// SPDX-License-Identifier: MIT
// Where the bars and the digits of a linear code stand.
#include <vagrel/barcode/BarLayout.h>

#include <vagrel/foundation/Rounding.h>

namespace vagrel {

namespace {

// A row of a layout: which digits, which of the places, how it stands there.
struct TGroup {
    std::size_t first, count;
    int place;
    TKSLHorzAlign align;
};

enum { AtStart, AtText1, AtText2, AtText3 };

constexpr TGroup Ean13[] = {{0, 1, AtStart, haRight}, {1, 6, AtText1, haCenter}, {7, 6, AtText2, haCenter}};
constexpr TGroup Ean8[] = {{0, 4, AtText1, haCenter}, {4, 4, AtText2, haCenter}};
constexpr TGroup UpcA[] = {
    {0, 1, AtStart, haRight}, {1, 5, AtText1, haCenter}, {6, 5, AtText2, haCenter}, {11, 1, AtText3, haLeft}};
constexpr TGroup UpcE[] = {{0, 1, AtStart, haRight}, {1, 6, AtText1, haCenter}, {7, 1, AtText2, haLeft}};

template <std::size_t Count>
std::vector<TDigitGroup> Arrange(const TGroup (&groups)[Count], std::string_view code, const double (&places)[4],
                                 std::int32_t gap) {
    std::vector<TDigitGroup> result;
    for (const TGroup& group : groups) {
        const int aside = group.align == haRight ? -gap : group.align == haLeft ? gap : 0;
        if (group.first < code.size())
            result.push_back(
                {std::string(code.substr(group.first, group.count)), Round(places[group.place]) + aside, group.align});
    }
    return result;
}

} // namespace

std::vector<TKSLRect> BarRects(std::string_view pattern, const TBarSizes& sizes) {
    const std::int64_t w = sizes.width;
    const std::int64_t widths[] = {w, Round32(double(w) * sizes.factor), 2 * w, 3 * w, 4 * w, 3 * w / 2};
    const std::int64_t shortTop = sizes.height - 2 * std::int64_t(sizes.height) / 5;
    const std::int64_t guardBottom = sizes.height + 3 * std::int64_t(sizes.fontHeight) / 4;
    std::vector<TKSLRect> bars;
    std::int64_t x = 0;
    for (const char element : pattern) {
        TKSLDrawWidth width = dw1;
        TKSLDrawBar bar = dbW;
        TBarcode::FillBarData(element, width, bar);
        const std::int64_t right = x + widths[width];
        if (bar != dbW && bar != dbEW)
            bars.emplace_back(x, bar == dbB2 ? shortTop : 0, right, bar == dbEB ? guardBottom : sizes.height);
        x = right;
    }
    return bars;
}

std::vector<TDigitGroup> DigitGroups(std::string_view code, TKSLBarType type, std::string_view pattern,
                                     const TBarSizes& sizes) {
    double places[4] = {};
    const double w = sizes.width, factor = sizes.factor;
    // Digits beside the symbol do not touch its guards.
    const std::int32_t gap = 2 * sizes.width;
    switch (type) {
    case btEAN13:
        TBarcode::Ean13Pos(pattern, w, factor, places[AtText1], places[AtText2]);
        return Arrange(Ean13, code, places, gap);
    case btEAN8:
        TBarcode::Ean8Pos(pattern, w, factor, places[AtText1], places[AtText2]);
        return Arrange(Ean8, code, places, gap);
    case btUPCA:
        TBarcode::UPCAPos(pattern, w, factor, places[AtText1], places[AtText2], places[AtText3]);
        return Arrange(UpcA, code, places, gap);
    case btUPCE0:
        TBarcode::UPCEPos(pattern, w, factor, places[AtText1], places[AtText2]);
        return Arrange(UpcE, code, places, gap);
    default:
        return {{std::string(code), TBarcode::BarCodeWidth(pattern, sizes.width, sizes.factor, true) / 2, haCenter}};
    }
}

} // namespace vagrel
