// SPDX-License-Identifier: MIT
// The digits of the 2 of 5 codes, Code 11, MSI and POSTNET.
#include <vagrel/barcode/PatternTable_p.h>

namespace vagrel::detail {

// Two elements of five are wide.
constexpr TPatternTable<10, 5> TwoOfFive =
    PatternTable<10, 5>("nnwwn wnnnw nwnnw wwnnn nnwnw wnwnn nwwnn nnnww wnnwn nwnwn", 7);

consteval bool IsWide(std::size_t digit, std::size_t element) {
    const char c = TwoOfFive[digit][element];
    return c == 'M' || c == '6';
}

consteval std::array<TPattern<10>, 100> MakeInterleavedTable() {
    std::array<TPattern<10>, 100> table{};
    for (std::size_t pair = 0; pair < 100; ++pair)
        for (std::size_t i = 0; i < 5; ++i) {
            table[pair][2 * i] = IsWide(pair / 10, i) ? 'M' : 'N';
            table[pair][2 * i + 1] = IsWide(pair % 10, i) ? '6' : '1';
        }
    return table;
}
constexpr std::array<TPattern<10>, 100> InterleavedTable = MakeInterleavedTable();

consteval std::array<TPattern<10>, 10> MakeIndustrialTable() {
    std::array<TPattern<10>, 10> table{};
    for (std::size_t digit = 0; digit < 10; ++digit)
        for (std::size_t i = 0; i < 5; ++i) {
            table[digit][2 * i] = IsWide(digit, i) ? 'M' : 'N';
            table[digit][2 * i + 1] = '1';
        }
    return table;
}
constexpr std::array<TPattern<10>, 10> IndustrialTable = MakeIndustrialTable();

// The last element parts the digits.
constexpr TPatternTable<10, 6> Matrix25Table =
    PatternTable<10, 6>("nnwwnn wnnnwn nwnnwn wwnnnn nnwnwn wnwnnn nwwnnn nnnwwn wnnwnn nwnwnn", 8);
static_assert(sizeof(InterleavedTable) == 1000 && sizeof(IndustrialTable) == 100 && sizeof(Matrix25Table) == 60);

constexpr TPatternTable<12, 5> Code11Table =
    PatternTable<12, 5>("nnnnw wnnnw nwnnw wwnnn nnwnw wnwnn nwwnn nnnww wnnwn wnnnn nnwwn nnwnn", 0);
static_assert(sizeof(Code11Table) == 60);

// Four bits, the highest first: a narrow bar and a long space for 0, the reverse for 1.
consteval std::array<TPattern<8>, 10> MakeMsiTable() {
    std::array<TPattern<8>, 10> table{};
    for (std::size_t digit = 0; digit < 10; ++digit)
        for (std::size_t bit = 0; bit < 4; ++bit) {
            const bool one = digit >> (3 - bit) & 1;
            table[digit][2 * bit] = one ? 'D' : 'N';
            table[digit][2 * bit + 1] = one ? '1' : '2';
        }
    return table;
}
constexpr std::array<TPattern<8>, 10> MsiTable = MakeMsiTable();

// Two tall bars of five; their places weigh 7, 4, 2, 1, 0, and 11 is the digit 0.
consteval std::array<TPattern<10>, 10> MakePostnetTable() {
    constexpr std::array<std::size_t, 5> weights{7, 4, 2, 1, 0};
    std::array<TPattern<10>, 10> table{};
    for (std::size_t a = 0; a < 5; ++a)
        for (std::size_t b = 0; b < a; ++b) {
            TPattern<10>& row = table[(weights[a] + weights[b]) % 11];
            for (std::size_t bar = 0; bar < 5; ++bar) {
                row[2 * bar] = bar == a || bar == b ? 'N' : 'A';
                row[2 * bar + 1] = '6';
            }
        }
    return table;
}
constexpr std::array<TPattern<10>, 10> PostnetTable = MakePostnetTable();
static_assert(sizeof(MsiTable) == 80 && sizeof(PostnetTable) == 100 && PostnetTable[9][9] == '6');

} // namespace vagrel::detail
