// SPDX-License-Identifier: MIT
// Crossings of lines with lines and figures, of circles with circles, and of figures with rectangles.
#include <vagrel/foundation/TDraw2D.h>

#include <vagrel/foundation/TDraw2D_p.h>

namespace vagrel {

using namespace detail;

namespace {

// The crossings of a circle about the origin with one about (dx, dy). Both points are set unless the count is 0.
int CrossCircles(double dx, double dy, double r1, double r2, double tolerance, TPoint2D& first, TPoint2D& second) {
    const double distance = std::sqrt(dx * dx + dy * dy);
    if (distance < 1e-10 || distance > r1 + r2 + tolerance || distance < std::fabs(r1 - r2) - tolerance)
        return 0;
    const double along = ((r1 - r2) * (r1 + r2) / distance + distance) / 2;
    const double height = std::sqrt(std::max(0.0, (r1 - along) * (r1 + along)));
    const double ux = dx / distance, uy = dy / distance;
    first = {along * ux + height * uy, along * uy - height * ux};
    second = {along * ux - height * uy, along * uy + height * ux};
    return height < tolerance ? 1 : 2;
}

// The solutions on the line through (x1, y1) and (x2, y2): one where it touches, twice.
std::int16_t Solve(const TQuadratic& line, std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2,
                   std::int64_t& p1x, std::int64_t& p1y, std::int64_t& p2x, std::int64_t& p2y) {
    const bool touches = line.discriminant < 1e-7;
    const double first = touches ? line.Tangent() : line.First(), second = touches ? first : line.Second();
    p1x = Along(x1, x2, first), p1y = Along(y1, y2, first);
    p2x = Along(x1, x2, second), p2y = Along(y1, y2, second);
    return touches ? 1 : 2;
}

} // namespace

TQuadratic detail::LineOnEllipse(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, std::int64_t cx,
                                 std::int64_t cy, std::int64_t rx, std::int64_t ry) {
    const double cross = double(Cross(Span(x2, x1), Span(y2, y1), Span(x1, cx), Span(y1, cy)));
    const double w = double(rx), h = double(ry);
    return LineOnCircle(Delta(x1, cx) / w, Delta(y1, cy) / h, Delta(x2, x1) / w, Delta(y2, y1) / h, cross / w / h, 1);
}

bool TDraw2D::IntersectLines(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, bool Cross,
                             bool EndLine, Base& xi, Base& yi) {
    const Base dx = Span(x2, x1), dy = Span(y2, y1), ex = Span(x4, x3), ey = Span(y4, y3);
    const TInt128 determinant = detail::Cross(dx, dy, ex, ey);
    if (determinant == 0)
        return false;
    const double t = double(detail::Cross(Span(x3, x1), Span(y3, y1), ex, ey)) / double(determinant);
    const Base x = Along(x1, x2, t), y = Along(y1, y2, t);
    xi = x, yi = y;
    if (!Cross)
        return true;
    const auto isAt = [x, y](Base endX, Base endY) { return x == endX && y == endY; };
    if (!EndLine && (isAt(x1, y1) || isAt(x2, y2) || isAt(x3, y3) || isAt(x4, y4)))
        return false;
    return Between(x, x1, x2) && Between(y, y1, y2) && Between(x, x3, x4) && Between(y, y3, y4);
}

bool TDraw2D::LinePerpenFromPoint(Base x1, Base y1, Base x2, Base y2, Base px, Base py, bool Cross, Base& xi,
                                  Base& yi) {
    if ((y1 == y2 && py == y1) || (x1 == x2 && px == x1))
        return false;
    const Base dx = Span(x2, x1), dy = Span(y2, y1);
    const TInt128 square = Dot(dx, dy, dx, dy), along = Dot(dx, dy, Span(px, x1), Span(py, y1));
    if (square == 0 || (Cross && (along < 0 || along > square)))
        return false;
    const double t = double(along) / double(square);
    xi = Along(x1, x2, t), yi = Along(y1, y2, t);
    return true;
}

std::int16_t TDraw2D::LineCrossCircle(Base x1, Base y1, Base x2, Base y2, Base cx, Base cy, Base r, Base& p1x,
                                      Base& p1y, Base& p2x, Base& p2y) {
    const double cross = double(Cross(Span(x2, x1), Span(y2, y1), Span(x1, cx), Span(y1, cy)));
    const TQuadratic line = LineOnCircle(Delta(x1, cx), Delta(y1, cy), Delta(x2, x1), Delta(y2, y1), cross, double(r));
    if (line.a <= 1e-7)
        return 0;
    const double slack = r == 0 ? 0 : 40 * line.a * double(r);
    if (line.discriminant < 0 && slack < -line.discriminant)
        return 0;
    return Solve(line, x1, y1, x2, y2, p1x, p1y, p2x, p2y);
}

std::int16_t TDraw2D::LineCrossEllipse(Base x1, Base y1, Base x2, Base y2, Base cx, Base cy, Base rx, Base ry,
                                       Base& p1x, Base& p1y, Base& p2x, Base& p2y) {
    if (rx == 0 || ry == 0)
        return 0;
    const TQuadratic line = LineOnEllipse(x1, y1, x2, y2, cx, cy, rx, ry);
    if (line.a <= 1e-12 || line.discriminant < 0)
        return 0;
    return Solve(line, x1, y1, x2, y2, p1x, p1y, p2x, p2y);
}

std::int16_t TDraw2D::LineCrossRect(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base& p1x,
                                    Base& p1y, Base& p2x, Base& p2y) {
    const Base left = std::min(x3, x4), right = std::max(x3, x4), top = std::min(y3, y4), bottom = std::max(y3, y4);
    const Base sides[4][4] = {
        {left, top, left, bottom}, {right, top, right, bottom}, {left, top, right, top}, {left, bottom, right, bottom}};
    std::int16_t count = 0;
    for (const auto& side : sides) {
        Base x, y;
        if (count == 2 || !IntersectLines(x1, y1, x2, y2, side[0], side[1], side[2], side[3], true, true, x, y) ||
            (count == 1 && x == p1x && y == p1y))
            continue;
        (count == 0 ? p1x : p2x) = x, (count == 0 ? p1y : p2y) = y;
        ++count;
    }
    return count;
}

std::int16_t TDraw2D::CircleCrossCircle(Base c1x, Base c1y, Base r1, Base c2x, Base c2y, Base r2, Base& p1x, Base& p1y,
                                        Base& p2x, Base& p2y) {
    // Relative to the first centre, which keeps the digits of circles far from the origin.
    TPoint2D first, second;
    const int count = CrossCircles(Delta(c2x, c1x), Delta(c2y, c1y), double(r1), double(r2), 1, first, second);
    const auto place = [count](Base centre, double offset) { return count == 0 ? 0 : Round(double(centre) + offset); };
    p1x = place(c1x, first.X), p1y = place(c1y, first.Y);
    p2x = place(c1x, second.X), p2y = place(c1y, second.Y);
    return std::int16_t(count);
}

std::int32_t TDraw2D::CircleCircleIntersections(double c1x, double c1y, double r1, double c2x, double c2y, double r2,
                                                double& p1x, double& p1y, double& p2x, double& p2y) {
    TPoint2D first, second;
    const int count = CrossCircles(c2x - c1x, c2y - c1y, r1, r2, 5, first, second);
    const auto place = [count](double centre, double offset) { return count == 0 ? 0 : centre + offset; };
    p1x = place(c1x, first.X), p1y = place(c1y, first.Y);
    p2x = place(c1x, second.X), p2y = place(c1y, second.Y);
    return count;
}

bool TDraw2D::RectangleIntersectLine(Base X1, Base Y1, Base X2, Base Y2, const TKSLRect& aRect) {
    TKSLRect box = aRect;
    box.NormalizeRect();
    // The parameters of the segment inside both slabs; an axis along which it does not run decides by itself.
    double from = 0, to = 1;
    const auto clip = [&from, &to](Base start, Base end, Base low, Base high) {
        if (std::max(start, end) < low || std::min(start, end) > high)
            return false;
        if (start == end)
            return true;
        const double span = Delta(end, start), a = Delta(low, start) / span, b = Delta(high, start) / span;
        from = std::max(from, std::min(a, b)), to = std::min(to, std::max(a, b));
        return true;
    };
    return clip(X1, X2, box.Left, box.Right) && clip(Y1, Y2, box.Top, box.Bottom) && from <= to;
}

bool TDraw2D::ArcIntersectsRect(Base CenterX, Base CenterY, Base Radius, double StartAngle, double EndAngle,
                                const TKSLRect& Rect) {
    TKSLRect box = Rect;
    box.NormalizeRect();
    const double radius = double(Radius);
    const double left = Delta(box.Left, CenterX), right = Delta(box.Right, CenterX);
    const double top = Delta(box.Top, CenterY), bottom = Delta(box.Bottom, CenterY);
    for (double angle : {StartAngle, EndAngle}) {
        const double x = radius * std::cos(angle), y = radius * std::sin(angle);
        if (x >= left && x <= right && y >= top && y <= bottom)
            return true;
    }
    // Where a side crosses the circle: at `offset` on its own axis, ± the other leg on the axis along which it runs.
    const auto crosses = [=](double offset, double low, double high, bool vertical) {
        if (std::fabs(offset) > radius)
            return false;
        const double leg = std::sqrt((radius - offset) * (radius + offset));
        for (double at : {-leg, leg})
            if (at >= low && at <= high &&
                IsAngleWithinArc(vertical ? std::atan2(at, offset) : std::atan2(offset, at), StartAngle, EndAngle))
                return true;
        return false;
    };
    return crosses(left, top, bottom, true) || crosses(right, top, bottom, true) || crosses(top, left, right, false) ||
           crosses(bottom, left, right, false);
}

bool TDraw2D::EllipseIntersectsRect(Base CenterX, Base CenterY, Base RadiusX, Base RadiusY, const TKSLRect& Rect) {
    if (RadiusX < 0 || RadiusY < 0)
        return false;
    TKSLRect box = Rect;
    box.NormalizeRect();
    const double dx = Delta(std::clamp(CenterX, box.Left, box.Right), CenterX);
    const double dy = Delta(std::clamp(CenterY, box.Top, box.Bottom), CenterY);
    const double rx = double(RadiusX), ry = double(RadiusY);
    if (std::fabs(dx) > rx || std::fabs(dy) > ry)
        return false;
    // With a radius of 0 the test on the ellipse's box has put the point on the line that is left of it.
    return RadiusX == 0 || RadiusY == 0 || (dx / rx) * (dx / rx) + (dy / ry) * (dy / ry) <= 1;
}

} // namespace vagrel
