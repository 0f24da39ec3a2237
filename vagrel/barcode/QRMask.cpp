// SPDX-License-Identifier: MIT
// The eight masks of QR symbols (ISO/IEC 18004), as lines to lay over a symbol.
#include <vagrel/barcode/QRMask_p.h>

namespace vagrel::detail {
namespace {

constexpr bool IsMasked(int mask, int row, int column) {
    const int sum = row + column;
    const int product = row * column;
    switch (mask) {
    case 0:
        return sum % 2 == 0;
    case 1:
        return row % 2 == 0;
    case 2:
        return column % 3 == 0;
    case 3:
        return sum % 3 == 0;
    case 4:
        return (row / 2 + column / 3) % 2 == 0;
    case 5:
        return product % 2 + product % 3 == 0;
    case 6:
        return (product % 2 + product % 3) % 2 == 0;
    default:
        return (sum % 2 + product % 3) % 2 == 0;
    }
}

constexpr TMaskTable MakeMaskTable() {
    TMaskTable table{};
    for (int mask = 0; mask < MaskCount; ++mask) {
        for (int line = 0; line < MaskPeriod; ++line) {
            for (int cell = 0; cell < MaskPeriod; ++cell) {
                const bool inRow = IsMasked(mask, line, cell);
                const bool inColumn = IsMasked(mask, cell, line);
                for (int repeat = cell; repeat < 3 * 64; repeat += MaskPeriod) {
                    table[Rows][std::size_t(mask)][std::size_t(line)].Or(repeat, inRow);
                    table[Columns][std::size_t(mask)][std::size_t(line)].Or(repeat, inColumn);
                }
            }
        }
    }
    return table;
}
constexpr TMaskTable Table = MakeMaskTable();

} // namespace

const TMaskTable QRMaskTable = Table;

} // namespace vagrel::detail
