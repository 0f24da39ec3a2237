// SPDX-License-Identifier: MIT
// Texts measured and painted by Pango over Cairo: one font map for both, so that what is measured is what is painted.
#pragma once

#include <host/TextMeasurer.h>

#include <cairo.h>

#include <memory>
#include <set>
#include <string>

typedef struct _PangoContext PangoContext;
typedef struct _PangoLayout PangoLayout;

namespace vagrel {

/// Single lines of text with unhinted metrics. A font that is not installed is replaced by one that is, with one line
/// on standard error. Belongs to one thread.
class PangoText final : public TextMeasurer {
public:
    PangoText();
    ~PangoText() override;

    TTextSize Measure(std::u16string_view text, const TFontFace& font) const override;

    struct TLook {
        bool underline = false;
        bool strikeout = false;
        /// Paints outlines in place of glyphs: exact places in pictures, where a page keeps its fonts.
        bool outlines = false;
    };
    /// Paints a text in the current colour. Its baseline starts at the origin; the font height is in user units.
    void Paint(cairo_t* cr, std::u16string_view text, const TFontFace& font, const TLook& look) const;

    /// The texts of this thread.
    static const PangoText& ThisThread();

private:
    struct TFree {
        void operator()(void* object) const;
    };

    /// Sets the line out with an em of the size that is answered, in units of Pango's pixels.
    double LayOut(std::u16string_view text, const TFontFace& font, const TLook& look) const;
    void TellReplaced(const std::string& family) const;

    std::unique_ptr<PangoContext, TFree> fContext;
    std::unique_ptr<PangoLayout, TFree> fLayout;
    mutable std::set<std::string> fTold;
};

} // namespace vagrel
