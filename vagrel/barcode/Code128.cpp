// SPDX-License-Identifier: MIT
// Code 128 and GS1-128: code sets A, B and C, their automatic mix, and the upper half of ISO 8859-1 by FNC4.
#include <vagrel/barcode/PatternTable_p.h>
#include <vagrel/barcode/Symbology_p.h>

#include <algorithm>

namespace vagrel::detail {

namespace {

enum TSymbolValue : std::size_t {
    svCodeC = 99,
    svCodeB = 100,
    svFnc4 = 100, // in code set B
    svCodeA = 101,
    svFnc1 = 102,
    svStartA = 103,
    svStartB = 104,
    svStartC = 105
};

// Value of a character in each code set; one that the set lacks becomes a space.

std::size_t ValueInA(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code >= 96 ? 0 : code >= 32 ? code - 32U : code + 64U;
}

std::size_t ValueInB(char character) { return Is(character, CodeSetB) ? static_cast<std::size_t>(character - 32) : 0; }

std::size_t ValueInUpperHalf(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code >= 160 ? code - 160U : 0;
}

std::size_t ValueOfPair(std::string_view pair) {
    const bool digits = pair.size() == 2 && AllOf(pair, Digits);
    return digits ? DigitValue(pair[0]) * 10 + DigitValue(pair[1]) : 0;
}

/// A symbol that grows; it counts its check character on the way.
class TSymbol {
public:
    TSymbol(const TPatternRequest& request, TSymbolValue start)
        : fPattern(6 * (request.Code.size() + 6)), fCheck(start) {
        fPattern.Add(Code128Table[start]);
        if (request.Gs1)
            Add(svFnc1);
    }
    void Add(std::size_t value) {
        fPattern.Add(Code128Table[value]);
        fCheck += value * ++fPosition;
    }
    template <class ValueOf>
    void Add(std::string_view characters, ValueOf valueOf) {
        for (const char character : characters)
            Add(valueOf(character));
    }
    void AddPairs(std::string_view digits) {
        for (std::size_t i = 0; i < digits.size(); i += 2)
            Add(ValueOfPair(digits.substr(i, 2)));
    }
    std::string Finish() {
        fPattern.Add(Code128Table[fCheck % 103]);
        fPattern.Add("D3T1N1D");
        return fPattern.Take();
    }

private:
    TPatternWriter fPattern;
    std::uint64_t fCheck, fPosition = 0;
};

std::size_t LeadingRun(std::string_view code, std::uint16_t sets) {
    return static_cast<std::size_t>(
        std::ranges::find_if_not(code, [=](char character) { return Is(character, sets); }) - code.begin());
}

/// Pairs pay for six digits anywhere, and at the end of the data for two, four or more.
bool PairsPay(std::string_view rest) {
    const std::size_t run = LeadingRun(rest, Digits);
    return run >= 6 || (run == rest.size() && (run == 2 || run >= 4));
}

std::string EncodePairsAndB(const TPatternRequest& request, bool pairs) {
    TSymbol symbol(request, pairs ? svStartC : svStartB);
    for (std::string_view rest = request.Code; !rest.empty();) {
        if (pairs && rest.size() > 1 && AllOf(rest.substr(0, 2), Digits)) {
            symbol.AddPairs(rest.substr(0, 2));
            rest.remove_prefix(2);
            continue;
        }
        if (!pairs && PairsPay(rest)) {
            symbol.Add(svCodeC);
            pairs = true;
            continue;
        }
        if (pairs)
            symbol.Add(svCodeB);
        pairs = false;
        symbol.Add(ValueInB(rest[0]));
        rest.remove_prefix(1);
    }
    return symbol.Finish();
}

std::string EncodeUpperHalf(const TPatternRequest& request) {
    TSymbol symbol(request, svStartB);
    symbol.Add(svFnc4);
    if (request.Code.size() != 1)
        symbol.Add(svFnc4);
    symbol.Add(request.Code, ValueInUpperHalf);
    return symbol.Finish();
}

/// Runs of code set B and of the upper half in turn. One FNC4 shifts one character, two of them latch. The latch is not
/// forgotten when B is entered again, so that a second long run of the upper half comes out wrong at the reader.
std::string EncodeMixed(const TPatternRequest& request) {
    TSymbol symbol(request, svStartB);
    bool upper = false, latched = false;
    for (std::string_view rest = request.Code; !rest.empty();) {
        std::size_t run = LeadingRun(rest, upper ? UpperHalf : CodeSetB);
        if (run == 0) {
            upper = !upper;
            run = LeadingRun(rest, upper ? UpperHalf : CodeSetB);
            const bool twice = upper ? run > 3 : latched;
            if (upper || latched)
                symbol.Add(svFnc4);
            if (twice)
                symbol.Add(svFnc4);
            if (upper)
                latched = !latched && twice;
        }
        run = std::max<std::size_t>(run, 1);
        for (std::size_t i = 0; i < run; ++i) {
            if (upper && !latched && i > 0)
                symbol.Add(svFnc4);
            symbol.Add(upper ? ValueInUpperHalf(rest[i]) : ValueInB(rest[i]));
        }
        rest.remove_prefix(run);
    }
    return symbol.Finish();
}

std::string EncodeCharacters(const TPatternRequest& request, TSymbolValue start, std::size_t (*valueOf)(char)) {
    TSymbol symbol(request, start);
    symbol.Add(request.Code, valueOf);
    return symbol.Finish();
}

std::string EncodePairsAndLast(const TPatternRequest& request) {
    TSymbol symbol(request, svStartC);
    const std::size_t pairs = request.Code.size() / 2 * 2;
    symbol.AddPairs(request.Code.substr(0, pairs));
    symbol.Add(svCodeA);
    symbol.Add(request.Code.substr(pairs), ValueInA);
    return symbol.Finish();
}

} // namespace

TDigitControl PrepareCode128(const TSymbology&, std::string code, bool checkSum) {
    if (!checkSum || !AllOf(code, Digits))
        return {std::move(code), {}};
    if (code.size() % 2 == 0)
        code.insert(0, 1, '0');
    return TBarcode::CheckSumMod(code, ctMod10);
}

TDigitControl PrepareCode128Pairs(const TSymbology& symbology, std::string code, bool checkSum) {
    TDigitControl prepared = PrepareCode128(symbology, std::move(code), checkSum);
    if (prepared.Code.size() % 2)
        prepared.Code.insert(0, 1, '0');
    return prepared;
}

TKSL128AutoType ChooseAuto128(std::string_view code, bool gs1) {
    if (AllOf(code, Digits)) {
        if (code.size() < 4 && code.size() != 2)
            return at128a;
        return code.size() % 2 ? at128nac : at128c;
    }
    if (AllOf(code, CodeSetA))
        return at128a;
    if (AllOf(code, CodeSetB))
        return LeadingRun(code, Digits) >= 4 ? at128cb : at128bc;
    if (!gs1 && AllOf(code, UpperHalf))
        return at128e;
    return !gs1 && AllOf(code, CodeSetB | UpperHalf) ? at128be : at128None;
}

std::string EncodeCode128A(const TPatternRequest& request) { return EncodeCharacters(request, svStartA, ValueInA); }

std::string EncodeCode128B(const TPatternRequest& request) { return EncodeCharacters(request, svStartB, ValueInB); }

std::string EncodeCode128C(const TPatternRequest& request) {
    TSymbol symbol(request, svStartC);
    symbol.AddPairs(request.Code);
    return symbol.Finish();
}

std::string EncodeCode128Auto(const TPatternRequest& request) {
    switch (request.Auto128) {
    case at128a:
        return EncodeCode128A(request);
    case at128b:
        return EncodeCode128B(request);
    case at128c:
        return EncodeCode128C(request);
    case at128nac:
        return EncodePairsAndLast(request);
    case at128bc:
        return EncodePairsAndB(request, false);
    case at128cb:
        return EncodePairsAndB(request, true);
    case at128e:
        return request.Gs1 ? std::string() : EncodeUpperHalf(request);
    case at128be:
        return request.Gs1 ? std::string() : EncodeMixed(request);
    case at128None:
    case at128ac:
        break;
    }
    return {};
}

} // namespace vagrel::detail
