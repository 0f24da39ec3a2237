// SPDX-License-Identifier: MIT
// Texts.
#include <host/Paint.h>

#include <host/CairoDraw.h>
#include <host/Paint_p.h>
#include <host/PangoText.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/items/text/LabelPosition.h>
#include <vagrel/items/text/TVGRBaseText.h>
#include <vagrel/items/text/TextSvg.h>

#include <numbers>

namespace vagrel {

namespace {

void PaintFrame(const TVGRBaseText& text, const CairoDraw& draw) {
    if (text.BasePenWidth() <= 0 && !text.GetFilled())
        return;
    const TKSLRect& box = text.BoundsRect();
    RoundedBox(draw, draw.ToPaper({box.Left, box.Top}), draw.ToPaper(box.GetWidth()), draw.ToPaper(box.GetHeight()),
               double(text.GetRadio()));
    if (text.GetFilled())
        draw.Fill(text.GetBackColor());
    draw.Stroke(text.GetColor(), double(text.GetPenWidth()));
}

// The share of the width that lies before the anchor.
double BeforeAnchor(TKSLHorzAlign align) { return align == haCenter ? 0.5 : align == haRight ? 1 : 0; }

} // namespace

void Paint(const TVGRBaseText& text, const CairoDraw& draw) {
    PaintFrame(text, draw);
    const SavedContext saved(draw.Context());
    cairo_t* cr = draw.Context();
    if (text.IsBound() && text.GetEffectiveWidth() != text.Measured().width) {
        const TKSLRect shown = text.GetDisplayBoundsRect();
        RoundedBox(draw, draw.ToPaper({shown.Left, shown.Top}), draw.ToPaper(shown.GetWidth()),
                   draw.ToPaper(shown.GetHeight()), 0);
        cairo_clip(cr);
    }
    const TTextMeasure& size = text.Measured();
    float x = text.GetPointMMX(1), y = text.GetPointMMY(1);
    AdjustPos(text.GetPaddingX(), text.GetPaddingY(), text.GetHorzAlign(), text.GetVertAlign(), text.GetAngle(), x, y);
    cairo_translate(cr, double(x), double(y));
    cairo_rotate(cr, DegAngle(text.GetAngle()) * std::numbers::pi / 180);
    cairo_translate(cr, -BeforeAnchor(text.GetHorzAlign()) * double(GetBaseValue(size.width)),
                    double(BaselineBelow(text.GetVertAlign(), GetBaseValue(size.ascent), GetBaseValue(size.descent))));
    cairo_scale(cr, double(text.GetScaleX()), 1);
    draw.SetColor(text.GetFontColor());
    const TFont& font = text.Font();
    PangoText::ThisThread().Paint(
        cr, text.GetDText(), {font.name, double(text.GetFontHeight()) * size.ratio, font.bold, font.italic},
        {.underline = font.underline, .strikeout = font.strikeout, .outlines = draw.IsRaster()});
}

} // namespace vagrel
