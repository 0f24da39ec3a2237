// SPDX-License-Identifier: MIT
// The rules that all items share, told by type alone.
#include <tests/document/ProbeItem.h>

#include <gtest/gtest.h>

namespace vagrel {

void PrintTo(const TKSLPto& point, std::ostream* out) { *out << "(" << point.bX << ", " << point.bY << ")"; }

namespace test {
namespace {

constexpr std::int64_t Lowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t Highest = std::numeric_limits<std::int64_t>::max();

class BaseItem : public testing::Test {
protected:
    TestHost label; // 60 mm by 35 mm
    ProbeItem& Item(TKSLItemType type, const TKSLPtoA& points) { return MakeProbe(label, type, points); }
};

TEST_F(BaseItem, PointsCountFromOneAndIgnoreOtherIndexes) {
    ProbeItem& line = Item(itLine, {{1000, 2000}, {3000, 4000}});
    for (int index : {-1, 0, 3}) {
        EXPECT_EQ(line.GetPointX(index), 0);
        line.SetPointX(index, 9), line.SetPoint(index, {9, 9}), line.SetBaseY(index, 9);
        EXPECT_FALSE(line.DeletePoint(index));
    }
    EXPECT_EQ(line.Points(), (TKSLPtoA{{1000, 2000}, {3000, 4000}}));
    EXPECT_FALSE(label.GetStates().Has(lsUpdate));
    line.SetPointX(2, 5);
    EXPECT_EQ(line.BoundsRect().Right, 5000);
    EXPECT_TRUE(label.GetStates().Has(lsUpdate));
    EXPECT_FALSE(line.DeletePoint(1)); // not a chain
    EXPECT_TRUE(Item(itPolyLine, {{0, 0}, {1, 1}, {2, 2}}).DeletePoint(2));
}

TEST_F(BaseItem, BoundsFollowThePointsOfTheType) {
    const struct {
        TKSLItemType type;
        TKSLPtoA points;
        TKSLPtoA bounds;
    } rows[] = {{itLine, {{30, 5}, {10, 20}}, {{10, 5}, {30, 20}}},
                {itArrowLine, {{30, 5}, {10, 20}, {-99, -99}, {99, 99}}, {{10, 5}, {30, 20}}},
                {itDim, {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {50, 9}, {40, 60}, {7, 7}}, {{40, 9}, {50, 60}}},
                {itPolyLine, {{5, 50}, {90, 7}, {40, 60}}, {{5, 7}, {90, 60}}},
                {itPolyLine, {{-1, -1}, {20, 30}, {10, 40}}, {{10, 30}, {20, 40}}}, // -1 is no value yet
                {itPolygon, {}, {{-1, -1}, {-1, -1}}},
                {itText, {{1, 2}, {3, 4}}, {{0, 0}, {0, 0}}}}; // measured elsewhere
    for (const auto& row : rows) {
        const TKSLRect& r = Item(row.type, row.points).BoundsRect();
        EXPECT_EQ((TKSLPtoA{{r.Left, r.Top}, {r.Right, r.Bottom}}), row.bounds) << row.type;
    }
}

TEST_F(BaseItem, PickingWidensFlatAxesAndLines) {
    const TKSLPtoA box{{10, 10}, {20, 20}}, flat{{10, 10}, {20, 10}};
    const struct {
        const char* what;
        TKSLItemType type;
        TKSLPtoA points;
        TKSLPto at;
        bool hit;
    } rows[] = {{"left top", itRectangle, box, {10, 10}, true},
                {"right", itRectangle, box, {20, 15}, false},
                {"no gap on a box", itRectangle, box, {9, 15}, false},
                {"flat axis", itRectangle, flat, {15, 7}, true},
                {"flat axis, far side", itRectangle, flat, {15, 13}, false},
                {"other axis of a flat one", itRectangle, flat, {9, 10}, false},
                {"line, both axes", itLine, box, {7, 22}, true},
                {"limits", itLine, {{Lowest, 0}, {Highest, 0}}, {Lowest, 0}, true}};
    for (const auto& row : rows)
        EXPECT_EQ(Item(row.type, row.points).Pick(row.at.bX, row.at.bY, 3, false), row.hit) << row.what;
    EXPECT_TRUE(Item(itRectangle, box).SearchRect({10, 10, 20, 20}, false));
    EXPECT_FALSE(Item(itRectangle, box).SearchRect({11, 10, 20, 20}, false));
    EXPECT_FALSE(Item(itRectangle, box).SearchRect({20, 10, 30, 20}, true)); // only touches

    ProbeItem& chain = Item(itPolyLine, {{0, 0}, {100, 0}, {100, 0}, {100, 100}});
    EXPECT_EQ(chain.PickLines(500, 3, 3), 1); // as infinite lines
    EXPECT_EQ(chain.PickLines(97, 50, 3), 3); // the segment without length is passed over
}

TEST_F(BaseItem, AlignmentAndReferencePointsGoByType) {
    const TKSLAlignTypes both{anHorz, anVert}, none;
    const TKSLPtoA box{{10, 40}, {30, 20}}, upright{{10, 40}, {10, 20}}, corners{{10, 20}, {30, 40}};
    const struct {
        TKSLItemType type;
        TKSLPtoA points;
        TKSLAlignTypes types;
        std::int64_t from, to; // on the horizontal axis; -7 is untouched
        TKSLPtoA references;
    } rows[] = {{itRectangle, box, both, 10, 30, corners},
                {itCircle, box, both, 10, 30, {{20, 20}, {30, 30}, {20, 40}, {10, 30}}},
                {itQRCode, box, both, 10, 30, corners},
                {itPoint, {{10, 40}}, both, 10, 10, {{10, 40}}},
                {itSymbol, box, both, -7, -7, {{10, 40}}},
                {itLine, box, none, 10, 30, box},
                {itLine, upright, {anHorz}, 10, 10, upright},
                {itPolyLine, box, none, -7, -7, box},
                {itBezier, box, none, -7, -7, {}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        ProbeItem& item = Item(row.type, row.points);
        EXPECT_EQ(item.AlignTypes(), row.types);
        std::int64_t from = -7, to = -7;
        item.AlignPoints(anHorz, from, to);
        EXPECT_EQ((TKSLPto{from, to}), (TKSLPto{row.from, row.to}));
        TKSLPtoA references;
        for (int i = 1; i <= item.GetNumRefPoints(); ++i)
            references.push_back(item.GetRefPoint(i));
        EXPECT_EQ(references, row.references);
    }
}

TEST_F(BaseItem, MovesGoByOffsetToTheGridAndByEdges) {
    const struct {
        const char* what;
        std::int64_t bx, by, gx, gy;
        TKSLMoveOpt option;
        TKSLPtoA points; // from (1100, 2100), (5100, 6100)
    } rows[] = {{"free", 10, -20, 0, 0, moAll, {{1110, 2080}, {5110, 6080}}},
                {"grid forward", 10, 0, 1000, 1000, moAll, {{2000, 2100}, {6000, 6100}}},
                {"grid backward", 0, -1000, 1000, 1000, moAll, {{1100, 1000}, {5100, 5000}}},
                {"grid on one axis", 10, 10, 1000, 0, moAll, {{2000, 2110}, {6000, 6110}}},
                {"left by offset", 10, 99, -1, -1, moLeft, {{1110, 2100}, {5100, 6100}}},
                {"left to a place", 10, 99, 0, 0, moLeft, {{0, 2100}, {5100, 6100}}},
                {"top right", 10, 20, -1, 7, moTopRight, {{1100, 7}, {5110, 6100}}},
                {"limits", Highest, Lowest, 0, 0, moAll, {{Highest, Lowest + 2100}, {Highest, Lowest + 6100}}},
                {"nowhere", 0, 0, 1000, 1000, moAll, {{1100, 2100}, {5100, 6100}}}};
    for (const auto& row : rows) {
        ProbeItem& item = Item(itRectangle, {{1100, 2100}, {5100, 6100}});
        const TKSLPtoA before = item.Points();
        label.RemoveState(lsUpdate);
        item.BaseMove(row.bx, row.by, row.gx, row.gy, row.option, true);
        EXPECT_EQ(item.Points(), row.points) << row.what;
        EXPECT_EQ(item.BoundsRect().Right, row.points[1].bX) << row.what;
        EXPECT_EQ(label.GetStates().Has(lsUpdate), row.points != before) << row.what;
    }
    ProbeItem& item = Item(itRectangle, {{0, 0}, {4000, 5000}});
    item.Move(2, 3, moLeft), item.Move(2, 3, moBottom);
    EXPECT_EQ(item.Points(), (TKSLPtoA{{0, 0}, {2000, 8000}}));
    EXPECT_TRUE(label.GetStates().Has(lsCalc));
}

TEST_F(BaseItem, MovesAreClippedToThePage) {
    const struct {
        const char* what;
        TKSLItemType type;
        TKSLPtoA points;
        std::int64_t offset, left; // on the horizontal axis of a page of 60000
    } rows[] = {{"on the edge", itRectangle, {{0, 0}, {60000, 10}}, 5, 0},
                {"passes the edge", itRectangle, {{0, 0}, {59990, 10}}, 50, 10},
                {"passes 0", itRectangle, {{30, 0}, {50, 10}}, -50, -30},
                {"beyond already", itRectangle, {{30, 0}, {60010, 10}}, 50, 0},
                {"sectors go anywhere", itSector, {{0, 0}, {60000, 10}}, 5, 5},
                {"only the line of an arrow", itArrowLine, {{0, 0}, {10, 0}, {60000, 0}, {0, 0}}, 5, 5},
                {"limits", itRectangle, {{0, 0}, {10, 10}}, Highest, 59990}};
    for (const auto& row : rows) {
        std::int64_t bx = row.offset, by = 0;
        Item(row.type, row.points).CheckBaseBoundsMove(bx, by, moAll);
        EXPECT_EQ(bx, row.left) << row.what;
    }
    auto& box = *new ProbeBox(label, itRectangle, {{100, 100}, {59990, 200}});
    for (auto [option, left] : {std::pair{moAll, 10}, {moBotRight, 10}, {moTopLeft, 50}}) {
        std::int64_t bx = 50, by = 0;
        box.CheckBaseBoundsMove(bx, by, option);
        EXPECT_EQ(bx, left) << option;
    }
    ProbeItem& item = Item(itRectangle, {{1000, 1500}, {2000, 2500}});
    item.MoveToGrid(1000, 1000, true, false);
    EXPECT_EQ(item.MoveOffset().X, 1000); // a point on the grid goes one full step
    EXPECT_EQ(item.MoveOffset().Y, -500);
    EXPECT_FALSE(item.MoveToPoint(1000, 1500));
    EXPECT_TRUE(item.MoveToPoint(90000, 1500));
    EXPECT_EQ(item.MoveOffset().X, 58000);
}

TEST_F(BaseItem, TurnsGoRoundThePageAndBack) {
    ProbeItem& box = Item(itRectangle, {{1000, 2000}, {3000, 8000}});
    box.RotateLeft();
    EXPECT_EQ(box.Points(), (TKSLPtoA{{2000, 32000}, {8000, 34000}})); // normalised
    EXPECT_EQ(box.fAngle, ag90);
    box.RotateRight(), box.RotateRight();
    EXPECT_EQ(box.fAngle, ag270);
    box.fAngle = TKSLAngle(2147483647); // as a file may have it
    box.RotateLeft();
    EXPECT_EQ(box.fAngle, ag0);
    ProbeItem& line = Item(itLine, {{3000, 8000}, {1000, 2000}});
    line.RotateRight();
    EXPECT_EQ(line.Points(), (TKSLPtoA{{52000, 3000}, {58000, 1000}})); // the order of its ends stays
}

TEST_F(BaseItem, OffsetsGoToTheSideOfThePlace) {
    const TKSLPtoA corner{{0, 0}, {100, 0}, {100, 100}}, square{{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    const struct {
        const char* what;
        TKSLPtoA points;
        bool closed;
        TKSLPto at;
        TKSLPtoA moved;
    } rows[] = {{"outside, near the corner", corner, false, {95, -5}, {{0, -10}, {110, -10}, {110, 100}}},
                {"inside, near the end", corner, false, {90, 99}, {{0, 10}, {90, 10}, {90, 100}}},
                {"closed, inside", square, true, {5, 50}, {{10, 10}, {90, 10}, {90, 90}, {10, 90}}},
                {"closed, outside", square, true, {-5, 50}, {{-10, -10}, {110, -10}, {110, 110}, {-10, 110}}},
                {"straight on", {{0, 0}, {50, 0}, {100, 0}}, false, {50, 9}, {{0, 10}, {50, 10}, {100, 10}}},
                {"one point", {{7, 7}}, true, {0, 0}, {{7, 7}}}};
    for (const auto& row : rows) {
        TKSLPtoA moved;
        Item(itPolyLine, row.points).Offset(10, row.at.bX, row.at.bY, row.closed, moved);
        EXPECT_EQ(moved, row.moved) << row.what;
    }
}

TEST_F(BaseItem, SettersMarkWhatIsVisible) {
    auto& box = *new ProbeBox(label, itRectangle, {{0, 0}, {10, 10}});
    const std::tuple<const char*, bool, std::function<void()>> rows[] = {
        {"same colour", false, [&] { box.SetColor(box.GetColor()); }},
        {"angle", true, [&] { box.SetAngle(ag90); }},
        {"fill colour", true, [&] { box.SetBackColor(0xFF123456); }},
        {"pen width", false, [&] { box.SetPenWidth(3); }},
        {"angle of a hidden item", false, [&] { box.SetOptions({lopPrint}), box.SetAngle(ag180); }},
        {"hidden: calculated at once", false, [&] { box.StateCalc(); }}};
    for (const auto& [what, marks, set] : rows) {
        label.RemoveState(lsUpdate);
        set();
        EXPECT_EQ(label.GetStates().Has(lsUpdate), marks) << what;
    }
    EXPECT_EQ(box.calcs, std::vector<int>{2});
}

TEST_F(BaseItem, SizesAreMillimetresOnPaper) {
    TestHost drawing(emDrawing, unM, 100);
    auto& box = *new ProbeBox(drawing, itRectangle, {{5000000, 0}, {1000000, 2000000}});
    EXPECT_EQ(box.BaseWidth(), 4000000);
    EXPECT_EQ(box.GetWidth(), 4);
    EXPECT_EQ(box.GetWidthMM(), 40);
    EXPECT_EQ(box.WidthPx(254), 400);
    box.SetWidth(6);
    EXPECT_EQ(box.GetPoint(2).bX, 11000000);
}

} // namespace
} // namespace test
} // namespace vagrel
