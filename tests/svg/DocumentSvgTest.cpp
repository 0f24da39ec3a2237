// SPDX-License-Identifier: MIT
// The frame of an SVG document, and what gets into it.
#include <tests/support/ItemSuite.h>
#include <tests/support/TestHost.h>

#include <tests/support/StubItem.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/items/figures/TVGRBaseSector.h>
#include <vagrel/items/lines/TVGRBaseLine.h>
#include <vagrel/items/text/TVGRBaseText.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/platform/Files.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vagrel::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

TEST(DocumentSvg, FrameFitsTheNumbersOfTheMode) {
    TestHost label(emDrawing, unINCH, 50);
    label.GetMeasure().SetLabelSizeMM(215.9f, 100);
    const struct {
        TKSLExportSVG mode;
        const char* root;
    } rows[] = {
        {svCurrentUnit, R"(width="215.90mm" height="100mm" viewBox="0 0 215.90 100")"},
        {svCurUnitNoMed, R"(width="215.90" height="100" viewBox="0 0 215.90 100")"},
        {svFactor, R"(width="431.80mm" height="200mm" viewBox="0 0 431.80 200")"},
        {svFactorPx, R"(width="431.80" height="200" viewBox="0 0 431.80 200")"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(label.SVG(row.mode, 2, false), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                                 "<svg xmlns=\"http://www.w3.org/2000/svg\" " +
                                                     std::string(row.root) + ">\n</svg>\n");
}

// Shares one definition with all of its kind.
struct Marked : TVGRBaseLine {
    using TVGRBaseLine::TVGRBaseLine;
    void WriteSVG(TSVGOutput& out) const override {
        if (!out.Defined("<g id=\"mark\">"))
            out.defs.insert(out.defs.end(), {"<g id=\"mark\">", "</g>"});
        out.svg.push_back("<use href=\"#mark\"/>");
    }
};

TEST(DocumentSvg, DefinitionsStandInFront) {
    TestHost label;
    new StubItem<Marked>(label, false);
    new StubItem<Marked>(label, false);
    EXPECT_THAT(label.SVG(svCurrentUnit, 1, false), HasSubstr(">\n<defs>\n<g id=\"mark\">\n</g>\n</defs>\n"
                                                              "<use href=\"#mark\"/>\n<use href=\"#mark\"/>\n</svg>"));
}

TEST(DocumentSvg, ItemsComeInPaintOrderWhenTheyShow) {
    TestHost label;
    TVGRLayer& back = label.AddLayer();
    auto line = [&](std::u16string_view name) -> TVGRBaseItem& {
        TVGRBaseItem& item = label.CreateLine(0, 0, 1000, 1000);
        item.SetID(name);
        return item;
    };
    auto order = [&] {
        std::string names;
        const std::string svg = label.SVG(svCurrentUnit, 1, true);
        for (std::size_t at = svg.find(" id=\""); at != std::string::npos; at = svg.find(" id=\"", at + 1))
            names += svg[at + 5];
        return names;
    };
    line(u"a").SetLayer(back), line(u"b"), line(u"c");
    EXPECT_EQ(order(), "abc");
    label.SetLayerZOrder(true);
    EXPECT_EQ(order(), "bca");
    label.GetItem(2)->SetOptions({lopVisible, lopPrint});
    EXPECT_EQ(order(), "ba");
    back.SetOptions({lopExport});
    EXPECT_EQ(order(), "b");
}

TEST(DocumentSvg, IsWellFormedWhateverTheNames) {
    TestHost label;
    TVGRBaseItem& line = label.CreateLine(0, 0, 1000, 1000);
    line.SetFixedID(u"a&\"<>b\x01\uFFFF");
    auto& text = dynamic_cast<TVGRBaseText&>(label.CreateText(1000, 1000));
    text.SetText(u"t\x02<");
    text.SetFontName(u"A&\"B");
    auto& slice = dynamic_cast<TVGRBaseSector&>(label.CreateSector({20000, 20000}, 5000, 0, 359.99f));
    EXPECT_TRUE(IsWellFormed(label.SVG(svCurrentUnit, 1, true))) << label.SVG(svCurrentUnit, 1, true);
    for (const std::string& svg : {label.SVG(svCurrentUnit, 1, true), label.SheetSVG(svCurrentUnit, 1, true, false)}) {
        EXPECT_THAT(svg, HasSubstr(" id=\"a&amp;&quot;&lt;&gt;b\" "));
        EXPECT_THAT(svg, HasSubstr(" font-family=\"A&amp;&quot;B\""));
        EXPECT_THAT(svg, HasSubstr(">t&lt;</text>"));
        EXPECT_THAT(svg, AllOf(HasSubstr("<circle"), Not(HasSubstr("<path"))));
    }
    TSVGOutput out{svCurrentUnit, 1, true, false, {}, {}};
    line.WriteSVG(out), text.WriteSVG(out), slice.WriteSVG(out);
    EXPECT_THAT(out.svg,
                ElementsAre(HasSubstr(" id=\"a&\"<>b\x01\uFFFF\" "), HasSubstr("\"A&\"B\""), HasSubstr("<path")))
        << "an item alone writes what is stored";
    slice.SetSweepAngle(180);
    EXPECT_THAT(label.SVG(svCurrentUnit, 1, true), HasSubstr("<path"));
}

TEST(DocumentSvg, TurnedBoxesStandWhereTheyLook) {
    TestHost label;
    TVGRBaseItem* boxes[] = {&label.CreateRectangle(0, 0, 1, 1), &label.CreateCircle({5, 5}, 5),
                             &label.CreateEllipse({5, 5}, 5, 4), &label.CreateSector({5, 5}, 5, 0, 90)};
    for (TVGRBaseItem* box : boxes)
        box->AssignPoints({{1000, 2000}, {5000, 6000}});
    const std::string upright = label.SVG(svCurrentUnit, 1, false);
    for (const TKSLPtoA& points : {TKSLPtoA{{5000, 6000}, {1000, 2000}}, {{1000, 6000}, {5000, 2000}}}) {
        for (TVGRBaseItem* box : boxes)
            box->AssignPoints(points);
        const auto before = JsonOf(label);
        const TKSLRect bounds = boxes[1]->BoundsRect();
        EXPECT_EQ(label.SVG(svCurrentUnit, 1, false), upright);
        EXPECT_THAT(label.SheetSVG(svCurrentUnit, 1, false), Not(HasSubstr("\"-")));
        EXPECT_EQ(JsonOf(label), before);
        EXPECT_EQ(boxes[1]->BoundsRect(), bounds);
    }
    TSVGOutput out;
    boxes[0]->WriteSVG(out);
    EXPECT_THAT(out.svg[0], HasSubstr("y=\"6\"")) << "an item alone writes what is stored";
}

TEST(DocumentSvg, ARealDrawingSurvivesItsFile) {
    TestHost label;
    label.LoadFromFile(u"" VAGREL_SAMPLE);
    EXPECT_GT(label.ItemsCount(), 200);
    EXPECT_EQ(label.GetJson()->ToUtf8JSON(false), ReadFile(VAGREL_SAMPLE));
}

} // namespace
} // namespace vagrel::test
