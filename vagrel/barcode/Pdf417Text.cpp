// SPDX-License-Identifier: MIT
// Escapes in the text of a PDF417 symbol.
#include <vagrel/barcode/Pdf417Text_p.h>

#include <charconv>
#include <optional>

namespace vagrel::detail {
namespace {

// The number at the front of `text`, if it begins with that many digits.
std::optional<int> ReadDigits(std::string_view text, std::size_t count, int base) {
    int value = 0;
    const std::string_view digits = text.substr(0, count);
    // No sign passes: a minus would leave fewer digits than asked for, or a number below 0.
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
    if (digits.size() < count || error != std::errc() || end != digits.data() + count || digits[0] == '-')
        return std::nullopt;
    return value;
}

TTextToken Character(int length, int code) { return {length, TextCompactionTable[std::size_t(code % 256)], 0, {}}; }

// An extended channel interpretation by its number.
TTextToken Interpretation(int number) {
    constexpr int length = 8; // of "\\g" and six digits
    constexpr int words = 900, firstUser = 900 * words + words, end = firstUser + words;
    if (number < words)
        return {length, {}, 2, {EciCharacterSet, number}};
    if (number < firstUser)
        return {length, {}, 3, {EciGeneral, number / words - 1, number % words}};
    if (number < end)
        return {length, {}, 2, {EciUser, number - firstUser}};
    return {length, {}, 0, {}};
}

} // namespace

TTextToken ReadTextEscape(std::string_view text) {
    const TTextToken plain = Character(1, '\\');
    if (text.size() == 1)
        return plain;
    const std::string_view rest = text.substr(2);
    switch (text[1]) {
    case '\\':
        return Character(2, '\\');
    case 'x':
    case 'X':
        if (const auto code = ReadDigits(rest, 2, 16))
            return Character(4, *code);
        return plain;
    case 'c':
    case 'C':
        if (const auto word = ReadDigits(rest, 3, 10))
            return {5, {}, 1, {*word}};
        return plain;
    case 'g':
    case 'G':
        if (const auto number = ReadDigits(rest, 6, 10))
            return Interpretation(*number);
        return plain;
    default:
        if (const auto code = ReadDigits(text.substr(1), 3, 10))
            return Character(4, *code);
        return plain;
    }
}

} // namespace vagrel::detail
