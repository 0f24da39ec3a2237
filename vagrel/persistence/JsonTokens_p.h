// SPDX-License-Identifier: MIT
// The classes of code units that JSON knows, and where in a text a fault stands.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>

#include <vagrel/persistence/JsonExceptions.h>

namespace vagrel {

constexpr bool IsDigit(std::uint32_t unit) { return unit - '0' < 10; }
constexpr bool IsWordStart(std::uint32_t unit) { return (unit | 32) - 'a' < 26 || unit == '_' || unit == '$'; }
constexpr bool IsWord(std::uint32_t unit) { return (unit | 32) - 'a' < 26 || unit == '_' || IsDigit(unit); }
constexpr bool IsBlank(std::uint32_t unit) {
    constexpr std::uint64_t blanks = 1ull << ' ' | 1ull << '\t' | 1ull << '\n' | 1ull << '\r';
    return unit <= ' ' && (blanks >> unit & 1) != 0;
}

// The units of a text that stand for themselves and widen one by one.
template <class Unit>
bool IsPlain(Unit unit) {
    if constexpr (sizeof(Unit) == 1) {
        static constexpr auto table = [] {
            std::array<bool, 256> plain{};
            for (std::size_t i = 0x20; i < 0x80; ++i)
                plain[i] = i != '"' && i != '\\';
            return plain;
        }();
        return table[static_cast<unsigned char>(unit)];
    }
    return unit >= 0x20 && unit != '"' && unit != '\\';
}

/// 0x80 in every byte of `word` that equals `byte`.
inline std::uint64_t BytesEqual(std::uint64_t word, std::uint64_t byte) {
    constexpr std::uint64_t ones = 0x0101010101010101u, low = ones * 0x7F;
    const std::uint64_t difference = word ^ (byte * ones);
    return ~(((difference & low) + low) | difference | low);
}

/// The first unit from `at` on that is no blank. Indentation is passed eight bytes at a time.
template <class Unit>
inline const Unit* BehindBlanks(const Unit* at, const Unit* end) {
    if constexpr (sizeof(Unit) == 1 && std::endian::native == std::endian::little) {
        if (end - at >= 2 && *at == ' ' && static_cast<unsigned char>(at[1]) > ' ')
            return at + 1;
        while (end - at >= 8 && static_cast<unsigned char>(*at) <= ' ') {
            std::uint64_t word;
            std::memcpy(&word, at, 8);
            const std::uint64_t blanks =
                BytesEqual(word, ' ') | BytesEqual(word, '\t') | BytesEqual(word, '\n') | BytesEqual(word, '\r');
            const int count = std::countr_one(blanks | 0x7F7F7F7F7F7F7F7Fu) / 8;
            at += count;
            if (count < 8)
                return at;
        }
    }
    while (at != end && IsBlank(std::make_unsigned_t<Unit>(*at)))
        ++at;
    return at;
}

/// The first unit from `at` on that ends a text or needs decoding.
template <class Unit>
inline const Unit* BehindPlain(const Unit* at, const Unit* end) {
    while (at != end && IsPlain(*at))
        ++at;
    return at;
}

/// The fault at `at` in the text from `begin` to `end`.
template <class Unit>
EJsonParserException FaultAt(const std::string& message, const Unit* begin, const Unit* end, const Unit* at) {
    std::size_t line = 1, column = 1;
    for (const Unit* unit = begin; unit != at; ++unit) {
        const auto code = std::make_unsigned_t<Unit>(*unit);
        if (code == '\n' || (code == '\r' && (unit + 1 == end || unit[1] != '\n'))) {
            ++line;
            column = 1;
        } else if (sizeof(Unit) > 1 || (code & 0xC0) != 0x80) {
            column += sizeof(Unit) == 1 && code >= 0xF0 ? 2 : 1;
        }
    }
    return EJsonParserException(message, line, column, std::size_t(at - begin));
}

} // namespace vagrel
