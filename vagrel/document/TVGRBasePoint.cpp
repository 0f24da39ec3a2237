// SPDX-License-Identifier: MIT
// The point item.
#include <vagrel/document/TVGRBasePoint.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Snapping.h>

namespace vagrel {

namespace {

constexpr std::int64_t Reach = 500;
constexpr std::int64_t LinkReach = 1000;

} // namespace

TVGRBasePoint::TVGRBasePoint(TVGRBaseLabel& owner, bool preview) : TVGRBaseItem(owner, itPoint, preview) {}

TVGRBasePoint::TVGRBasePoint(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRBaseItem(owner, itPoint, layer, preview) {}

void TVGRBasePoint::UpdateBounds() {
    const TKSLPto point = GetPoint(1);
    fBoundsRect = {point.bX, point.bY, point.bX, point.bY};
    fBoundsRect.Inflate(Reach, Reach);
}

bool TVGRBasePoint::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool) {
    return IsNear({bx, by}, GetPoint(1), SubSat(gap, 1));
}

bool TVGRBasePoint::CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap, TKSLRef& ref) const {
    return snap == snPoint && Snap(bx, by, gap, GetPoint(1), rtyCircle, ref);
}

void TVGRBasePoint::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy1D}, {});
}

bool TVGRBasePoint::CheckLink(std::int64_t bx, std::int64_t by, TKSLink& link) const {
    const TKSLPto point = GetPoint(1);
    if (!IsNear({bx, by}, point, LinkReach))
        return false;
    link.ID = GetInID();
    link.draw = true;
    link.SetPos(0);
    link.bX = ToInt32(point.bX), link.bY = ToInt32(point.bY);
    return true;
}

} // namespace vagrel
