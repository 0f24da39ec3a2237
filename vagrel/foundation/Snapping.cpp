// SPDX-License-Identifier: MIT
// Candidates of a snap search.
#include <vagrel/foundation/Snapping.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>

#include <cmath>

namespace vagrel {

namespace {

bool IsNear(std::int64_t a, std::int64_t b, std::int64_t gap) { return a >= SubSat(b, gap) && a <= AddSat(b, gap); }

double DistanceOf(TKSLPto a, TKSLPto b) { return std::hypot(Difference(a.bX, b.bX), Difference(a.bY, b.bY)); }

} // namespace

bool IsNear(TKSLPto cursor, TKSLPto point, std::int64_t gap) {
    return IsNear(cursor.bX, point.bX, gap) && IsNear(cursor.bY, point.bY, gap);
}

TKSLPto Middle(TKSLPto a, TKSLPto b) {
    return {AddSat(a.bX, SubSat(b.bX, a.bX) / 2), AddSat(a.bY, SubSat(b.bY, a.bY) / 2)};
}

std::optional<TKSLPto> TangentPoint(const TKSLShape& outline, TKSLPto cursor, std::int64_t gap,
                                    std::optional<TKSLPto> last) {
    const TKSLPto center{outline.cx, outline.cy};
    const auto radius = double(outline.rx);
    auto direction = [&](TKSLPto to) { return std::atan2(Difference(to.bY, center.bY), Difference(to.bX, center.bX)); };
    auto at = [&](double angle) -> std::optional<TKSLPto> {
        if (outline.kind == skArc && !TDraw2D::ArcContainsAngle(TDraw2D::NormalizeAngle(outline.angStart),
                                                                TDraw2D::NormalizeAngle(outline.angEnd),
                                                                TDraw2D::NormalizeAngle(angle), outline.clockwise))
            return {};
        return TKSLPto{AddSat(center.bX, Round(radius * std::cos(angle))),
                       AddSat(center.bY, Round(radius * std::sin(angle)))};
    };
    if (radius <= 0 || std::fabs(DistanceOf(cursor, center) - radius) > double(gap))
        return {};
    if (!last)
        return at(direction(cursor));
    const double away = DistanceOf(*last, center);
    if (radius >= away)
        return {};
    const double towards = direction(*last), half = std::acos(radius / away);
    const auto one = at(towards + half), two = at(towards - half);
    if (!one || !two)
        return one ? one : two;
    return DistanceOf(cursor, *two) < DistanceOf(cursor, *one) ? two : one;
}

} // namespace vagrel
