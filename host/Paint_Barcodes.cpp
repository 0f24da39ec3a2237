// SPDX-License-Identifier: MIT
// Barcodes: the rectangles and digits that their items give.
#include <host/Paint.h>

#include <host/CairoDraw.h>
#include <host/PangoText.h>
#include <vagrel/barcode/TVGRBaseBarcode.h>
#include <vagrel/barcode/TVGRBaseMatrixCode.h>
#include <vagrel/foundation/Units.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vagrel {

namespace {

// Edges that lie on whole pixels make bars without grey sides; all that meet in one place go to the same pixel.
TPaperPoint Snapped(cairo_t* cr, TPaperPoint point) {
    cairo_user_to_device(cr, &point.x, &point.y);
    point = {std::round(point.x), std::round(point.y)};
    cairo_device_to_user(cr, &point.x, &point.y);
    return point;
}

void PaintRects(const TVGRBaseCode& code, const CairoDraw& draw) {
    cairo_t* cr = draw.Context();
    const TKSLRect& box = code.BoundsRect();
    const double module = double(GetBaseValue(std::min(code.BaseBarWidth(), code.BaseBarHeight())));
    const bool snap = draw.IsRaster() && module >= draw.Pixel();
    if (code.GetFilled()) {
        cairo_rectangle(cr, draw.ToPaper(box.Left), draw.ToPaper(box.Top), draw.ToPaper(box.GetWidth()),
                        draw.ToPaper(box.GetHeight()));
        draw.Fill(code.GetBackColor());
        cairo_new_path(cr);
    }
    for (const TKSLRect& dark : code.DarkRects()) {
        TPaperPoint from = draw.ToPaper({dark.Left, dark.Top}), to = draw.ToPaper({dark.Right, dark.Bottom});
        if (snap)
            from = Snapped(cr, from), to = Snapped(cr, to);
        cairo_rectangle(cr, from.x, from.y, to.x - from.x, to.y - from.y);
    }
    draw.Fill(code.GetColor());
    cairo_new_path(cr);
}

} // namespace

void Paint(const TVGRBaseMatrixCode& code, const CairoDraw& draw) { PaintRects(code, draw); }

void Paint(const TVGRBaseBarcode& bars, const CairoDraw& draw) {
    if (!bars.IsValid())
        return;
    PaintRects(bars, draw);
    const PangoText& pango = PangoText::ThisThread();
    const std::u16string fontName = bars.GetFontName();
    const TDigitMeasure& measured = bars.Measured();
    const TFontFace font{fontName, double(GetBaseValue(bars.BaseFontHeight())) * measured.ratio};
    cairo_t* cr = draw.Context();
    draw.SetColor(bars.GetColor());
    for (const TPlacedDigits& digits : bars.Digits()) {
        const SavedContext saved(cr);
        const TPaperPoint at = draw.ToPaper(digits.at);
        const double share = digits.align == haCenter ? 0.5 : digits.align == haRight ? 1 : 0;
        cairo_translate(cr, at.x, at.y);
        cairo_rotate(cr, DegAngle(bars.GetAngle()) * std::numbers::pi / 180);
        cairo_translate(cr, -share * pango.Measure(digits.text, font).width, double(GetBaseValue(measured.ascent)));
        pango.Paint(cr, digits.text, font, {.outlines = draw.IsRaster()});
    }
}

} // namespace vagrel
