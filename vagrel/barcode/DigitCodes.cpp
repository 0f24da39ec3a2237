// SPDX-License-Identifier: MIT
// The codes of digits: 2 of 5 in three forms, Code 11, MSI and POSTNET; and how codes of digits are made ready.
#include <vagrel/barcode/PatternTable_p.h>
#include <vagrel/barcode/Symbology_p.h>

namespace vagrel::detail {

namespace {

/// Start, what `add` makes of each digit, stop; empty when a character is no digit.
template <class AddDigit>
std::string OfDigits(std::string_view code, std::string_view start, std::string_view stop, std::size_t elements,
                     AddDigit add) {
    if (!AllOf(code, Digits))
        return {};
    std::string pattern(start);
    pattern.reserve(start.size() + elements * code.size() + stop.size());
    for (const char digit : code)
        add(pattern, static_cast<std::size_t>(DigitValue(digit)));
    return pattern += stop;
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
    if (!AllOf(request.Code, Digits))
        return {};
    std::string pattern = "N1N1";
    pattern.reserve(5 * request.Code.size() + 7);
    for (std::size_t i = 0; i + 1 < request.Code.size(); i += 2) {
        const std::string_view bars = TwoOfFiveTable[static_cast<std::size_t>(DigitValue(request.Code[i]))];
        const std::string_view spaces = TwoOfFiveTable[static_cast<std::size_t>(DigitValue(request.Code[i + 1]))];
        for (std::size_t element = 0; element < 5; ++element) {
            pattern += bars[element] == 'w' ? 'M' : 'N';
            pattern += spaces[element] == 'w' ? '6' : '1';
        }
    }
    return pattern += "M1N";
}

std::string EncodeIndustrial(const TPatternRequest& request) {
    return OfDigits(request.Code, "M1M1N1", "M1N1M1", 10, [](std::string& pattern, std::size_t digit) {
        for (const char element : TwoOfFiveTable[digit])
            pattern += element == 'w' ? "M1" : "N1";
    });
}

std::string EncodeMatrix25(const TPatternRequest& request) {
    return OfDigits(request.Code, "F1N1N1", "F1N1N", 6, [](std::string& pattern, std::size_t digit) {
        for (std::size_t element = 0; element < 5; ++element) {
            const bool wide = TwoOfFiveTable[digit][element] == 'w', bar = element % 2 == 0;
            pattern += bar ? (wide ? 'M' : 'N') : (wide ? '6' : '1');
        }
        pattern += '1';
    });
}

std::string EncodeCode11(const TPatternRequest& request) {
    if (!AllOf(request.Code, Characters11))
        return {};
    const TPattern<5>& ends = Code11Table[10];
    std::string pattern(ends.data(), ends.size());
    pattern.reserve(6 * (request.Code.size() + 2));
    for (const char character : request.Code) {
        pattern += '6';
        Append(pattern, Code11Table[character == '-' ? 11 : static_cast<std::size_t>(DigitValue(character))]);
    }
    pattern += '6';
    Append(pattern, ends);
    return pattern;
}

std::string EncodeMsi(const TPatternRequest& request) {
    return OfDigits(request.Code, "D6", "M2M", 8,
                    [](std::string& pattern, std::size_t digit) { Append(pattern, MsiTable[digit]); });
}

std::string EncodePostnet(const TPatternRequest& request) {
    return OfDigits(request.Code, "N6", "N", 10,
                    [](std::string& pattern, std::size_t digit) { Append(pattern, PostnetTable[digit]); });
}

} // namespace vagrel::detail
