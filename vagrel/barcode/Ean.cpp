// SPDX-License-Identifier: MIT
// EAN-13, EAN-8, UPC-A and UPC-E (ISO/IEC 15420).
#include <vagrel/barcode/PatternTable_p.h>
#include <vagrel/barcode/Symbology_p.h>

namespace vagrel::detail {

namespace {

struct TGuards {
    std::string_view Side, Centre, UpcEEnd;
};

const TGuards& Guards(bool extended) {
    static constexpr TGuards even{"N1N", "1N1N1", "1N1N1N"}, low{"919", "19191", "191919"};
    return extended ? low : even;
}

bool IsNumber(std::string_view code, std::size_t length) { return code.size() == length && AllOf(code, Digits); }

void AddDigits(TPatternWriter& pattern, std::string_view digits, std::string_view parity) {
    for (std::size_t i = 0; i < digits.size(); ++i)
        pattern.Add((parity[i] == 'A' ? EanTableA : EanTableB)[DigitValue(digits[i])]);
}

/// Two halves of the same length, the right one in set C.
std::string Halves(std::string_view digits, std::string_view parity, bool showNumber) {
    const auto& [side, centre, unused] = Guards(showNumber);
    const std::size_t half = digits.size() / 2;
    TPatternWriter pattern(59);
    pattern.Add(side);
    AddDigits(pattern, digits.substr(0, half), parity);
    pattern.Add(centre);
    for (const char digit : digits.substr(half))
        pattern.Add(EanTableC[DigitValue(digit)]);
    pattern.Add(side);
    return pattern.Take();
}

} // namespace

std::string EncodeEan13(const TPatternRequest& request) {
    if (!IsNumber(request.Code, 13))
        return {};
    const auto first = DigitValue(request.Code[0]);
    return Halves(request.Code.substr(1), Ean13Parity[first], request.ShowNumber);
}

std::string EncodeEan8(const TPatternRequest& request) {
    return IsNumber(request.Code, 8) ? Halves(request.Code, Ean13Parity[0], request.ShowNumber) : std::string();
}

std::string EncodeUpcA(const TPatternRequest& request) {
    return IsNumber(request.Code, 12) ? Halves(request.Code, Ean13Parity[0], request.ShowNumber) : std::string();
}

std::string EncodeUpcE(const TPatternRequest& request) {
    if (!IsNumber(request.Code, 8))
        return {};
    const TGuards& guards = Guards(request.ShowNumber);
    TPatternWriter pattern(33);
    pattern.Add(guards.Side);
    AddDigits(pattern, request.Code.substr(1, 6), UpcEParity[DigitValue(request.Code[7])]);
    pattern.Add(guards.UpcEEnd);
    return pattern.Take();
}

} // namespace vagrel::detail
