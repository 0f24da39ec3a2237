// SPDX-License-Identifier: MIT
// A row or column of a symbol as machine words, and what QR masks are judged by.
#pragma once

#include <array>
#include <cstdint>

namespace vagrel {

/// The number of set bits. std::popcount is a call where the processor is not known to have the instruction.
inline int CountBits(std::uint64_t word) {
    word -= word >> 1 & 0x5555'5555'5555'5555;
    word = (word & 0x3333'3333'3333'3333) + (word >> 2 & 0x3333'3333'3333'3333);
    word = (word + (word >> 4)) & 0x0F0F'0F0F'0F0F'0F0F;
    return int(word * 0x0101'0101'0101'0101 >> 56);
}

/// Cells of a line; cell 0 is the lowest bit of the first word.
template <int Words>
struct TBitLine {
    std::array<std::uint64_t, Words> Bits{};

    /// The first `count` cells dark.
    static constexpr TBitLine First(int count) {
        TBitLine line;
        for (int i = 0; i < count; ++i)
            line.Set(i);
        return line;
    }
    template <int More>
    static constexpr TBitLine FirstWords(const TBitLine<More>& line) {
        TBitLine result;
        for (std::size_t i = 0; i < Words; ++i)
            result.Bits[i] = line.Bits[i];
        return result;
    }

    constexpr bool Get(int cell) const { return Bits[std::size_t(cell) / 64] >> cell % 64 & 1; }
    constexpr void Set(int cell) { Or(cell, true); }
    constexpr void Or(int cell, bool dark) { Bits[std::size_t(cell) / 64] |= std::uint64_t(dark) << cell % 64; }
    constexpr void Put(int cell, bool dark) {
        Bits[std::size_t(cell) / 64] &= ~(std::uint64_t(1) << cell % 64);
        Or(cell, dark);
    }
    bool Any() const {
        std::uint64_t any = 0;
        for (const std::uint64_t word : Bits)
            any |= word;
        return any != 0;
    }
    int Count() const {
        int count = 0;
        for (const std::uint64_t word : Bits)
            count += CountBits(word);
        return count;
    }

    /// Cell i of the result is cell i + `cells`, which is below 64.
    TBitLine operator>>(int cells) const {
        TBitLine result;
        for (std::size_t i = 0; i < Words; ++i)
            result.Bits[i] = Bits[i] >> cells | (i + 1 < Words ? Bits[i + 1] << (64 - cells) : 0);
        return result;
    }
    TBitLine operator<<(int cells) const {
        TBitLine result;
        for (std::size_t i = 0; i < Words; ++i)
            result.Bits[i] = Bits[i] << cells | (i > 0 ? Bits[i - 1] >> (64 - cells) : 0);
        return result;
    }
    TBitLine operator~() const {
        TBitLine result;
        for (std::size_t i = 0; i < Words; ++i)
            result.Bits[i] = ~Bits[i];
        return result;
    }
    friend TBitLine operator&(TBitLine a, const TBitLine& b) {
        for (std::size_t i = 0; i < Words; ++i)
            a.Bits[i] &= b.Bits[i];
        return a;
    }
    friend TBitLine operator|(TBitLine a, const TBitLine& b) {
        for (std::size_t i = 0; i < Words; ++i)
            a.Bits[i] |= b.Bits[i];
        return a;
    }
    friend TBitLine operator^(TBitLine a, const TBitLine& b) {
        for (std::size_t i = 0; i < Words; ++i)
            a.Bits[i] ^= b.Bits[i];
        return a;
    }
};

} // namespace vagrel
