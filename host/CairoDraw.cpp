// SPDX-License-Identifier: MIT
// Colours, fills and strokes on a Cairo context.
#include <host/CairoDraw.h>

#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/svg/SvgElement.h>

#include <cmath>

namespace vagrel {

namespace {

constexpr double MillimetresPerInch = 25.4;
// As in SVG, where a sharper corner is cut.
constexpr double MiterLimit = 4;

} // namespace

CairoDraw::CairoDraw(const TVGRBaseLabel& label, cairo_t* context, double pixel)
    : fLabel(label), fContext(context), fPixel(pixel) {
    if (IsRaster())
        fDpix = fDpiy = std::int32_t(std::lround(MillimetresPerInch / pixel));
    fBDpix = fBDpiy = fDpix;
    fDrawScale = label.GetMeasure().GetDrawScale();
    fState = dsExport;
    cairo_set_miter_limit(fContext, MiterLimit);
}

void CairoDraw::SetColor(TAlphaColor color) const {
    cairo_set_source_rgba(fContext, RedOf(color) / 255.0, GreenOf(color) / 255.0, BlueOf(color) / 255.0,
                          AlphaOf(color) / 255.0);
}

void CairoDraw::Fill(TAlphaColor color) const {
    SetColor(color);
    cairo_fill_preserve(fContext);
}

void CairoDraw::Stroke(TAlphaColor color, double width, TKSLineType dash) const {
    if (width > 0) {
        const auto lengths = DashLengths(dash);
        SetColor(color);
        cairo_set_line_width(fContext, width);
        cairo_set_dash(fContext, lengths.data(), int(lengths.size()), 0);
        cairo_stroke(fContext);
    }
    cairo_new_path(fContext);
}

} // namespace vagrel
