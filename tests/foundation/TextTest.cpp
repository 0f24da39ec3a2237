// SPDX-License-Identifier: MIT
// Text conversions at the border and the general form of numbers.
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Text.h>

#include <gtest/gtest.h>

namespace vagrel {
namespace {

TEST(Text, ConvertsBetweenUtf16AndUtf8) {
    const std::u16string text = u"aé€\U0001F600";
    EXPECT_EQ(ToUtf8(text), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
    for (std::size_t ascii = 0; ascii < 18; ++ascii) {
        const std::u16string padded = std::u16string(ascii, u'x') + text + std::u16string(17 - ascii, u'y') + u"é";
        EXPECT_EQ(FromUtf8(ToUtf8(padded)), padded) << ascii;
        EXPECT_EQ(FromUtf8(std::string(ascii, 'x') + "\xE2\x82"), std::u16string(ascii, u'x') + u"\uFFFD\uFFFD");
    }
    EXPECT_EQ(ToUtf8(std::u16string(1, char16_t(0xD800))), "\xEF\xBF\xBD");
    EXPECT_EQ(FromUtf8("\xC0\x80x"), u"\uFFFD\uFFFDx");
    for (const char* bad : {"\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE2\x82", "\x80"})
        EXPECT_FALSE(IsUtf8(bad)) << bad;
}

TEST(Text, FoldsCaseOfEuropeanLetters) {
    EXPECT_TRUE(SameText(u"Línea ÑŁŽÿ Ωж", u"LÍNEA ñłž\u0178 ωЖ"));
    EXPECT_FALSE(SameText(u"a×", u"a÷"));
}

TEST(Numbers, GeneralFormHasFifteenDigits) {
    const std::pair<double, const char16_t*> rows[] = {
        {0.0, u"0"},
        {-0.0, u"0"},
        {0.1, u"0.1"},
        {1.0 / 3, u"0.333333333333333"},
        {100, u"100"},
        {1e14, u"100000000000000"},
        {1e15, u"1E15"},
        {1e20, u"1E20"},
        {0.00001, u"0.00001"},
        {1e-7, u"1E-7"},
        {-2.5, u"-2.5"},
        {10.123, u"10.123"},
        {1.7976931348623157e308, u"1.79769313486232E308"},
        {0.9999999999999999, u"1"},
    };
    for (const auto& [value, text] : rows)
        EXPECT_EQ(FloatToStr(value), text) << value;
}

TEST(Numbers, ReadsWholeTextsOnly) {
    EXPECT_EQ(TryStrToFloat(u" -1.5e3 "), -1500.0);
    for (const char16_t* bad : {u"", u"1,5", u"1.5x", u"inf", u"nan", u"0x10", u"--1", u"1e999", u"+-1"})
        EXPECT_FALSE(TryStrToFloat(bad)) << ToUtf8(bad);
    EXPECT_EQ(TryStrToInt64(u"-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    for (const char16_t* bad : {u"", u"1.0", u"9223372036854775808", u"12a", u"+"})
        EXPECT_FALSE(TryStrToInt64(bad)) << ToUtf8(bad);
}

} // namespace
} // namespace vagrel
