// SPDX-License-Identifier: MIT
// The painting context of this host: a Cairo context whose user space is millimetres on paper.
#pragma once

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Colors.h>
#include <vagrel/foundation/TVGRBaseDraw.h>

#include <cairo.h>

namespace vagrel {

/// A place or length in millimetres on paper.
struct TPaperPoint {
    double x = 0;
    double y = 0;
};

/// What the items of one label are painted on. The Cairo context is the caller's; its origin is the label's corner.
class CairoDraw : public TVGRBaseDraw {
public:
    /// `pixel` is the side of a device pixel in millimetres on paper, 0 for a page of vectors.
    CairoDraw(const TVGRBaseLabel& label, cairo_t* context, double pixel);

    cairo_t* Context() const { return fContext; }
    /// Whether the target is made of pixels; then texts are painted as outlines and bars end at pixels.
    bool IsRaster() const { return fPixel > 0; }
    double Pixel() const { return fPixel; }

    TPaperPoint ToPaper(TKSLPto point) const { return {ToPaper(point.bX), ToPaper(point.bY)}; }
    double ToPaper(std::int64_t base) const { return fLabel.ToPaper(double(base)); }

    void MoveTo(TPaperPoint p) const { cairo_move_to(fContext, p.x, p.y); }
    void LineTo(TPaperPoint p) const { cairo_line_to(fContext, p.x, p.y); }
    void SetColor(TAlphaColor color) const;
    /// Fills the path and keeps it.
    void Fill(TAlphaColor color) const;
    /// Strokes the path and ends it; a width of 0 draws nothing.
    void Stroke(TAlphaColor color, double width, TKSLineType dash = iiSolid) const;

private:
    const TVGRBaseLabel& fLabel;
    cairo_t* fContext;
    double fPixel;
};

/// Keeps the state of a Cairo context and brings it back at the end of the scope.
class SavedContext {
public:
    explicit SavedContext(cairo_t* context) : fContext(context) { cairo_save(fContext); }
    ~SavedContext() { cairo_restore(fContext); }
    SavedContext(const SavedContext&) = delete;
    SavedContext& operator=(const SavedContext&) = delete;

private:
    cairo_t* fContext;
};

} // namespace vagrel
