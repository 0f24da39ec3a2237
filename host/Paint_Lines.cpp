// SPDX-License-Identifier: MIT
// Points, lines, chains, curves and their terminals.
#include <host/Paint.h>

#include <host/CairoDraw.h>
#include <vagrel/document/TVGRBasePoint.h>
#include <vagrel/items/figures/TVGRBaseBezier.h>
#include <vagrel/items/lines/TVGRBaseLine.h>
#include <vagrel/items/lines/TVGRBasePolyLine.h>
#include <vagrel/svg/TermShape.h>

#include <cmath>
#include <numbers>

namespace vagrel {

namespace {

void Paint(const TTermPart& part, const CairoDraw& draw) {
    const TSpot first = part.spots[0];
    switch (part.kind) {
    case TTermPart::Circle:
        cairo_new_sub_path(draw.Context());
        cairo_arc(draw.Context(), double(first.x), double(first.y), double(part.size), 0, 2 * std::numbers::pi);
        cairo_close_path(draw.Context());
        return;
    case TTermPart::Square:
        return cairo_rectangle(draw.Context(), double(first.x), double(first.y), double(part.size), double(part.size));
    case TTermPart::Line:
    case TTermPart::Polygon:
        for (int i = 0; i < part.count; ++i)
            draw.LineTo({double(part.spots[std::size_t(i)].x), double(part.spots[std::size_t(i)].y)});
        if (part.kind == TTermPart::Polygon)
            cairo_close_path(draw.Context());
    }
}

// One terminal at the point `tip`, on the line that comes from the point `back`.
struct TEnd {
    TKSLTermType type;
    TAlphaColor fill;
    float size;
    int tip, back;
};

void PaintTerminals(const TVGRBaseItem& item, const IKSLSTerm& terms, const CairoDraw& draw) {
    const int last = item.NumPoints();
    if (last == 0)
        return;
    for (const TEnd& end : {TEnd{terms.GetFromType(), terms.GetFromColor(), terms.GetSizeFrom(), 1, 2},
                            TEnd{terms.GetToType(), terms.GetToColor(), terms.GetSizeTo(), last, last - 1}}) {
        const TSpot tip{item.GetPointMMX(end.tip), item.GetPointMMY(end.tip)};
        const TSpot back{item.GetPointMMX(end.back), item.GetPointMMY(end.back)};
        const double direction = std::atan2(double(tip.y) - double(back.y), double(tip.x) - double(back.x));
        for (const TTermPart& part : TermShape(end.type, tip, direction, end.size, ArrowOpen)) {
            Paint(part, draw);
            if (part.filled)
                draw.Fill(end.fill);
            draw.Stroke(item.GetColor(), double(item.GetPenWidth()));
        }
    }
}

} // namespace

void Paint(const TVGRBasePoint&, const CairoDraw&) {} // a place without a look

void Paint(const TVGRBaseLine& line, const CairoDraw& draw) {
    draw.MoveTo(draw.ToPaper(line.GetPoint(1)));
    draw.LineTo(draw.ToPaper(line.GetPoint(2)));
    draw.Stroke(line.GetColor(), double(line.GetPenWidth()), line.GetLineType());
}

void Paint(const TVGRBasePolyLine& chain, const CairoDraw& draw) {
    for (const TKSLPto& point : chain.Points())
        draw.LineTo(draw.ToPaper(point));
    draw.Stroke(chain.GetColor(), double(chain.GetPenWidth()), chain.GetLineType());
    PaintTerminals(chain, chain, draw);
}

void Paint(const TVGRBaseBezier& curve, const CairoDraw& draw) {
    if (curve.NumPoints() < 2)
        return;
    const TKSLPtoA& points = curve.Points();
    draw.MoveTo(draw.ToPaper(points[0]));
    for (std::size_t i = 1; i + 2 < points.size(); i += 3) {
        const TPaperPoint a = draw.ToPaper(points[i]), b = draw.ToPaper(points[i + 1]), c = draw.ToPaper(points[i + 2]);
        cairo_curve_to(draw.Context(), a.x, a.y, b.x, b.y, c.x, c.y);
    }
    const SavedContext saved(draw.Context());
    if (curve.GetFilled()) {
        cairo_close_path(draw.Context());
        draw.Fill(curve.GetBackColor());
    } else {
        cairo_set_line_cap(draw.Context(), CAIRO_LINE_CAP_ROUND);
    }
    draw.Stroke(curve.GetColor(), double(curve.GetPenWidth()), curve.GetLineType());
    PaintTerminals(curve, curve, draw);
}

} // namespace vagrel
