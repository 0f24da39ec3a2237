// SPDX-License-Identifier: MIT
// Lines that grow to a figure, are cut at an arc, or meet in a corner.
#include <vagrel/foundation/TDraw2D.h>

#include <vagrel/foundation/TDraw2D_p.h>

namespace vagrel {

using namespace detail;

namespace {

using Base = TDraw2D::Base;

// A parameter that a crossing has to exceed before it counts as ahead.
constexpr double AheadOf = 1e-10;

// A segment of which one end moves along its line. Parameters run from the kept end, 0, to the moving end, 1.
struct Stretch {
    TKSLPto kept;
    TKSLPto moving;
    bool movesFirst;

    Stretch(Base x1, Base y1, Base x2, Base y2, Base px, Base py) {
        const double first = TDraw2D::Magnitude(Delta(px, x1), Delta(py, y1));
        const double second = TDraw2D::Magnitude(Delta(px, x2), Delta(py, y2));
        movesFirst = first < second;
        kept = movesFirst ? TKSLPto{x2, y2} : TKSLPto{x1, y1};
        moving = movesFirst ? TKSLPto{x1, y1} : TKSLPto{x2, y2};
    }

    bool HasLength() const { return kept != moving; }
    TKSLPto At(double t) const { return {Along(kept.bX, moving.bX, t), Along(kept.bY, moving.bY, t)}; }
    /// A point `t` lengths ahead of the moving end.
    TKSLPto Ahead(double t) const {
        return {Round(double(moving.bX) + t * Delta(moving.bX, kept.bX)),
                Round(double(moving.bY) + t * Delta(moving.bY, kept.bY))};
    }
};

// The outputs of an operation; they hold the segment, set first, until an end moves.
struct Result {
    Base &x1, &y1, &x2, &y2;

    void Set(Base fromX, Base fromY, Base toX, Base toY) const { x1 = fromX, y1 = fromY, x2 = toX, y2 = toY; }
    bool Move(const Stretch& line, TKSLPto to) const {
        (line.movesFirst ? x1 : x2) = to.bX, (line.movesFirst ? y1 : y2) = to.bY;
        return true;
    }
};

// The equation of the stretched line against a circle, from the moving end ahead.
TQuadratic OnCircle(const Stretch& line, const TCircle2D& circle) {
    const double fx = double(line.moving.bX) - circle.x, fy = double(line.moving.bY) - circle.y;
    const double dx = Delta(line.moving.bX, line.kept.bX), dy = Delta(line.moving.bY, line.kept.bY);
    return LineOnCircle(fx, fy, dx, dy, dx * fy - dy * fx, circle.r);
}

// The nearer solution ahead of the moving end.
std::optional<double> NearestAhead(const TQuadratic& equation) {
    if (equation.discriminant < 0)
        return std::nullopt;
    for (double t : {equation.First(), equation.Second()})
        if (t > AheadOf)
            return t;
    return std::nullopt;
}

double DirectionFrom(const TCircle2D& circle, TKSLPto point) {
    return TDraw2D::NormalizeAngle(std::atan2(double(point.bY) - circle.y, double(point.bX) - circle.x));
}

// An arc through three points, by its circle and directions.
struct TArc2D {
    TCircle2D circle;
    double start;
    double end;
    bool clockwise;

