// SPDX-License-Identifier: MIT
// Numbers with a fixed count of decimals and by number patterns. Both round the exact binary value, ties away from
// zero.
#include <vagrel/foundation/Numbers.h>

#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <vector>

namespace vagrel {

namespace {

// The decimal value 0.d1d2d3... × 10^point, without zeros at the end; zero has no digits.
struct TDecimal {
    std::string digits;
    int point = 0;
};

void DropZeros(std::string& digits) { digits.erase(digits.find_last_not_of('0') + 1); }

// Every digit of a finite double: no double has more than 767 of them.
TDecimal ExactDecimal(double magnitude) {
    if (magnitude == 0)
        return {};
    std::array<char, 800> text;
    const char* const end =
        std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific, 766).ptr;
    const char* const tail = text.data() + 2;
    const char* const mark = std::find(tail, end, 'e');
    TDecimal decimal;
    decimal.digits.append(1, text[0]).append(tail, std::size_t(mark - tail));
    DropZeros(decimal.digits);
    std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, decimal.point);
    ++decimal.point;
    return decimal;
}

TDecimal ExactDecimal(std::uint64_t magnitude) {
    if (magnitude == 0)
        return {};
    std::string digits = std::to_string(magnitude);
    const int point = int(digits.size());
    DropZeros(digits);
    return {std::move(digits), point};
}

// Keeps `count` digits. All digits are known, so the first one that goes decides.
void RoundTo(TDecimal& decimal, int count) {
    std::string& digits = decimal.digits;
    if (count >= int(digits.size()))
        return;
    const bool up = count >= 0 && digits[std::size_t(count)] >= '5';
    digits.resize(std::size_t(std::max(count, 0)));
    if (!up) {
        DropZeros(digits);
        return;
    }
    while (!digits.empty() && digits.back() == '9')
        digits.pop_back();
    if (!digits.empty()) {
        ++digits.back();
    } else {
        digits.push_back('1');
        ++decimal.point;
    }
}

bool IsQuote(char16_t unit) { return unit == u'\'' || unit == u'"'; }

// The end of the quoted text that starts at `pos`: behind its closing quote or at the end of the pattern.
std::size_t SkipQuoted(std::u16string_view pattern, std::size_t pos) {
    const std::size_t close = pattern.find(pattern[pos], pos + 1);
    return close == std::u16string_view::npos ? pattern.size() : close + 1;
}

std::vector<std::u16string_view> Sections(std::u16string_view pattern) {
    std::vector<std::u16string_view> sections;
    std::size_t start = 0;
    for (std::size_t pos = 0; pos < pattern.size();) {
        if (IsQuote(pattern[pos])) {
            pos = SkipQuoted(pattern, pos);
        } else if (pattern[pos++] == u';') {
            sections.push_back(pattern.substr(start, pos - 1 - start));
            start = pos;
        }
    }
    sections.push_back(pattern.substr(start));
    return sections;
}

// One section of a pattern, read once for its layout and once more for each number.
class TSection {
public:
    explicit TSection(std::u16string_view pattern) : fPattern(pattern) {
        Walk([this](char16_t mark, std::u16string_view piece) { Measure(mark, piece); });
        if (fPoint < 0)
            fPoint = fPlaces;
    }

    // Rounds `decimal` to the digits that this section shows.
    void Round(TDecimal& decimal) const { RoundTo(decimal, fExponent ? fPlaces : decimal.point + fPlaces - fPoint); }

    std::u16string Write(TDecimal decimal) const;

private:
    // Hands out the section piece by piece with a mark: '0' and '#' digits, '.', ',', 'E' an exponent, '\'' a text.
    template <class Take>
    void Walk(Take take) const;
    void Measure(char16_t mark, std::u16string_view piece);

    std::u16string_view fPattern;
    int fPlaces = 0;         // "0" and "#" together
    int fPoint = -1;         // how many of them stand before the decimal point
    int fFirstZero = 100000; // index of the first and the last "0"
    int fLastZero = -1;
    bool fGroups = false;
    bool fExponent = false;
};

template <class Take>
void TSection::Walk(Take take) const {
    bool exponent = false;
    for (std::size_t pos = 0; pos < fPattern.size();) {
        const char16_t unit = fPattern[pos];
        const char16_t next = pos + 1 < fPattern.size() ? fPattern[pos + 1] : u'\0';
        std::size_t end = pos + 1;
        if (IsQuote(unit)) {
            end = SkipQuoted(fPattern, pos);
            const bool closed = end - pos > 1 && fPattern[end - 1] == unit;
            take(u'\'', fPattern.substr(pos + 1, end - pos - (closed ? 2 : 1)));
        } else if ((unit == u'E' || unit == u'e') && (next == u'+' || next == u'-') && !exponent) {
            exponent = true;
            end = std::min(fPattern.find_first_not_of(u'0', pos + 2), fPattern.size());
            take(u'E', fPattern.substr(pos, end - pos));
        } else {
            const bool special = unit == u'0' || unit == u'#' || unit == u'.' || unit == u',';
            take(special ? unit : u'\'', fPattern.substr(pos, 1));
        }
        pos = end;
    }
}

void TSection::Measure(char16_t mark, std::u16string_view) {
    if (mark == u'0') {
        fFirstZero = std::min(fFirstZero, fPlaces);
        fLastZero = fPlaces;
    }
    if (mark == u'0' || mark == u'#')
        ++fPlaces;
    else if (mark == u'.' && fPoint < 0)
        fPoint = fPlaces;
    else if (mark == u',')
        fGroups = true;
    else if (mark == u'E')
        fExponent = true;
}

