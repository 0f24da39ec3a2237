// SPDX-License-Identifier: MIT
// Where the bars of a linear symbol and the digits under them lie. Whoever draws a pattern, draws these.
#pragma once

#include <vagrel/barcode/TBarcode.h>
#include <vagrel/foundation/TKSLRect.h>

#include <vector>

namespace vagrel {

/// The sizes of a linear symbol, in one unit; the factor is that of wide to narrow.
struct TBarSizes {
    std::int32_t width = 0, height = 0;
    float factor = 1;
    std::int32_t fontHeight = 0; ///< guard bars reach three quarters of it below the others
};

/// The bars of a pattern, left to right, from (0, 0) on. Short bars take the lower two fifths of the height.
std::vector<TKSLRect> BarRects(std::string_view pattern, const TBarSizes& sizes);

/// A group of digits, and the place along the bars that it starts at, is centred on or ends at.
struct TDigitGroup {
    std::string text;
    std::int64_t x = 0;
    TKSLHorzAlign align = haCenter;
};

/// The digits under a pattern: EAN and UPC in groups between and beside the guards, all other codes whole in the
/// middle.
std::vector<TDigitGroup> DigitGroups(std::string_view code, TKSLBarType type, std::string_view pattern,
                                     const TBarSizes& sizes);

} // namespace vagrel
