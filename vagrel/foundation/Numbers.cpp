// SPDX-License-Identifier: MIT
// The general form of floating-point numbers and the reading of numbers.
#include <vagrel/foundation/Numbers.h>

#include <vagrel/foundation/Text.h>

#include <charconv>
#include <cmath>
#include <limits>

namespace vagrel {

namespace {

constexpr int Digits = 15;

// A text of ASCII characters without the blanks at its ends; empty when it holds anything beyond ASCII.
std::string Ascii(std::u16string_view text) {
    std::string out;
    for (char16_t unit : Trim(text)) {
        if (unit >= 0x80)
            return {};
        out += char(unit);
    }
    return out;
}

// from_chars knows no plus sign in front.
void DropPlus(std::string& number) {
    if (number.size() > 1 && number[0] == '+' && number[1] != '-')
        number.erase(0, 1);
}

} // namespace

void AppendGeneral(std::string& out, double value) {
    if (std::isnan(value)) {
        out += "NAN";
        return;
    }
    if (std::isinf(value)) {
        out += value < 0 ? "-INF" : "INF";
        return;
    }
    if (value == 0) {
        out += '0';
        return;
    }
    // d.ddddddddddddddE±xx: the digits and the exponent after rounding to 15 digits.
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific, Digits - 1).ptr;
    char digits[Digits];
    digits[0] = buffer[0];
    for (int i = 1; i < Digits; ++i)
        digits[i] = buffer[i + 1];
    int exponent = 0;
    const char* from = buffer + Digits + 2;
    std::from_chars(*from == '+' ? from + 1 : from, end, exponent);
    int count = Digits;
    while (count > 1 && digits[count - 1] == '0')
        --count;

    if (value < 0)
        out += '-';
    if (exponent >= Digits || exponent < -5) {
        out += digits[0];
        if (count > 1)
            out.append(1, '.').append(digits + 1, std::size_t(count - 1));
        out += 'E';
        out += std::to_string(exponent);
    } else if (exponent < 0) {
        out.append("0.").append(std::size_t(-exponent - 1), '0').append(digits, std::size_t(count));
    } else if (count <= exponent + 1) {
        out.append(digits, std::size_t(count)).append(std::size_t(exponent + 1 - count), '0');
    } else {
        out.append(digits, std::size_t(exponent + 1)).append(1, '.');
        out.append(digits + exponent + 1, std::size_t(count - exponent - 1));
    }
}

std::u16string FloatToStr(double value) {
    std::string text;
    AppendGeneral(text, value);
    return std::u16string(text.begin(), text.end());
}

std::optional<double> TryStrToFloat(std::u16string_view text) {
    std::string ascii = Ascii(text);
    DropPlus(ascii);
    // from_chars also reads "inf" and "nan", which are no numbers here.
    if (ascii.empty() || ascii.find_first_not_of("0123456789.eE+-") != std::string::npos)
        return std::nullopt;
    double value = 0;
    const char* last = ascii.data() + ascii.size();
    const auto [end, error] = std::from_chars(ascii.data(), last, value);
    if (error != std::errc() || end != last)
        return std::nullopt;
    return value;
}

std::optional<std::int64_t> TryStrToInt64(std::u16string_view text) {
    std::string ascii = Ascii(text);
    DropPlus(ascii);
    std::int64_t value = 0;
    const char* last = ascii.data() + ascii.size();
    const auto [end, error] = std::from_chars(ascii.data(), last, value);
    if (error != std::errc() || end != last || ascii.empty())
        return std::nullopt;
    return value;
}

} // namespace vagrel