    static std::optional<TArc2D> Through(TKSLPto a, TKSLPto b, TKSLPto c) {
        const auto circle = CircumCircle(a.bX, a.bY, b.bX, b.bY, c.bX, c.bY);
        if (!circle)
            return std::nullopt;
        return TArc2D{*circle, DirectionFrom(*circle, a), DirectionFrom(*circle, c),
                      TDraw2D::CrossProduct(a.bX, a.bY, b.bX, b.bY, c.bX, c.bY) > 0};
    }
    /// Both ends included.
    bool Contains(double angle) const {
        return TDraw2D::ArcParam(start, end, clockwise, angle) <= TDraw2D::ArcSweep(start, end, clockwise);
    }
};

// The parameter of the point along the segment (x1, y1)-(x2, y2), which has a length.
double Projection(Base x1, Base y1, Base x2, Base y2, Base px, Base py) {
    const Base dx = Span(x2, x1), dy = Span(y2, y1);
    return double(Dot(dx, dy, Span(px, x1), Span(py, y1))) / double(Dot(dx, dy, dx, dy));
}

} // namespace

bool TDraw2D::ExtendLines(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base, Base, Base& ax1,
                          Base& ay1, Base& ax2, Base& ay2) {
    const Result result{ax1, ay1, ax2, ay2};
    Base x, y;
    const bool crosses = IntersectLines(x1, y1, x2, y2, x3, y3, x4, y4, false, false, x, y);
    result.Set(x3, y3, x4, y4);
    if (!crosses || (Between(x, x3, x4) && Between(y, y3, y4)))
        return false;
    if (Projection(x3, y3, x4, y4, x, y) > 0)
        result.Set(x3, y3, x, y);
    else
        result.Set(x4, y4, x, y);
    return true;
}

bool TDraw2D::ExtendLineToCircle(Base cx, Base cy, Base r, Base x3, Base y3, Base x4, Base y4, Base px, Base py,
                                 Base& ax1, Base& ay1, Base& ax2, Base& ay2) {
    const Result result{ax1, ay1, ax2, ay2};
    result.Set(x3, y3, x4, y4);
    const Stretch line(x3, y3, x4, y4, px, py);
    if (!line.HasLength())
        return false;
    const auto t = NearestAhead(OnCircle(line, {double(cx), double(cy), double(r)}));
    return t && result.Move(line, line.Ahead(*t));
}

bool TDraw2D::ExtendLineToEllipse(Base cx, Base cy, Base rx, Base ry, Base x1, Base y1, Base x2, Base y2, Base px,
                                  Base py, Base& ax1, Base& ay1, Base& ax2, Base& ay2) {
    const Result result{ax1, ay1, ax2, ay2};
    result.Set(x1, y1, x2, y2);
    if (rx < 1 || ry < 1)
        return false;
    const Stretch line(x1, y1, x2, y2, px, py);
    // From the moving end ahead: the mirror of the line from the moving end back to the kept one.
    TQuadratic equation = LineOnEllipse(line.moving.bX, line.moving.bY, line.kept.bX, line.kept.bY, cx, cy, rx, ry);
    equation.b = -equation.b;
    if (equation.a < 1e-18)
        return false;
    if (std::fabs(equation.discriminant) < 1e-12)
        equation.discriminant = 0;
    const auto t = NearestAhead(equation);
    return t && result.Move(line, line.Ahead(*t));
}

bool TDraw2D::ExtendLineToRectangle(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base px,
                                    Base py, Base& ax1, Base& ay1, Base& ax2, Base& ay2) {
    const Result result{ax1, ay1, ax2, ay2};
    result.Set(x3, y3, x4, y4);
    const Stretch line(x3, y3, x4, y4, px, py);
    std::optional<double> nearest;
    const auto offer = [&](Base side, bool vertical) {
        const Base from = vertical ? line.kept.bX : line.kept.bY, to = vertical ? line.moving.bX : line.moving.bY;
        if (from == to)
            return;
        const double t = Delta(side, from) / Delta(to, from);
        const bool onSide = vertical ? Between(line.At(t).bY, y1, y2) : Between(line.At(t).bX, x1, x2);
        if (t >= 1 && onSide && (!nearest || t < *nearest))
            nearest = t;
    };
    offer(x1, true), offer(x2, true), offer(y1, false), offer(y2, false);
    return nearest && result.Move(line, line.At(*nearest));
}

bool TDraw2D::ExtendLineToPolyline(const TKSLPtoA& aPoints, Base x1, Base y1, Base x2, Base y2, Base px, Base py,
                                   bool isClose, Base& ax1, Base& ay1, Base& ax2, Base& ay2) {
    const Result result{ax1, ay1, ax2, ay2};
    result.Set(x1, y1, x2, y2);
    const Stretch line(x1, y1, x2, y2, px, py);
    const TKSLPto from = line.moving;
    const Base dx = Span(from.bX, line.kept.bX), dy = Span(from.bY, line.kept.bY);
    std::optional<double> nearest;
    for (std::size_t i = 0; i < aPoints.size(); ++i) {
        if (i + 1 == aPoints.size() && !isClose)
            break;
        const TKSLPto a = aPoints[i], b = aPoints[(i + 1) % aPoints.size()];
        const Base ex = Span(b.bX, a.bX), ey = Span(b.bY, a.bY);
        const TInt128 determinant = Cross(dx, dy, ex, ey);
        if (determinant == 0)
            continue;
        const Base fx = Span(a.bX, from.bX), fy = Span(a.bY, from.bY);
        const double t = double(Cross(fx, fy, ex, ey)) / double(determinant);
        const double onSegment = double(Cross(fx, fy, dx, dy)) / double(determinant);
        if (t > 1e-6 && onSegment >= 0 && onSegment <= 1 && (!nearest || t < *nearest))
            nearest = t;
    }
    if (!nearest)
        return false;
    const TKSLPto to = line.Ahead(*nearest);
    return to != from && to.bX >= 1 && to.bY >= 1 && result.Move(line, to);
}

bool TDraw2D::ExtendLineToArc(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base x5, Base y5,
                              Base px, Base py, Base& ax1, Base& ay1, Base& ax2, Base& ay2) {
    const Result result{ax1, ay1, ax2, ay2};
    result.Set(x4, y4, x5, y5);
    const auto arc = TArc2D::Through({x1, y1}, {x2, y2}, {x3, y3});
    const Stretch line(x4, y4, x5, y5, px, py);
    if (!arc || !line.HasLength())
        return false;
    const auto t = NearestAhead(OnCircle(line, arc->circle));
    return t && arc->Contains(DirectionFrom(arc->circle, line.Ahead(*t))) && result.Move(line, line.Ahead(*t));
}

bool TDraw2D::TrimLineAtArc(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base x5, Base y5,
                            Base px, Base py, Base& ax1, Base& ay1, Base& ax2, Base& ay2) {
    const Result result{ax1, ay1, ax2, ay2};
    result.Set(x4, y4, x5, y5);
    const auto arc = TArc2D::Through({x1, y1}, {x2, y2}, {x3, y3});
    const Stretch line(x4, y4, x5, y5, px, py);
    if (!arc || !line.HasLength())
        return false;
    TQuadratic equation = OnCircle(line, arc->circle);
    if (equation.discriminant < 0)
        return false;
    const auto onArc = [&arc](double angle) {
        for (double offset : {0.0, -0.001, 0.001})
            if (arc->Contains(NormalizeAngle(angle + offset)))
                return true;
        return false;
    };
    // In the direction of the segment as it was given, so that a tie falls on its later crossing.
    const auto pointAt = [=](double t) { return TKSLPto{Along(x4, x5, t), Along(y4, y5, t)}; };
    const double pick = Projection(x4, y4, x5, y5, px, py);
    const double first = line.movesFirst ? -equation.Second() : 1 + equation.First();
    const double second = line.movesFirst ? -equation.First() : 1 + equation.Second();
    std::optional<double> chosen;
    for (double t : {first, second})
        if (t >= -AheadOf && t <= 1 + AheadOf && onArc(DirectionFrom(arc->circle, pointAt(t))) &&
            (!chosen || std::fabs(t - pick) <= std::fabs(*chosen - pick)))
            chosen = t;
    return chosen && result.Move(line, pointAt(*chosen));
}

bool TDraw2D::JoinLines(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base px1, Base py1,
                        Base px2, Base py2, Base& ax1, Base& ay1, Base& ax2, Base& ay2, Base& ax3, Base& ay3, Base& ax4,
                        Base& ay4) {
    Base x, y;
    // Segments without length are parallel to everything.
    const bool crosses = IntersectLines(x1, y1, x2, y2, x3, y3, x4, y4, false, false, x, y);
    const Result first{ax1, ay1, ax2, ay2}, second{ax3, ay3, ax4, ay4};
    first.Set(x1, y1, x2, y2), second.Set(x3, y3, x4, y4);
    if (!crosses)
        return false;
    if (Projection(x1, y1, x2, y2, px1, py1) <= Projection(x1, y1, x2, y2, x, y))
        first.Set(x1, y1, x, y);
    else
        first.Set(x, y, x2, y2);
    const bool keepsFirst = Projection(x3, y3, x4, y4, px2, py2) <= Projection(x3, y3, x4, y4, x, y);
    second.Set(keepsFirst ? x3 : x4, keepsFirst ? y3 : y4, x, y);
    return true;
}

} // namespace vagrel
