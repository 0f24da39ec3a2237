// SPDX-License-Identifier: MIT
// Crossings of shapes: known figures, random ones against brute force, and coordinates at the limits of 64 bits.
#include <vagrel/foundation/Crossings.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>
#include <random>

namespace vagrel {

void PrintTo(TKSLPto point, std::ostream* out) { *out << '(' << point.bX << ", " << point.bY << ')'; }

namespace {

using Base = std::int64_t;
constexpr double Pi = std::numbers::pi;

TKSLPtoA CrossingsOf(const TKSLShape& a, const TKSLShape& b) {
    TKSLPtoA points{{1, 1}};
    CrossShapes(a, b, points);
    return points;
}

TEST(Crossings, KnownFigures) {
    const auto line = [](Base x1, Base y1, Base x2, Base y2) {
        return TKSLShape::Segments({{x1, y1}, {x2, y2}}, false);
    };
    const TKSLShape square = TKSLShape::Segments({{0, 0}, {100, 0}, {100, 100}, {0, 100}}, true);
    const TKSLShape circle = TKSLShape::Circle(0, 0, 50), ellipse = TKSLShape::Ellipse(0, 0, 100, 50);
    const TKSLShape lower = TKSLShape::Arc(0, 0, 50, 0, Pi, true), upper = TKSLShape::Arc(0, 0, 50, 0, Pi, false);
    const TKSLShape large = TKSLShape::Ellipse(0, 0, 10'000'000, 5'000'000);
    const struct {
        const char* what;
        TKSLShape a, b;
        TKSLPtoA expected;
    } rows[] = {
        {"a diagonal through corners", square, line(-10, -10, 110, 110), {{0, 0}, {100, 100}}},
        {"an end on a side", square, line(50, 50, 100, 50), {{100, 50}}},
        {"an end inside", square, line(50, 50, 99, 50), {}},
        {"a segment on a side", line(0, 0, 100, 0), line(20, 0, 50, 0), {}},
        {"half a chord", circle, line(0, 30, 80, 30), {{40, 30}}},
        {"a tangent", circle, line(-80, 50, 80, 50), {{0, 50}}},
        {"beside", circle, line(-80, 52, 80, 52), {}},
        {"a vertex on the circle", circle, TKSLShape::Segments({{90, 40}, {30, 40}, {90, 80}}, false), {{30, 40}}},
        {"the arc's lower half", lower, line(30, -80, 30, 80), {{30, 40}}},
        {"its ends", upper, line(-80, 0, 80, 0), {{-50, 0}, {50, 0}}},
        {"two circles", circle, TKSLShape::Circle(60, 0, 50), {{30, -40}, {30, 40}}},
        {"circle and arc", lower, TKSLShape::Circle(60, 0, 50), {{30, 40}}},
        {"circles that touch", circle, TKSLShape::Circle(100, 0, 50), {{50, 0}}},
        {"the same circle", circle, circle, {}},
        {"about the same centre, almost", circle, TKSLShape::Circle(1, 0, 53), {}},
        {"ellipse and its outer circle", TKSLShape::Circle(0, 0, 100), ellipse, {{-100, 0}, {100, 0}}},
        {"the same ellipse", ellipse, ellipse, {}},
        {"a circle as an ellipse, grown", TKSLShape::Ellipse(0, 0, 51, 51), circle, {}},
        {"ellipse and line", ellipse, line(-200, 30, 200, 30), {{-80, 30}, {80, 30}}},
        {"a short piece of a line",
         large,
         line(-8'000'001, 3'000'000, -7'999'999, 3'000'000),
         {{-8'000'000, 3'000'000}}},
        {"no radius", ellipse, TKSLShape::Ellipse(0, 0, 0, 80), {}},
        {"nothing", TKSLShape(), circle, {}},
    };
    for (const auto& row : rows) {
        EXPECT_THAT(CrossingsOf(row.a, row.b), testing::UnorderedElementsAreArray(row.expected)) << row.what;
        EXPECT_THAT(CrossingsOf(row.b, row.a), testing::UnorderedElementsAreArray(row.expected)) << row.what;
    }
}

// Distance of a point to a figure, by means of its own.
double Off(const TKSLShape& shape, TKSLPto point) {
    const double x = double(point.bX - shape.cx), y = double(point.bY - shape.cy);
    if (shape.kind == skSegments) {
        const double dx = double(shape.points[1].bX - shape.points[0].bX),
                     dy = double(shape.points[1].bY - shape.points[0].bY);
        const double ax = double(point.bX - shape.points[0].bX), ay = double(point.bY - shape.points[0].bY);
        const double t = std::clamp((ax * dx + ay * dy) / (dx * dx + dy * dy), 0.0, 1.0);
        return std::hypot(ax - t * dx, ay - t * dy);
    }
    const double rx = double(shape.rx), ry = double(shape.ry), u = x / rx, v = y / ry;
    return std::fabs(u * u + v * v - 1) / (2 * std::hypot(u / rx, v / ry));
}

// Changes of sign of the implicit function of `b` along `a`; none when `a` comes near to touching it.
std::optional<int> CountBySampling(const TKSLShape& a, const TKSLShape& b) {
    constexpr int samples = 6000;
    std::vector<double> values(samples);
    for (int i = 0; i < samples; ++i) {
        const double t = a.kind == skSegments ? double(i) / (samples - 1) : 2 * Pi * i / samples;
        double x = double(a.cx) + double(a.rx) * std::cos(t), y = double(a.cy) + double(a.ry) * std::sin(t);
        if (a.kind == skSegments) {
            x = double(a.points[0].bX) + t * double(a.points[1].bX - a.points[0].bX);
            y = double(a.points[0].bY) + t * double(a.points[1].bY - a.points[0].bY);
        }
        const double u = (x - double(b.cx)) / double(b.rx), v = (y - double(b.cy)) / double(b.ry);
        values[i] = u * u + v * v - 1;
    }
    int count = 0;
    for (int i = a.kind == skSegments ? 1 : 0; i < samples; ++i) {
        const double last = values[(i + samples - 1) % samples], here = values[i], next = values[(i + 1) % samples];
        const bool turns = (here - last) * (next - here) <= 0,
                   ends = a.kind == skSegments && (i == 1 || i == samples - 1);
        if ((turns || ends) && std::min(std::fabs(here), std::fabs(last)) < 1e-3)
            return std::nullopt;
        count += (last < 0) != (here < 0);
    }
    return count;
}

TEST(Crossings, RandomFiguresAgreeWithSampling) {
    std::mt19937_64 random(20240611);
    const auto in = [&random](Base low, Base high) { return std::uniform_int_distribution<Base>(low, high)(random); };
    int counted = 0, histogram[5] = {};
    for (int round = 0; round < 600; ++round) {
        const Base origin = round % 2 == 0 ? 0 : 1'000'000'000'000, size = round % 3 == 0 ? 2'000'000 : 20'000;
        const auto place = [&] { return origin + in(-size, size); };
        const auto figure = [&](int kind) {
            return kind == 0   ? TKSLShape::Segments({{place(), place()}, {place(), place()}}, false)
                   : kind == 1 ? TKSLShape::Circle(place(), place(), in(size / 10, size))
                               : TKSLShape::Ellipse(origin + in(-size / 4, size / 4), origin + in(-size / 4, size / 4),
                                                    in(size / 10, size), in(size / 10, size));
        };
        const TKSLShape a = figure(round % 3), b = figure(1 + round / 3 % 2);
        const TKSLPtoA points = CrossingsOf(a, b);
        for (TKSLPto point : points)
            EXPECT_TRUE(Off(a, point) <= 1.5 && Off(b, point) <= 1.5) << round;
        if (const auto expected = CountBySampling(a, b)) {
            EXPECT_EQ(points.size(), std::size_t(*expected)) << round;
            ++counted, ++histogram[std::min(*expected, 4)];
        }
    }
    EXPECT_GT(counted, 500);
    EXPECT_GT(histogram[4], 10);
}

TEST(Crossings, RandomSegmentsAgreeWithTheSidesOfTheirEnds) {
    std::mt19937_64 random(7);
    int crossed = 0;
    for (int round = 0; round < 3000; ++round) {
        const Base size = round % 2 == 0 ? 50 : 4'000'000'000;
        Base v[8];
        for (Base& value : v)
            value = std::uniform_int_distribution<Base>(-size, size)(random);
        const auto side = [&v](int a, int b, int c) {
            const TInt128 area =
                TInt128(v[b] - v[a]) * (v[c + 1] - v[a + 1]) - TInt128(v[b + 1] - v[a + 1]) * (v[c] - v[a]);
            return (area > 0) - (area < 0);
        };
        const bool crosses = side(0, 2, 4) * side(0, 2, 6) <= 0 && side(4, 6, 0) * side(4, 6, 2) <= 0;
        const bool parallel = TInt128(v[2] - v[0]) * (v[7] - v[5]) == TInt128(v[3] - v[1]) * (v[6] - v[4]);
        const TKSLShape a = TKSLShape::Segments({{v[0], v[1]}, {v[2], v[3]}}, false),
                        b = TKSLShape::Segments({{v[4], v[5]}, {v[6], v[7]}}, false);
        const TKSLPtoA points = CrossingsOf(a, b);
        for (TKSLPto point : points)
            EXPECT_TRUE(Off(a, point) <= 1 && Off(b, point) <= 1) << round;
        // A crossing less than half a unit beyond an end rounds onto it.
        const bool decided = (crosses && !parallel) || size > 50;
        EXPECT_TRUE(!decided || points.size() == (crosses ? 1u : 0u)) << round;
        crossed += crosses;
    }
    EXPECT_GT(crossed, 500);
}

// Runs under the sanitizers; what is checked is that the answers stay in range and the exact cases exact.
TEST(Crossings, LimitsOfTheCoordinates) {
    constexpr Base lowest = std::numeric_limits<Base>::min(), highest = std::numeric_limits<Base>::max();
    const Base values[] = {lowest, lowest + 1, -1, 0, 1, Base(1) << 53, highest - 1, highest};
    std::mt19937 random(3);
    for (int round = 0; round < 2000; ++round) {
        Base v[12], o[8];
        for (Base& value : v)
            value = values[random() % std::size(values)];
        double a, b, c;
        bool flag;
        EXPECT_GE(TDraw2D::DistancePointToLine(v[0], v[1], v[2], v[3], v[4], v[5]), 0);
        TDraw2D::ArcThreePoints(v[0], v[1], v[2], v[3], v[4], v[5], o[0], o[1], o[2], a, b, c, flag);
        TDraw2D::PointOnEllipse(v[0], v[1], v[2], v[3], v[4], v[5], v[6]);
        TDraw2D::PointOnSegment(v[0], v[1], v[2], v[3], v[4], v[5], 1e300);
        TDraw2D::DrawArrow(v[0], v[1], v[2], v[3], v[4], o[0], o[1], o[2], o[3], 8);
        TDraw2D::DrawParalLine(v[0], v[1], v[2], v[3], v[4], v[5], v[6], o[0], o[1], o[2], o[3]);
        TDraw2D::EquidistArc(v[0], v[1], v[2], 0, 1, v[3], v[4], v[5], o[0], o[1], o[2], a, b);
        TDraw2D::LinePerpenFromPoint(v[0], v[1], v[2], v[3], v[4], v[5], true, o[0], o[1]);
        TDraw2D::LineCrossCircle(v[0], v[1], v[2], v[3], v[4], v[5], v[6], o[0], o[1], o[2], o[3]);
        const TKSLRect rect(v[4], v[5], v[6], v[7]);
        TDraw2D::RectangleIntersectLine(v[0], v[1], v[2], v[3], rect);
        TDraw2D::EllipseIntersectsRect(v[0], v[1], v[2], v[3], rect);
        TDraw2D::CenteredRect(double(v[0]), double(v[1]), rect);
        TKSLPto point{v[0], v[1]};
        TDraw2D::RotatePoint(point, TKSLPto{v[2], v[3]}, TKSLAngle(round % 4));
        TDraw2D::ExtendLineToRectangle(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9], o[0], o[1], o[2],
                                       o[3]);
        TDraw2D::TrimLineAtArc(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9], v[10], v[11], o[0], o[1],
                               o[2], o[3]);
        TDraw2D::JoinLines(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9], v[10], v[11], o[0], o[1], o[2],
                           o[3], o[4], o[5], o[6], o[7]);
        const TKSLShape shapes[] = {TKSLShape::Segments({{v[0], v[1]}, {v[2], v[3]}}, true),
                                    TKSLShape::Circle(v[4], v[5], v[6]), TKSLShape::Arc(v[7], v[8], v[9], 1, 0, true),
                                    TKSLShape::Ellipse(v[0], v[3], v[6], v[9])};
        for (const TKSLShape& first : shapes)
            for (const TKSLShape& second : shapes)
                EXPECT_LE(CrossingsOf(first, second).size(), 4u);
    }
    EXPECT_EQ(TDraw2D::PointSide(lowest, lowest, highest, lowest, 0, 0), highest);
    const TKSLShape falling = TKSLShape::Segments({{-highest, -highest}, {highest, highest}}, false);
    EXPECT_EQ(CrossingsOf(falling, TKSLShape::Segments({{-1, 1}, {1, -1}}, false)), (TKSLPtoA{{0, 0}}));
}

} // namespace
} // namespace vagrel
