// SPDX-License-Identifier: MIT
// The 40 versions of QR Code Model 2: size, alignment patterns and block structure (ISO/IEC 18004).
#pragma once

#include <array>
#include <cstdint>

namespace vagrel {

/// The error correction level that the format information of a symbol tells.
struct TErrorCorrectionLevel {
    /// 1 is level L, which is how every symbol is made: with another value readers refuse the symbol.
    std::int32_t FBits = 1;

    bool operator==(const TErrorCorrectionLevel&) const = default;
};

/// `Count` blocks of `DataCodewords` each.
struct TECB {
    std::int32_t Count;
    std::int32_t DataCodewords;
};

/// The blocks of a symbol. The blocks of the second entry, of which there may be none, hold one data codeword more.
struct TECBlocks {
    std::int32_t ECCodewordsPerBlock;
    std::array<TECB, 2> ECBlocks;

    constexpr std::int32_t NumBlocks() const { return ECBlocks[0].Count + ECBlocks[1].Count; }
    constexpr std::int32_t TotalECCodewords() const { return ECCodewordsPerBlock * NumBlocks(); }
};

struct TVersion {
    /// 1 to 40.
    std::int32_t VersionNumber;
    /// Modules in a row.
    std::int32_t Dimension;
    std::int32_t TotalCodewords;
    /// The rows, and columns, of the alignment patterns' centres; unused places are 0.
    std::array<std::int32_t, 7> AlignmentPatternCenters;
    /// Those of level L.
    TECBlocks ECBlocks;

    std::int32_t DataCodewords() const { return TotalCodewords - ECBlocks.TotalECCodewords(); }

    /// The version of that number, 1 to 40.
    static TVersion GetVersionForNumber(int number);
    static constexpr int GetDimensionForVersion(int number) { return 17 + 4 * number; }
};

namespace detail {

/// What the versions' structure is computed from, one row a version.
struct TBlockCounts {
    std::uint8_t ECCodewordsPerBlock;
    std::uint8_t Blocks;
};
/// Level L.
extern const std::array<TBlockCounts, 40> VersionTable;

} // namespace detail
} // namespace vagrel
