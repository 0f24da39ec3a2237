// SPDX-License-Identifier: MIT
// The open chain of segments.
#include <vagrel/items/lines/TVGRBasePolyLine.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/TDraw2D.h>

#include <algorithm>

namespace vagrel {

TVGRBasePolyLine::TVGRBasePolyLine(TVGRBaseLabel& owner, bool preview) : TVGRBasePolyLine(owner, 0, preview) {}

TVGRBasePolyLine::TVGRBasePolyLine(TVGRBaseLabel& owner, int points, bool preview)
    : TVGRBasePolyLine(owner, owner.GetLayer(1), points, preview) {}

TVGRBasePolyLine::TVGRBasePolyLine(TVGRBaseLabel& owner, TVGRLayer& layer, int points, bool preview)
    : WithTerminals(owner, itPolyLine, layer, preview) {
    fPoints.resize(std::size_t(std::max(points, 0)));
    fTerms.Ini(owner);
}

void TVGRBasePolyLine::AddPoint(float x, float y) {
    Touch();
    fPoints.emplace_back().SetValues(x, y, fOwner.GetUnits());
}

bool TVGRBasePolyLine::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) {
    return TVGRBaseItem::Pick(bx, by, gap, fill) && PickLines(bx, by, gap) >= 1;
}

bool TVGRBasePolyLine::SearchRect(const TKSLRect& rect, bool intersects) const {
    if (!intersects)
        return TVGRBaseItem::SearchRect(rect, false);
    for (int i = 1; i < NumPoints(); ++i)
        if (TDraw2D::RectangleIntersectLine(At(i).bX, At(i).bY, At(i + 1).bX, At(i + 1).bY, rect))
            return true;
    return false;
}

void TVGRBasePolyLine::CheckFit(TKSLExtent& extent) const {
    TVGRBaseItem::CheckFit(extent);
    fTerms.CheckFit(fPoints, extent);
}

void TVGRBasePolyLine::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iyPoint, iyBorder, iySize}, {iyLine, iyLink});
}

void TVGRBasePolyLine::WriteSVG(TSVGOutput& out) const {
    SvgElement chain = out.Element();
    chain << "<polyline" << GetSVGID(out) << " points=\"";
    WritePoints(chain, 1);
    (chain << "\" ").Stroke(fColor) << " fill=\"none\"";
    chain.StrokeWidth(GetPenWidth()).Dash(fLineType) << "/>";
    out.svg.push_back(chain.Take());
    fTerms.WriteSVG(*this, out);
}

} // namespace vagrel
