// SPDX-License-Identifier: MIT
// The rules of the page and of what hangs beside it: floors, linked paper, draw scale, background, title block.
#include <tests/support/TestHost.h>

#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/geo/TVGRMapping.h>

#include <gtest/gtest.h>

namespace vagrel::test {
namespace {

using TSizes = std::array<std::int64_t, 4>;

// Label, then paper.
TSizes SizesOf(const TVGRBaseLabel& label) {
    const TVGRMeasure& m = label.GetMeasure();
    return {m.GetSize(mtLabelWidth, false), m.GetSize(mtLabelHeight, false), m.GetSize(mtPaperWidth, false),
            m.GetSize(mtPaperHeight, false)};
}

TEST(Measure, ASideTakesItsFloorItsCircleAndItsPaperAlong) {
    struct TCase {
        const char* what;
        TKSLEditorMode mode;
        TVagrelType type;
        void (TVGRMeasure::*set)(float);
        float value;
        TSizes sizes;
        bool told;
    };
    const TCase cases[] = {
        {"floor", emLabelling, ltRect, &TVGRMeasure::SetWidth, 3, {5000, 35000, 210000, 297000}, true},
        {"unchanged", emLabelling, ltRect, &TVGRMeasure::SetWidth, 60, {60000, 35000, 210000, 297000}, false},
        {"circle", emLabelling, ltCircle, &TVGRMeasure::SetHeight, 40, {40000, 40000, 210000, 297000}, true},
        {"free paper", emLabelling, ltRect, &TVGRMeasure::SetPaperWidth, 100, {60000, 35000, 100000, 297000}, false},
        {"linked label", emFlowChart, ltRect, &TVGRMeasure::SetHeight, 90, {210000, 90000, 210000, 90000}, true},
        {"linked paper", emDrawing, ltRect, &TVGRMeasure::SetPaperHeight, 1, {210000, 5000, 210000, 5000}, true},
        {"linked circle", emDrawing, ltCircle, &TVGRMeasure::SetWidth, 80, {80000, 80000, 80000, 80000}, true},
    };
    for (const TCase& test : cases) {
        SCOPED_TRACE(test.what);
        TestHost label(test.mode);
        label.GetMeasure().SetLabelType(test.type);
        RecordingObserver editor(duEditor);
        label.Attach(&editor);
        editor.Take();
        (label.GetMeasure().*test.set)(test.value);
        EXPECT_EQ(SizesOf(label), test.sizes);
        EXPECT_EQ(editor.Take(), test.told ? std::vector{chMeasure} : std::vector<TKSChange>());
    }
}

TEST(Measure, SidesAreMillimetresWhereTheModeHasAScale) {
    TestHost drawing(emDrawing, unINCH), label(emLabelling, unINCH);
    drawing.GetMeasure().SetWidth(50.8f);
    label.GetMeasure().SetWidth(2);
    EXPECT_EQ(SizesOf(drawing)[0], SizesOf(label)[0]);
    drawing.GetMeasure().SetMarLeft(1);
    EXPECT_EQ(drawing.GetMeasure().GetSize(mtMarginLeft, false), 25400);
    drawing.GetMeasure().SetMarLeft(-100);
    EXPECT_EQ(drawing.GetMeasure().GetSize(mtMarginLeft, false), -5000);
}

TEST(Measure, TheScaleIsLimitedByThePaper) {
    TestHost label, drawing(emDrawing);
    label.GetMeasure().SetDrawScale(500);
    EXPECT_EQ(label.GetMeasure().GetDrawScale(), 1);

    TVGRMeasure& m = drawing.GetMeasure();
    EXPECT_EQ(m.GetMaxDrawScale(), 31055124703214);
    for (const std::int64_t bad : {std::int64_t(0), std::int64_t(-1), m.GetMaxDrawScale() + 1})
        EXPECT_THROW(m.SetDrawScale(bad), EOutOfRange) << bad;
    m.SetDrawScale(m.GetMaxDrawScale());
    EXPECT_EQ(m.GetSize(mtPaperHeight, true), 31055124703214 * 297000);

    const TSizes before = SizesOf(drawing);
    EXPECT_THROW(m.SetHeight(298), EInvalidOperation);
    EXPECT_THROW(m.SetPaperWidth(298), EInvalidOperation);
    EXPECT_THROW(m.SetLabelSizeMM(298, 20), EInvalidOperation);
    EXPECT_THROW(m.SetPaperSizeMM(20, 298), EInvalidOperation);
    EXPECT_THROW(m.SetPaperName(u"A3"), EInvalidOperation);
    EXPECT_EQ(SizesOf(drawing), before);
    EXPECT_EQ(m.GetPaperName(), u"A4");
    m.SetPaperName(u"a5");
    EXPECT_EQ(SizesOf(drawing), (TSizes{148000, 210000, 148000, 210000}));
}

TEST(Measure, APaperNameSetsTheSizeThatTheTableHas) {
    struct TCase {
        std::u16string_view name;
        int code;
        TSizes sizes;
    };
    const TCase cases[] = {
        {u"letter", 1, {60000, 35000, 215900, 279400}},        {u"EXECUTIVE", 7, {60000, 35000, 184150, 266700}},
        {u"User", 256, {60000, 35000, 210000, 297000}},        {u"B4 (ISO)", 42, {60000, 35000, 250000, 353000}},
        {u"No such paper", 9, {60000, 35000, 210000, 297000}},
    };
    for (const TCase& test : cases) {
        TestHost label;
        label.GetMeasure().SetPaperName(test.name);
        EXPECT_EQ(label.GetMeasure().GetPaperName(), test.name);
        EXPECT_EQ(label.GetMeasure().GetPaperSizeCode(), test.code);
        EXPECT_EQ(SizesOf(label), test.sizes);
    }
    EXPECT_EQ(UserPaperIndex(), 26);
}

TEST(Measure, StreamingTakesNoMargins) {
    TestHost label;
    label.SetModified(false);
    label.BeginLoading();
    label.GetMeasure().SetMarTop(1);
    label.GetMeasure().SetDiHor(1);
    label.GetMeasure().SetPaperName(u"A3");
    label.Loaded();
    EXPECT_EQ(label.GetMeasure().GetMarTop(), 10);
    EXPECT_EQ(label.GetMeasure().GetDiHor(), 4);
    EXPECT_EQ(label.GetMeasure().GetPaperName(), u"A3");
    EXPECT_EQ(label.GetMeasure().GetPaperWidth(), 210);
    EXPECT_FALSE(label.GetModified());
}

TEST(Measure, ContinuousPaperIsOneLabel) {
    TestHost drawing(emDrawing), label;
    drawing.GetMeasure().SetContinousPaper(false);
    EXPECT_TRUE(drawing.GetMeasure().GetContinousPaper());
    label.GetMeasure().SetContinousPaper(true);
    EXPECT_EQ(SizesOf(label), (TSizes{210000, 297000, 210000, 297000}));
    EXPECT_EQ(label.GetMeasure().GetNuHor() + label.GetMeasure().GetNuVer(), 2);
    EXPECT_EQ(label.GetMeasure().GetMarLeft() + label.GetMeasure().GetDiVer(), 0);
}

TEST(Measure, TheShapeDropsWhatDoesNotFitIt) {
    TestHost label;
    TVGRMeasure& m = label.GetMeasure();
    TVGRBackSurf& back = label.GetBackSurf();
    back.SetStyle(biImage);
    EXPECT_EQ(back.GetStyle(), biNone) << "no file";
    back.SetStyle(biQuarter);
    EXPECT_EQ(back.GetStyle(), biNone);
    back.SetStyle(biGradHor);
    m.SetLabelType(ltCircle);
    EXPECT_EQ(back.GetStyle(), biNone);
    EXPECT_EQ(SizesOf(label)[1], 60000);
    m.SetInnerCircle(500);
    EXPECT_EQ(m.GetInnerCircle(), 60) << "not above the width";
    back.SetStyle(biHalf2);
    m.SetLabelType(ltRect);
    EXPECT_EQ(back.GetStyle(), biNone);
    EXPECT_EQ(m.GetInnerCircle(), 0);
}

TEST(Measure, MarksAndPrintMarginsStayOnTheLabel) {
    TestHost label;
    RecordingObserver editor(duEditor);
    label.Attach(&editor);
    label.GetBackSurf().SetAlignLeft(5);
    EXPECT_EQ(editor.Take(), std::vector{chLabelDef}) << "hidden marks change in silence";
    label.GetBackSurf().SetShowAlign(true);
    label.GetBackSurf().SetAlignTop(99);
    label.GetBackSurf().SetToColor(OpaqueBlack);
    EXPECT_EQ(editor.Take(), (std::vector{chAligns, chAligns, chBackSurf}));
    EXPECT_EQ(label.GetBackSurf().GetAlignTop(), 35);
    label.GetPrintInfo().SetMarRight(99);
    label.GetPrintInfo().SetMarBottom(-1);
    EXPECT_EQ(label.GetPrintInfo().GetMarRight(), 60);
    EXPECT_EQ(label.GetPrintInfo().GetMarBottom(), 0);
}

TEST(Settings, KeepTheirFloorsAndReadOnPaper) {
    TestHost drawing(emDrawing, unM, 10);
    drawing.GetSettings().SetTermSize(0.1f);
    drawing.GetSettings().SetLinkGap(-1);
    EXPECT_EQ(drawing.GetSettings().BaseLinkGap(), 0);
    EXPECT_EQ(drawing.GetSettings().BaseTermSize(), 500);
    EXPECT_FLOAT_EQ(drawing.GetSettings().GetTermSize(), 0.05f);
}

TEST(Mapping, AssignCopiesThePlaceButNotTheImage) {
    TestHost from, to;
    from.GetMapping().SetLatitude(40.5);
    from.GetMapping().SetZoom(12);
    from.GetMapping().SetFileName(u"map.png");
    from.GetMapping().SetMapProviders({mpESRI});
    to.SetMapping(from.GetMapping());
    EXPECT_EQ(to.GetMapping().GetLatitude(), 40.5);
    EXPECT_EQ(to.GetMapping().GetZoom(), 12);
    EXPECT_EQ(to.GetMapping().GetFileName(), u"");
    EXPECT_TRUE(to.GetMapping().GetMapProviders().Empty());
}

TEST(TitleBlock, ExistsInChartsAndDrawingsOnALayerOfItsOwn) {
    auto fill = [](TestHost& label) {
        try {
            label.FillBoxLayer(false);
        } catch (const ENotAvailable&) { // texts
        }
    };
    for (TKSLEditorMode mode : {emLabelling, emInteractive}) {
        TestHost label(mode);
        fill(label);
        EXPECT_EQ(label.LayersCount(), 1);
        EXPECT_EQ(label.ItemsCount(), 0);
    }
    TestHost drawing(emDrawing, unM, 50);
    for (int round = 0; round < 2; ++round) {
        fill(drawing);
        ASSERT_EQ(drawing.LayersCount(), 2);
    }
    EXPECT_TRUE(drawing.GetLayer(2).GetOptions().Has(lopBox));
    EXPECT_FALSE(drawing.GetLayer(2).GetOptions().Has(lopSelectable));
    TVGRBaseItem* line = drawing.SearchItem(u"BXIDLINE2", false);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->GetPoint(1).bX, (210000 - 40000) * 50);
    EXPECT_EQ(line->GetPoint(2).bY, (297000 - 10000) * 50);
    EXPECT_EQ(line->GetPenWidth(), 0.5f);
    EXPECT_EQ(&line->GetLayer(), &drawing.GetLayer(2));
    TestHost chart(emFlowChart);
    fill(chart);
    EXPECT_EQ(chart.SearchItem(u"bxIDLine2", false), nullptr);
    EXPECT_NE(chart.SearchItem(u"bxIDPageFrame", false), nullptr);
}

} // namespace
} // namespace vagrel::test
