// SPDX-License-Identifier: MIT
// The closed chain of segments.
#include <vagrel/items/figures/TVGRBasePolygon.h>

#include <vagrel/document/TVGRBaseLabel.h>

#include <algorithm>

namespace vagrel {

TVGRBasePolygon::TVGRBasePolygon(TVGRBaseLabel& owner, bool preview) : TVGRBasePolygon(owner, 0, preview) {
    SetID(u"Polygon");
}

TVGRBasePolygon::TVGRBasePolygon(TVGRBaseLabel& owner, int points, bool preview)
    : TVGRBasePolygon(owner, owner.GetLayer(1), points, preview) {}

TVGRBasePolygon::TVGRBasePolygon(TVGRBaseLabel& owner, TVGRLayer& layer, int points, bool preview)
    : WithLineType(owner, itPolygon, layer, preview) {
    fPoints.resize(std::size_t(std::max(points, 0)));
}

bool TVGRBasePolygon::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) {
    if (!TVGRBaseItem::Pick(bx, by, gap, fill))
        return false;
    if (PickLines(bx, by, gap) >= 1)
        return true;
    if (!fill || !fFill)
        return false;
    // Even-odd rule: a ray to the left crosses the outline an odd number of times.
    bool inside = false;
    for (std::size_t i = 0, j = fPoints.size() - 1; i < fPoints.size(); j = i++) {
        const TKSLPto p = fPoints[i], q = fPoints[j];
        if ((p.bY < by) == (q.bY < by))
            continue;
        const double share = (double(by) - double(p.bY)) / (double(q.bY) - double(p.bY));
        if (double(bx) > double(p.bX) + share * (double(q.bX) - double(p.bX)))
            inside = !inside;
    }
    return inside;
}

void TVGRBasePolygon::CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const {
    Keep(base, props, {iyID, iyLayer, iy2D, iyBack, iyPoint, iyBorder}, {iyLine});
}

void TVGRBasePolygon::WriteSVG(TSVGOutput& out) const {
    SvgElement figure = out.Element();
    figure << "<polygon" << GetSVGID(out) << " points=\"";
    WritePoints(figure, 1);
    figure << (fFill ? "\" " : "\"");
    WriteFill(figure) << " ";
    WriteStroke(figure, fLineType) << "/>";
    out.svg.push_back(figure.Take());
}

} // namespace vagrel
