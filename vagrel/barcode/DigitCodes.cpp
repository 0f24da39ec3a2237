// SPDX-License-Identifier: MIT
// The codes of digits: 2 of 5 in three forms, Code 11, MSI and POSTNET; and how codes of digits are made ready.
#include <vagrel/barcode/PatternTable_p.h>
#include <vagrel/barcode/Symbology_p.h>

namespace vagrel::detail {

namespace {

/// Start, the row of each digit, stop; empty when a character is no digit.
template <std::size_t Length>
std::string OfDigits(std::string_view code, std::string_view start, const std::array<TPattern<Length>, 10>& table,
                     std::string_view stop) {
    if (!AllOf(code, Digits))
        return {};
    TPatternWriter pattern(start.size() + Length * code.size() + stop.size());
    pattern.Add(start);
    for (const char digit : code)
        pattern.Add(table[DigitValue(digit)]);
    pattern.Add(stop);
    return pattern.Take();
}

/// A number shorter than `length` gets zeros in front; the digit that is one too many was its check digit.
std::string AdjustZero(std::string code, std::size_t length) {
    if (code.size() == length + 1)
        code.pop_back();
    if (code.size() < length)
        code.insert(0, length - code.size(), '0');
    return code;
}

} // namespace

TDigitControl PrepareDigits(const TSymbology& symbology, std::string code, bool checkSum) {
    if (!checkSum)
        return {std::move(code), {}};
    if (symbology.Length)
        code = AdjustZero(std::move(code), symbology.Length - 1);
    return TBarcode::CheckSumMod(code, symbology.Check);
}

TDigitControl PrepareInterleaved(const TSymbology& symbology, std::string code, bool checkSum) {
    TDigitControl prepared = PrepareDigits(symbology, std::move(code), checkSum);
    if (prepared.Code.size() % 2)
        prepared.Code.insert(0, 1, '0');
    return prepared;
}

std::string EncodeInterleaved(const TPatternRequest& request) {
    const std::string_view code = request.Code;
    if (!AllOf(code, Digits))
        return {};
    TPatternWriter pattern(5 * code.size() + 7);
    pattern.Add("N1N1");
    for (std::size_t i = 0; i + 1 < code.size(); i += 2)
        pattern.Add(InterleavedTable[10 * DigitValue(code[i]) + DigitValue(code[i + 1])]);
    pattern.Add("M1N");
    return pattern.Take();
}

std::string EncodeIndustrial(const TPatternRequest& request) {
    return OfDigits(request.Code, "M1M1N1", IndustrialTable, "M1N1M1");
}

std::string EncodeMatrix25(const TPatternRequest& request) {
    return OfDigits(request.Code, "F1N1N1", Matrix25Table, "F1N1N");
}

std::string EncodeCode11(const TPatternRequest& request) {
    if (!AllOf(request.Code, Characters11))
        return {};
    TPatternWriter pattern(6 * request.Code.size() + 11);
    pattern.Add(Code11Table[10]);
    for (const char character : request.Code) {
        pattern.Add('6');
        pattern.Add(Code11Table[character == '-' ? 11 : DigitValue(character)]);
    }
    pattern.Add('6');
    pattern.Add(Code11Table[10]);
    return pattern.Take();
}

std::string EncodeMsi(const TPatternRequest& request) { return OfDigits(request.Code, "D6", MsiTable, "M2M"); }

std::string EncodePostnet(const TPatternRequest& request) { return OfDigits(request.Code, "N6", PostnetTable, "N"); }

} // namespace vagrel::detail
