// SPDX-License-Identifier: MIT
// Vectors, angles, and points at lines.
#include <vagrel/foundation/TDraw2D.h>

#include <vagrel/foundation/TDraw2D_p.h>
#include <vagrel/foundation/Utils.h>

namespace vagrel {

using namespace detail;

double TDraw2D::CrossProduct(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3) {
    return double(Cross(Span(x2, x1), Span(y2, y1), Span(x3, x1), Span(y3, y1)));
}

TDraw2D::Base TDraw2D::DotProduct(Base x1, Base y1, Base x2, Base y2) {
    constexpr Base lowest = std::numeric_limits<Base>::min(), highest = std::numeric_limits<Base>::max();
    TInt128 sum;
    if (__builtin_add_overflow(TInt128(x1) * x2, TInt128(y1) * y2, &sum))
        return highest;
    return Base(std::clamp<TInt128>(sum, lowest, highest));
}

double TDraw2D::Magnitude(double x, double y) { return std::sqrt(x * x + y * y); }

TDraw2D::Base TDraw2D::Int64Sqrt(Base aValue) { return Trunc(std::sqrt(double(std::max<Base>(aValue, 0)))); }

TKSLPto64 TDraw2D::VectorPerpendicular(Base X1, Base Y1, Base X2, Base Y2) { return {SubSat(Y1, Y2), SubSat(X2, X1)}; }
TKSLSPoint TDraw2D::VectorPerpendicular(float X1, float Y1, float X2, float Y2) { return {Y1 - Y2, X2 - X1}; }

TDraw2D::Base TDraw2D::PointSide(Base X1, Base Y1, Base X2, Base Y2, Base PX, Base PY) {
    const TKSLPto64 normal = VectorPerpendicular(X1, Y1, X2, Y2);
    return DotProduct(normal.X, normal.Y, SubSat(PX, X1), SubSat(PY, Y1));
}

TDraw2D::Base TDraw2D::Distance(Base x1, Base y1, Base x2, Base y2) { return vagrel::Distance(x1, y1, x2, y2); }

TDraw2D::Base TDraw2D::DistancePointToLine(Base pX, Base pY, Base ax1, Base ay1, Base ax2, Base ay2) {
    const Base dx = Span(ax2, ax1), dy = Span(ay2, ay1);
    const Base length = Trunc(std::sqrt(double(Dot(dx, dy, dx, dy))));
    if (length == 0)
        return 0;
    const TInt128 area = Cross(dx, dy, Span(pX, ax1), Span(pY, ay1));
    return Base(std::min<TInt128>((area < 0 ? -area : area) / length, std::numeric_limits<Base>::max()));
}

double TDraw2D::AnglePointToLine(Base pX, Base pY, Base ax1, Base ay1, Base ax2, Base ay2) {
    const double ux = Delta(ax2, ax1), uy = Delta(ay2, ay1), vx = Delta(pX, ax1), vy = Delta(pY, ay1);
    const double lengths = Magnitude(ux, uy) * Magnitude(vx, vy);
    return lengths == 0 ? 0 : std::acos(std::clamp((ux * vx + uy * vy) / lengths, -1.0, 1.0)) * 180 / Pi;
}

double TDraw2D::NormalizeAngle(double a) { return a >= 0 && a <= TwoPi ? a : a - std::floor(a / TwoPi) * TwoPi; }

double TDraw2D::AngleDiff(double a, double b) {
    const double difference = std::fabs(a - b);
    return difference > Pi ? TwoPi - difference : difference;
}

double TDraw2D::SweepCCW(double aStart, double aEnd) { return aEnd < aStart ? aEnd - aStart + TwoPi : aEnd - aStart; }

double TDraw2D::ArcSweep(double aStartAng, double aEndAng, bool aClockWise) {
    return aClockWise ? SweepCCW(aStartAng, aEndAng) : SweepCCW(aEndAng, aStartAng);
}

double TDraw2D::ArcParam(double startAng, double, bool aClockWise, double ang) {
    return ArcSweep(startAng, ang, aClockWise);
}

bool TDraw2D::ArcContainsAngle(double angStart, double angEnd, double angFind, bool ClockWise) {
    if (angStart > angEnd)
        return ArcContainsAngle(angEnd, angStart, angFind, !ClockWise);
    return ClockWise ? angFind >= angStart && angFind <= angEnd : angFind < angStart || angFind > angEnd;
}

bool TDraw2D::IsAngleWithinArc(double angle, double initialAngle, double finalAngle) {
    const auto reduce = [](double a) { return a - std::floor((a + Pi) / TwoPi) * TwoPi; };
    const double at = reduce(angle), from = reduce(initialAngle), to = reduce(finalAngle);
    return to < from ? at >= from || at <= to : at >= from && at <= to;
}

bool TDraw2D::PointInLine(Base x1, Base y1, Base x2, Base y2, Base posX, Base posY, Base gap) {
    const double dx = Delta(x2, x1), dy = Delta(y2, y1), vx = Delta(posX, x1), vy = Delta(posY, y1);
    const double square = dx * dx + dy * dy;
    const double t = square == 0 ? 0 : std::clamp((vx * dx + vy * dy) / square, 0.0, 1.0);
    return Magnitude(vx - t * dx, vy - t * dy) <= double(gap);
}

bool TDraw2D::PointOnSegment(Base aX, Base aY, Base aSX, Base aSY, Base aEX, Base aEY, double aTol) {
    const double length = Magnitude(Delta(aEX, aSX), Delta(aEY, aSY));
    if (length < 1e-9)
        return std::fabs(Delta(aX, aSX)) <= aTol && std::fabs(Delta(aY, aSY)) <= aTol;
    const Base widen = Round(aTol);
    const auto inRange = [widen](Base value, Base a, Base b) {
        return value >= SubSat(std::min(a, b), widen) && value <= AddSat(std::max(a, b), widen);
    };
    return inRange(aX, aSX, aEX) && inRange(aY, aSY, aEY) &&
           std::fabs(CrossProduct(aSX, aSY, aEX, aEY, aX, aY)) <= aTol * length;
}

bool TDraw2D::CursorOnPos(Base x1, Base y1, Base posX, Base posY, Base gap) {
    return std::fabs(Delta(posX, x1)) < double(gap) && std::fabs(Delta(posY, y1)) < double(gap);
}

bool TDraw2D::CursorOnPosS(double x1, double y1, double gap, double posX, double posY) {
    return std::fabs(posX - x1) < gap && std::fabs(posY - y1) < gap;
}

bool TDraw2D::PosPoint(Base x1, Base y1, Base x2, Base y2, Base px, Base py) {
    if (y1 == y2)
        return py < y1;
    if (x1 == x2)
        return px > x1;
    // Seen from the left end to the right one, a point above turns the cross product negative.
    const TInt128 side = Cross(Span(x2, x1), Span(y2, y1), Span(px, x1), Span(py, y1));
    return x1 < x2 ? side < 0 : side > 0;
}

} // namespace vagrel