std::u16string TSection::Write(TDecimal decimal) const {
    int exponent = 0;
    if (fExponent && !decimal.digits.empty()) {
        exponent = decimal.point - fPoint;
        decimal.point = fPoint;
    }
    // Places count from the decimal point: 0 are the units, -1 the tenths. Those from high to low are written.
    const int size = int(decimal.digits.size());
    const int high = std::max({decimal.point, fPoint - fFirstZero, 0}) - 1;
    const int low = std::min({decimal.point - size, fPoint - 1 - fLastZero, 0});
    std::u16string out;
    auto digit = [&](int place) {
        if (place > high || place < low)
            return;
        if (place == -1)
            out += u'.';
        const int index = decimal.point - 1 - place;
        out += index >= 0 && index < size ? char16_t(decimal.digits[std::size_t(index)]) : u'0';
        if (fGroups && place > 0 && place % 3 == 0)
            out += u',';
    };
    int place = std::max(high, fPoint - 1);
    Walk([&](char16_t mark, std::u16string_view piece) {
        if (mark == u'0' || mark == u'#') {
            // The digits that have no place of their own go before the first one.
            for (; place >= fPoint; --place)
                digit(place);
            digit(place--);
        } else if (mark == u'E') {
            out += piece[0];
            if (exponent < 0 || piece[1] == u'+')
                out += exponent < 0 ? u'-' : u'+';
            out += IntToStr(std::abs(exponent), std::max(int(piece.size()) - 2, 1));
        } else if (mark == u'\'') {
            out += piece;
        }
    });
    return out;
}

// A number with the sign of `sign`. Nothing where the pattern has no section for it.
std::optional<std::u16string> Format(std::u16string_view pattern, int sign, TDecimal decimal) {
    const std::vector<std::u16string_view> sections = Sections(pattern);
    auto choose = [&](std::size_t index) { return index < sections.size() && !sections[index].empty() ? index : 0; };
    std::size_t chosen = choose(sign < 0 ? 1 : sign == 0 ? 2 : 0);
    if (sections[chosen].empty())
        return std::nullopt;
    TSection(sections[chosen]).Round(decimal);
    // What rounds to zero is written as zero.
    if (decimal.digits.empty()) {
        chosen = choose(2);
        decimal.point = 0;
    }
    std::u16string text = TSection(sections[chosen]).Write(decimal);
    if (sign < 0 && chosen == 0 && !decimal.digits.empty())
        text.insert(text.begin(), u'-');
    return text;
}

} // namespace

std::u16string FormatFloat(std::u16string_view pattern, double value) {
    if (pattern.empty() || !std::isfinite(value))
        return FloatToStr(value);
    const int sign = (value > 0) - (value < 0);
    auto text = Format(pattern, sign, ExactDecimal(std::fabs(value)));
    return text ? *std::move(text) : FloatToStr(value);
}

std::u16string FormatInt(std::u16string_view pattern, std::int64_t value) {
    if (pattern.empty())
        return IntToStr(value);
    const int sign = (value > 0) - (value < 0);
    const std::uint64_t magnitude = value < 0 ? 0 - std::uint64_t(value) : std::uint64_t(value);
    auto text = Format(pattern, sign, ExactDecimal(magnitude));
    return text ? *std::move(text) : IntToStr(value);
}

namespace {

// Writes the decimal digits of `number` so that they end at `end`; gives their begin.
char* WriteDigits(char* end, std::uint64_t number) {
    static constexpr auto Pairs = [] {
        std::array<char, 200> pairs{};
        for (std::size_t i = 0; i < 100; ++i) {
            pairs[2 * i] = char('0' + i / 10);
            pairs[2 * i + 1] = char('0' + i % 10);
        }
        return pairs;
    }();
    while (number >= 100) {
        end -= 2;
        std::copy_n(&Pairs[number % 100 * 2], 2, end);
        number /= 100;
    }
    if (number >= 10) {
        end -= 2;
        std::copy_n(&Pairs[number * 2], 2, end);
    } else {
        *--end = char('0' + number);
    }
    return end;
}

} // namespace

void AppendFixed(std::string& out, double value, int decimals) {
    static constexpr std::array<std::uint64_t, 10> Scales{1,      10,      100,      1000,      10000,
                                                          100000, 1000000, 10000000, 100000000, 1000000000};
    const double magnitude = std::fabs(value);
    if (!(magnitude < 0x1p53)) {
        if (!std::isfinite(value))
            return AppendGeneral(out, value);
        std::array<char, 320> text;
        out.append(text.data(),
                   std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 0).ptr);
        if (decimals > 0)
            out.append(1, '.').append(std::size_t(decimals), '0');
        return;
    }
    // Both parts are exact, and so is the rest behind the last decimal: the fused product tells what the product lost.
    auto whole = std::int64_t(magnitude);
    const double fraction = magnitude - double(whole);
    const std::uint64_t scale = Scales[std::size_t(decimals)];
    const double scaled = fraction * double(scale);
    auto shown = std::int64_t(scaled);
    const double rest = scaled - double(shown);
    if (rest > 0.5 || (rest == 0.5 && std::fma(fraction, double(scale), -scaled) >= 0))
        ++shown;
    if (shown == std::int64_t(scale)) {
        shown = 0;
        ++whole;
    }

    std::array<char, 40> text;
    char* const end = text.data() + text.size();
    char* begin = end;
    if (decimals > 0) {
        begin = WriteDigits(end, std::uint64_t(shown));
        std::fill(end - decimals, begin, '0');
        begin = end - decimals;
        *--begin = '.';
    }
    begin = WriteDigits(begin, std::uint64_t(whole));
    if (value < 0 && (whole | shown) != 0)
        *--begin = '-';
    out.append(begin, std::size_t(end - begin));
}

} // namespace vagrel
