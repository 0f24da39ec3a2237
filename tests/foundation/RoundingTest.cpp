// SPDX-License-Identifier: MIT
// The rounding rules side by side, and sums and products at the limits.
#include <vagrel/foundation/Rounding.h>

#include <gtest/gtest.h>

#include <limits>

namespace vagrel {
namespace {

constexpr auto Most = std::numeric_limits<std::int64_t>::max();
constexpr auto Least = std::numeric_limits<std::int64_t>::min();
constexpr std::int32_t Most32 = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t Least32 = std::numeric_limits<std::int32_t>::min();
constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(Rounding, RulesDifferOnTiesAndSigns) {
    // value, Round, MathRound, Trunc, KSRound
    const std::tuple<double, std::int64_t, std::int64_t, std::int64_t, std::int32_t> rows[] = {
        {0.5, 0, 1, 0, 1},
        {2.5, 2, 3, 2, 3},
        {-0.5, 0, -1, 0, 0},
        {-1.7, -2, -2, -1, -1},
        {4503599627370497.0, 4503599627370497, 4503599627370497, 4503599627370497, Most32},
        {2147483647.5, 2147483648, 2147483648, 2147483647, Most32},
        {-2147483649.0, -2147483649, -2147483649, -2147483649, Least32},
        {-9223372036854775808.0, Least, Least, Least, Least32},
        {Infinity, Most, Most, Most, Most32},
        {std::numeric_limits<double>::quiet_NaN(), 0, 0, 0, 0}};
    for (const auto& [value, even, away, cut, up] : rows) {
        EXPECT_EQ(std::tuple(Round(value), MathRound(value), Trunc(value)), std::tuple(even, away, cut)) << value;
        EXPECT_EQ(std::pair(Round32(value), KSRound(value)), std::pair(ToInt32(even), up)) << value;
    }
}

TEST(Rounding, DecimalsTieToEvenAndStayWhereThereAreNone) {
    EXPECT_EQ(RoundTo3(-2.0625), -2.062);
    EXPECT_EQ(RoundTo3(0.1875), 0.188);
    for (const double whole : {1e15, -1e300, Infinity})
        EXPECT_EQ(RoundTo3(whole), whole);
    EXPECT_EQ(RoundTo8(-3.703790123456), -3.70379012);
}

TEST(Rounding, SumsAndProductsSaturate) {
    EXPECT_EQ(AddSat(Most, 1), Most);
    EXPECT_EQ(SubSat(-2, Most), Least);
    EXPECT_EQ(MulSat(Least, -1), Most);
    EXPECT_EQ(MulSat(Most, -2), Least);
    EXPECT_EQ(Difference(Most, Most - 1), 1.0);
    EXPECT_EQ(Difference(Least, Most), -18446744073709551615.0);
}

} // namespace
} // namespace vagrel
