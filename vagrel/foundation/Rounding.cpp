// SPDX-License-Identifier: MIT
// Rounding without undefined behaviour at the limits of the integer types.
#include <vagrel/foundation/Rounding.h>

#include <cmath>
#include <limits>

namespace vagrel {

namespace {

// The cast of a double whose value is already a whole number.
template <class Int>
Int Saturate(double whole) {
    // The lowest value is a power of two and exact in double; the highest is not, its successor is.
    constexpr double lowest = double(std::numeric_limits<Int>::min());
    if (std::isnan(whole))
        return 0;
    if (whole < lowest)
        return std::numeric_limits<Int>::min();
    if (whole >= -lowest)
        return std::numeric_limits<Int>::max();
    return Int(whole);
}

double RoundScaled(double value, double scale) {
    const double scaled = value * scale;
    return std::fabs(scaled) < 4503599627370496.0 ? double(Round(scaled)) / scale : value;
}

std::int64_t Limit(bool negative) {
    return negative ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
}

} // namespace

// nearbyint rounds ties to even in the default rounding mode, which nothing here changes.
std::int64_t Round(double value) { return Saturate<std::int64_t>(std::nearbyint(value)); }
std::int32_t Round32(double value) { return Saturate<std::int32_t>(std::nearbyint(value)); }
std::int64_t MathRound(double value) { return Saturate<std::int64_t>(std::round(value)); }
std::int64_t Trunc(double value) { return Saturate<std::int64_t>(std::trunc(value)); }

std::int32_t KSRound(double value) {
    const double whole = std::trunc(value);
    return Saturate<std::int32_t>(value - whole >= 0.5 ? whole + 1 : whole);
}

double RoundTo3(double value) { return RoundScaled(value, 1e3); }
double RoundTo8(double value) { return RoundScaled(value, 1e8); }

std::int64_t MulSat(std::int64_t a, std::int64_t b) {
    std::int64_t result;
    return __builtin_mul_overflow(a, b, &result) ? Limit((a < 0) != (b < 0)) : result;
}

std::int64_t AddSat(std::int64_t a, std::int64_t b) {
    std::int64_t result;
    return __builtin_add_overflow(a, b, &result) ? Limit(a < 0) : result;
}

std::int64_t SubSat(std::int64_t a, std::int64_t b) {
    std::int64_t result;
    return __builtin_sub_overflow(a, b, &result) ? Limit(a < 0) : result;
}

double Difference(std::int64_t a, std::int64_t b) { return double(TInt128(a) - b); }

std::int32_t ToInt32(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min())
        return std::numeric_limits<std::int32_t>::min();
    if (value > std::numeric_limits<std::int32_t>::max())
        return std::numeric_limits<std::int32_t>::max();
    return std::int32_t(value);
}

} // namespace vagrel
