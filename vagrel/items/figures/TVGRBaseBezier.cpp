// SPDX-License-Identifier: MIT
// The chain of cubic Bezier curves.
#include <vagrel/items/figures/TVGRBaseBezier.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/TDraw2D.h>
#include <vagrel/svg/TExSVG.h>

#include <algorithm>

namespace vagrel {

TVGRBaseBezier::TVGRBaseBezier(TVGRBaseLabel& owner, bool preview) : TVGRBaseBezier(owner, 0, preview) {}

TVGRBaseBezier::TVGRBaseBezier(TVGRBaseLabel& owner, int points, bool preview)
    : TVGRBaseBezier(owner, owner.GetLayer(1), points, preview) {}

TVGRBaseBezier::TVGRBaseBezier(TVGRBaseLabel& owner, TVGRLayer& layer, int points, bool preview)
    : WithTerminals(owner, itBezier, layer, preview) {
    fPoints.resize(std::size_t(std::max(points, 0)));
    fTerms.Ini(owner);
}

bool TVGRBaseBezier::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) {
    if (!TVGRBaseItem::Pick(bx, by, gap, fill))
        return false;
    const int count = NumPoints();
    for (int i = 1; i < count; i += 3) {
        // A last group may lack points, which then count as (0, 0).
        const TKSLPto a = GetPoint(i), b = GetPoint(i + 1), c = GetPoint(i + 2), d = GetPoint(i + 3);
        if (TDraw2D::PointInBezier(a.bX, a.bY, b.bX, b.bY, c.bX, c.bY, d.bX, d.bY, bx, by, gap))
            return true;
    }
    const TKSLPto first = GetPoint(1), last = GetPoint(count);
    return fFill && TDraw2D::PointInLine(first.bX, first.bY, last.bX, last.bY, bx, by, gap);
}

void TVGRBaseBezier::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy1D, iy2D, iyBack, iyPoint, iyBorder, iySize}, {iyLine, iyLink});
}

void TVGRBaseBezier::WriteSVG(TSVGOutput& out) const {
    if (NumPoints() < 2)
        return;
    SvgElement curve = out.Element();
    (curve << "<path" << GetSVGID(out) << " d=\"M ").Val(GetPointMMX(1)) << ",";
    curve.Val(GetPointMMY(1)) << " C ";
    WritePoints(curve, 2);
    if (fFill) {
        curve << " Z\" ";
        WriteFill(curve) << " ";
        WriteStroke(curve, fLineType) << "/>";
    } else {
        (curve << "\" ").Stroke(fColor) << " fill=\"none\"";
        curve.StrokeWidth(GetPenWidth()).Dash(fLineType) << TExSVG::GetCap(true) << "/>";
    }
    out.svg.push_back(curve.Take());
    fTerms.WriteSVG(*this, out);
}

} // namespace vagrel
