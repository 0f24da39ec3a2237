// SPDX-License-Identifier: MIT
// Crossings of shapes: known figures, random ones against brute force, and coordinates at the limits of 64 bits.
#include <vagrel/foundation/Crossings.h>
#include <vagrel/foundation/TDraw2D.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>
#include <random>
#include <tuple>

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
        {"a segment on a side", line(0, 0, 100, 0), line(20, 0, 50, 0), {}},
        {"half a chord", circle, line(0, 30, 80, 30), {{40, 30}}},
        {"a tangent", circle, line(-80, 50, 80, 50), {{0, 50}}},
        {"a vertex on the circle", circle, TKSLShape::Segments({{90, 40}, {30, 40}, {90, 80}}, false), {{30, 40}}},
        {"the arc's lower half", lower, line(30, -80, 30, 80), {{30, 40}}},
        {"its ends", upper, line(-80, 0, 80, 0), {{-50, 0}, {50, 0}}},
        {"circle and arc", lower, TKSLShape::Circle(60, 0, 50), {{30, 40}}},
        {"circles that touch", circle, TKSLShape::Circle(100, 0, 50), {{50, 0}}},
        {"the same circle", circle, circle, {}},
        {"about the same centre, almost", circle, TKSLShape::Circle(1, 0, 53), {}},
        {"ellipse and its outer circle", TKSLShape::Circle(0, 0, 100), ellipse, {{-100, 0}, {100, 0}}},
        {"the same ellipse", ellipse, ellipse, {}},
        {"a circle as an ellipse, grown", TKSLShape::Ellipse(0, 0, 51, 51), circle, {}},
        {"a short line", large, line(-8'000'001, 3'000'000, -7'999'999, 3'000'000), {{-8'000'000, 3'000'000}}},
        {"no radius", ellipse, TKSLShape::Ellipse(0, 0, 0, 80), {}},
    };
    for (const auto& row : rows) {
        EXPECT_THAT(CrossingsOf(row.a, row.b), testing::UnorderedElementsAreArray(row.expected)) << row.what;
        EXPECT_THAT(CrossingsOf(row.b, row.a), testing::UnorderedElementsAreArray(row.expected)) << row.what;
    }
}

// The implicit function of an oval, and the distance of a point to a segment or, nearly, to an oval.
double Implicit(const TKSLShape& oval, double x, double y) {
    const double u = (x - double(oval.cx)) / double(oval.rx), v = (y - double(oval.cy)) / double(oval.ry);
    return u * u + v * v - 1;
}

double Off(const TKSLShape& shape, TKSLPto point) {
    if (shape.kind == skSegments) {
        const TKSLPto a = shape.points[0], b = shape.points[1];
        const double dx = double(b.bX - a.bX), dy = double(b.bY - a.bY);
        const double ax = double(point.bX - a.bX), ay = double(point.bY - a.bY);
        const double t = std::clamp((ax * dx + ay * dy) / (dx * dx + dy * dy), 0.0, 1.0);
        return std::hypot(ax - t * dx, ay - t * dy);
    }
    const double x = double(point.bX), y = double(point.bY), rx = double(shape.rx), ry = double(shape.ry);
    const double gradient = 2 * std::hypot((x - double(shape.cx)) / rx / rx, (y - double(shape.cy)) / ry / ry);
    return std::fabs(Implicit(shape, x, y)) / gradient;
}

