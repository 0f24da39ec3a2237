// SPDX-License-Identifier: MIT
// The steps of a Data Matrix symbol: codewords, then placement.
#pragma once

#include <vagrel/barcode/CalcECC200.h>

#include <array>

namespace vagrel {

/// One row of the table of symbol attributes of ISO/IEC 16022. Regions are counted in data modules, without their
/// finder patterns.
struct TECC200SymbolParam {
    std::int32_t Size;
    std::int32_t Rows;
    std::int32_t Cols;
    std::int32_t RegionRows;
    std::int32_t RegionCols;
    std::int32_t RegionVCount;
    std::int32_t RegionHCount;
    std::int32_t MappingMatrixRows;
    std::int32_t MappingMatrixCols;
    std::int32_t DataLength;
    std::int32_t ErrorLength;
    std::int32_t BlockDataLength;
    std::int32_t BlockErrorLength;
    std::int32_t BlockCount;
};

inline constexpr int ECC200SizeCount = ecc200_16x48;
/// By `TECC200Size` less 1.
extern const std::array<TECC200SymbolParam, ECC200SizeCount> ECC200SizeTable;

/// The data codewords of `data`, without padding; makes no more once there are more than `limit`. Throws `EOutOfRange`
/// "Base256_Encode Error" as `CalcECC200`.
std::vector<std::uint8_t> MakeECC200Codewords(std::span<const std::uint8_t> data, std::size_t limit);

/// Fills the mapping matrix, row by row, with the bits of all codewords.
std::vector<std::uint8_t> PlaceECC200(std::span<const std::uint8_t> codewords, int rows, int columns);

} // namespace vagrel
