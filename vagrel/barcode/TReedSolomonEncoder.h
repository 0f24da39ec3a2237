// SPDX-License-Identifier: MIT
// Systematic Reed-Solomon encoding over GF(256).
#pragma once

#include <vagrel/barcode/TGenericGF.h>

#include <array>
#include <cstdint>
#include <span>

namespace vagrel {

/// Divides by the generator polynomial of one degree; blocks of the same degree share an encoder.
class TReedSolomonEncoder {
public:
    static constexpr int MaxDegree = 72;

    /// `degree` is the number of correction bytes, 1 to `MaxDegree`.
    TReedSolomonEncoder(const TGenericGF& field, int degree);

    /// Writes the correction bytes of `data`, highest power first, over all of `correction`, which is `degree` long.
    void Encode(std::span<const std::uint8_t> data, std::span<std::uint8_t> correction) const;

private:
    // The remainder as words: its highest coefficient is the lowest byte of word 0, so one step is a shift by a byte.
    static constexpr int MaxWords = MaxDegree / 8;
    using TRemainder = std::array<std::uint64_t, MaxWords>;

    int fWords;
    // The generator polynomial times each value of the low and of the high half of a byte.
    std::array<TRemainder, 16> fLow{};
    std::array<TRemainder, 16> fHigh{};
};

} // namespace vagrel
