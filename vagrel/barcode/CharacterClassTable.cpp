// SPDX-License-Identifier: MIT
// The sets that each character code belongs to.
#include <vagrel/barcode/Symbology_p.h>

namespace vagrel::detail {

namespace {

consteval std::array<std::uint16_t, 256> MakeClasses() {
    std::array<std::uint16_t, 256> table{};
    const auto range = [&](unsigned first, unsigned last, unsigned sets) {
        for (unsigned code = first; code <= last; ++code)
            table[code] = static_cast<std::uint16_t>(table[code] | sets);
    };
    const auto each = [&](std::string_view characters, unsigned sets) {
        for (const char character : characters) {
            const auto code = static_cast<unsigned char>(character);
            range(code, code, sets);
        }
    };
    range('0', '9', Digits | Characters39 | Characters93 | Characters11 | CharactersCodabar);
    range('A', 'Z', Characters39 | Characters93);
    range('a', 'z', Characters39);
    each(" $%+-./", Characters39 | Characters93);
    each("*", Characters39);
    each("$+-./:", CharactersCodabar);
    each("-", Characters11);
    each("()", Parentheses);
    range(0, 127, Ascii);
    range(0, 95, CodeSetA);
    range(32, 127, CodeSetB);
    each(" ", UpperHalf);
    range(161, 172, UpperHalf); // 173, the soft hyphen, has no place in a printed code
    range(174, 255, UpperHalf);
    return table;
}

} // namespace

constexpr std::array<std::uint16_t, 256> CharacterClasses = MakeClasses();

} // namespace vagrel::detail
