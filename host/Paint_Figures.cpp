// SPDX-License-Identifier: MIT
// Figures that enclose an area.
#include <host/Paint.h>

#include <host/CairoDraw.h>
#include <host/Paint_p.h>
#include <vagrel/items/figures/TVGRBaseCircle.h>
#include <vagrel/items/figures/TVGRBaseEllipse.h>
#include <vagrel/items/figures/TVGRBasePolygon.h>
#include <vagrel/items/figures/TVGRBaseRectangle.h>
#include <vagrel/items/figures/TVGRBaseSector.h>

#include <algorithm>
#include <numbers>

namespace vagrel {

namespace {

constexpr double Turn = 2 * std::numbers::pi;

// Fills and strokes the path as the figure's style says.
template <class Figure>
void Finish(const Figure& figure, const CairoDraw& draw) {
    if (figure.GetFilled())
        draw.Fill(figure.GetBackColor());
    draw.Stroke(figure.GetColor(), double(figure.GetPenWidth()), figure.GetLineType());
}

void Oval(const CairoDraw& draw, TPaperPoint center, double radiusX, double radiusY) {
    if (radiusX <= 0 || radiusY <= 0)
        return;
    const SavedContext saved(draw.Context());
    cairo_translate(draw.Context(), center.x, center.y);
    cairo_scale(draw.Context(), radiusX, radiusY);
    cairo_new_sub_path(draw.Context());
    cairo_arc(draw.Context(), 0, 0, 1, 0, Turn);
    cairo_close_path(draw.Context());
}

TPaperPoint Center(const TVGRRoundItem& item, const CairoDraw& draw) {
    return {draw.ToPaper(item.GetBaseCenterX()), draw.ToPaper(item.GetBaseCenterY())};
}

} // namespace

void RoundedBox(const CairoDraw& draw, TPaperPoint corner, double width, double height, double radius) {
    cairo_t* cr = draw.Context();
    if (radius <= 0)
        return cairo_rectangle(cr, corner.x, corner.y, width, height);
    const double rx = std::min(radius, width / 2), ry = std::min(radius, height / 2);
    constexpr double quarter = Turn / 4;
    const TPaperPoint centers[] = {{corner.x + width - rx, corner.y + ry},
                                   {corner.x + width - rx, corner.y + height - ry},
                                   {corner.x + rx, corner.y + height - ry},
                                   {corner.x + rx, corner.y + ry}};
    // Dashes begin at the top left, as in SVG.
    draw.MoveTo({corner.x + rx, corner.y});
    for (int i = 0; i < 4; ++i) {
        const SavedContext saved(cr);
        cairo_translate(cr, centers[i].x, centers[i].y);
        cairo_scale(cr, std::max(rx, 1e-6), std::max(ry, 1e-6));
        cairo_arc(cr, 0, 0, 1, (i - 1) * quarter, i * quarter);
    }
    cairo_close_path(cr);
}

void Paint(const TVGRBaseRectangle& box, const CairoDraw& draw) {
    RoundedBox(draw, draw.ToPaper(box.GetPoint(1)), draw.ToPaper(box.BaseWidth()), draw.ToPaper(box.BaseHeight()),
               draw.ToPaper(box.GetBaseRadio()));
    Finish(box, draw);
}

void Paint(const TVGRBasePolygon& figure, const CairoDraw& draw) {
    for (const TKSLPto& point : figure.Points())
        draw.LineTo(draw.ToPaper(point));
    cairo_close_path(draw.Context());
    Finish(figure, draw);
}

void Paint(const TVGRBaseCircle& circle, const CairoDraw& draw) {
    const double radius = draw.ToPaper(circle.GetBaseRadio());
    Oval(draw, Center(circle, draw), radius, radius);
    Finish(circle, draw);
}

void Paint(const TVGRBaseEllipse& ellipse, const CairoDraw& draw) {
    Oval(draw, Center(ellipse, draw), draw.ToPaper(ellipse.BaseWidth()) / 2, draw.ToPaper(ellipse.BaseHeight()) / 2);
    Finish(ellipse, draw);
}

void Paint(const TVGRBaseSector& sector, const CairoDraw& draw) {
    const TPaperPoint center = Center(sector, draw);
    const double radius = draw.ToPaper(sector.GetBaseRadio());
    const float sweep = sector.GetSweepAngle();
    if (sweep == 360) {
        Oval(draw, center, radius, radius);
    } else if (radius > 0) {
        const double start = double(sector.GetCalcStart()) * std::numbers::pi / 180;
        draw.MoveTo(center);
        cairo_arc(draw.Context(), center.x, center.y, radius, start, start + double(sweep) * std::numbers::pi / 180);
        cairo_close_path(draw.Context());
    }
    Finish(sector, draw);
}

} // namespace vagrel
