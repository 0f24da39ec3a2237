// SPDX-License-Identifier: MIT
// Texts by Pango.
#include <host/PangoText.h>

#include <vagrel/foundation/Text.h>

#include <pango/pangocairo.h>

#include <algorithm>
#include <cstring>
#include <iostream>

#ifdef __has_feature
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
// Fontconfig keeps what it has found for the life of the process.
extern "C" {
const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }
const char* __lsan_default_options();
const char* __lsan_default_options() { return "print_suppressions=0"; }
}
#endif

namespace vagrel {

namespace {

struct TFreeFont {
    void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
    void operator()(PangoFontMetrics* metrics) const { pango_font_metrics_unref(metrics); }
    void operator()(PangoFont* font) const { g_object_unref(font); }
    void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
    void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};
template <class T>
using TOwn = std::unique_ptr<T, TFreeFont>;

// Large enough for exact advances, small enough that the longest text fits the 32 bits of Pango's 1024ths of a pixel.
double EmFor(std::u16string_view text) {
    return std::min(1000.0, 500000.0 / double(std::max<std::size_t>(text.size(), 1)));
}

TOwn<PangoFontDescription> Describe(const std::string& family, const TFontFace& font, double em) {
    TOwn<PangoFontDescription> description(pango_font_description_new());
    pango_font_description_set_family(description.get(), family.c_str());
    pango_font_description_set_weight(description.get(), font.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(description.get(), font.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_font_description_set_absolute_size(description.get(), em * PANGO_SCALE);
    return description;
}

// A single line has no breaks and no tabs.
std::string OneLine(std::u16string_view text) {
    std::string line = ToUtf8(text);
    std::ranges::replace_if(
        line, [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return line;
}

bool IsGeneric(std::string_view family) {
    constexpr std::string_view generic[] = {"",          "sans",    "sans-serif", "serif",
                                            "monospace", "cursive", "fantasy",    "system-ui"};
    return std::ranges::find(generic, family) != std::end(generic);
}

} // namespace

void PangoText::TFree::operator()(void* object) const { g_object_unref(object); }

PangoText::PangoText() {
    fContext.reset(pango_font_map_create_context(pango_cairo_font_map_get_default()));
    const TOwn<cairo_font_options_t> options(cairo_font_options_create());
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(fContext.get(), options.get());
    pango_context_set_round_glyph_positions(fContext.get(), FALSE);
    fLayout.reset(pango_layout_new(fContext.get()));
    pango_layout_set_single_paragraph_mode(fLayout.get(), TRUE);
}

PangoText::~PangoText() = default;

const PangoText& PangoText::ThisThread() {
    thread_local const PangoText texts;
    return texts;
}

void PangoText::TellReplaced(const std::string& family) const {
    if (IsGeneric(family) || !fTold.insert(family).second)
        return;
    const TOwn<PangoFontDescription> wanted = Describe(family, {}, 10);
    const TOwn<PangoFont> found(pango_context_load_font(fContext.get(), wanted.get()));
    if (!found)
        return;
    const TOwn<PangoFontDescription> description(pango_font_describe(found.get()));
    const char* name = pango_font_description_get_family(description.get());
    if (name && g_ascii_strcasecmp(name, family.c_str()) != 0)
        std::cerr << "vagrel: the font \"" << family << "\" is not installed, \"" << name << "\" takes its place\n";
}

double PangoText::LayOut(std::u16string_view text, const TFontFace& font, const TLook& look) const {
    const std::string family = ToUtf8(font.name), line = OneLine(text);
    TellReplaced(family);
    const double em = EmFor(text);
    PangoLayout* layout = fLayout.get();
    pango_layout_set_font_description(layout, Describe(family, font, em).get());
    const TOwn<PangoAttrList> attributes(pango_attr_list_new());
    if (look.underline)
        pango_attr_list_insert(attributes.get(), pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
    if (look.strikeout)
        pango_attr_list_insert(attributes.get(), pango_attr_strikethrough_new(TRUE));
    pango_layout_set_attributes(layout, attributes.get());
    pango_layout_set_text(layout, line.data(), int(line.size()));
    return em;
}

TTextSize PangoText::Measure(std::u16string_view text, const TFontFace& font) const {
    const double em = LayOut(text, font, {});
    int width = 0, height = 0;
    pango_layout_get_size(fLayout.get(), &width, &height);
    const TOwn<PangoFontMetrics> metrics(pango_context_get_metrics(
        fContext.get(), pango_layout_get_font_description(fLayout.get()), pango_context_get_language(fContext.get())));
    const double unit = font.height / (em * PANGO_SCALE);
    return {width * unit, pango_font_metrics_get_ascent(metrics.get()) * unit,
            pango_font_metrics_get_descent(metrics.get()) * unit,
            -pango_font_metrics_get_underline_position(metrics.get()) * unit};
}

void PangoText::Paint(cairo_t* cr, std::u16string_view text, const TFontFace& font, const TLook& look) const {
    const double em = LayOut(text, font, look);
    PangoLayoutLine* line = pango_layout_get_line_readonly(fLayout.get(), 0);
    cairo_save(cr);
    cairo_scale(cr, font.height / em, font.height / em);
    cairo_move_to(cr, 0, 0);
    if (look.outlines) {
        pango_cairo_layout_line_path(cr, line);
        cairo_fill(cr);
    } else {
        pango_cairo_show_layout_line(cr, line);
    }
    cairo_restore(cr);
}

} // namespace vagrel
