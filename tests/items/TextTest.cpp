// SPDX-License-Identifier: MIT
// The single-line text: limits, place, binding and SVG. A fixed measurer gives every code unit 0.6 em.
#include <tests/support/StubItem.h>
#include <tests/support/TestHost.h>

#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/text/LabelPosition.h>
#include <vagrel/items/text/TVGRBaseText.h>
#include <vagrel/merge/TVGRData.h>

#include <gtest/gtest.h>

namespace vagrel::test {
namespace {

class MeasuredText : public TVGRBaseText {
public:
    using TVGRBaseText::TVGRBaseText;

    void CalcValues(int kind) override {
        TVGRBaseText::CalcValues(kind);
        const TTextSize size =
            FixedTextMeasurer().Measure(GetDText(), {Font().name, double(Font().height), GetBold(), GetItalic()});
        const std::int32_t ascent = Round32(size.ascent), descent = Round32(size.descent);
        StoreMeasure({Round32(size.width * double(GetScaleX())), ascent + descent, ascent, descent, 0, 1});
    }
    void DrawItem(const TVGRBaseDraw&) override {}
    void PrintItem(const TVGRBaseDraw&) override {}
};

// "ab" at (10, 20) mm with a font of 10 mm: 12 × 10 mm.
struct TextTest : testing::Test {
    TestHost label;
    MeasuredText& text = *new MeasuredText(label, false);

