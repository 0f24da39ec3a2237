// SPDX-License-Identifier: MIT
// Where characters stand in Text compaction, and how its sub-modes change (ISO/IEC 15438).
#include <vagrel/barcode/Pdf417Text_p.h>

namespace vagrel::detail {
namespace {

using namespace std::string_view_literals;

// Characters in the order of their values. Those that two sub-modes share have the same value in both.
constexpr std::string_view SubModeCharacters[] = {"ABCDEFGHIJKLMNOPQRSTUVWXYZ ", "abcdefghijklmnopqrstuvwxyz ",
                                                  "0123456789&\r\t,:#-.$/+%*=^", ";<>@[\\]_`~!\r\t,:\n-.$/\"|*()?{}'"};
static_assert(std::size(SubModeCharacters) == SubModeCount);
static_assert(SubModeCharacters[Mixed].size() == 25 && SubModeCharacters[Punctuation].size() == 29);

constexpr std::array<TTextCode, 256> MakeTable() {
    std::array<TTextCode, 256> table{};
    for (int mode = Alpha; mode < SubModeCount; ++mode) {
        std::uint8_t value = 0;
        for (const char character : SubModeCharacters[mode]) {
            TTextCode& code = table[std::uint8_t(character)];
            code.Value = value++;
            code.SubModes = std::uint8_t(code.SubModes | 1 << mode);
        }
    }
    table[' '].SubModes |= 1 << Mixed; // 26 there too, behind the latch to Punctuation
    return table;
}

} // namespace

constexpr auto Table = MakeTable();
const std::array<TTextCode, 256> TextCompactionTable = Table;

const std::array<std::array<TSubModeChange, SubModeCount>, SubModeCount> SubModeChanges = {{
    {{{}, {"\33"sv}, {"\34"sv}, {"\34\31"sv, 29}}},
    {{{"\34\34"sv, 27}, {}, {"\34"sv}, {"\34\31"sv, 29}}},
    {{{"\34"sv}, {"\33"sv}, {}, {"\31"sv, 29}}},
    {{{"\35"sv}, {"\35\33"sv}, {"\35\34"sv}, {}}},
}};

} // namespace vagrel::detail
