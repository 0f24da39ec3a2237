// SPDX-License-Identifier: MIT
// The general form of floating-point numbers and the reading of numbers.
#include <vagrel/foundation/Numbers.h>

#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace vagrel {

namespace {

constexpr int Digits = 15;
constexpr std::uint64_t LeastOfDigits = 100000000000000; // the least and the first too large number of 15 digits
constexpr std::uint64_t OneMoreDigit = 1000000000000000;

// Powers of ten that a mantissa of 64 bits holds exactly.
constexpr int ExactPowers = 27;
constexpr auto PowerOfTen = [] {
    std::array<long double, ExactPowers + 1> powers{1.0L};
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

// A positive number as 15 digits, `mantissa`, of which the first stands for ten to the `exponent`.
struct TDecimal {
    std::uint64_t mantissa;
    int exponent;
};

// One multiplication or division with 64 bits of mantissa is off by less than 1/8192 of the last digit. Nothing when
// that leaves the rounding open, and for numbers very large or very small.
std::optional<TDecimal> ToDecimalFast(double value) {
    if constexpr (std::numeric_limits<long double>::digits < 64)
        return std::nullopt;
    int binary = 0;
    std::frexp(value, &binary);
    // 78913 / 2^18 is log10(2): the decimal exponent, or one too many.
    int exponent = ((binary * 78913) >> 18);
    for (int tries = 0; tries < 2; ++tries, --exponent) {
        const int power = Digits - 1 - exponent;
        if (power < -ExactPowers || power > ExactPowers)
            return std::nullopt;
        const long double scaled =
            power < 0 ? value / PowerOfTen[std::size_t(-power)] : value * PowerOfTen[std::size_t(power)];
        // The margin keeps out numbers whose count of digits the error could change.
        if (scaled < LeastOfDigits + 1)
            continue;
        const auto whole = std::int64_t(scaled);
        const auto rest = double(scaled - (long double)(whole)) - 0.5;
        if (std::fabs(rest) < 1.0 / 4096)
            return std::nullopt;
        const std::uint64_t mantissa = std::uint64_t(whole) + (rest > 0);
        if (mantissa >= OneMoreDigit)
            return std::nullopt;
        return TDecimal{mantissa, exponent};
    }
    return std::nullopt;
}

TDecimal ToDecimal(double value) {
    if (const auto fast = ToDecimalFast(value))
        return *fast;
    // d.ddddddddddddddE±xx
    char buffer[32];
    const char* end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, Digits - 1).ptr;
    buffer[1] = buffer[0];
    TDecimal decimal{};
    for (int i = 1; i <= Digits; ++i)
        decimal.mantissa = decimal.mantissa * 10 + std::uint64_t(buffer[i] - '0');
    const char* from = buffer + Digits + 2;
    std::from_chars(*from == '+' ? from + 1 : from, end, decimal.exponent);
    return decimal;
}

char* PutZeros(char* at, int count) { return std::fill_n(at, count, '0'); }

// The general form of a positive number; 24 characters at most.
char* PutGeneral(char* at, double value) {
    auto [mantissa, exponent] = ToDecimal(value);
    char digits[Digits + 1];
    for (int i = Digits; i-- > 0; mantissa /= 10)
        digits[i] = char('0' + mantissa % 10);
    int count = Digits;
    while (count > 1 && digits[count - 1] == '0')
        --count;
    if (exponent >= Digits || exponent < -5) {
        *at++ = digits[0];
        if (count > 1) {
            *at++ = '.';
            at = std::copy(digits + 1, digits + count, at);
        }
        *at++ = 'E';
        return std::to_chars(at, at + 8, exponent).ptr;
    }
    if (exponent < 0) {
        *at++ = '0';
        *at++ = '.';
        return std::copy_n(digits, count, PutZeros(at, -exponent - 1));
    }
    if (count <= exponent + 1)
        return PutZeros(std::copy_n(digits, count, at), exponent + 1 - count);
    at = std::copy_n(digits, exponent + 1, at);
    *at++ = '.';
    return std::copy(digits + exponent + 1, digits + count, at);
}

// Lengths have three decimals at most. Where `thousandths` / 1000 is the number itself, its 15 digits are theirs.
std::optional<std::uint64_t> Thousandths(double value) {
    if (value >= 1e11)
        return std::nullopt;
    const auto thousandths = std::uint64_t(value * 1000 + 0.5);
    return double(thousandths) / 1000 == value ? std::optional(thousandths) : std::nullopt;
}

char* PutThousandths(char* at, char* end, std::uint64_t value) {
    at = std::to_chars(at, end, value / 1000).ptr;
    auto decimals = unsigned(value % 1000);
    *at++ = '.';
    for (unsigned unit = 100; decimals != 0; decimals %= unit, unit /= 10)
        *at++ = char('0' + decimals / unit);
    return at;
}

// The general form of any number, in a buffer of its own.
struct TGeneral {
    explicit TGeneral(double value) {
        char* end = text;
        if (std::signbit(value) && value != 0 && !std::isnan(value))
            *end++ = '-';
        const double size = std::fabs(value);
        if (std::isnan(value) || std::isinf(value))
            end = std::copy_n(std::isnan(value) ? "NAN" : "INF", 3, end);
        else if (const auto whole = std::uint64_t(size < 1e15 ? size : 0.0); double(whole) == size)
            end = std::to_chars(end, text + sizeof text, whole).ptr;
        else if (const auto thousandths = Thousandths(size))
            end = PutThousandths(end, text + sizeof text, *thousandths);
        else
            end = PutGeneral(end, size);
        length = std::size_t(end - text);
    }
    char text[40];
    std::size_t length;
};

// A number's text in ASCII without blanks at its ends and without a plus sign, which from_chars does not know. Long
// texts go to the heap.
class TAsciiNumber {
public:
    explicit TAsciiNumber(std::u16string_view text) {
        text = Trim(text);
        if (text.size() > 1 && text[0] == u'+' && text[1] != u'-')
            text.remove_prefix(1);
        if (text.size() > sizeof fShort)
            fLong.resize(text.size());
        fBegin = fEnd = fLong.empty() ? fShort : fLong.data();
        for (char16_t unit : text) {
            // from_chars also reads "inf" and "nan", which are no numbers here.
            const bool fits = (unit >= u'0' && unit <= u'9') || unit == u'.' || unit == u'-' || unit == u'+' ||
                              unit == u'e' || unit == u'E';
            if (!fits) {
                fEnd = fBegin;
                return;
            }
            *fEnd++ = char(unit);
        }
    }

    // The number, where the whole text is one.
    template <class Number>
    std::optional<Number> Read() const {
        Number value = 0;
        const auto [end, error] = std::from_chars(fBegin, fEnd, value);
        if (error != std::errc() || end != fEnd)
            return std::nullopt;
        return value;
    }

private:
    char fShort[48];
    std::string fLong;
    char* fBegin;
    char* fEnd;
};

} // namespace

void AppendGeneral(std::string& out, double value) {
    const TGeneral general(value);
    out.append(general.text, general.length);
}

std::u16string FloatToStr(double value) {
    const TGeneral general(value);
    return std::u16string(general.text, general.text + general.length);
}

std::optional<double> TryStrToFloat(std::u16string_view text) { return TAsciiNumber(text).Read<double>(); }

std::optional<std::int64_t> TryStrToInt64(std::u16string_view text) { return TAsciiNumber(text).Read<std::int64_t>(); }

} // namespace vagrel
