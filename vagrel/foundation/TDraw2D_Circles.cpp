// SPDX-License-Identifier: MIT
// Circles, arcs, ellipses and cubics: making them and hitting them.
#include <vagrel/foundation/TDraw2D.h>

#include <vagrel/foundation/TDraw2D_p.h>

namespace vagrel {

using namespace detail;

std::optional<TCircle2D> detail::CircumCircle(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                                              std::int64_t x3, std::int64_t y3) {
    // Relative to point 1, which keeps the digits of figures far from the origin.
    const TInt128 area = Cross(Span(x2, x1), Span(y2, y1), Span(x3, x1), Span(y3, y1));
    if (area == 0)
        return std::nullopt;
    const double bx = Delta(x2, x1), by = Delta(y2, y1), cx = Delta(x3, x1), cy = Delta(y3, y1);
    const double b2 = bx * bx + by * by, c2 = cx * cx + cy * cy, divisor = 2 * double(area);
    const double ux = (cy * b2 - by * c2) / divisor, uy = (bx * c2 - cx * b2) / divisor;
    return TCircle2D{double(x1) + ux, double(y1) + uy, std::sqrt(ux * ux + uy * uy)};
}

bool TDraw2D::CircleTwoPoints(Base x1, Base y1, Base x2, Base y2, Base& cx, Base& cy, Base& r) {
    r = Round(Magnitude(Delta(x2, x1), Delta(y2, y1)) / 2);
    cx = Round(double(TInt128(x1) + x2) / 2);
    cy = Round(double(TInt128(y1) + y2) / 2);
    return true;
}

bool TDraw2D::CircleTwoPoints(double x1, double y1, double x2, double y2, float& cx, float& cy, float& r) {
    r = float(Round(Magnitude(x2 - x1, y2 - y1) / 2));
    cx = float((x1 + x2) / 2), cy = float((y1 + y2) / 2);
    return true;
}

bool TDraw2D::CircleThreePoints(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base& cx, Base& cy, Base& r) {
    const auto circle = CircumCircle(x1, y1, x2, y2, x3, y3);
    if (!circle)
        return false;
    cx = Round(circle->x), cy = Round(circle->y), r = Round(circle->r);
    return r > 0;
}

bool TDraw2D::ArcThreePoints(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base& cx, Base& cy, Base& r,
                             double& angStart, double& angEnd, double& angSweep, bool& ClockWise) {
    const auto circle = CircumCircle(x1, y1, x2, y2, x3, y3);
    if (!circle)
        return false;
    cx = Round(circle->x), cy = Round(circle->y), r = Round(circle->r);
    angStart = NormalizeAngle(std::atan2(double(y1) - circle->y, double(x1) - circle->x));
    angEnd = NormalizeAngle(std::atan2(double(y3) - circle->y, double(x3) - circle->x));
    ClockWise = CrossProduct(x1, y1, x2, y2, x3, y3) > 0;
    angSweep = ArcSweep(angStart, angEnd, ClockWise);
    if (!ClockWise)
        angSweep = -angSweep;
    return true;
}

bool TDraw2D::PointInCircle(Base cx, Base cy, Base r, Base posX, Base posY, Base gap) {
    return Magnitude(Delta(posX, cx), Delta(posY, cy)) <= double(r) + double(gap);
}

bool TDraw2D::PointOnCircle(Base cx, Base cy, Base r, Base posX, Base posY, Base gap) {
    const double distance = Magnitude(Delta(posX, cx), Delta(posY, cy));
    return distance >= double(r) - double(gap) && distance <= double(r) + double(gap);
}

bool TDraw2D::PointInEllipse(Base cx, Base cy, Base rx, Base ry, Base posX, Base posY) {
    if (rx < 1 || ry < 1)
        return false;
    const double dx = Delta(posX, cx) / double(rx), dy = Delta(posY, cy) / double(ry);
    return dx * dx + dy * dy <= 1;
}

bool TDraw2D::PointOnEllipse(Base cx, Base cy, Base rx, Base ry, Base posX, Base posY, Base gap) {
    const Base half = gap / 2;
    return PointInEllipse(cx, cy, AddSat(rx, half), AddSat(ry, half), posX, posY) &&
           !PointInEllipse(cx, cy, SubSat(rx, half), SubSat(ry, half), posX, posY);
}

bool TDraw2D::PointInArc(Base cx, Base cy, Base r, Base posX, Base posY, Base aGap, double dgAngStart,
                         double dgAngSweep) {
    const double angle = NormalizeAngle(std::atan2(Delta(posY, cy), Delta(posX, cx)));
    return PointOnCircle(cx, cy, r, posX, posY, aGap) && angle <= dgAngStart && angle >= dgAngStart + dgAngSweep;
}

bool TDraw2D::PointInBezier(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base x, Base y,
                            Base gap) {
    // Relative to the point, so that the samples keep their digits.
    const double px[] = {Delta(x1, x), Delta(x2, x), Delta(x3, x), Delta(x4, x)};
    const double py[] = {Delta(y1, y), Delta(y2, y), Delta(y3, y), Delta(y4, y)};
    for (int sample = 0; sample <= 100; ++sample) {
        const double t = sample / 100.0, s = 1 - t;
        const double weights[] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
        double dx = 0, dy = 0;
        for (int i = 0; i < 4; ++i)
            dx += weights[i] * px[i], dy += weights[i] * py[i];
        if (Magnitude(dx, dy) < double(gap))
            return true;
    }
    return false;
}

} // namespace vagrel
