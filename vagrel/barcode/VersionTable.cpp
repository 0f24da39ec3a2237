// SPDX-License-Identifier: MIT
// Correction codewords in a block, and blocks, of versions 1 to 40 at level L (ISO/IEC 18004).
#include <vagrel/barcode/TVersion.h>

#include <iterator>

namespace vagrel::detail {

constexpr TBlockCounts Table[] = {
    {7, 1},   {10, 1},  {15, 1},  {20, 1},  {26, 1},  {18, 2},  {20, 2},  {24, 2},  {30, 2},  {18, 4},
    {20, 4},  {24, 4},  {26, 4},  {30, 4},  {22, 6},  {24, 6},  {28, 6},  {30, 6},  {28, 7},  {28, 8},
    {28, 8},  {28, 9},  {30, 9},  {30, 10}, {26, 12}, {28, 12}, {30, 12}, {30, 13}, {30, 14}, {30, 15},
    {30, 16}, {30, 17}, {30, 18}, {30, 19}, {30, 19}, {30, 20}, {30, 21}, {30, 22}, {30, 24}, {30, 25},
};
static_assert(std::size(Table) == 40);

const std::array<TBlockCounts, 40> VersionTable = std::to_array(Table);

} // namespace vagrel::detail
