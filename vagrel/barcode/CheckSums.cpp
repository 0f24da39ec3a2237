// SPDX-License-Identifier: MIT
// Check digits by rule.
#include <vagrel/barcode/Symbology_p.h>

#include <algorithm>

namespace vagrel {

namespace {

using detail::DigitValue;

std::string UpToTen(std::size_t sum) { return {static_cast<char>('0' + (10 - sum % 10) % 10)}; }

/// Sum of the digits, which weigh 3 and 1 in turn; `last` is the weight of the last.
std::size_t ThriceEveryOther(std::string_view code, std::size_t last) {
    std::size_t sum = 0, weight = last;
    for (auto it = code.rbegin(); it != code.rend(); ++it, weight = 4 - weight)
        sum += weight * DigitValue(*it);
    return sum;
}

/// Values from the right weigh 1, 2, ... `period`, then from 1 again; "-" stands for 10.
std::string Mod11(std::string_view code, std::size_t period) {
    std::size_t sum = 0, weight = 0;
    for (auto it = code.rbegin(); it != code.rend(); ++it) {
        weight = weight == period ? 1 : weight + 1;
        sum += weight * (*it == '-' ? 10 : DigitValue(*it));
    }
    return {sum % 11 == 10 ? '-' : static_cast<char>('0' + sum % 11)};
}

/// Digit sum of twice the number that the even positions from the left spell, plus the digits at odd positions.
std::size_t MsiSum(std::string_view code) {
    std::size_t sum = 0;
    std::size_t carry = 0;
    for (std::size_t i = code.size(); i-- > 0;) {
        const std::size_t digit = DigitValue(code[i]);
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
std::size_t LuhnSum(std::string_view code) {
    std::size_t sum = 0;
    bool doubled = true;
    for (auto it = code.rbegin(); it != code.rend(); ++it, doubled = !doubled) {
        const std::size_t digit = DigitValue(*it);
        sum += doubled ? 2 * digit / 10 + 2 * digit % 10 : digit;
    }
    return sum;
}

std::string CheckDigits(std::string_view code, TKSLCheckType checkType) {
    switch (checkType) {
    case ctMod10:
    case ctMod10Right:
        return UpToTen(ThriceEveryOther(code, 3));
    case ctMod10UPCE:
        return UpToTen(ThriceEveryOther(code.substr(std::min<std::size_t>(1, code.size())), 1));
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