    void SetUp() override {
        text.SetBase(1, 10000, 20000);
        const UpdateScope bracket(label);
        text.SetText(u"ab");
    }
    std::string Svg(bool portable = false) {
        TSVGOutput out{svCurrentUnit, 1, false, portable, {}, {}};
        text.WriteSVG(out);
        std::string all;
        for (const std::string& line : out.svg)
            all += line + "\n";
        return all;
    }
};

TEST_F(TextTest, SettersKeepTheirLimits) {
    text.SetFontHeight(0.5f);
    EXPECT_EQ(text.GetFontHeight(), 1.0f);
    text.SetScaleX(3);
    EXPECT_EQ(text.GetScaleX(), 2.0f);
    text.SetScaleX(0.1f);
    EXPECT_EQ(text.GetScaleX(), 0.4f);
    text.SetPaddingX(-2);
    EXPECT_EQ(text.GetPaddingX(), 0.0f);
    text.SetRadio(8);
    EXPECT_EQ(text.GetRadio(), 5.0f) << "half the measured height";
    text.SetDispWidth(12000);
    EXPECT_EQ(text.GetDispWidth(), 0);
    text.SetDispWidth(5000);
    EXPECT_EQ(text.GetEffectiveWidth(), 5000);
}

TEST_F(TextTest, StandsAroundItsAnchor) {
    struct TCase {
        TKSLHorzAlign horz;
        TKSLVertAlign vert;
        TKSLAngle angle;
        TKSLRect bounds; // W = 12000, H = 10000
    };
    const TCase cases[] = {
        {haLeft, vaTop, ag0, {10000, 20000, 22000, 30000}},
        {haCenter, vaCenter, ag0, {4000, 15000, 16000, 25000}},
        {haRight, vaBottom, ag0, {-2000, 10000, 10000, 20000}},
        {haCenter, vaTop, ag90, {10000, 14000, 20000, 26000}},
        {haLeft, vaBottom, ag90, {0, 8000, 10000, 20000}},
        {haLeft, vaTop, ag180, {-2000, 10000, 10000, 20000}},
        {haRight, vaTop, ag270, {0, 8000, 10000, 20000}},
        {haJustify, vaBottom, ag0, {10000, 10000, 22000, 20000}},
        {haJustify, vaBottom, ag90, {10000, 20000, 22000, 30000}},
    };
    for (const TCase& one : cases) {
        text.SetHorzAlign(one.horz);
        text.SetVertAlign(one.vert);
        text.SetAngle(one.angle);
        EXPECT_EQ(text.BoundsRect(), one.bounds) << one.horz << one.vert << one.angle;
    }
}

TEST_F(TextTest, PrefixesTellTheSource) {
    const std::tuple<const char16_t*, TKSLFillType, const char16_t*> cases[] = {{u"@Counter1", ftCounter, u"Counter1"},
                                                                                {u"{name", ftJson, u"name"},
                                                                                {u"~id", ftField, u"id"},
                                                                                {u"=list", ftList, u"list"},
                                                                                {u"?ask", ftAsk, u"ask"},
                                                                                {u"^cell", ftCsv, u"cell"},
                                                                                {u"plain", ftField, u"plain"}};
    label.GetData().SetLinkData(true);
    for (const auto& [name, type, field] : cases) {
        text.SetData(ftField, name, u"0.00");
        EXPECT_EQ(text.FillType(), type) << ToUtf8(name);
        EXPECT_EQ(text.FillName(), field);
        EXPECT_EQ(text.GetText(), field) << "the field's name stands in the text";
    }
    text.SetData(ftField, u"-Unassign-", u"");
    EXPECT_EQ(text.FillType(), ftNone);
    text.SetData(ftField, u"a", u"");
    text.SetText(u"");
    EXPECT_EQ(text.FillType(), ftField) << "an empty text keeps the binding";
    label.GetData().SetLinkData(false);
    EXPECT_EQ(text.SymFillName(), u"~a") << "also while no data is linked";
    label.GetData().SetLinkData(true);
    text.SetText(u"x");
    EXPECT_EQ(text.FillType(), ftNone);
    EXPECT_FALSE(text.IsBound());
}

TEST_F(TextTest, WritesSvg) {
    EXPECT_EQ(Svg(),
              "<text x=\"10\" y=\"20\" font-family=\"Arial\" font-size=\"10\"  fill=\"#000000\" xml:space=\"preserve\" "
              "text-anchor=\"start\" alignment-baseline=\"text-before-edge\"  transform=\"scale(1, 1)\">ab</text>\n");
    EXPECT_NE(Svg(true).find("y=\"28\""), std::string::npos) << "the baseline lies an ascent lower";
    text.SetText(u"a<&");
    text.SetBold(true);
    text.SetUnderline(true);
    text.SetScaleX(2);
    text.SetAngle(ag180);
    text.SetFilled(true);
    text.SetPaddingX(1);
    text.CalcValues(2);
    EXPECT_EQ(
        Svg(),
        "<rect x=\"-28\" y=\"10\" width=\"38\" height=\"10\"   fill=\"#FFFFFF\" stroke=\"#000000\" "
        "stroke-width=\"0\"/>\n"
        "<text x=\"4.50\" y=\"20\" font-family=\"Arial\" font-weight=\"bold\" text-decoration=\"underline\" "
        "font-size=\"10\"  fill=\"#000000\" xml:space=\"preserve\" text-anchor=\"start\" "
        "alignment-baseline=\"text-before-edge\"  transform=\"rotate(-180 9 20) scale(2, 1)\">a&lt;&amp;</text>\n");
}

TEST(LabelOnLine, LeavesAGapWhereTheLabelStandsInTheLine) {
    const TLabelSize size{1000, 4000, 800, 200};
    const TLabelPlace above = PosBaseLinesText({0, 0}, {10000, 0}, size, tpAbove);
    EXPECT_EQ(above.gap1, TKSLPto());
    EXPECT_EQ(above.text, (TKSLPto{3000, -200}));
    const TLabelPlace middle = PosBaseLinesText({10000, 0}, {0, 0}, size, tpMiddle);
    EXPECT_EQ(middle.gap1, (TKSLPto{7000, 0})) << "toward point 1";
    EXPECT_EQ(middle.gap2, (TKSLPto{3000, 0}));
    EXPECT_EQ(PosBaseLinesText({0, 0}, {0, 10000}, size, tpHorz).angle, 0.0f);
    EXPECT_LT(PosBaseLinesText({0, 0}, {10000, 0}, size, tpVert).angle, -1.57f);
    const TLabelPlace oblique = PosBaseLinesText({0, 0}, {6000, 8000}, size, tpBelow);
    EXPECT_EQ(oblique.gap1, (TKSLPto{1800, 2400}));
    EXPECT_EQ(oblique.gap2, (TKSLPto{4200, 5600}));
    const TLabelPlace level = PosBaseLinesText({0, 0}, {10000, 10000}, size, tpHorz);
    EXPECT_EQ(level.gap1, (TKSLPto{4500, 4500})) << "where the line enters the label's box";
    EXPECT_EQ(level.gap2, (TKSLPto{5500, 5500}));
}

} // namespace
} // namespace vagrel::test
