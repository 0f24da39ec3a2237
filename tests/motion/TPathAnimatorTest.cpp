// SPDX-License-Identifier: MIT
// Paths against closed forms and fine integrals, and the clock.
#include <vagrel/motion/TPathAnimator.h>

#include <vagrel/foundation/Exceptions.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

namespace vagrel {
namespace {

using std::numbers::pi;
using testing::ElementsAre;
using testing::IsEmpty;

struct TPathProbe : TPathAnimator {
    using TPathAnimator::GetDistanceAdjustedProgress;
    double x = -1, y = -1, rotation = -1, rest = -1;

    TPathProbe(TPathType type, std::vector<TPathSegment> segments) { SetPath(type, std::move(segments)); }
    TPathProbe(TPathType type, std::vector<TPathSegment> segments, double total) : TPathProbe(type, segments) {
        SetTiming(total, 1);
    }
    bool To(double time) { return CalculatePosition(time, x, y, rotation); }
    bool Go(double delta) { return Update(delta, x, y, rotation, rest); }
};

TPathSegment Line(TPoint2D a, TPoint2D b, double speed = 0) {
    return {.StartPoint = a, .EndPoint = b, .SpeedFactor = speed};
}
TPathSegment Round(double radius, double radiusY, double start, double end) {
    return {.StartPoint = {10, 20}, .Radius = radius, .RadiusY = radiusY, .StartAngle = start, .EndAngle = end};
}
TPathSegment Bezier(TPoint2D a, TPoint2D b, TPoint2D c, TPoint2D d) {
    return {.StartPoint = a, .EndPoint = d, .ControlPoint1 = b, .ControlPoint2 = c};
}
const TPathSegment Hill = Bezier({0, 0}, {0, 4}, {4, 4}, {4, 0}), Flat = Bezier({0, 0}, {2, 1}, {4, 2}, {6, 3});

TEST(TPathAnimator, PlacesFollowClosedForms) {
    const double s = std::sqrt(8), r = std::sqrt(3), turn = 24 * std::comp_ellint_2(s / 3);
    const struct {
        const char* what;
        TPathType type;
        std::vector<TPathSegment> path;
        double time, x, y, rotation, length, accuracy = 1e-9;
    } rows[] = {
        {"line", ptLine, {Line({1, 1}, {4, 5})}, 0.5, 2.5, 3, std::atan2(4, 3), 5},
        {"second leg", ptPolyline, {Line({0, 0}, {6, 0}), Line({6, 0}, {6, -2})}, 0.875, 6, -1, -pi / 2, 8},
        {"joint", ptPolyline, {Line({0, 0}, {6, 0}), Line({6, 0}, {6, -2})}, 0.75, 6, 0, 0, 8},
        {"speeds", ptLine, {Line({0, 0}, {4, 0}, 2), Line({4, 0}, {8, 0}, -3)}, 0.5, 5, 0, 0, 8},
        {"no length", ptLine, {Line({3, 3}, {3, 3}), Line({3, 3}, {3, 3})}, 0.5, 3, 3, 0, 0.000002},
        {"unknown kind", TPathType(-1), {Line({0, 0}, {2, 0})}, 0.5, 1, 0, 0, 2},
        {"circle", ptCircle, {Round(4, 0, 77, 78)}, 0.125, 10 + s, 20 + s, pi * 0.75, 8 * pi},
        {"circle end", ptCircle, {Round(4, 0, 0, 0)}, 1, 14, 20, pi * 2.5, 8 * pi},
        {"arc", ptArc, {Round(4, 0, 0, 90)}, 0.5, 10 + s, 20 + s, pi * 0.75, 2 * pi},
        {"clockwise arc", ptArc, {Round(4, 0, 90, 0)}, 0.5, 10 + s, 20 + s, -pi / 4, 2 * pi},
        {"arc of no angle", ptArc, {Round(4, 0, 90, 90)}, 0.5, 10, 24, pi, 0.000001},
        {"whole ellipse", ptEllipse, {Round(6, 2, 30, 30)}, 1, 10 + 3 * r, 21, std::atan2(r, -3), turn, 0.02},
        {"half ellipse", ptEllipse, {Round(6, 2, 180, 0)}, 0.5, 10, 22, 0, turn / 2, 0.01},
        {"Bezier", ptBezier, {Hill}, 2.375 / 8, 0.625, 2.25, std::atan2(4, 3), 8, 0.002},
        {"straight Bezier", ptBezier, {Flat}, 0.3, 1.8, 0.9, std::atan2(1, 2), std::sqrt(45)},
    };
    for (const auto& row : rows) {
        TPathProbe path(row.type, row.path, 1);
        EXPECT_TRUE(path.To(row.time)) << row.what;
        EXPECT_NEAR(path.x, row.x, row.accuracy) << row.what;
        EXPECT_NEAR(path.y, row.y, row.accuracy) << row.what;
        EXPECT_NEAR(path.rotation, row.rotation, row.accuracy) << row.what;
        EXPECT_NEAR(path.GetPathLength(), row.length, row.accuracy) << row.what;
    }
}

// The way that truly lies behind differs from the even one by at most `error` of the length; without the chords it
// would be more than a hundred times as much.
TEST(TPathAnimator, CurvesRunEvenly) {
    const struct {
        TPathType type;
        TPathSegment segment;
        double (*speed)(double t);
        double error;
    } rows[] = {
        {ptEllipse, Round(6, 2, 90, 90),
         [](double t) { return std::hypot(6 * std::cos(2 * pi * t), 2 * std::sin(2 * pi * t)); }, 0.00022},
        {ptBezier, Hill, [](double t) { return 12 - 24 * t + 24 * t * t; }, 0.00017},
        {ptBezier, Bezier({0, 0}, {0, 90}, {20, -40}, {60, 0}),
         [](double t) { return std::hypot(120 * t, 270 - 1320 * t + 1170 * t * t); }, 0.00064},
    };
    for (const auto& row : rows) {
        constexpr int steps = 100000;
        std::vector<double> way(steps + 1);
        for (int i = 0; i < steps; ++i)
            way[i + 1] = way[i] + row.speed((i + 0.5) / steps);
        const TPathProbe path(row.type, {row.segment});
        double error = 0, bare = 0;
        for (double p = 0; p < 1; p += 1.0 / 997) {
            const auto off = [&](double t) { return std::abs(way[std::lround(t * steps)] / way[steps] - p); };
            error = std::max(error, off(path.GetDistanceAdjustedProgress(0, p)));
            bare = std::max(bare, off(p));
        }
        EXPECT_LT(error, row.error) << "row " << &row - rows;
        EXPECT_GT(bare, 100 * error) << "row " << &row - rows;
    }
}

TEST(TPathAnimator, EasingsFollowClosedForms) {
    const std::tuple<TPathEasing, double, double> rows[] = {
        {peLinear, 0.375, 0.75},       {peEaseIn, 0.140625, 0.5625},        {peEaseOut, 0.609375, 0.9375},
        {peEaseInOut, 0.28125, 0.875}, {peSmoothStep, 0.31640625, 0.84375}, {TPathEasing(5), 0.375, 0.75},
    };
    for (const auto& [easing, threeEighths, threeQuarters] : rows) {
        TPathProbe path(ptLine, {Line({0, 0}, {1, 0})}, 8);
        path.Go(3);
        path.SetEasing(easing);
        EXPECT_NEAR(path.GetPathProgress(), 0.375, 1e-12) << "the place stays, easing " << easing;
        EXPECT_TRUE(path.To(3) && path.x == threeEighths) << path.x << " easing " << easing;
        EXPECT_TRUE(path.Seek(threeQuarters, path.x, path.y, path.rotation));
        EXPECT_NEAR(path.GetProgress(), 0.75, 1e-12) << "easing " << easing;
        EXPECT_NEAR(path.x, threeQuarters, 1e-12) << "easing " << easing;
    }
}

TEST(TPathAnimator, ClockRunsBothWaysAndGivesTheRestBack) {
    TPathProbe path(ptLine, {Line({0, 0}, {100, 0})}, 10);
    path.UpdateTimeScale(2);
    EXPECT_TRUE(path.Go(2) && path.x == 40 && path.rest == 0);
    path.SetTiming(20, 4);
    EXPECT_EQ(path.GetProgress(), 0.4);
    EXPECT_TRUE(!path.Go(3) && path.x == 100 && path.rest == 0) << "a delta of exactly the time left";
    EXPECT_TRUE(!path.Go(1.5) && path.rest == 1.5);
    path.SetReverse(true);
    EXPECT_TRUE(path.Go(1) && path.x == 80);
    EXPECT_TRUE(!path.Go(5) && path.x == 0 && path.rest == 1);
    path.Reset();
    EXPECT_EQ(path.GetProgress(), 1);
    EXPECT_FALSE(path.To(-0.1) || path.To(20.1) || path.To(NAN));
}

TEST(TPathAnimator, NothingIsWrittenBeforeThePathIsReady) {
    TPathProbe untimed(ptLine, {Line({5, 5}, {6, 6})}), empty(ptBezier, {}, 1);
    EXPECT_TRUE(!untimed.Go(3) && untimed.rest == 3);
    EXPECT_FALSE(untimed.Seek(0.5, untimed.x, untimed.y, untimed.rotation) || empty.Go(0.5) || empty.To(0));
    EXPECT_THAT(empty.GetCrossedWaypoints(0, 1), IsEmpty());
    for (const TPathProbe* path : {&untimed, &empty})
        EXPECT_TRUE(path->x == -1 && path->y == -1 && path->rotation == -1);
}

TEST(TPathAnimator, HeadingTurnsTheShortWayAtABezierCorner) {
    TPathProbe path(ptBezier, {Bezier({6, 3}, {4, 2}, {2, 1}, {0, 0}), Bezier({0, 0}, {-2, 1}, {-4, 2}, {-6, 3})}, 1);
    const double out = std::atan2(1, -2), in = 2 * pi - out;
    const std::pair<double, double> rows[] = {{0.494, -out}, {0.496, in + (out - in) * 0.2}, {0.5, out}, {0.999, out}};
    for (const auto& [time, heading] : rows)
        EXPECT_TRUE(path.To(time) && std::abs(path.rotation - heading) < 1e-9) << time << " gives " << path.rotation;
}

TEST(TPathAnimator, WaypointsAreCrossedInTheOrderOfTheWay) {
    TPathProbe path(ptPolyline, {Line({0, 0}, {1, 0}), Line({1, 0}, {3, 0}), Line({3, 0}, {4, 0})});
    EXPECT_THAT(path.GetCrossedWaypoints(0, 1), ElementsAre(1, 2, 3));
    EXPECT_THAT(path.GetCrossedWaypoints(1, 0), ElementsAre(2, 1, 0));
    EXPECT_THAT(path.GetCrossedWaypoints(0.1, 0.25), ElementsAre(1));
    EXPECT_THAT(path.GetCrossedWaypoints(0.25, 0.25), IsEmpty());
    EXPECT_THAT(path.GetCrossedWaypoints(0.75, 0.25), ElementsAre(1));
    EXPECT_THAT(path.GetCrossedWaypoints(0.25, 0.75), ElementsAre(2)) << "the one left was told on arrival";
    EXPECT_THAT(path.GetCrossedWaypoints(0.25, 0), ElementsAre(0)) << "backwards, too";
    path.SetEasing(peEaseIn);
    EXPECT_THAT(path.GetCrossedWaypoints(0.8, 0.9), ElementsAre(2)) << "arguments are progress in time";
    EXPECT_THAT(path.GetCrossedWaypoints(0.2, 0.4), IsEmpty());
}

TEST(TPathAnimator, MisuseThrowsAndChangesNothing) {
    TPathProbe path(ptLine, {Line({0, 0}, {1, 0})}, 4);
    const std::pair<std::function<void()>, std::string> rows[] = {
        {[&] { path.SetTiming(0, 1); }, "TotalTime must be greater than zero"},
        {[&] { path.SetTiming(9, 0); }, "TimeScale must be greater than zero"},
        {[&] { path.UpdateTimeScale(NAN); }, "TimeScale must be greater than zero"},
        {[&] { path.Seek(1.01, path.x, path.y, path.rotation); }, "Progress must be between zero and one"},
        {[&] { path.GetCrossedWaypoints(0, -0.01); }, "Progress must be between zero and one"},
        {[&] { path.Go(-1); }, "DeltaTime must be zero or greater"},
    };
    for (const auto& [misuse, message] : rows)
        EXPECT_THAT(misuse, testing::ThrowsMessage<EArgumentOutOfRangeException>(message));
    EXPECT_TRUE(path.GetTimeScale() == 1 && path.To(4) && !path.To(9));
}

} // namespace
} // namespace vagrel
