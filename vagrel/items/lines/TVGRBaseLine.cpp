// SPDX-License-Identifier: MIT
// The straight segment.
#include <vagrel/items/lines/TVGRBaseLine.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>

namespace vagrel {

TVGRBaseLine::TVGRBaseLine(TVGRBaseLabel& owner, bool preview) : WithLineType(owner, itLine, preview) {}

TVGRBaseLine::TVGRBaseLine(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview)
    : WithLineType(owner, itLine, layer, preview) {}

bool TVGRBaseLine::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) {
    return TVGRBaseItem::Pick(bx, by, gap, fill) &&
           TDraw2D::PointInLine(At(1).bX, At(1).bY, At(2).bX, At(2).bY, bx, by, gap);
}

bool TVGRBaseLine::SearchRect(const TKSLRect& rect, bool intersects) const {
    return intersects ? TDraw2D::RectangleIntersectLine(At(1).bX, At(1).bY, At(2).bX, At(2).bY, rect)
                      : TVGRBaseItem::SearchRect(rect, false);
}

TKSLBase TVGRBaseLine::CenterPoint() const {
    auto half = [](std::int64_t a, std::int64_t b) { return (a < b ? SubSat(b, a) : SubSat(a, b)) / 2; };
    return {half(At(1).bX, At(2).bX), half(At(1).bY, At(2).bY)};
}

void TVGRBaseLine::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iyTwoPoint, iyBorder}, {iyLine});
}

void TVGRBaseLine::WriteSVG(TSVGOutput& out) const {
    SvgElement line = out.Element();
    (line << "<line" << GetSVGID(out)).Attr("x1", GetPointMMX(1)).Attr("y1", GetPointMMY(1));
    line.Attr("x2", GetPointMMX(2)).Attr("y2", GetPointMMY(2)) << " ";
    line.Stroke(fColor).StrokeWidth(GetPenWidth()).Dash(fLineType) << "/>";
    out.svg.push_back(line.Take());
}

} // namespace vagrel
