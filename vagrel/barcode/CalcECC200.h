// SPDX-License-Identifier: MIT
// Data Matrix ECC 200 symbols of bytes (ISO/IEC 16022).
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace vagrel {

/// Rows by columns of a symbol; stored in documents as its number.
enum TECC200Size : std::int32_t {
    ecc200_Autosize,
    ecc200_10x10,
    ecc200_12x12,
    ecc200_14x14,
    ecc200_16x16,
    ecc200_18x18,
    ecc200_20x20,
    ecc200_22x22,
    ecc200_24x24,
    ecc200_26x26,
    ecc200_32x32,
    ecc200_36x36,
    ecc200_40x40,
    ecc200_44x44,
    ecc200_48x48,
    ecc200_52x52,
    ecc200_64x64,
    ecc200_72x72,
    ecc200_80x80,
    ecc200_88x88,
    ecc200_96x96,
    ecc200_104x104,
    ecc200_120x120,
    ecc200_132x132,
    ecc200_144x144,
    ecc200_8x18,
    ecc200_8x32,
    ecc200_12x26,
    ecc200_12x36,
    ecc200_16x36,
    ecc200_16x48
};

/// Which sizes `ecc200_Autosize` chooses from.
enum TECC200Shape : std::int32_t { ecc200_Square, ecc200_Rectangle };

/// Encodes `aData` in ASCII and Base 256. `aMatrix` gets one entry a module, row by row, 1 dark and 0 light, finder
/// pattern included. Throws `EOutOfRange` "MakeCodeword Error" when the codewords do not fit `aSize`, or any size of
/// the shape; "Base256_Encode Error" at a run of 1556 bytes or more that ask for Base 256.
void CalcECC200(std::span<const std::uint8_t> aData, TECC200Size aSize, TECC200Shape aShape,
                std::vector<std::uint8_t>& aMatrix, std::uint16_t& aCols, std::uint16_t& aRows);

} // namespace vagrel
