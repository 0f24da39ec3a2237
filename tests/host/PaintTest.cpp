// SPDX-License-Identifier: MIT
// The host paints what the SVG of a document shows: both pictures of every kind of item, the SVG's by a rasteriser that
// nobody here wrote.
#include <host/CairoDraw.h>
#include <host/HostItem.h>
#include <host/HostLabel.h>
#include <host/PangoText.h>
#include <host/Picture.h>
#include <tests/support/ItemSuite.h>
#include <vagrel/barcode/TVGRBaseCode.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/text/TVGRBaseText.h>

#include <gtest/gtest.h>
#include <librsvg/rsvg.h>

#include <cmath>

namespace vagrel::test {
namespace {

// The pictures show the top left part of the label.
constexpr double LabelWidth = 1000, LabelHeight = 800, Width = 120, Height = 100, PixelsPerMm = 6;

Picture White() {
    Picture picture(Width * PixelsPerMm, Height * PixelsPerMm);
    picture.Clear(OpaqueWhite);
    return picture;
}

// Without snapping the bars of symbols do not end at whole pixels, as those of SVG do not.
Picture Painted(const HostLabel& label, bool snapping = true) {
    Picture picture = White();
    cairo_t* context = cairo_create(picture.Surface());
    cairo_scale(context, PixelsPerMm, PixelsPerMm);
    label.PaintItems(CairoDraw(label, context, snapping ? 1 / PixelsPerMm : 0));
    cairo_destroy(context);
    return picture;
}

Picture Rasterised(const std::string& svg) {
    Picture picture = White();
    GError* error = nullptr;
    RsvgHandle* handle = rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(svg.data()), svg.size(), &error);
    if (!handle)
        throw EVagrel(std::string(error->message));
    cairo_t* context = cairo_create(picture.Surface());
    const RsvgRectangle all{0, 0, LabelWidth * PixelsPerMm, LabelHeight * PixelsPerMm};
    EXPECT_TRUE(rsvg_handle_render_document(handle, context, &all, nullptr));
    cairo_destroy(context);
    g_object_unref(handle);
    return picture;
}

struct TCompared {
    int ink = 0;       ///< pixels that are not white in one of the pictures
    int different = 0; ///< and far apart
};

TCompared Compare(const Picture& a, const Picture& b) {
    TCompared compared;
    const int width = cairo_image_surface_get_width(a.Surface()), height = cairo_image_surface_get_height(a.Surface());
    auto pixel = [](const Picture& picture, int x, int y) {
        return cairo_image_surface_get_data(picture.Surface()) + y * cairo_image_surface_get_stride(picture.Surface()) +
               4 * x;
    };
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const unsigned char *p = pixel(a, x, y), *q = pixel(b, x, y);
            int away = 0;
            bool white = true;
            for (int channel = 0; channel < 3; ++channel) {
                away = std::max(away, std::abs(p[channel] - q[channel]));
                white = white && p[channel] == 255 && q[channel] == 255;
            }
            compared.ink += !white;
            compared.different += away > 60;
        }
    return compared;
}

struct Drawing : HostLabel {
    Drawing() {
        SetEditorMode(emDrawing);
        SetUnits(unCM);
        GetMeasure().SetLabelSizeMM(float(LabelWidth), float(LabelHeight));
        GetMeasure().SetDrawScale(10);
    }
};

class EveryPainting : public testing::TestWithParam<TKSLItemType> {};

