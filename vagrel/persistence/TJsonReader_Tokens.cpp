// SPDX-License-Identifier: MIT
// Tokens of the JSON reader: names, texts and numbers, read in place.
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonReader.h>

#include "JsonTokens_p.h"

#include <charconv>
#include <cstring>

namespace vagrel {

namespace {

int HexDigit(std::uint32_t unit) {
    if (IsDigit(unit))
        return int(unit - '0');
    const std::uint32_t letter = (unit | 32) - 'a';
    return letter < 6 ? int(letter) + 10 : -1;
}

// So many digits fit into 64 bits whatever they are.
constexpr std::int64_t MantissaDigits = 19;

TJsonDataValue Integer(bool negative, std::uint64_t magnitude) {
    constexpr std::uint64_t limit32 = std::uint64_t(1) << 31, limit64 = std::uint64_t(1) << 63;
    if (magnitude < limit32 + negative)
        return std::int32_t(negative ? -std::int64_t(magnitude) : std::int64_t(magnitude));
    if (magnitude < limit64 + negative)
        return std::int64_t(negative ? 0 - magnitude : magnitude);
    return negative ? TJsonDataValue(-double(magnitude)) : TJsonDataValue(magnitude);
}

// Powers of ten that double holds exactly.
constexpr double ExactPower[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The end of the ASCII that stands for itself, for messages that are the same in both readers.
template <class Unit>
const Unit* BehindPlainAscii(const Unit* at, const Unit* end) {
    return std::find_if(at, BehindPlain(at, end), [](Unit unit) { return std::make_unsigned_t<Unit>(unit) >= 0x80; });
}

} // namespace

// The text of a key: a string, a bare word or any other scalar as it is written.
template <class Unit>
std::u16string_view TJsonReader<Unit>::ReadName() {
    if (fAt != fEnd && *fAt == '"')
        return ReadText();
    const Unit* begin = fAt;
    if (fAt != fEnd && IsWordStart(std::make_unsigned_t<Unit>(*fAt)))
        while (++fAt != fEnd && IsWord(std::make_unsigned_t<Unit>(*fAt)))
            ;
    else if (fAt != fEnd && (*fAt == '-' || IsDigit(std::make_unsigned_t<Unit>(*fAt))))
        ReadNumber();
    else
        FailExpected("name");
    fScratch.assign(begin, fAt);
    return fScratch;
}

// Reads into a slot that holds null.
template <class Unit>
void TJsonReader<Unit>::ReadScalar(TJsonDataValue& slot) {
    auto put = [&](TJsonDataValue value) { new (&slot) TJsonDataValue(std::move(value)); };
    const std::uint32_t unit = fAt == fEnd ? 0 : std::make_unsigned_t<Unit>(*fAt);
    if (unit == '"')
        ReadString(slot);
    else if (unit == '-' || IsDigit(unit))
        put(ReadNumber());
    else if (unit == 't' && TakeWord("true"))
        put(true);
    else if (unit == 'f' && TakeWord("false"))
        put(false);
    else if (unit != 'n' || !TakeWord("null"))
        FailExpected("value");
}

template <class Unit>
bool TJsonReader<Unit>::TakeWord(const char* word) {
    const std::size_t length = std::strlen(word);
    if (std::size_t(fEnd - fAt) < length || !std::equal(word, word + length, fAt))
        return false;
    const Unit* behind = fAt + length;
    if (behind != fEnd && IsWord(std::make_unsigned_t<Unit>(*behind)))
        return false;
    fAt = behind;
    return true;
}

template <class Unit>
TJsonDataValue TJsonReader<Unit>::ReadNumber() {
    const Unit* const begin = fAt;
    const Unit* at = fAt;
    std::uint64_t mantissa = 0;
    auto digits = [&] {
        const Unit* first = at;
        for (; at != fEnd && IsDigit(std::make_unsigned_t<Unit>(*at)); ++at)
            mantissa = mantissa * 10 + std::uint64_t(*at - '0');
        if (at == first) {
            fAt = at;
            FailExpected("digit");
        }
        return at - first;
    };
    at += *at == '-';
    std::int64_t count = 1, exponent = 0;
    if (at != fEnd && *at == '0')
        ++at; // nothing but a fraction or an exponent may follow
    else
        count = digits();
    if (at == fEnd || (*at != '.' && *at != 'e' && *at != 'E')) {
        fAt = at;
        return count <= MantissaDigits ? Integer(*begin == '-', mantissa) : ReadLongInteger(begin);
    }
    if (*at == '.') {
        ++at;
        exponent = -digits();
    }
    if (at != fEnd && (*at == 'e' || *at == 'E')) {
        ++at;
        const bool down = at != fEnd && *at == '-';
        at += down || (at != fEnd && *at == '+');
        const std::uint64_t fraction = std::exchange(mantissa, 0);
        const std::int64_t written =
            digits() < MantissaDigits ? std::min<std::int64_t>(std::int64_t(mantissa), 1000000000) : 1000000000;
        mantissa = fraction;
        count -= exponent;
        exponent += down ? -written : written;
    } else {
        count -= exponent;
    }
    fAt = at;
    return ReadFloat(begin, mantissa, count <= MantissaDigits, exponent);
}

// An integer of more digits than a mantissa takes for sure.
template <class Unit>
TJsonDataValue TJsonReader<Unit>::ReadLongInteger(const Unit* begin) {
    const std::string text(begin, fAt);
    std::uint64_t value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc() && text[0] != '-')
        return value;
    return ReadFloat(begin, 0, false, 0);
}

// The number from `begin` to here. Where the mantissa and the power of ten are exact in double one operation rounds
// right; all others take the long way over their text.
template <class Unit>
TJsonDataValue TJsonReader<Unit>::ReadFloat(const Unit* begin, std::uint64_t mantissa, bool isExact,
                                            std::int64_t exponent) {
    if (isExact && mantissa <= std::uint64_t(1) << 53 && exponent >= -22 && exponent <= 22) [[likely]] {
        const double whole = *begin == '-' ? -double(mantissa) : double(mantissa);
        return exponent < 0 ? whole / ExactPower[-exponent] : whole * ExactPower[exponent];
    }
    const std::string text(begin, fAt);
    double value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc()) {
        // Too small for double is zero. Digits in front of the point can only raise the magnitude.
        const std::int64_t magnitude = exponent + std::int64_t(text.size());
        if (isExact && mantissa == 0)
            return 0.0;
        if (magnitude > 0)
            Fail("Number out of range", begin);
        return 0.0;
    }
    return value;
}

