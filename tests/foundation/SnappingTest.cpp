// SPDX-License-Identifier: MIT
// Tangent points of circles and arcs, and the pairs of boxes that meet.
#include <vagrel/foundation/BoxPairs.h>
#include <vagrel/foundation/Snapping.h>

#include <gtest/gtest.h>

#include <numbers>
#include <random>
#include <set>

namespace vagrel {

static void PrintTo(const TKSLPto& point, std::ostream* out) { *out << "(" << point.bX << ", " << point.bY << ")"; }

namespace {

TEST(Snapping, AnArcHasTheTangentsThatLieOnIt) {
    // The lower right quarter of a circle about (0, 0), seen with y downward, and the rest of it.
    constexpr double right = std::numbers::pi / 2;
    const TKSLShape quarter = TKSLShape::Arc(0, 0, 1000, 0, right, true);
    const TKSLShape rest = TKSLShape::Arc(0, 0, 1000, 0, right, false);
    const TKSLShape circle = TKSLShape::Circle(0, 0, 1000);
    const struct {
        const char* text;
        TKSLShape outline;
        TKSLPto cursor;
        std::optional<TKSLPto> last, hit;
    } rows[] = {
        {"towards the cursor", quarter, {600, 790}, {}, TKSLPto{605, 796}},
        {"the arc is not there", rest, {600, 790}, {}, {}},
        {"too far off the rim", circle, {600, 600}, {}, {}},
        {"one of two tangents", quarter, {800, -600}, TKSLPto{2000, 0}, TKSLPto{500, 866}},
        {"the other one", rest, {500, 860}, TKSLPto{2000, 0}, TKSLPto{500, -866}},
        {"none", quarter, {-1000, 0}, TKSLPto{-2000, 0}, {}},
        {"the nearer one", circle, {500, -860}, TKSLPto{2000, 0}, TKSLPto{500, -866}},
        {"a tie", circle, {1000, 0}, TKSLPto{2000, 0}, TKSLPto{500, 866}},
        {"from the rim", circle, {1000, 0}, TKSLPto{0, 1000}, {}},
        {"no radius", TKSLShape::Circle(0, 0, 0), {0, 0}, {}, {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(TangentPoint(row.outline, row.cursor, 50, row.last), row.hit) << row.text;
}

TEST(Snapping, PlacesAtTheEndOfTheNumbers) {
    constexpr std::int64_t least = INT64_MIN, most = INT64_MAX;
    EXPECT_TRUE(IsNear({most, least}, {most - 5, least + 5}, 10));
    EXPECT_FALSE(IsNear({most, 0}, {least, 0}, 10));
    EXPECT_EQ(Middle({1, 1}, {4, -2}), (TKSLPto{2, 0}));
}

using TPairs = std::set<std::pair<std::uint32_t, std::uint32_t>>;

TPairs AllPairs(const std::vector<TKSLRect>& boxes) {
    TPairs pairs;
    for (std::uint32_t i = 0; i < boxes.size(); ++i)
        for (std::uint32_t j = i + 1; j < boxes.size(); ++j)
            if (boxes[i].Left <= boxes[j].Right && boxes[j].Left <= boxes[i].Right && boxes[i].Top <= boxes[j].Bottom &&
                boxes[j].Top <= boxes[i].Bottom)
                pairs.emplace(i, j);
    return pairs;
}

TEST(BoxPairs, AreThoseOfALoopOverAll) {
    std::mt19937 random(3);
    for (const int count : {0, 1, 2, 12, 13, 100, 700}) {
        for (const std::int64_t size : {0, 20, 400}) {
            std::uniform_int_distribution<std::int64_t> place(0, 1000), extent(0, size);
            std::vector<TKSLRect> boxes;
            for (int i = 0; i < count; ++i) {
                const std::int64_t x = place(random), y = place(random);
                boxes.emplace_back(x, y, x + extent(random), y + extent(random));
            }
            TPairs found;
            ForEachBoxPair(boxes, [&](std::uint32_t i, std::uint32_t j) {
                EXPECT_LT(i, j);
                EXPECT_TRUE(found.emplace(i, j).second) << "twice";
                return true;
            });
            EXPECT_EQ(found, AllPairs(boxes)) << count << " boxes of " << size;
        }
    }
}

TEST(BoxPairs, ThoseThatTouchMeet) {
    std::vector<TKSLRect> tiles;
    for (std::int64_t i = 0; i < 400; ++i)
        tiles.emplace_back(i % 20 * 10, i / 20 * 10, i % 20 * 10 + 10, i / 20 * 10 + 10);
    int calls = 0;
    ForEachBoxPair(tiles, [&](std::uint32_t, std::uint32_t) { return ++calls, true; });
    EXPECT_EQ(calls, 2 * 20 * 19 + 2 * 19 * 19) << "at sides and at corners";
}

TEST(BoxPairs, EndWhereTheyAreTold) {
    const std::vector<TKSLRect> boxes(100, TKSLRect{INT64_MIN, INT64_MIN, INT64_MAX, INT64_MAX});
    int calls = 0;
    ForEachBoxPair(boxes, [&](std::uint32_t, std::uint32_t) { return ++calls < 2000; });
    EXPECT_EQ(calls, 2000);
    calls = 0;
    ForEachBoxPair(boxes, [&](std::uint32_t, std::uint32_t) { return ++calls, true; });
    EXPECT_EQ(calls, 4950);
}

} // namespace
} // namespace vagrel
