// SPDX-License-Identifier: MIT
// Check digits by rule.
#include <vagrel/barcode/Symbology_p.h>

#include <algorithm>

namespace vagrel {

namespace {

using detail::DigitValue;

/// Sum of value times weight(position), positions from the right, the last is 1.
template <class Value, class Weight>
std::uint64_t WeightedSum(std::string_view code, Value value, Weight weight) {
    std::uint64_t sum = 0, position = 0;
    for (auto it = code.rbegin(); it != code.rend(); ++it)
        sum += static_cast<unsigned>(value(*it)) * weight(++position);
    return sum;
}

std::string UpToTen(std::uint64_t sum) { return {static_cast<char>('0' + (10 - sum % 10) % 10)}; }

std::uint64_t OddThrice(std::uint64_t position) { return position % 2 ? 3 : 1; }
std::uint64_t EvenThrice(std::uint64_t position) { return position % 2 ? 1 : 3; }

std::string Mod11(std::string_view code, std::uint64_t period) {
    const auto rest = WeightedSum(
                          code, [](char c) { return c == '-' ? 10 : DigitValue(c); },
                          [=](std::uint64_t position) { return (position - 1) % period + 1; }) %
                      11;
    return {rest == 10 ? '-' : static_cast<char>('0' + rest)};
}

/// Digit sum of twice the number that the even positions from the left spell, plus the digits at odd positions.
std::uint64_t MsiSum(std::string_view code) {
    std::uint64_t sum = 0;
    unsigned carry = 0;
    for (std::size_t i = code.size(); i-- > 0;) {
        const auto digit = static_cast<unsigned>(DigitValue(code[i]));
        if (i % 2) {
            sum += (2 * digit + carry) % 10;
            carry = (2 * digit + carry) / 10;
        } else {
            sum += digit;
        }
    }
    return sum + carry;
}

/// The sum of Luhn's formula (ISO/IEC 7812), for a check digit that is still to follow.
std::uint64_t LuhnSum(std::string_view code) {
    std::uint64_t sum = 0;
    bool doubled = true;
    for (auto it = code.rbegin(); it != code.rend(); ++it, doubled = !doubled) {
        const int digit = DigitValue(*it);
        sum += static_cast<unsigned>(doubled ? 2 * digit / 10 + 2 * digit % 10 : digit);
    }
    return sum;
}

std::string CheckDigits(std::string_view code, TKSLCheckType checkType) {
    switch (checkType) {
    case ctMod10:
    case ctMod10Right:
        return UpToTen(WeightedSum(code, DigitValue, OddThrice));
    case ctMod10UPCE:
        return UpToTen(WeightedSum(code.substr(std::min<std::size_t>(1, code.size())), DigitValue, EvenThrice));
    case ctMod11: {
        const std::string first = Mod11(code, 10);
        return code.size() < 10 ? first : first + Mod11(std::string(code) + first, 9);
    }
    case ctMSI:
        return UpToTen(MsiSum(code));
    case ctMSI10:
        return UpToTen(LuhnSum(code));
    case ctNone:
        break;
    }
    return {};
}

} // namespace

TDigitControl TBarcode::CheckSumMod(std::string_view code, TKSLCheckType checkType) {
    const std::string check = CheckDigits(code, checkType);
    // Of the two check characters of a long Code 11 only the last is the control digit.
    return {std::string(code) + check, check.empty() ? check : check.substr(check.size() - 1)};
}

} // namespace vagrel
