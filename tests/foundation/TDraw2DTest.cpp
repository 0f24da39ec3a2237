// SPDX-License-Identifier: MIT
// Vectors, angles, circles, hits and transforms against closed forms.
#include <vagrel/foundation/TDraw2D.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace vagrel {
namespace {

using Base = std::int64_t;
constexpr double Pi = std::numbers::pi;
constexpr Base Lowest = std::numeric_limits<Base>::min(), Highest = std::numeric_limits<Base>::max();

TEST(TDraw2DVectors, ProductsKeepTheirSignAtAnySize) {
    // One unit off a line of 10^16 units: the products differ by less than a double resolves.
    const Base far = 10'000'000'000'000'000;
    EXPECT_GT(TDraw2D::CrossProduct(0, 0, far, far, far - 1, far), 0);
    EXPECT_EQ(TDraw2D::CrossProduct(1, 2, far + 1, far + 2, 2 * far + 1, 2 * far + 2), 0);
    EXPECT_EQ(TDraw2D::DotProduct(Highest, 2, Lowest, 2), Lowest);
    EXPECT_EQ(TDraw2D::DotProduct(Lowest, Lowest, Lowest, Lowest), Highest);
    EXPECT_EQ(TDraw2D::DotProduct(Highest, Highest, Highest, -Highest), 0);
    EXPECT_EQ(TDraw2D::PointSide(0, 0, 10, 0, 3, 2), 20);
    EXPECT_EQ(TDraw2D::PointSide(0, 0, 10, 0, 3, -2), -20);
}

TEST(TDraw2DVectors, Distances) {
    const Base far = 9'007'199'254'740'993; // beyond the whole numbers of a double
    EXPECT_EQ(TDraw2D::Distance(0, 5, far, 5), far);
    EXPECT_EQ(TDraw2D::DistancePointToLine(0, 9, 0, 0, 4, 3), 7); // 36 ÷ 5, truncated
    EXPECT_EQ(TDraw2D::DistancePointToLine(0, 9, 4, 3, 4, 3), 0);
    EXPECT_EQ(TDraw2D::Int64Sqrt(99), 9);
    EXPECT_NEAR(TDraw2D::AnglePointToLine(0, -7, 0, 0, 5, 5), 135, 1e-9);
}

TEST(TDraw2DAngles, NormalizeAndSweep) {
    EXPECT_EQ(TDraw2D::NormalizeAngle(2 * Pi), 2 * Pi);
    EXPECT_NEAR(TDraw2D::NormalizeAngle(-Pi / 2), 3 * Pi / 2, 1e-12);
    EXPECT_NEAR(TDraw2D::ArcSweep(6, 1, true), 2 * Pi - 5, 1e-12);
    EXPECT_NEAR(TDraw2D::ArcSweep(6, 1, false), 5, 1e-12);
    EXPECT_NEAR(TDraw2D::ArcParam(1, 6, false, 0.5), 0.5, 1e-12);
}

TEST(TDraw2DAngles, ArcContainsTheSameDirectionsReadFromEitherEnd) {
    const struct {
        double start, end, find;
        bool clockwise, expected;
    } rows[] = {{1, 2, 1.5, true, true},   {1, 2, 1, true, true},   {1, 2, 2, true, true}, {1, 2, 2.1, true, false},
                {1, 2, 1.5, false, false}, {1, 2, 1, false, false}, {1, 2, 6, false, true}};
    for (const auto& row : rows) {
        EXPECT_EQ(TDraw2D::ArcContainsAngle(row.start, row.end, row.find, row.clockwise), row.expected) << row.find;
        EXPECT_EQ(TDraw2D::ArcContainsAngle(row.end, row.start, row.find, !row.clockwise), row.expected) << row.find;
    }
    EXPECT_TRUE(TDraw2D::IsAngleWithinArc(0, 6, 1));
    EXPECT_TRUE(TDraw2D::IsAngleWithinArc(-1 - 2 * Pi, -1, 1));
    EXPECT_FALSE(TDraw2D::IsAngleWithinArc(2, 6, 1));
}

TEST(TDraw2DCircles, ThroughPoints) {
    Base cx = -1, cy = -1, r = -1;
    EXPECT_TRUE(TDraw2D::CircleTwoPoints(Base(0), Base(0), Base(6), Base(8), cx, cy, r));
    EXPECT_EQ((std::array{cx, cy, r}), (std::array<Base, 3>{3, 4, 5}));
    float fx, fy, fr;
    EXPECT_TRUE(TDraw2D::CircleTwoPoints(0, 0, 5, 0, fx, fy, fr));
    EXPECT_EQ((std::array{fx, fy, fr}), (std::array{2.5f, 0.0f, 2.0f}));
    // Far from the origin the squares of the coordinates have no digits left for a radius of 5.
    const Base far = 1'000'000'000'000;
    EXPECT_TRUE(TDraw2D::CircleThreePoints(far + 5, far, far + 3, far + 4, far - 5, far, cx, cy, r));
    EXPECT_EQ((std::array{cx, cy, r}), (std::array<Base, 3>{far, far, 5}));
    EXPECT_FALSE(TDraw2D::CircleThreePoints(0, 0, 1, 1, 2, 2, cx, cy, r));
}

TEST(TDraw2DCircles, ArcThroughPoints) {
    Base cx, cy, r;
    double start, end, sweep;
    bool clockwise;
    EXPECT_FALSE(TDraw2D::ArcThreePoints(0, 0, 5, 5, 9, 9, cx, cy, r, start, end, sweep, clockwise));
    for (Base side : {100, -100}) {
        // From the right to the left, over the bottom of the screen or over its top.
        ASSERT_TRUE(TDraw2D::ArcThreePoints(100, 0, 0, side, -100, 0, cx, cy, r, start, end, sweep, clockwise));
        EXPECT_EQ((std::array{cx, cy, r}), (std::array<Base, 3>{0, 0, 100}));
        EXPECT_EQ(clockwise, side > 0);
        EXPECT_NEAR(sweep, side > 0 ? Pi : -Pi, 1e-9);
    }
}

TEST(TDraw2DHits, EdgesOfCurves) {
    EXPECT_TRUE(TDraw2D::PointOnEllipse(0, 0, 100, 50, 105, 0, 11));
    EXPECT_FALSE(TDraw2D::PointOnEllipse(0, 0, 100, 50, 106, 0, 11));
    EXPECT_FALSE(TDraw2D::PointOnEllipse(0, 0, 100, 50, 95, 0, 11));
    EXPECT_TRUE(TDraw2D::PointOnEllipse(0, 0, 4, 3, 0, 0, 10)) << "no inner edge is left";
    EXPECT_FALSE(TDraw2D::PointInEllipse(0, 0, 0, 5, 0, 0));
    EXPECT_TRUE(TDraw2D::PointInArc(0, 0, 100, 0, -101, 1, 2 * Pi, -Pi));
    EXPECT_FALSE(TDraw2D::PointInArc(0, 0, 100, 0, 100, 1, 2 * Pi, -Pi));
    EXPECT_TRUE(TDraw2D::PointInBezier(0, 0, 0, 100, 100, 100, 100, 0, 100, 0, 1)) << "far end";
    EXPECT_FALSE(TDraw2D::PointInBezier(0, 0, 0, 100, 100, 100, 100, 0, 100, 1, 1));
}

TEST(TDraw2DHits, PointsAtLines) {
    EXPECT_FALSE(TDraw2D::PointInLine(0, 0, 10, 0, 14, 4, 5));
    EXPECT_TRUE(TDraw2D::PointInLine(7, 7, 7, 7, 10, 11, 5));
    EXPECT_TRUE(TDraw2D::PointOnSegment(102, 1, 0, 0, 100, 0, 2));
    EXPECT_FALSE(TDraw2D::PointOnSegment(103, 0, 0, 0, 100, 0, 2));
    EXPECT_FALSE(TDraw2D::PointOnSegment(50, 55, 0, 0, 100, 100, 2)) << "in the box, off the line";
    EXPECT_TRUE(TDraw2D::PosPoint(0, 10, 10, 0, 2, 2));
    EXPECT_TRUE(TDraw2D::PosPoint(10, 0, 0, 10, 2, 2)) << "the same from its right end";
    EXPECT_FALSE(TDraw2D::PosPoint(0, 10, 10, 0, 9, 9));
    EXPECT_TRUE(TDraw2D::PosPoint(0, 5, 9, 5, 3, 4)) << "horizontal";
    EXPECT_TRUE(TDraw2D::PosPoint(5, 0, 5, 9, 6, 3)) << "vertical";
}

TEST(TDraw2DTransforms, QuarterTurnsAndDegreesAgree) {
    const struct {
        TKSLAngle angle;
        double degrees;
        TKSLPto expected;
    } rows[] = {{ag0, 0, {15, 23}}, {ag90, -90, {13, 15}}, {ag180, 180, {5, 17}}, {ag270, 90, {7, 25}}};
    for (const auto& row : rows) {
        TKSLPto point{15, 23};
        TDraw2D::RotatePoint(point, TKSLPto{10, 20}, row.angle);
        EXPECT_EQ(point, row.expected) << row.angle;
        EXPECT_EQ(TDraw2D::RotatePoint(Base(15), Base(23), Base(10), Base(20), row.degrees), row.expected) << row.angle;
    }
    TRectF rect{1, 2, 4, 8};
    TDraw2D::Rotate(rect, {0, 0}, ag90);
    EXPECT_EQ(rect, (TRectF{2, -4, 8, -1}));
}

TEST(TDraw2DTransforms, FittingAndOrdering) {
    EXPECT_EQ(TDraw2D::CenteredRect(2, 1, TKSLRect(10, 10, 110, 111)), TKSLRect(10, 35, 110, 85));
    EXPECT_EQ(TDraw2D::CenteredRect(0, 1, TKSLRect(0, 0, 10, 10)), TKSLRect(5, 5, 5, 5));
    EXPECT_EQ(TDraw2D::CenteredRect(1, 2, TRectF{0, 0, 100, 100}), (TRectF{25, 0, 75, 100}));
    const TSlotPolygon slot = TDraw2D::CalculateSlotPolygon(0, 0, 10, 0, 4),
                       square = TDraw2D::CalculateSlotPolygon(5, 5, 5, 5, 4);
    const double expected[][4] = {{0, 2, 3, 3}, {10, 2, 7, 3}, {10, -2, 7, 7}, {0, -2, 3, 7}};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ((std::array{slot[i].X, slot[i].Y, square[i].X, square[i].Y}), std::to_array(expected[i])) << i;
    std::array<TKSLPto, 3> points{{{3, 0}, {2, 1}, {1, 2}}};
    TDraw2D::OrderPoints(points);
    EXPECT_EQ(points, (std::array<TKSLPto, 3>{{{1, 2}, {2, 1}, {3, 0}}}));
}

TEST(TDraw2DTransforms, WaterLevelOfACircle) {
    for (double share : {0.0, 0.2, 0.5, 0.75, 1.0}) {
        double from, move, first, last;
        TDraw2D::AngleSegment(share, true, false, from, move);
        TDraw2D::ArcSegment(share, false, first, last);
        // The surface stands at this height over the centre, in radii.
        const double level = 1 - 2 * share;
        for (double angle : {from, from + move, first, last})
            EXPECT_NEAR(std::sin(angle), level, 1e-9) << share;
        const double angle = from;
        TDraw2D::AngleSegment(share, false, true, from, move);
        EXPECT_NEAR(from, angle * 180 / Pi - 90, 1e-9) << share;
    }
}

} // namespace
} // namespace vagrel
