// SPDX-License-Identifier: MIT
// The masks of QR symbols and the penalties by which one is chosen (ISO/IEC 18004).
#pragma once

#include <vagrel/barcode/BitLine_p.h>

#include <array>
#include <cstdlib>

namespace vagrel::detail {

inline constexpr int MaskCount = 8;
/// Every mask repeats after so many cells in both directions.
inline constexpr int MaskPeriod = 12;

enum TDirection { Rows, Columns };

/// By direction, mask and number of the line; three words hold 16 periods.
using TMaskTable = std::array<std::array<std::array<TBitLine<3>, MaskPeriod>, MaskCount>, 2>;
extern const TMaskTable QRMaskTable;

/// Cells that are equal to the next one inside.
template <int Words>
TBitLine<Words> SameAsNext(const TBitLine<Words>& line, const TBitLine<Words>& inside) {
    return ~(line ^ (line >> 1)) & (inside >> 1);
}

/// Where four cells in a row are set.
template <int Words>
TBitLine<Words> Fours(const TBitLine<Words>& line) {
    const TBitLine<Words> twos = line & (line >> 1);
    return twos & (twos >> 2);
}

/// What runs, blocks and finder-like patterns cost.
constexpr int RunPenalty = 3;     ///< of five equal cells in a line
constexpr int LongerPenalty = 1;  ///< of each further cell of a run
constexpr int SquarePenalty = 3;  ///< of 2 by 2 equal cells
constexpr int FinderPenalty = 40; ///< of 1011101 with four light cells before or behind

/// The runs and the finder-like patterns of a line.
template <int Words>
int LinePenalty(const TBitLine<Words>& line, const TBitLine<Words>& inside) {
    // A run of n is n - 4 places where five cells are equal, and one start of such places.
    const TBitLine<Words> fives = Fours(SameAsNext(line, inside));
    const TBitLine<Words> starts = fives & ~(fives << 1);
    const TBitLine<Words> light = ~line & inside;
    const TBitLine<Words> quiet = Fours(light);
    const TBitLine<Words> finders = line & (light >> 1) & (line >> 2) & (line >> 3) & (line >> 4) & (light >> 5) &
                                    (line >> 6) & ((quiet >> 7) | (quiet << 4));
    return LongerPenalty * fives.Count() + (RunPenalty - LongerPenalty) * starts.Count() +
           (finders.Any() ? FinderPenalty * finders.Count() : 0);
}

/// The squares of 2 by 2 equal cells in two neighbouring lines.
template <int Words>
int BlockPenalty(const TBitLine<Words>& line, const TBitLine<Words>& next, const TBitLine<Words>& inside) {
    const TBitLine<Words> equal = ~(line ^ next);
    return SquarePenalty * (equal & (equal >> 1) & SameAsNext(line, inside)).Count();
}

/// |p - 50| / 50 to the nearest whole number, p the percentage of dark cells.
inline int BalancePenalty(int dark, int cells) { return 2 * std::abs(2 * dark - cells) > cells; }

} // namespace vagrel::detail
