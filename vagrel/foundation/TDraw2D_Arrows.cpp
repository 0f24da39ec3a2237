// SPDX-License-Identifier: MIT
// Arrowheads, slashes, parallels of a segment, and the control points of a link's curve.
#include <vagrel/foundation/TDraw2D.h>

#include <vagrel/foundation/TDraw2D_p.h>

namespace vagrel {

using namespace detail;

namespace {

// The wings of a head at a tip: the tip minus `size` in the directions angle ∓ π ÷ S.
struct Wings {
    TPoint2D first;
    TPoint2D second;

    Wings(double tipX, double tipY, double angle, double size, double S) {
        const double opening = S == 0 ? 0 : Pi / S;
        first = {tipX - size * std::cos(angle - opening), tipY - size * std::sin(angle - opening)};
        second = {tipX - size * std::cos(angle + opening), tipY - size * std::sin(angle + opening)};
    }

    void Store(std::int64_t& x1p, std::int64_t& y1p, std::int64_t& x2p, std::int64_t& y2p) const {
        x1p = Round(first.X), y1p = Round(first.Y), x2p = Round(second.X), y2p = Round(second.Y);
    }
};

double HeadAngle(TKSLAngle angle) {
    static constexpr double angles[] = {0, -Pi / 2, Pi, Pi / 2};
    return angles[angle & 3];
}

// The anchors of a figure go clockwise from its top left corner, 1, in four steps a side; corners belong to both sides.
using AnchorSet = std::uint32_t;
constexpr AnchorSet Anchors(int first, int last) { return (AnchorSet(2) << last) - (AnchorSet(1) << first); }
constexpr AnchorSet Free = 1, Right = Anchors(5, 9), Bottom = Anchors(9, 13), Left = Anchors(13, 16) | Anchors(1, 1);
constexpr bool In(AnchorSet set, std::int16_t anchor) { return anchor >= 0 && anchor < 32 && (set >> anchor & 1) != 0; }

std::int64_t Halfway(std::int64_t from, std::int64_t to) { return AddSat(from, SubSat(to, from) / 2); }

} // namespace

bool TDraw2D::DrawArrow(Base x1, Base y1, Base x2, Base y2, Base arrowSize, Base& x1p, Base& y1p, Base& x2p, Base& y2p,
                        double S) {
    const double angle = std::atan2(Delta(y2, y1), Delta(x2, x1));
    Wings(double(x2), double(y2), angle, double(arrowSize), S).Store(x1p, y1p, x2p, y2p);
    return arrowSize > 0;
}

bool TDraw2D::DrawArrow(Base x1, Base y1, Base arrowSize, TKSLAngle angle, Base& x1p, Base& y1p, Base& x2p, Base& y2p,
                        double S) {
    Wings(double(x1), double(y1), HeadAngle(angle), double(arrowSize), S).Store(x1p, y1p, x2p, y2p);
    return arrowSize > 0;
}

bool TDraw2D::DrawArrow(float x1, float y1, double angle, float arrowSize, float& x1p, float& y1p, float& x2p,
                        float& y2p, double S) {
    const Wings wings(x1, y1, angle, arrowSize, S);
    x1p = float(wings.first.X), y1p = float(wings.first.Y);
    x2p = float(wings.second.X), y2p = float(wings.second.Y);
    return arrowSize > 0;
}

bool TDraw2D::DrawArrowArc(Base cx, Base cy, Base px, Base py, Base arrowSize, Base& x1p, Base& y1p, Base& x2p,
                           Base& y2p, bool clockWise, double S) {
    const double radial = std::atan2(Delta(py, cy), Delta(px, cx));
    const double angle = radial + (clockWise ? Pi / 2 : 3 * Pi / 2);
    Wings(double(px), double(py), std::fabs(angle) < 0.0001 ? 0 : angle, double(arrowSize), S)
        .Store(x1p, y1p, x2p, y2p);
    return true;
}

namespace {

bool Slash(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, std::int64_t size, double turn,
           std::int64_t& x1p, std::int64_t& y1p, std::int64_t& x2p, std::int64_t& y2p) {
    const double angle = std::atan2(Delta(y2, y1), Delta(x2, x1)) + turn;
    const double vx = double(size) * std::cos(angle), vy = double(size) * std::sin(angle);
    const double tipX = double(x2), tipY = double(y2);
    x1p = Round(tipX - vx), y1p = Round(tipY - vy), x2p = Round(tipX + vx), y2p = Round(tipY + vy);
    return size > 0;
}

} // namespace

bool TDraw2D::DrawLeft(Base x1, Base y1, Base x2, Base y2, Base arrowSize, Base& x1p, Base& y1p, Base& x2p, Base& y2p) {
    return Slash(x1, y1, x2, y2, arrowSize, Pi / 4, x1p, y1p, x2p, y2p);
}

bool TDraw2D::DrawRight(Base x1, Base y1, Base x2, Base y2, Base arrowSize, Base& x1p, Base& y1p, Base& x2p,
                        Base& y2p) {
    return Slash(x1, y1, x2, y2, arrowSize, -Pi / 4, x1p, y1p, x2p, y2p);
}

bool TDraw2D::DrawParallelLine(Base x1, Base y1, Base x2, Base y2, Base distance, Base& x1p, Base& y1p, Base& x2p,
                               Base& y2p) {
    const double nx = Delta(y1, y2), ny = Delta(x2, x1), length = Magnitude(nx, ny);
    const bool shifts = distance != 0 && length != 0;
    const double factor = shifts ? double(distance) / length : 0;
    const auto shift = [factor](Base at, double normal) {
        return factor == 0 ? at : Round(double(at) + factor * normal);
    };
    x1p = shift(x1, nx), y1p = shift(y1, ny), x2p = shift(x2, nx), y2p = shift(y2, ny);
    return shifts;
}

bool TDraw2D::DrawParalLine(Base X1, Base Y1, Base X2, Base Y2, Base PX, Base PY, Base Distance, Base& X3, Base& Y3,
                            Base& X4, Base& Y4) {
    const bool other = PointSide(X1, Y1, X2, Y2, PX, PY) < 0;
    return DrawParallelLine(X1, Y1, X2, Y2, other ? SubSat(0, Distance) : Distance, X3, Y3, X4, Y4);
}

bool TDraw2D::PosMidParal(Base X1, Base Y1, Base X2, Base Y2, Base Distance, Base& aPosX, Base& aPosY) {
    Base x3, y3, x4, y4;
    const bool shifts = DrawParallelLine(X1, Y1, X2, Y2, Distance, x3, y3, x4, y4);
    aPosX = Middle(x3, x4), aPosY = Middle(y3, y4);
    return shifts;
}

bool TDraw2D::CurvePoints(TKSLBase p1, TKSLBase p2, std::int16_t aPos1, std::int16_t aPos2, TKSLBase& pt1,
                          TKSLBase& pt2) {
    if ((In(Free | Right, aPos1) && In(Free | Left, aPos2)) || (In(Left, aPos1) && In(Right, aPos2)) || aPos1 > 50 ||
        aPos2 > 50) {
        const Base middle = Halfway(p1.X, p2.X);
        pt1 = {middle, p1.Y}, pt2 = {middle, p2.Y};
        return true;
    }
    if ((aPos1 < 6 && In(Bottom, aPos2)) || (In(Bottom, aPos1) && aPos2 < 6)) {
        const Base middle = Halfway(p1.Y, p2.Y);
        pt1 = {p1.X, middle}, pt2 = {p2.X, middle};
        return true;
    }
    return false;
}

} // namespace vagrel