TEST_P(EveryPainting, IsThePictureOfItsSvg) {
    const TItemSample* sample = SampleOf(GetParam());
    ASSERT_TRUE(sample);
    for (const bool set : {false, true}) {
        Drawing label;
        TVGRBaseItem& item = MakeSample(label, *sample);
        if (set)
            SetEverything(item);
        if (auto* font = Query<IKSLFont>(&item))
            font->SetStrikeout(false); // SVG does not show it
        if (auto* align = Query<IKSLAlign>(&item))
            align->SetHorzAlign(haLeft); // librsvg centres a stretched text beside its place
        item.SetPenWidth(0.8f);
        const bool isSymbol = dynamic_cast<const TVGRBaseCode*>(&item) != nullptr;
        const TCompared compared =
            Compare(Painted(label, !isSymbol), Rasterised(label.SVG(svCurUnitNoMed, 1, false, true)));
        EXPECT_EQ(compared.ink > 0, sample->type != itPoint);
        // Two decimals of a millimetre stand in the SVG; the modules of a symbol have seams there.
        EXPECT_LE(compared.different, compared.ink / (isSymbol ? 5 : 25))
            << "of " << compared.ink << " pixels, set: " << set;
    }
}

INSTANTIATE_TEST_SUITE_P(Items, EveryPainting, testing::ValuesIn(AvailableItemTypes()),
                         [](const auto& row) { return ToUtf8(NameItem(row.param)); });

TEST(PaintTest, TextsStandInTheirBoundsAtEveryAngle) {
    for (const TKSLAngle angle : {ag0, ag90, ag180, ag270})
        for (const TKSLHorzAlign horz : {haLeft, haCenter, haRight})
            for (const TKSLVertAlign vert : {vaTop, vaCenter, vaBottom}) {
                Drawing label;
                auto& text = dynamic_cast<TVGRBaseText&>(label.CreateText(600000, 500000));
                {
                    const UpdateScope measuring(label);
                    text.SetFontName(u"Liberation Sans");
                    text.SetText(u"Ärgerlich");
                    text.SetFontHeight(5);
                    text.SetPaddingX(1);
                    text.SetPaddingY(0.5f);
                    text.SetAngle(angle);
                    text.SetHorzAlign(horz);
                    text.SetVertAlign(vert);
                }
                const Picture shown = Painted(label);
                // The same with the bounds covered must be blank.
                Picture covered = Painted(label);
                cairo_t* context = cairo_create(covered.Surface());
                cairo_scale(context, PixelsPerMm, PixelsPerMm);
                const TKSLRect& box = text.BoundsRect();
                cairo_rectangle(context, label.ToPaper(double(box.Left)), label.ToPaper(double(box.Top)),
                                label.ToPaper(double(box.GetWidth())), label.ToPaper(double(box.GetHeight())));
                cairo_set_source_rgb(context, 1, 1, 1);
                cairo_fill(context);
                cairo_destroy(context);
                const Picture blank = White();
                EXPECT_GT(Compare(shown, blank).ink, 500);
                EXPECT_EQ(Compare(covered, blank).different, 0) << angle << ' ' << horz << ' ' << vert;
            }
}

TEST(PaintTest, MeasuresByTheFontAlone) {
    const PangoText texts;
    const TFontFace face{u"Liberation Sans", 3000, false, false};
    const TTextSize one = texts.Measure(u"H", face);
    EXPECT_NEAR(one.ascent, 2716, 1);
    EXPECT_NEAR(one.descent, 636, 1);
    EXPECT_NEAR(one.width, 3000 * 1479.0 / 2048, 0.1); // advance of "H" in units of the font
    // Long texts do not leave Pango's numbers, and lines break nowhere.
    EXPECT_NEAR(texts.Measure(std::u16string(100000, u'H'), face).width, 100000 * one.width, 100000);
    EXPECT_NEAR(texts.Measure(u"H\nH", face).width, texts.Measure(u"H H", face).width, 0.01);
    EXPECT_GT(texts.Measure(u"Hi", {u"Liberation Sans", 3000, true, false}).width, texts.Measure(u"Hi", face).width);
}

TEST(PaintTest, PicturesHaveALimit) {
    EXPECT_THROW(Picture(32768, 10), EOutOfRange);
    EXPECT_THROW(Picture(10, 1e300), EOutOfRange);
    EXPECT_THROW(Picture(10, std::nan("")), EOutOfRange);
}

} // namespace
} // namespace vagrel::test
