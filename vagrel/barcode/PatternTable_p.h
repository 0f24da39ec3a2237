// SPDX-License-Identifier: MIT
// Tables of patterns, written by their widths as the standards print them and turned into pattern characters by the
// compiler, which also counts them.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace vagrel::detail {

template <std::size_t Length>
using TPattern = std::array<char, Length>;

template <std::size_t Count, std::size_t Length>
using TPatternTable = std::array<TPattern<Length>, Count>;

/// A pattern that grows; rows are copied with their length known to the compiler.
class TPatternWriter {
public:
    /// `elements` is a guess; the pattern may become longer.
    explicit TPatternWriter(std::size_t elements) : fPattern(elements, '\0') {}
    template <std::size_t Length>
    void Add(const TPattern<Length>& row) {
        std::memcpy(Room(Length), row.data(), Length);
    }
    void Add(char element) { *Room(1) = element; }
    void Add(std::string_view elements) { elements.copy(Room(elements.size()), elements.size()); }
    std::string Take() {
        fPattern.resize(fUsed);
        return std::move(fPattern);
    }

private:
    char* Room(std::size_t length) {
        if (fUsed + length > fPattern.size())
            fPattern.resize(2 * (fUsed + length));
        return fPattern.data() + std::exchange(fUsed, fUsed + length);
    }
    std::string fPattern;
    std::size_t fUsed = 0;
};

/// Rows parted by blanks, each element its number of modules (1 to 4), or n and w for narrow and wide. Does not compile
/// when a row is missing, too long or, counting a wide element as 2, not `modules` wide (0: not checked).
template <std::size_t Count, std::size_t Length>
consteval TPatternTable<Count, Length> PatternTable(std::string_view widths, int modules, bool spaceFirst = false) {
    constexpr std::string_view keys = "1234nw", bars = "NDTWNM", spaces = "123416";
    if (widths.size() != Count * (Length + 1) - 1)
        throw "rows are missing or too many";
    TPatternTable<Count, Length> table{};
    for (std::size_t row = 0; row < Count; ++row) {
        int sum = 0;
        for (std::size_t i = 0; i < Length; ++i) {
            const std::size_t key = keys.find(widths[row * (Length + 1) + i]);
            table[row][i] = (i % 2 == 0) != spaceFirst ? bars.at(key) : spaces.at(key);
            sum += key < 4 ? static_cast<int>(key) + 1 : static_cast<int>(key) - 3;
        }
        if (modules && sum != modules)
            throw "a row is not as wide as the others";
    }
    for (std::size_t a = 0; a < Count; ++a)
        for (std::size_t b = 0; b < a; ++b)
            if (table[a] == table[b])
                throw "two rows are the same";
    return table;
}

/// Row of each character code in a table whose rows stand for `characters` in turn; -1 for all others.
consteval std::array<std::int8_t, 256> RowsOf(std::string_view characters) {
    std::array<std::int8_t, 256> rows{};
    rows.fill(-1);
    for (std::size_t row = 0; row < characters.size(); ++row)
        rows[static_cast<unsigned char>(characters[row])] = static_cast<std::int8_t>(row);
    return rows;
}

/// Values 0 to 102 of ISO/IEC 15417, then the starts of the code sets A, B and C.
extern const TPatternTable<106, 6> Code128Table;

/// The 43 characters of ISO/IEC 16388 in the order of their check values, then the start and stop character.
inline constexpr std::string_view Code39Characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%*";
inline constexpr std::array<std::int8_t, 256> Code39Rows = RowsOf(Code39Characters);
extern const TPatternTable<44, 9> Code39Table;

inline constexpr std::string_view CodabarCharacters = "0123456789-$:/.+ABCD";
extern const TPatternTable<20, 7> CodabarTable;

/// The characters of Code 93 in the order of their values; a, b, c, d stand for its shifts ($), (%), (/), (+).
inline constexpr std::string_view Code93Characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%abcd";
extern const TPatternTable<47, 6> Code93Table;

/// A character of full ASCII in Code 39 or Code 93: a shift, 0 for none, and a character.
struct TShifted {
    char Shift, Character;
};
extern const std::array<TShifted, 128> FullAscii39Table, FullAscii93Table;

/// The digits of the sets A, B and C of ISO/IEC 15420; A and B begin with a space.
extern const TPatternTable<10, 4> EanTableA, EanTableB, EanTableC;
/// The sets of the left half by the first digit, and of UPC-E by the check digit.
extern const std::array<std::string_view, 10> Ean13Parity, UpcEParity;

/// 2 of 5: pairs of digits, bars from the first and spaces from the second; digits in bars; digits in bars and spaces.
extern const std::array<TPattern<10>, 100> InterleavedTable;
extern const std::array<TPattern<10>, 10> IndustrialTable;
extern const std::array<TPattern<6>, 10> Matrix25Table;
/// Digits, start and stop, then "-".
extern const TPatternTable<12, 5> Code11Table;
extern const std::array<TPattern<8>, 10> MsiTable;
extern const std::array<TPattern<10>, 10> PostnetTable;

} // namespace vagrel::detail
