// SPDX-License-Identifier: MIT
// The digits of EAN and UPC (ISO/IEC 15420), and the parities that carry one digit more.
#include <vagrel/barcode/PatternTable_p.h>

namespace vagrel::detail {

constexpr TPatternTable<10, 4> EanTableA =
    PatternTable<10, 4>("3211 2221 2122 1411 1132 1231 1114 1312 1213 3112", 7, true);
constexpr TPatternTable<10, 4> EanTableB =
    PatternTable<10, 4>("1123 1222 2212 1141 2311 1321 4111 2131 3121 2113", 7, true);
constexpr TPatternTable<10, 4> EanTableC = PatternTable<10, 4>("3211 2221 2122 1411 1132 1231 1114 1312 1213 3112", 7);

constexpr std::array<std::string_view, 10> Ean13Parity{"AAAAAA", "AABABB", "AABBAB", "AABBBA", "ABAABB",
                                                       "ABBAAB", "ABBBAA", "ABABAB", "ABABBA", "ABBABA"};
constexpr std::array<std::string_view, 10> UpcEParity{"BBBAAA", "BBABAA", "BBAABA", "BBAAAB", "BABBAA",
                                                      "BAABBA", "BAAABB", "BABABA", "BABAAB", "BAABAB"};

consteval bool AllOfLength(const std::array<std::string_view, 10>& rows, std::size_t length) {
    for (const std::string_view row : rows)
        if (row.size() != length)
            return false;
    return true;
}
static_assert(AllOfLength(Ean13Parity, 6) && AllOfLength(UpcEParity, 6));

} // namespace vagrel::detail
