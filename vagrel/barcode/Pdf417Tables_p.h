// SPDX-License-Identifier: MIT
// The tables that PDF417 symbols are made with.
#pragma once

#include <cstdint>
#include <span>

namespace vagrel {

/// Code words are 0 to 928.
inline constexpr std::size_t Pdf417Prime = 929;

/// The 17 modules of a code word, the first as the highest bit, 1 for a bar. `cluster` 0 to 2 is the row modulo 3.
std::uint32_t Pdf417Pattern(int cluster, int word);

/// The generator polynomial for `count` correction words, a power of two from 2 to 512, without its leading 1 and
/// highest power first.
std::span<const std::uint16_t> Pdf417Coefficients(int count);

} // namespace vagrel