template <class Unit>
void TJsonReader<Unit>::ReadString(TJsonDataValue& slot) {
    const Unit* begin = fAt + 1;
    const Unit* end = BehindPlain(begin, fEnd);
    if (end == fEnd || *end != '"') {
        slot = ReadText();
    } else {
        std::copy(begin, end, slot.NewText(std::size_t(end - begin)));
        fAt = end + 1;
    }
}

// A string, decoded into fScratch.
template <class Unit>
std::u16string_view TJsonReader<Unit>::ReadText() {
    const Unit* opening = fAt++;
    const Unit* end = BehindPlain(fAt, fEnd);
    fScratch.assign(fAt, end);
    fAt = end;
    if (fAt == fEnd || *fAt != '"')
        DecodeText(opening);
    ++fAt;
    return fScratch;
}

template <class Unit>
void TJsonReader<Unit>::DecodeText(const Unit* opening) {
    for (;;) {
        const Unit* run = fAt;
        while (fAt != fEnd && *fAt != '"' && *fAt != '\\' && std::make_unsigned_t<Unit>(*fAt) >= 0x20)
            ++fAt;
        AppendRun(run, fAt);
        if (fAt == fEnd)
            Fail("String not closed", opening);
        if (*fAt == '"')
            return;
        if (*fAt != '\\')
            Fail("Invalid character in string", fAt);
        if (++fAt == fEnd)
            Fail("String not closed", opening);
        ReadEscape();
    }
}

template <class Unit>
void TJsonReader<Unit>::ReadEscape() {
    static constexpr std::string_view letters = "\"\\/bfnrt", meanings = "\"\\/\b\f\n\r\t";
    if (*fAt == 'u') {
        ++fAt;
        const Unit* end = fAt + std::min<std::ptrdiff_t>(4, fEnd - fAt);
        int code = end - fAt < 4 ? -1 : 0;
        for (const Unit* digit = fAt; digit != end && code >= 0; ++digit) {
            const int value = HexDigit(std::make_unsigned_t<Unit>(*digit));
            code = value < 0 ? -1 : code * 16 + value;
        }
        if (code < 0)
            Fail("Invalid hex number \"" + std::string(fAt, BehindPlainAscii(fAt, end)) + "\"", fAt);
        fScratch += char16_t(code);
        fAt = end;
        return;
    }
    const std::size_t letter = std::make_unsigned_t<Unit>(*fAt) < 0x80 ? letters.find(char(*fAt)) : letters.npos;
    if (letter == letters.npos)
        Fail("Invalid character in string", fAt);
    fScratch += char16_t(meanings[letter]);
    ++fAt;
}

template <class Unit>
void TJsonReader<Unit>::AppendRun(const Unit* begin, const Unit* end) {
    if constexpr (sizeof(Unit) > 1)
        fScratch.append(begin, end);
    else if (begin != end)
        fScratch += FromUtf8(std::string_view(begin, std::size_t(end - begin)));
}

// What stands here, for a message.
template <class Unit>
std::string TJsonReader<Unit>::Found() const {
    const auto unit = std::make_unsigned_t<Unit>(*fAt);
    if (unit == '"')
        return "string";
    if (IsDigit(unit) || unit == '-')
        return "number";
    const Unit* end = fAt + 1;
    if (IsWordStart(unit))
        while (end != fEnd && IsWord(std::make_unsigned_t<Unit>(*end)))
            ++end;
    else if (unit >= 0x80)
        return "invalid character";
    std::string quoted(1, '"');
    quoted.append(fAt, end);
    return quoted += '"';
}

template <class Unit>
void TJsonReader<Unit>::Fail(const std::string& message, const Unit* at) const {
    throw FaultAt(message, fBegin, fEnd, at);
}

template <class Unit>
void TJsonReader<Unit>::FailExpected(const char* expected) const {
    if (fAt == fEnd)
        Fail(std::string("Unexpected end of file where ") + expected + " was expected", fAt);
    Fail(std::string("Expected ") + expected + " but found " + Found(), fAt);
}

template <class Unit>
void TJsonReader<Unit>::Report() {
    if (!fProgress)
        return;
    const std::size_t size = std::size_t(fEnd - fBegin), done = std::size_t(fAt - fBegin);
    const int percentage = int(double(done) / double(size) * 100);
    fProgress->Progress(fProgress->Data, percentage, done * sizeof(Unit), size * sizeof(Unit));
    const std::size_t threshold = fProgress->Threshold / sizeof(Unit);
    const std::size_t step = fProgress->Threshold == 0 ? size / 100 : threshold;
    fNextReport = fAt + std::min<std::size_t>(std::size_t(fEnd - fAt), std::max<std::size_t>(step, 1));
}

template class TJsonReader<char>;
template class TJsonReader<char16_t>;

} // namespace vagrel
