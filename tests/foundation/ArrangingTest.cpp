// SPDX-License-Identifier: MIT
// Spacing, sorting and grids on one axis.
#include <vagrel/foundation/Arranging.h>

#include <gtest/gtest.h>

#include <string>

namespace vagrel::test {
namespace {

using TOffsets = std::vector<std::int64_t>;

TEST(Arranging, Spaces) {
    const struct {
        const char* text;
        std::vector<TKSLSpan> spans;
        std::int64_t gap;
        TOffsets byGap;
        std::optional<TOffsets> evenly;
    } rows[] = {
        {"apart", {{0, 10}, {15, 20}, {100, 110}}, 5, {0, 0, -75}, TOffsets{0, 37, 0}},
        {"an odd gap truncates", {{0, 10}, {10, 20}, {20, 30}, {57, 60}}, 1, {0, 1, 2, -24}, TOffsets{0, 9, 18, 0}},
        {"negative places", {{-100, -90}, {-50, -40}, {0, 1}}, 0, {0, -40, -80}, TOffsets{0, 0, 0}},
        {"points without extent", {{0, 0}, {1, 1}, {10, 10}}, 3, {0, 2, -4}, TOffsets{0, 4, 0}},
        {"no room", {{0, 10}, {5, 15}, {20, 30}}, -2, {0, 3, -4}, {}},
        {"overlapping ends", {{0, 50}, {5, 15}, {20, 30}}, 0, {0, 45, 40}, {}},
        {"far apart",
         {{INT64_MIN, INT64_MIN}, {0, 1}, {INT64_MAX, INT64_MAX}},
         0,
         {0, INT64_MIN, INT64_MIN},
         TOffsets{0, -1, 0}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(SpaceByGap(row.spans, row.gap), row.byGap) << row.text;
        EXPECT_EQ(SpaceEvenly(row.spans), row.evenly) << row.text;
    }
}

TEST(Arranging, SortsAmongTheirPlacesThoseWithAKey) {
    using TEntry = std::pair<char, int>; // a negative number is no key
    const struct {
        std::vector<TEntry> list;
        std::string sorted;
    } rows[] = {{{{'a', 3}, {'b', -1}, {'c', 1}, {'d', 2}}, "cbda"},
                {{{'a', 1}, {'b', 1}, {'c', 0}, {'d', 1}}, "cabd"},
                {{{'a', -1}, {'b', -1}}, "ab"},
                {{}, ""}};
    for (auto row : rows) {
        SortInPlaces(row.list,
                     [](const TEntry& entry) { return entry.second < 0 ? std::nullopt : std::optional(entry.second); });
        std::string letters;
        for (const auto& [letter, key] : row.list)
            letters += letter;
        EXPECT_EQ(letters, row.sorted);
    }
}

TEST(Arranging, OffsetsAndGrids) {
    EXPECT_EQ(TKSLSpan({-5, 0}).Middle(), -3);
    EXPECT_EQ(TKSLSpan({3, 8}).Middle(), 5);
    EXPECT_EQ(SmallerOffset(-3, 5), -3);
    EXPECT_EQ(SmallerOffset(5, -3), -3);
    EXPECT_EQ(SmallerOffset(0, -3), 0);
    EXPECT_EQ(SmallerOffset(INT64_MIN, INT64_MAX), INT64_MIN);
    const struct {
        std::int64_t value, offset, grid, target;
    } rows[] = {{1000, 300, 0, -1},     {1000, 300, -5, -1},    {1000, 0, 500, -1},
                {1000, 300, 500, 1500}, {1000, -300, 500, 500}, {200, -150, 500, 0}};
    for (const auto& row : rows)
        EXPECT_EQ(GridTarget(row.value, row.offset, row.grid), row.target) << row.value << " by " << row.offset;
}

} // namespace
} // namespace vagrel::test
