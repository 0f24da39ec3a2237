// SPDX-License-Identifier: MIT
// The rules of the page and of what hangs beside it: floors, linked paper, draw scale, background, title block.
#include <tests/support/TestHost.h>

#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Exceptions.h>

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
        {"floor", emLabelling, ltRect, &TVGRMeasure::SetWidth, 0.3f, {5000, 35000, 210000, 297000}, true},
        {"unchanged", emLabelling, ltRect, &TVGRMeasure::SetWidth, 6, {60000, 35000, 210000, 297000}, false},
        {"circle", emLabelling, ltCircle, &TVGRMeasure::SetHeight, 4, {40000, 40000, 210000, 297000}, true},
        {"free paper", emLabelling, ltRect, &TVGRMeasure::SetPaperWidth, 10, {60000, 35000, 100000, 297000}, false},
        {"linked label", emFlowChart, ltRect, &TVGRMeasure::SetHeight, 90, {210000, 90000, 210000, 90000}, true},
        {"linked paper", emDrawing, ltRect, &TVGRMeasure::SetPaperHeight, 1, {210000, 5000, 210000, 5000}, true},
        {"millimetres", emDrawing, ltCircle, &TVGRMeasure::SetWidth, 80, {80000, 80000, 80000, 80000}, true},
    };
    for (const TCase& test : cases) {
        SCOPED_TRACE(test.what);
        TestHost label(test.mode, unCM);
        label.GetMeasure().SetLabelType(test.type);
        RecordingObserver editor(duEditor);
        label.Attach(&editor);
        editor.Take();
        (label.GetMeasure().*test.set)(test.value);
        EXPECT_EQ(SizesOf(label), test.sizes);
        EXPECT_EQ(editor.Take(), test.told ? std::vector{chMeasure} : std::vector<TKSChange>());
    }
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

    const TSizes before = SizesOf(drawing);
    EXPECT_THROW(m.SetHeight(298), EInvalidOperation);
    EXPECT_THROW(m.SetLabelSizeMM(298, 20), EInvalidOperation);
    EXPECT_THROW(m.SetPaperName(u"A3"), EInvalidOperation);
    EXPECT_EQ(SizesOf(drawing), before);
    EXPECT_EQ(m.GetPaperName(), u"A4");
    m.SetPaperName(u"a5");
    EXPECT_EQ(SizesOf(drawing), (TSizes{148000, 210000, 148000, 210000}));
    m.SetContinousPaper(false);
    EXPECT_TRUE(m.GetContinousPaper());
}

TEST(Measure, APaperNameSetsTheSizeThatTheTableHas) {
    TestHost label;
    TVGRMeasure& m = label.GetMeasure();
    m.SetPaperName(u"letter");
    EXPECT_EQ(m.GetPaperSizeCode(), 1);
    const TSizes letter{60000, 35000, 215900, 279400};
    EXPECT_EQ(SizesOf(label), letter);
    m.SetPaperName(u"User");
    EXPECT_EQ(m.GetPaperSizeCode(), 256);
    m.SetPaperName(u"No such paper");
    EXPECT_EQ(m.GetPaperSizeCode(), 256);
    EXPECT_EQ(SizesOf(label), letter);
    EXPECT_EQ(m.GetPaperName(), u"No such paper");
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
    label.GetBackSurf().SetAlignLeft(5); // hidden marks change in silence
    label.GetBackSurf().SetShowAlign(true);
    label.GetBackSurf().SetAlignTop(99);
    EXPECT_EQ(editor.Take(), (std::vector{chLabelDef, chAligns, chAligns}));
    EXPECT_EQ(label.GetBackSurf().GetAlignTop(), 35);
    label.GetPrintInfo().SetMarRight(99);
    EXPECT_EQ(label.GetPrintInfo().GetMarRight(), 60);
}

TEST(TitleBlock, ExistsInChartsAndDrawingsOnALayerOfItsOwn) {
    TestHost label(emInteractive);
    label.FillBoxLayer(false);
    EXPECT_EQ(label.LayersCount(), 1);
    TestHost drawing(emDrawing, unM, 50);
    auto textOf = [&](std::u16string_view id) {
        const auto* text = Query<IKSLText>(drawing.SearchItem(id, false));
        return text ? text->GetText() : u"none";
    };
    for (const bool reset : {false, true, false}) {
        drawing.GetMeasure().fTitle = reset ? u"House" : u"Barn";
        drawing.FillBoxLayer(reset);
        ASSERT_EQ(drawing.LayersCount(), 2);
        EXPECT_EQ(drawing.ItemsCount(), 8);
        EXPECT_EQ(textOf(u"bxidtitle"), drawing.GetMeasure().fTitle);
        EXPECT_EQ(textOf(u"bxIDScale"), u"1:50");
    }
    // The scale stands in the middle of its box.
    EXPECT_EQ(drawing.SearchItem(u"bxIDScale", false)->CenterPoint().X, (210000 - 25000) * 50);
    EXPECT_TRUE(drawing.GetLayer(2).GetOptions().Has(lopBox));
    EXPECT_FALSE(drawing.GetLayer(2).GetOptions().Has(lopSelectable));
    TVGRBaseItem* line = drawing.SearchItem(u"BXIDLINE2", false);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->GetPoint(1).bX, (210000 - 40000) * 50);
    EXPECT_EQ(line->GetPoint(2).bY, (297000 - 10000) * 50);
    EXPECT_EQ(line->GetPenWidth(), 0.5f);
    EXPECT_EQ(&line->GetLayer(), &drawing.GetLayer(2));
}

TEST(TitleBlock, FilledTwiceIsTwoStepsBackToTheByte) {
    TestHost drawing(emDrawing, unM, 50);
    TVGRBaseItem& line = drawing.CreateLine(1, 2, 3, 4);
    drawing.Clear({cleUndoRedo}, false);
    std::vector<std::u16string> stands{JsonOf(drawing)};
    const std::function<void()> steps[] = {[&] { drawing.FillBoxLayer(true); }, [&] { line.SetPenWidth(3); },
                                           [&] { drawing.FillBoxLayer(true); }};
    for (const auto& step : steps) {
        step();
        stands.push_back(JsonOf(drawing));
    }
    for (const int direction : {-1, 1}) {
        for (std::size_t left = 3, at = direction < 0 ? 3 : 0; left > 0; --left) {
            direction < 0 ? drawing.Undo() : drawing.Redo();
            at += std::size_t(direction);
            EXPECT_EQ(JsonOf(drawing), stands[at]) << at;
        }
        EXPECT_TRUE(direction < 0 ? drawing.IsUndoEmpty() : drawing.IsRedoEmpty());
    }
    // Where no transaction may begin it is filled all the same.
    drawing.BeginRead(true);
    drawing.FillBoxLayer(true);
    drawing.EndRead(false);
    EXPECT_EQ(drawing.ItemsCount(), 9);
}

} // namespace
} // namespace vagrel::test
