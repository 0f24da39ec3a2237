// SPDX-License-Identifier: MIT
// The ellipse with axes along the page.
#include <vagrel/items/figures/TVGRBaseEllipse.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/TDraw2D.h>

namespace vagrel {

TVGRBaseEllipse::TVGRBaseEllipse(TVGRBaseLabel& owner, bool preview) : TVGRRoundItem(owner, itEllipse, preview) {}

TVGRBaseEllipse::TVGRBaseEllipse(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : TVGRRoundItem(owner, itEllipse, layer, preview) {}

void TVGRBaseEllipse::SetRadioX(float value) {
    const std::int64_t radius = SetValue(value, fOwner.GetUnits());
    if (radius == fBaseRadioX)
        return;
    Rebuild(radius, fBaseRadioY);
    StateUpdate();
}

void TVGRBaseEllipse::SetRadioY(float value) {
    const std::int64_t radius = SetValue(value, fOwner.GetUnits());
    if (radius == fBaseRadioY)
        return;
    Rebuild(fBaseRadioX, radius);
    StateUpdate();
}

bool TVGRBaseEllipse::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) {
    if (!TVGRBaseItem::Pick(bx, by, gap, fill))
        return false;
    return fFill && Alpha() != 0 ? TDraw2D::PointInEllipse(fBaseX, fBaseY, fBaseRadioX, fBaseRadioY, bx, by)
                                 : TDraw2D::PointOnEllipse(fBaseX, fBaseY, fBaseRadioX, fBaseRadioY, bx, by, gap);
}

bool TVGRBaseEllipse::SearchRect(const TKSLRect& rect, bool intersects) const {
    return intersects ? TDraw2D::EllipseIntersectsRect(fBaseX, fBaseY, fBaseRadioX, fBaseRadioY, rect)
                      : TVGRBaseItem::SearchRect(rect, false);
}

void TVGRBaseEllipse::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy2D, iyBack, iyBorder, iyRadio, iyCenter}, {iyLine});
}

void TVGRBaseEllipse::WriteSVG(TSVGOutput& out) const {
    if (!Draws())
        return;
    SvgElement figure = out.Element();
    (figure << "<ellipse" << GetSVGID(out)).Attr("cx", FromBase(fBaseX)).Attr("cy", FromBase(fBaseY));
    figure.Attr("rx", FromBase(fBaseRadioX)).Attr("ry", FromBase(fBaseRadioY)) << (fFill ? " " : "");
    WriteFill(figure) << " ";
    WriteStroke(figure, fLineType) << "/>";
    out.svg.push_back(figure.Take());
}

} // namespace vagrel
