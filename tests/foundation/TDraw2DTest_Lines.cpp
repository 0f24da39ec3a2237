// SPDX-License-Identifier: MIT
// Arrowheads, offsets, crossings of lines, and extending, on figures with whole answers.
#include <vagrel/foundation/TDraw2D.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>

namespace vagrel {
namespace {

using Base = std::int64_t;
using Four = std::array<Base, 4>;
using Six = std::array<Base, 6>;
using Answer = std::array<Base, 5>;
using D = TDraw2D;
constexpr double Pi = std::numbers::pi;

// What an operation answered, then its four outputs.
template <class Operation, class... Inputs>
Answer Ask(Operation operation, const Inputs&... inputs) {
    Answer a{};
    a[0] = operation(inputs..., a[1], a[2], a[3], a[4]);
    return a;
}

TEST(TDraw2DArrows, WingsLieBehindTheTip) {
    Four p;
    EXPECT_TRUE(D::DrawArrow(0, 0, 100, 0, 10, p[0], p[1], p[2], p[3], 2));
    EXPECT_EQ(p, (Four{100, 10, 100, -10})) << "opened by a right angle, first the smaller direction";
    const Four heads[] = {{93, 7, 93, -7}, {93, 7, 107, 7}, {107, -7, 107, 7}, {107, -7, 93, -7}};
    for (TKSLAngle angle : {ag0, ag90, ag180, ag270}) {
        EXPECT_TRUE(D::DrawArrow(Base(100), Base(0), Base(10), angle, p[0], p[1], p[2], p[3], 4));
        EXPECT_THAT(
            p, testing::AnyOf(heads[angle], Four{heads[angle][2], heads[angle][3], heads[angle][0], heads[angle][1]}));
    }
    EXPECT_FALSE(D::DrawArrow(0, 0, 100, 0, 0, p[0], p[1], p[2], p[3], 0));
    EXPECT_EQ(p, (Four{100, 0, 100, 0}));
    float x1, y1, x2, y2;
    EXPECT_TRUE(D::DrawArrow(1.0f, 2.0f, Pi / 2, 2.0f, x1, y1, x2, y2, 2));
    EXPECT_THAT((std::array{x1, y1, x2, y2}), testing::Pointwise(testing::FloatNear(1e-6f), {-1.0f, 2.0f, 3.0f, 2.0f}));
    // At the right end of a circle a clockwise arc points down the screen, the other up.
    D::DrawArrowArc(0, 0, 100, 0, 10, p[0], p[1], p[2], p[3], true, 4);
    EXPECT_EQ(p, (Four{93, -7, 107, -7}));
    D::DrawArrowArc(0, 0, 100, 0, 10, p[0], p[1], p[2], p[3], false, 4);
    EXPECT_EQ(p, (Four{107, 7, 93, 7}));
    EXPECT_EQ(Ask(D::DrawLeft, 0, 0, 100, 0, 10), (Answer{1, 93, -7, 107, 7}));
    EXPECT_EQ(Ask(D::DrawRight, 0, 0, 100, 0, 10), (Answer{1, 93, 7, 107, -7}));
}

TEST(TDraw2DArrows, Parallels) {
    EXPECT_EQ(Ask(D::DrawParallelLine, 0, 0, 30, 40, 5), (Answer{1, -4, 3, 26, 43}));
    EXPECT_EQ(Ask(D::DrawParallelLine, 7, 7, 7, 7, 5), (Answer{0, 7, 7, 7, 7}));
    EXPECT_EQ(Ask(D::DrawParalLine, 0, 0, 30, 40, 100, 0, 5), (Answer{1, 4, -3, 34, 37}));
    Base x, y;
    EXPECT_TRUE(D::PosMidParal(0, 0, 30, 40, 5, x, y) && x == 11 && y == 23);
}

TEST(TDraw2DArrows, CurvesLeaveTheSideOfTheirAnchor) {
    const TKSLBase p1{0, 10}, p2{101, 50};
    const TKSLBase across[] = {{50, 10}, {50, 50}}, down[] = {{0, 30}, {101, 30}}, none[] = {{-1, -1}, {-1, -1}};
    const struct {
        std::int16_t from, to;
        const TKSLBase* expected;
    } rows[] = {{7, 15, across}, {0, 0, across}, {15, 7, across}, {3, 60, across}, {51, 11, across},
                {3, 11, down},   {11, 3, down},  {11, 11, none},  {3, 3, none},    {7, 7, none},
                {5, 13, across}, {1, 9, across}, {0, 11, down},   {50, 50, none},  {11, 16, none}};
    for (const auto& row : rows) {
        TKSLBase a{-1, -1}, b{-1, -1};
        EXPECT_EQ(D::CurvePoints(p1, p2, row.from, row.to, a, b), row.expected != none);
        EXPECT_TRUE(a == row.expected[0] && b == row.expected[1]) << row.from << " to " << row.to;
    }
}

TEST(TDraw2DOffsets, PolygonsAndArcs) {
    const TKSLPtoA square{{0, 0}, {10, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_EQ(D::PoligonParalel(square, 2, false), (TKSLPtoA{{0, -2}, {10, 0}, {12, 0}, {10, 12}, {-2, 10}}));
    EXPECT_EQ(D::PoligonParalel(square, 2, true)[0], (TKSLPto{0, 2}));
    Six p;
    EXPECT_TRUE(D::EquidistArc(100, 0, 0, 100, -100, 0, 10, 10, -20, p[0], p[1], p[2], p[3], p[4], p[5]));
    EXPECT_EQ(p, (Six{80, 0, 0, 80, -80, 0})) << "inward, whatever the sign";
    EXPECT_TRUE(D::EquidistArc(100, 0, 0, 100, -100, 0, 300, 10, 20, p[0], p[1], p[2], p[3], p[4], p[5]));
    EXPECT_EQ(p, (Six{120, 0, 0, 120, -120, 0}));
    EXPECT_FALSE(D::EquidistArc(0, 0, 5, 5, 9, 9, 1, 2, 20, p[0], p[1], p[2], p[3], p[4], p[5]));
    EXPECT_EQ(p, (Six{0, 0, 5, 5, 9, 9}));
    // Nearly an equilateral triangle about the origin, first and last at ±60.1 degrees, mean radius 100.23.
    EXPECT_TRUE(D::EquidistArc(50, -87, -100, 0, 50, 87, 10, false, p[0], p[1], p[2], p[3], p[4], p[5]));
    EXPECT_EQ(p, (Six{55, -96, 110, 0, 55, 96}));
    EXPECT_TRUE(D::EquidistArc(50, -87, -100, 0, 50, 87, 10, true, p[0], p[1], p[2], p[3], p[4], p[5]));
    EXPECT_EQ(p, (Six{45, -78, -45, -78, 45, 78})) << "half the negated sweep from the first end";
}

TEST(TDraw2DCrossings, LineAgainstLine) {
    Base x = 0, y = 0;
    // A horizontal line and one at x from y3 to y4: as lines, as segments with their ends, as segments without.
    const auto cross = [&](Base at, Base y3, Base y4) {
        return std::array{D::IntersectLines(0, 0, 10, 0, at, y3, at, y4, false, false, x, y),
                          D::IntersectLines(0, 0, 10, 0, at, y3, at, y4, true, true, x, y),
                          D::IntersectLines(0, 0, 10, 0, at, y3, at, y4, true, false, x, y)};
    };
    EXPECT_EQ(cross(5, -5, 5), (std::array{true, true, true}));
    EXPECT_EQ(cross(10, 0, 5), (std::array{true, true, false})) << "a corner";
    EXPECT_EQ(cross(5, 0, 5), (std::array{true, true, false})) << "an end on the middle";
    EXPECT_EQ(cross(12, -5, 5), (std::array{true, false, false}));
    EXPECT_FALSE(D::IntersectLines(0, 0, 10, 5, 0, 1, 10, 6, false, false, x, y));
    EXPECT_TRUE(D::LinePerpenFromPoint(0, 0, 30, 40, 50, 0, true, x, y));
    EXPECT_TRUE(x == 18 && y == 24);
    EXPECT_FALSE(D::LinePerpenFromPoint(0, 0, 30, 40, 500, 0, true, x, y));
    EXPECT_FALSE(D::LinePerpenFromPoint(0, 0, 10, 0, 5, 0, false, x, y));
}

TEST(TDraw2DCrossings, LineAgainstFigures) {
    EXPECT_EQ(Ask(D::LineCrossCircle, -7, 3, 9, 3, 0, 0, 5), (Answer{2, -4, 3, 4, 3}));
    for (Base y : {1000, 1004})
        EXPECT_EQ(Ask(D::LineCrossCircle, -7, y, 9, y, 0, 0, 1000), (Answer{1, 0, y, 0, y})) << "or missing by a hair";
    EXPECT_EQ(Ask(D::LineCrossCircle, -7, 1020, 9, 1020, 0, 0, 1000), Answer{});
    EXPECT_EQ(Ask(D::LineCrossCircle, 3, 3, 3, 3, 0, 0, 5), Answer{});
    EXPECT_EQ(Ask(D::LineCrossEllipse, -200, 30, 0, 30, 0, 0, 100, 50), (Answer{2, -80, 30, 80, 30}));
    EXPECT_EQ(Ask(D::LineCrossEllipse, -200, 50, 0, 50, 0, 0, 100, 50), (Answer{1, 0, 50, 0, 50}));
    EXPECT_EQ(Ask(D::LineCrossEllipse, -200, 51, 0, 51, 0, 0, 100, 50), Answer{});
    EXPECT_EQ(Ask(D::LineCrossRect, -10, 5, 50, 5, 20, 20, 0, 0), (Answer{2, 0, 5, 20, 5}));
    EXPECT_EQ(Ask(D::LineCrossRect, -10, 10, 10, -10, 0, 0, 20, 20), (Answer{1, 0, 0, 0, 0})) << "a corner once";
}

TEST(TDraw2DCrossings, CircleAgainstCircle) {
    const struct {
        Base distance, r1, r2;
        int near, loose;
    } rows[] = {{6, 5, 5, 2, 1},     {0, 5, 5, 0, 0},     {100, 50, 50, 1, 1}, {101, 50, 50, 1, 1},
                {102, 50, 50, 0, 1}, {106, 50, 50, 0, 0}, {50, 100, 50, 1, 1}, {48, 100, 50, 0, 1}};
    for (const auto& row : rows) {
        double p[4];
        EXPECT_EQ(Ask(D::CircleCrossCircle, 9, 9, row.r1, 9 + row.distance, 9, row.r2)[0], row.near) << row.distance;
        const int loose = D::CircleCircleIntersections(0, 9, double(row.r1), double(row.distance), 9, double(row.r2),
                                                       p[0], p[1], p[2], p[3]);
        EXPECT_EQ(loose, row.loose) << row.distance;
    }
    EXPECT_EQ(Ask(D::CircleCrossCircle, 9, 9, 500, 609, 9, 500), (Answer{2, 309, -391, 309, 409}));
}

TEST(TDraw2DCrossings, FiguresAgainstRectangles) {
    const TKSLRect box(10, 10, 20, 20);
    EXPECT_TRUE(D::RectangleIntersectLine(0, 12, 30, 18, box));
    EXPECT_TRUE(D::RectangleIntersectLine(15, 0, 15, 30, TKSLRect(20, 20, 10, 10)));
    EXPECT_FALSE(D::RectangleIntersectLine(0, 15, 15, 31, box)) << "past the corner";
    EXPECT_TRUE(D::ArcIntersectsRect(0, 0, 20, 0, Pi / 2, box));
    EXPECT_FALSE(D::ArcIntersectsRect(0, 0, 20, Pi / 2, 2 * Pi, box)) << "the rest of the circle";
    EXPECT_TRUE(D::ArcIntersectsRect(15, 15, 2, 0.1, 0.2, box)) << "wholly inside";
    EXPECT_TRUE(D::EllipseIntersectsRect(0, 0, 20, 20, box));
    EXPECT_FALSE(D::EllipseIntersectsRect(0, 0, 14, 14, box)) << "only the box of the circle";
    EXPECT_TRUE(D::EllipseIntersectsRect(15, 0, 0, 10, box));
    EXPECT_FALSE(D::EllipseIntersectsRect(9, 15, 0, 30, box));
}

TEST(TDraw2DExtend, ToFigures) {
    const auto toLine = D::ExtendLines;
    const auto toCircle = D::ExtendLineToCircle;
    const auto toEllipse = D::ExtendLineToEllipse;
    const auto toRectangle = D::ExtendLineToRectangle;
    const auto toChain = D::ExtendLineToPolyline;
    const auto toArc = D::ExtendLineToArc;
    const auto trim = D::TrimLineAtArc;
    const TKSLPtoA chain{{200, -50}, {200, 50}, {0, 50}}, hook{{200, 10}, {200, 50}, {20, 50}};
    const struct {
        const char* what;
        Answer actual, expected;
    } rows[] = {
        {"line", Ask(toLine, 100, -9, 100, 9, 0, 0, 50, 0, 50, 0), {1, 0, 0, 100, 0}},
        {"line, behind", Ask(toLine, -100, -9, -100, 9, 0, 0, 50, 0, 50, 0), {1, 50, 0, -100, 0}},
        {"line, reached", Ask(toLine, 20, -9, 20, 9, 0, 0, 50, 0, 50, 0), {0, 0, 0, 50, 0}},
        {"line, just reached", Ask(toLine, 50, -9, 50, 9, 0, 0, 50, 0, 50, 0), {0, 0, 0, 50, 0}},
        {"line, parallel", Ask(toLine, 0, 9, 9, 9, 0, 0, 50, 0, 50, 0), {0, 0, 0, 50, 0}},
        {"circle, from inside", Ask(toCircle, 0, 0, 50, 0, 0, 10, 0, 0, 0), {1, -50, 0, 10, 0}},
        {"circle, missed", Ask(toCircle, 200, 51, 50, 0, 0, 50, 0, 50, 0), {0, 0, 0, 50, 0}},
        {"ellipse", Ask(toEllipse, 200, 0, 100, 50, 0, 30, 50, 30, 50, 30), {1, 0, 30, 120, 30}},
        {"ellipse, tangent", Ask(toEllipse, 200, 0, 99, 50, 50, 50, 0, 50, 50, 50), {1, 200, 50, 0, 50}},
        {"ellipse, flat", Ask(toEllipse, 200, 0, 100, 0, 0, 30, 50, 30, 50, 30), {0, 0, 30, 50, 30}},
        {"rectangle", Ask(toRectangle, 100, -50, 200, 50, 0, 0, 50, 10, 50, 10), {1, 0, 0, 100, 20}},
        {"rectangle, from inside", Ask(toRectangle, 0, 0, 90, 90, 40, 40, 50, 40, 40, 40), {1, 0, 40, 50, 40}},
        {"rectangle, its corner", Ask(toRectangle, 100, -50, 200, 50, 0, 0, 50, -25, 50, -25), {1, 0, 0, 100, -50}},
        {"polyline, its first point", Ask(toChain, hook, 100, 10, 150, 10, 150, 10, false), {1, 100, 10, 200, 10}},
        {"polyline, its last point", Ask(toChain, hook, 20, 10, 20, 20, 20, 20, false), {1, 20, 10, 20, 50}},
        {"polyline", Ask(toChain, chain, 10, 20, 50, 20, 50, 20, false), {1, 10, 20, 200, 20}},
        {"polyline, open side", Ask(toChain, chain, 50, 20, 90, 20, 50, 20, false), {0, 50, 20, 90, 20}},
        {"polyline, closing side", Ask(toChain, chain, 150, 20, 170, 20, 150, 20, true), {1, 60, 20, 170, 20}},
        {"polyline, at coordinate 0", Ask(toChain, chain, 10, 0, 50, 0, 50, 0, false), {0, 10, 0, 50, 0}},
        {"arc", Ask(toArc, 300, -100, 200, 0, 300, 100, 0, 0, 50, 0, 50, 0), {1, 0, 0, 200, 0}},
        {"arc, its open side", Ask(toArc, 300, -100, 400, 0, 300, 100, 0, 0, 50, 0, 50, 0), {0, 0, 0, 50, 0}},
        {"arc, its last point",
         Ask(toArc, 300, -100, 200, 0, 300, 100, 300, 300, 300, 250, 300, 250),
         {1, 300, 300, 300, 100}},
        {"arc, its first point",
         Ask(toArc, 300, -100, 200, 0, 300, 100, 300, -300, 300, -250, 300, -250),
         {1, 300, -300, 300, -100}},
        {"trim, a tie", Ask(trim, 220, -60, 400, 0, 220, 60, 172, 80, 428, 80, 300, 80), {1, 172, 80, 360, 80}},
        {"trim", Ask(trim, 300, -100, 200, 0, 300, 100, 0, 0, 350, 0, 349, 0), {1, 0, 0, 200, 0}},
        {"trim, nearer of two", Ask(trim, 220, -60, 400, 0, 220, 60, 0, 80, 450, 80, 10, 80), {1, 240, 80, 450, 80}},
        {"trim, no crossing", Ask(trim, 300, -100, 200, 0, 300, 100, 0, 0, 150, 0, 0, 0), {0, 0, 0, 150, 0}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.actual, row.expected) << row.what;
}

TEST(TDraw2DExtend, JoinKeepsThePickedParts) {
    const struct {
        Base px1, py2;
        Four first, second;
    } rows[] = {{10, 10, {0, 0, 50, 0}, {50, 20, 50, 0}}, // the pick beyond the corner keeps the far end
                {60, -40, {50, 0, 100, 0}, {50, -90, 50, 0}}};
    for (const auto& row : rows) {
        Four a, b;
        EXPECT_TRUE(D::JoinLines(0, 0, 100, 0, 50, -90, 50, 20, row.px1, 0, 50, row.py2, a[0], a[1], a[2], a[3], b[0],
                                 b[1], b[2], b[3]));
        EXPECT_TRUE(a == row.first && b == row.second) << row.px1;
    }
    Four a, b;
    EXPECT_FALSE(D::JoinLines(0, 0, 9, 0, 5, 5, 5, 5, 0, 0, 5, 5, a[0], a[1], a[2], a[3], b[0], b[1], b[2], b[3]));
    EXPECT_EQ(b, (Four{5, 5, 5, 5}));
}

} // namespace
} // namespace vagrel
