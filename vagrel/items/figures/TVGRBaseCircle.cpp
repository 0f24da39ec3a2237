// SPDX-License-Identifier: MIT
// The circle.
#include <vagrel/items/figures/TVGRBaseCircle.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>

#include <cmath>

namespace vagrel {

TVGRBaseCircle::TVGRBaseCircle(TVGRBaseLabel& owner, bool preview) : TVGRRoundItem(owner, itCircle, preview) {}

TVGRBaseCircle::TVGRBaseCircle(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRRoundItem(owner, itCircle, layer, preview) {}

void TVGRBaseCircle::SetRadio(float value) { SetBaseRadio(SetValue(value, fOwner.GetUnits())); }

void TVGRBaseCircle::SetBaseRadio(std::int64_t value) {
    if (value == fBaseRadioX)
        return;
    TVGRBaseValueCmd::AddCommand(*this, cmd::Radio);
    Rebuild(value, value);
    StateUpdate();
}

bool TVGRBaseCircle::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) {
    return TVGRBaseItem::Pick(bx, by, gap, fill) && PickDisc(bx, by, gap);
}

bool TVGRBaseCircle::SearchRect(const TKSLRect& rect, bool intersects) const {
    return TVGRBaseItem::SearchRect(rect, intersects) &&
           (!intersects || TDraw2D::EllipseIntersectsRect(fBaseX, fBaseY, fBaseRadioX, fBaseRadioX, rect));
}

bool TVGRBaseCircle::CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap, TKSLRef& ref) const {
    return snap == snTangent ? SnapTangent(bx, by, gap, ref) : TVGRRoundItem::CheckPoint(bx, by, gap, snap, ref);
}

bool TVGRBaseCircle::SnapTangent(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLRef& ref) const {
    const auto radius = double(fBaseRadioX);
    auto distance = [&](double x, double y) { return std::hypot(x - double(fBaseX), y - double(fBaseY)); };
    auto direction = [&](std::int64_t x, std::int64_t y) {
        return std::atan2(double(y) - double(fBaseY), double(x) - double(fBaseX));
    };
    auto rim = [&](double angle) {
        return TKSLPto{AddSat(fBaseX, Round(radius * std::cos(angle))),
                       AddSat(fBaseY, Round(radius * std::sin(angle)))};
    };
    if (fBaseRadioX <= 0 || std::fabs(distance(double(bx), double(by)) - radius) > double(gap))
        return false;

    TKSLPto hit;
    if (!ref.HasLast()) {
        hit = rim(direction(bx, by));
    } else {
        const double away = distance(double(ref.lbX), double(ref.lbY));
        if (radius >= away)
            return false;
        const double toLast = direction(ref.lbX, ref.lbY), half = std::acos(radius / away);
        const TKSLPto one = rim(toLast + half), two = rim(toLast - half);
        auto toCursor = [&](TKSLPto p) { return std::hypot(double(p.bX) - double(bx), double(p.bY) - double(by)); };
        hit = toCursor(two) < toCursor(one) ? two : one;
    }
    ref.bX = hit.bX, ref.bY = hit.bY;
    ref.FindRef(rtyCircle);
    return true;
}

void TVGRBaseCircle::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy2D, iyBack, iyBorder, iyRadio, iyCenter}, {iyLine});
}

} // namespace vagrel
