// SPDX-License-Identifier: MIT
// Parallel copies of polygons and arcs.
#include <vagrel/foundation/TDraw2D.h>

#include <vagrel/foundation/TDraw2D_p.h>

namespace vagrel {

using namespace detail;

TKSLPtoA TDraw2D::PoligonParalel(const TKSLPtoA& aPoints, Base aDist, bool aIn) {
    TKSLPtoA result = aPoints;
    const double distance = aIn ? -double(aDist) : double(aDist);
    for (std::size_t i = 0; i < aPoints.size(); ++i) {
        const TKSLPto from = aPoints[i], to = aPoints[(i + 1) % aPoints.size()];
        const double dx = Delta(to.bX, from.bX), dy = Delta(to.bY, from.bY), length = Magnitude(dx, dy);
        if (length != 0)
            result[i] = {Round(double(from.bX) + distance * dy / length),
                         Round(double(from.bY) - distance * dx / length)};
    }
    return result;
}

bool TDraw2D::EquidistArc(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base aDist, bool aIner, Base& x1o,
                          Base& y1o, Base& x2o, Base& y2o, Base& x3o, Base& y3o) {
    const double cx = (double(x1) + double(x2) + double(x3)) / 3, cy = (double(y1) + double(y2) + double(y3)) / 3;
    const auto reach = [cx, cy](Base x, Base y) { return Magnitude(double(x) - cx, double(y) - cy); };
    const double mean = (reach(x1, y1) + reach(x2, y2) + reach(x3, y3)) / 3;
    const double radius = aIner ? mean - double(aDist) : mean + double(aDist);
    const double first = std::atan2(double(y1) - cy, double(x1) - cx);
    const double last = std::atan2(double(y3) - cy, double(x3) - cx);
    double sweep = last - first;
    if (std::fabs(sweep) > Pi)
        sweep -= std::copysign(TwoPi, sweep);
    const double middle = first + (aIner ? -sweep : sweep) / 2;
    const auto place = [=](double angle, Base& x, Base& y) {
        x = Round(cx + radius * std::cos(angle)), y = Round(cy + radius * std::sin(angle));
    };
    place(first, x1o, y1o), place(middle, x2o, y2o), place(last, x3o, y3o);
    return radius > 0;
}

bool TDraw2D::EquidistArc(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base px, Base py, Base aDist, Base& x1o,
                          Base& y1o, Base& x2o, Base& y2o, Base& x3o, Base& y3o) {
    x1o = x1, y1o = y1, x2o = x2, y2o = y2, x3o = x3, y3o = y3;
    const auto circle = CircumCircle(x1, y1, x2, y2, x3, y3);
    if (!circle)
        return false;
    const bool inside = Magnitude(double(px) - circle->x, double(py) - circle->y) < circle->r;
    const double shift = std::fabs(double(aDist)) / circle->r;
    const double factor = inside ? 1 - shift : 1 + shift;
    const auto place = [&](Base& x, Base& y) {
        x = Round(circle->x + factor * (double(x) - circle->x)),
        y = Round(circle->y + factor * (double(y) - circle->y));
    };
    place(x1o, y1o), place(x2o, y2o), place(x3o, y3o);
    return factor > 0;
}

bool TDraw2D::EquidistArc(Base cx, Base cy, Base r, double angStart, double angEnd, Base aDist, Base px, Base py,
                          Base& cxo, Base& cyo, Base& ro, double& angStartO, double& angEndO) {
    const Base size = aDist < 0 ? SubSat(0, aDist) : aDist;
    const bool inside = Magnitude(Delta(px, cx), Delta(py, cy)) < double(r);
    cxo = cx, cyo = cy, ro = inside ? SubSat(r, size) : AddSat(r, size);
    angStartO = angStart, angEndO = angEnd;
    return ro > 0;
}

} // namespace vagrel
