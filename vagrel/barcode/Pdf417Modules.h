// SPDX-License-Identifier: MIT
// Bars and spaces of a PDF417 symbol.
#pragma once

#include <vagrel/barcode/TPDF417.h>

namespace vagrel {

/// The modules of one row of `columns` data columns.
constexpr int Pdf417RowModules(int columns, bool truncated) {
    return truncated ? 17 * (columns + 2) + 1 : 17 * (columns + 4) + 1;
}

/// The modules of `words`, completed for that grid and error correction level (0 to 8), row by row, 1 dark and 0 light.
/// A truncated symbol has no right row indicator, and one bar for its stop pattern. Throws
/// `EArgumentOutOfRangeException` on a grid beyond the array.
std::vector<std::uint8_t> Pdf417Modules(const TCodeWords& words, int columns, int rows, int errorLevel,
                                        bool truncated = false);

} // namespace vagrel
