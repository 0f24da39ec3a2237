// SPDX-License-Identifier: MIT
// The calendar and dates by pattern.
#include <vagrel/foundation/Dates.h>

#include <vagrel/foundation/Text.h>

#include <gtest/gtest.h>

namespace vagrel {
namespace {

TEST(Dates, CountsDaysFrom1899) {
    const std::pair<double, TDateParts> rows[] = {
        {0, {1899, 12, 30, 0, 0, 0, 0}},       {2, {1900, 1, 1, 0, 0, 0, 0}},
        {36526.75, {2000, 1, 1, 18, 0, 0, 0}}, {-1.25, {1899, 12, 29, 6, 0, 0, 0}},
        {45351.5, {2024, 2, 29, 12, 0, 0, 0}},
    };
    for (const auto& [value, parts] : rows) {
        const TDateParts found = DateParts(value);
        EXPECT_EQ(found.year, parts.year) << value;
        EXPECT_EQ(found.month, parts.month) << value;
        EXPECT_EQ(found.day, parts.day) << value;
        EXPECT_EQ(found.hour, parts.hour) << value;
        EXPECT_DOUBLE_EQ(DateTimeOf(parts), value);
    }
    EXPECT_EQ(DateParts(1.0 - 1e-12).day, 31) << "a time that rounds to midnight is the next day";
    DateParts(1e308);
}

TEST(Dates, FollowPatterns) {
    const double time = DateTimeOf({2026, 3, 7, 15, 4, 5, 60});
    const std::pair<const char16_t*, const char16_t*> rows[] = {
        {u"", u"07/03/2026"},
        {u"dd-mm-yyyy HH:nn", u"07-03-2026 15:04"},
        {u"d/m/yy", u"7/3/26"},
        {u"dddd d mmmm, ddd mmm", u"Saturday 7 March, Sat Mar"},
        {u"h:mm:ss.zzz", u"15:04:05.060"},
        {u"hh:nn am/pm", u"03:04 pm"},
        {u"'Day 'd\"th\"", u"Day 7th"},
        {u"yyyymmdd", u"20260307"},
    };
    for (const auto& [pattern, text] : rows)
        EXPECT_EQ(FormatDateTime(pattern, time), text) << ToUtf8(pattern);
    const std::pair<int, const char16_t*> hours[] = {{0, u"12 AM"}, {11, u"11 AM"}, {12, u"12 PM"}, {13, u"1 PM"}};
    for (const auto& [hour, text] : hours)
        EXPECT_EQ(FormatDateTime(u"h AM/PM", DateTimeOf({2026, 3, 7, hour, 0, 0, 0})), text);
}

} // namespace
} // namespace vagrel
