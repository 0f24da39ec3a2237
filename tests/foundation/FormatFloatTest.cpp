// SPDX-License-Identifier: MIT
// Numbers with fixed decimals and by patterns.
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Text.h>

#include <gtest/gtest.h>

#include <bit>
#include <random>

namespace vagrel {
namespace {

std::string Fixed(double value, int decimals) {
    std::string out;
    AppendFixed(out, value, decimals);
    return out;
}

TEST(FormatFloat, WritesByPattern) {
    const struct {
        const char16_t* pattern;
        double value;
        const char* text;
    } rows[] = {
        {u"0.00", 0.125, "0.13"},
        {u"0.00", 2.675, "2.67"},
        {u"0.00", -0.125, "-0.13"},
        {u"0.00", -0.004, "0.00"},
        {u"0.00", 99.995, "100.00"},
        {u"0.00", 99.996, "100.00"},
        {u"0", 0.5, "1"},
        {u"0", 1e22, "10000000000000000000000"},
        {u"000.0", 7, "007.0"},
        {u"#.##", 0.5, ".5"},
        {u"#.##", 0, ""},
        {u"0.##", 5, "5"},
        {u"0.##", 5.1, "5.1"},
        {u"0.0#", 5.005, "5.0"},
        {u"0.###", 0.005, "0.005"},
        {u"#,##0.00", 1234567.891, "1,234,567.89"},
        {u"#,##0", 123, "123"},
        {u"0,", 1000, "1,000"},
        {u"00-00", 12345, "123-45"},
        {u"0.00 mm", -1.5, "-1.50 mm"},
        {u"'0;'0\" #\"", 3, "0;3 #"},
        {u"0 'open", 3, "3 open"},
        {u"0.0;(0.0);zero", -2.25, "(2.3)"},
        {u"0.0;(0.0);zero", 0, "zero"},
        {u"0.0;(0.0);zero", -0.01, "zero"},
        {u"0.0;(0.0)", -0.01, "0.0"},
        {u"0.0;;-", -3, "-3.0"},
        {u"0.00E+00", 12345, "1.23E+04"},
        {u"0.00e-0", 0.0009996, "1.00e-3"},
        {u"0.00E-0", 12345, "1.23E4"},
        {u"##0.0E+0", 12345, "123.5E+2"},
        {u"0.0E+0", 0, "0.0E+0"},
        {u"0.0 EUR", 1, "1.0 EUR"},
        {u"", 0.1, "0.1"},
        {u";0", 2.5, "2.5"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ToUtf8(FormatFloat(row.pattern, row.value)), row.text) << ToUtf8(row.pattern) << " of " << row.value;
}

// The patterns go another road: all digits of the value, then rounding in decimal.
TEST(AppendFixed, AgreesWithThePatternForAnyDouble) {
    std::mt19937_64 random(20);
    const std::u16string pattern = u"0.000000000";
    const auto compare = [&](double value, int decimals) {
        const std::u16string_view cut(pattern.data(), decimals == 0 ? 1 : std::size_t(decimals) + 2);
        ASSERT_EQ(Fixed(value, decimals), ToUtf8(FormatFloat(cut, value))) << std::hexfloat << value << ' ' << decimals;
    };
    for (const double value : {1.005, -0.4, -0.0, 0.99999, 9.5, 5e-324, 2251799813685248.5, -9007199254740993.0,
                               9223372036854775808.0, 1e23, 8388607.0000000005, 4194303.0000000005})
        for (int decimals = 0; decimals < 10; ++decimals)
            compare(value, decimals);
    EXPECT_EQ(Fixed(8388607.0000000005, 9), "8388607.000000001");
    EXPECT_EQ(Fixed(4194303.0000000005, 9), "4194303.000000000");
    for (int i = 0; i < 20000; ++i) {
        const int decimals = int(random() % 10);
        double value = std::bit_cast<double>(random());
        if (i % 2 == 0)
            value = double(std::int64_t(random()) >> (random() % 60)) / double(1 << (random() % 12));
        if (std::isfinite(value))
            compare(value, decimals);
    }
}

} // namespace
} // namespace vagrel