// Changes of sign of the implicit function of `b` along `a`; none when `a` comes near to touching it.
std::optional<int> CountBySampling(const TKSLShape& a, const TKSLShape& b) {
    constexpr int samples = 6000;
    const bool segment = a.kind == skSegments;
    const auto value = [&](int i) {
        const double t = double(i) / samples, c = std::cos(2 * Pi * t), s = std::sin(2 * Pi * t);
        if (!segment)
            return Implicit(b, double(a.cx) + double(a.rx) * c, double(a.cy) + double(a.ry) * s);
        const TKSLPto p = a.points[0], q = a.points[1];
        return Implicit(b, double(p.bX) + t * double(q.bX - p.bX), double(p.bY) + t * double(q.bY - p.bY));
    };
    int count = 0;
    for (int i = 0; i < samples; ++i) {
        const double last = value(i - 1), here = value(i), next = value(i + 1);
        const bool turns = (here - last) * (next - here) <= 0 || (segment && (i == 0 || i == samples - 1));
        if (turns && std::min({std::fabs(here), std::fabs(last), std::fabs(next)}) < 1e-3)
            return std::nullopt;
        count += (here < 0) != (next < 0);
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
            const double area = TDraw2D::CrossProduct(v[a], v[a + 1], v[b], v[b + 1], v[c], v[c + 1]);
            return (area > 0) - (area < 0);
        };
        const bool crosses = side(0, 2, 4) * side(0, 2, 6) <= 0 && side(4, 6, 0) * side(4, 6, 2) <= 0;
        const TKSLShape a = TKSLShape::Segments({{v[0], v[1]}, {v[2], v[3]}}, false),
                        b = TKSLShape::Segments({{v[4], v[5]}, {v[6], v[7]}}, false);
        const TKSLPtoA points = CrossingsOf(a, b);
        for (TKSLPto point : points)
            EXPECT_TRUE(Off(a, point) <= 1 && Off(b, point) <= 1) << round;
        // On the small grid a crossing half a unit beyond an end rounds onto it, and segments lie on each other.
        EXPECT_TRUE(size == 50 || points.size() == (crosses ? 1u : 0u)) << round;
        crossed += crosses;
    }
    EXPECT_GT(crossed, 500);
}

constexpr Base Lowest = std::numeric_limits<Base>::min(), Highest = std::numeric_limits<Base>::max();

// Calls an operation with coordinates from both ends of their range; other inputs are zero.
struct Extremes {
    std::mt19937 random{3};

    void Fill(auto&) {}
    void Fill(Base& value) {
        constexpr Base values[] = {Lowest, Lowest + 1, -1, 0, 1, Base(1) << 53, Highest - 1, Highest};
        value = values[random() % std::size(values)];
    }
    void Fill(TKSLRect& rect) { Fill(rect.Left), Fill(rect.Top), Fill(rect.Right), Fill(rect.Bottom); }
    template <class Result, class... Inputs>
    void Call(Result (*operation)(Inputs...)) {
        std::tuple<std::remove_cvref_t<Inputs>...> inputs;
        std::apply([&](auto&... input) { (Fill(input), ...), operation(input...); }, inputs);
    }
    void CallAll(auto... operations) { (Call(operations), ...); }
};

// Runs under the sanitizers; what is checked is that no answer leaves its range.
TEST(Crossings, LimitsOfTheCoordinates) {
    using D = TDraw2D;
    Extremes extremes;
    for (int round = 0; round < 2000; ++round) {
        extremes.CallAll(D::PointSide, D::DistancePointToLine, D::AnglePointToLine, D::CircleThreePoints,
                         D::ArcThreePoints, D::PointOnCircle, D::PointOnEllipse, D::PointInBezier, D::PointInLine,
                         D::PointOnSegment, D::PosPoint, D::DrawArrowArc, D::DrawLeft, D::DrawParalLine, D::PosMidParal,
                         D::IntersectLines, D::LinePerpenFromPoint, D::RectangleIntersectLine, D::LineCrossCircle,
                         D::LineCrossEllipse, D::LineCrossRect, D::CircleCrossCircle, D::ArcIntersectsRect,
                         D::EllipseIntersectsRect, D::ExtendLines, D::ExtendLineToCircle, D::ExtendLineToEllipse,
                         D::ExtendLineToRectangle, D::ExtendLineToArc, D::TrimLineAtArc, D::JoinLines);
        Base v[10];
        for (Base& value : v)
            extremes.Fill(value);
        const TKSLShape shapes[] = {TKSLShape::Segments({{v[0], v[1]}, {v[2], v[3]}}, true),
                                    TKSLShape::Circle(v[4], v[5], v[6]), TKSLShape::Arc(v[7], v[8], v[9], 1, 0, true),
                                    TKSLShape::Ellipse(v[0], v[3], v[6], v[9])};
        for (const TKSLShape& first : shapes)
            for (const TKSLShape& second : shapes)
                EXPECT_LE(CrossingsOf(first, second).size(), 4u);
    }
    EXPECT_EQ(D::PointSide(Lowest, Lowest, Highest, Lowest, 0, 0), Highest);
    const TKSLShape falling = TKSLShape::Segments({{-Highest, -Highest}, {Highest, Highest}}, false);
    EXPECT_EQ(CrossingsOf(falling, TKSLShape::Segments({{-1, 1}, {1, -1}}, false)), (TKSLPtoA{{0, 0}}));
}

} // namespace
} // namespace vagrel
