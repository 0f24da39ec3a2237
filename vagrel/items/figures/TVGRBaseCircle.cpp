// SPDX-License-Identifier: MIT
// The circle.
#include <vagrel/items/figures/TVGRBaseCircle.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/TDraw2D.h>

namespace vagrel {

TVGRBaseCircle::TVGRBaseCircle(TVGRBaseLabel& owner, bool preview) : TVGRRoundItem(owner, itCircle, preview) {}

TVGRBaseCircle::TVGRBaseCircle(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRRoundItem(owner, itCircle, layer, preview) {}

void TVGRBaseCircle::SetRadio(float value) { SetBaseRadio(SetValue(value, fOwner.GetUnits())); }

void TVGRBaseCircle::SetBaseRadio(std::int64_t value) {
    if (value == fBaseRadioX || !Record(cmd::Radio))
        return;
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

void TVGRBaseCircle::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy2D, iyBack, iyBorder, iyRadio, iyCenter}, {iyLine});
}

} // namespace vagrel
