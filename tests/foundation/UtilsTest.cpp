// SPDX-License-Identifier: MIT
// Distances, grids, resolutions, typed coordinates; the mouse filter.
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/TMouseFilter.h>
#include <vagrel/foundation/TVGRBaseDraw.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Utils.h>

#include <gtest/gtest.h>

#include <limits>

namespace vagrel {
namespace {

constexpr auto Most = std::numeric_limits<std::int64_t>::max();
constexpr auto Least = std::numeric_limits<std::int64_t>::min();
constexpr std::int32_t Most32 = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t Least32 = std::numeric_limits<std::int32_t>::min();

TEST(Utils, MulDivRoundsAwayFromZero) {
    // clang-format off
    const std::array<std::int32_t, 4> rows[] = {
        {1, 1, 2, 1}, {1, 1, 3, 0}, {2, 1, 3, 1}, {-1, 1, 2, -1}, {1, 5, -2, -3}, {7, 7, 0, -1},
        {-7, -7, 7, 7}, {Most32, 2, 1, Most32}, {Least32, Most32, 1, Least32}, {Least32, Least32, Least32, Least32},
    };
    // clang-format on
    for (const auto& [a, b, c, expected] : rows)
        EXPECT_EQ(MulDiv(a, b, c), expected) << a << " " << b << " " << c;
}

TEST(Utils, DistanceIsWholeOffTheAxes) {
    using TInt = std::int64_t;
    EXPECT_EQ(Distance(TInt(5), TInt(7), TInt(5), TInt(-7)), 14);
    EXPECT_EQ(Distance(Most, Least, Most - 3, Least + 4), 5);
    EXPECT_EQ(Distance(Least, Least, Most, Most), Most);
    EXPECT_EQ(Distance(0.25f, 1.0f, 0.5f, 1.0f), 0.25f) << "exact along an axis";
    EXPECT_EQ(Distance(0.0f, 0.0f, 1.5f, 2.0f), 2.0f) << "2.5 ties to even";
}

TEST(Utils, GridHasItsOwnRounding) {
    // value, step, nearest, forward, backward
    // clang-format off
    const std::array<std::int64_t, 5> rows[] = {
        {10, 5, 10, 15, 5}, {12, 5, 10, 15, 10}, {13, 5, 15, 15, 10}, {2, 4, 0, 4, 0}, {-13, 5, -10, 0, 0},
        {7, 0, 7, 7, 7}, {Least, -1, Least, Least, Least}, {Most, 1, Most, Most, Most - 1}, {Least, 1, Least, 0, 0},
        {Most, Most - 1, Most - 1, Most, Most - 1},
    };
    // clang-format on
    for (const auto& row : rows) {
        const auto [value, step] = std::pair(row[0], row[1]);
        const std::array<std::int64_t, 5> got{value, step, AdjustGrid(value, step), AdjustGrid(value, step, true),
                                              AdjustGrid(value, step, false)};
        EXPECT_EQ(got, row);
    }
}

TEST(Utils, ComparesAndSorts) {
    EXPECT_TRUE(ValInRange(Most - 1, Most, Most - 1));
    EXPECT_FALSE(ValInRange(Most - 2, Most, Most - 1)) << "no digits are lost";
    EXPECT_TRUE(SamePoint(1, 1.00009f));
    EXPECT_FALSE(SamePoint(1, 1.0002f));
    EXPECT_EQ(Median({}), 0);
    EXPECT_EQ(Median({9, 1, 5, 2}), 3.5);
}

TEST(Utils, ScalesToAResolution) {
    EXPECT_EQ(ScalePos(20, 120), 25);
    EXPECT_EQ(ScalePos(3, 144), 4) << "ties to even";
    EXPECT_EQ(RevScalePos(25, 120), 20);
    EXPECT_EQ(ScalePos(Most32, 192), Most32);
    TVGRBaseDraw draw;
    draw.fDpix = 254, draw.fDpiy = 508, draw.fDrawScale = 10;
    EXPECT_EQ(DrawFromBaseX(1500, draw), 1.5f);
    EXPECT_EQ(BasePtoX(0.01f, draw), 1.0f);
}

TEST(Utils, StrToCardinalHasThirtyTwoBits) {
    EXPECT_EQ(StrToCardinal(u"4294967295"), 4294967295u);
    for (const std::u16string_view bad : {u"4294967296", u"-1", u"", u"1.5", u"99999999999999999999"})
        EXPECT_THROW(StrToCardinal(bad), EConvertError) << ToUtf8(bad);
}

TEST(Utils, MinusGoesOnceIntoEachRelativeField) {
    const std::tuple<std::u16string_view, char16_t, int, bool> rows[] = {
        {u"@", u'-', 1, true},      {u"@5", u'-', 1, true},    {u"@-5", u'-', 1, false},   {u"@-5,", u'-', 4, true},
        {u"@-5,-", u'-', 4, false}, {u"@5,-2", u'-', 1, true}, {u"@5,-2", u'-', 3, false}, {u"@-5,2", u'-', 3, false},
        {u"5", u'-', 0, false},     {u"", u'-', 0, false},     {u"@", u'5', 1, false}};
    for (const auto& [text, key, position, valid] : rows)
        EXPECT_EQ(ValidInputKey(text, key, position), valid) << ToUtf8(text) << position;
}

template <class Filter>
class MouseFilter : public testing::Test {};
using TFilters = testing::Types<TMouseFilter, TMouseFilterS>;
TYPED_TEST_SUITE(MouseFilter, TFilters);

TYPED_TEST(MouseFilter, LetsThroughWhatIsFirstOrFarOrLate) {
    TypeParam filter;
    const auto move = [&](int x, int y) { return filter.FilterMouseMove(nullptr, {}, x, y); };
    EXPECT_TRUE(move(0, 0) && move(0, 0)) << "disabled";
    filter.SetEnabled(true);
    filter.MinTimeBetweenUpdates = Most32;
    EXPECT_TRUE(move(10, 10)) << "first";
    EXPECT_FALSE(move(13, 13));
    EXPECT_TRUE(move(13, 14)) << "5 from the last accepted one";
    EXPECT_FALSE(move(17, 16));
    filter.ResetPos();
    EXPECT_TRUE(move(13, 14)) << "first again";
    EXPECT_FALSE(move(13, 14));
    filter.MinTimeBetweenUpdates = 0;
    EXPECT_TRUE(move(13, 14)) << "late";
}

} // namespace
} // namespace vagrel
