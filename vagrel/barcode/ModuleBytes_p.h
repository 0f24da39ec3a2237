// SPDX-License-Identifier: MIT
// Modules from bits to bytes, eight at a time.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>

namespace vagrel::detail {

using TEightModules = std::array<std::uint8_t, 8>;

/// The bits of each byte as modules, the highest bit first.
inline constexpr std::array<TEightModules, 256> ModulesOfByte = [] {
    std::array<TEightModules, 256> table{};
    for (std::size_t byte = 0; byte < 256; ++byte) {
        for (std::size_t i = 0; i < 8; ++i)
            table[byte][i] = byte >> (7 - i) & 1;
    }
    return table;
}();

/// Writes the eight modules of `byte` and returns the place behind them.
inline std::uint8_t* PutModules(std::uint8_t* at, std::uint8_t byte) {
    std::memcpy(at, ModulesOfByte[byte].data(), 8);
    return at + 8;
}

} // namespace vagrel::detail
