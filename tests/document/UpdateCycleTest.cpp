// SPDX-License-Identifier: MIT
// Who is told what and when: changes, brackets, and what observers may do meanwhile.
#include <tests/document/ProbeItem.h>

#include <vagrel/document/UpdateScope.h>
#include <vagrel/editor/TAct.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

namespace vagrel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Runs an action on every change that it is told.
struct ActingObserver final : IKSObserver {
    std::function<void(TKSChange)> act;
    TKSDestUpdate GetDest() const override { return duEditor; }
    void Update(TKSChange change, const TKSChangeValue&) override {
        if (act)
            act(change);
    }
};

class UpdateCycle : public testing::Test {
protected:
    UpdateCycle() {
        label.Attach(&editor);
        label.Attach(&inspector);
        label.Attach(&preview);
        label.Attach(&symbol);
        editor.Take();
    }
    ~UpdateCycle() override { TAct::ResetForTests(); }

    TestHost label;
    RecordingObserver editor{duEditor}, inspector{duInspector}, preview{duPreview}, symbol{duSymbol};
};

TEST_F(UpdateCycle, EveryChangeHasItsAudienceAndPayload) {
    TAct::SetActionState(eaLine, edPickSecond);
    for (int change = chLabelDef; change <= chSelSymbol; ++change)
        label.ChangeValue(TKSChange(change));
    const std::map<TKSChange, std::pair<int, int>> payloads{
        {chLabelDef, {60000, 35000}}, {chMeasure, {60000, 35000}},      {chBackSurf, {-1, 0}},
        {chAligns, {-1, 0}},          {chDraw, {eaLine, edPickSecond}}, {chCursor, {eaLine, edPickSecond}}};
    for (const auto& [change, value] : editor.told) {
        const auto row = payloads.find(change);
        const std::pair<int, int> expected = row == payloads.end() ? std::pair(0, 0) : row->second;
        EXPECT_EQ(std::pair(int(value.fInt1), int(value.fInt2)), expected) << change;
    }
    EXPECT_THAT(editor.Take(),
                ElementsAre(chLabelDef, chBackSurf, chAligns, chMeasure, chPropItem, chUnits, chPaint, chDraw, chSelect,
                            chScrollSelect, chClearSelect, chCursor, chSelCur, chText, chText, chPickSel, chSelSymbol));
    EXPECT_THAT(inspector.Take(), ElementsAre(chPropItem, chSelect, chScrollSelect, chInspect, chEditInspect,
                                              chInspectPoint, chText, chText));
    EXPECT_THAT(preview.Take(), ElementsAre(chMeasure, chPaint, chDraw));
    EXPECT_THAT(symbol.Take(), IsEmpty());
    label.SetEditorMode(emInteractive);
    inspector.Take();
    label.ChangeValue(chScrollSelect);
    EXPECT_THAT(inspector.Take(), IsEmpty());
}

TEST_F(UpdateCycle, AReportWaitsForTheBracketOrActsAtOnce) {
    ProbeItem& item = MakeProbe(label, itLine);
    const struct {
        TVagrelState state;
        TVagrelStateOptions kept;
        std::vector<TKSChange> told; // at the end of the bracket, or at once while `fUpdate` is set
    } rows[] = {{lsModified, {}, {}},
                {lsUpdate, {lsUpdate}, {chPaint}},
                {lsUpdateMeasure, {lsUpdateMeasure}, {chMeasure}},
                {lsCalc, {lsUpdate, lsCalc}, {chPaint}},
                {lsCalcNoUpdate, {}, {}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.state);
        label.BeginUpdate(true);
        label.ChangeState(row.state, item);
        label.ChangeState(row.state, item);
        EXPECT_EQ(label.GetStates(), (row.kept + TVagrelStateOptions{lsModified, lsUpdating}));
        EXPECT_EQ(item.calcs.size(), row.state == lsCalcNoUpdate ? 2u : 0u);
        EXPECT_THAT(editor.Take(), IsEmpty());
        label.EndUpdate();
        EXPECT_EQ(item.calcs.size(), row.state == lsCalcNoUpdate ? 2u : row.state == lsCalc ? 1u : 0u);
        EXPECT_EQ(editor.Take(), row.told);
        EXPECT_EQ(label.GetStates(), TVagrelStateOptions{lsModified});

        label.PaintEditor(); // leaves `fUpdate` set
        editor.Take(), item.calcs.clear();
        label.ChangeState(row.state, item);
        EXPECT_EQ(item.calcs.size(), row.state == lsCalcNoUpdate || row.state == lsCalc ? 1u : 0u);
        EXPECT_EQ(editor.Take(), row.told);
        label.EndUpdate();
        editor.Take(), item.calcs.clear();
    }
}

TEST_F(UpdateCycle, BracketsAreFlags) {
    label.BeginUpdate(true);
    label.ChangeValue(chMeasure);
    label.ChangeValue(chPaint); // any other change is told at once
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    label.AddState(lsUpdate);
    label.EndUpdate();
    EXPECT_THAT(editor.Take(), ElementsAre(chMeasure)); // in place of the repaint
    EXPECT_FALSE(label.GetUpdate());

    label.BeginUpdate(true);
    label.BeginUpdate(false); // forbids the repaint of both
    label.AddState(lsUpdate);
    label.EndUpdate();
    EXPECT_THAT(editor.Take(), IsEmpty());
    label.AddState(lsUpdate);
    label.EndUpdate(); // of none
    ASSERT_EQ(editor.told.size(), 1u);
    EXPECT_EQ(editor.told[0].value.fInt1, 1); // painted while `fUpdate` is set
}

TEST_F(UpdateCycle, ObserversMayChangeTheListWhileTheyAreTold) {
    ActingObserver first;
    RecordingObserver second{duEditor}, late{duEditor};
    label.Attach(&first);
    label.Attach(&second);
    second.Take();
    first.act = [&](TKSChange) {
        label.Attach(&late);
        label.Detach(&first);
        label.Detach(&second);
    };
    label.Refresh();
    EXPECT_THAT(second.Take(), IsEmpty());
    EXPECT_THAT(late.Take(), ElementsAre(chLabelDef)); // but not the change under way
    label.Refresh();
    EXPECT_THAT(late.Take(), ElementsAre(chPaint));
}

TEST_F(UpdateCycle, ItemsMayBeFreedWhileTheyAreCalculatedAndPainted) {
    ProbeItem& item = MakeProbe(label, itFlow);
    ProbeItem& link = MakeProbe(label, itLink);
    ProbeItem& gone = MakeProbe(label, itLink);
    ActingObserver observer;
    label.Attach(&observer);
    item.onCalc = [&] {
        link.StateCalc();
        label.FreeItem(gone);
    };
    observer.act = [&](TKSChange) {
        const UpdateScope inner(label, false);
        item.StateCalc();
        label.FreeItem(item);
    };
    label.BeginUpdate(true);
    item.StateCalc();
    gone.StateCalc();
    label.EndUpdate();
    EXPECT_THAT(link.calcs, ElementsAre(2));
    EXPECT_EQ(label.ItemsCount(), 1);
    EXPECT_EQ(label.GetStates(), TVagrelStateOptions{lsModified});
    label.Detach(&observer);
}

TEST_F(UpdateCycle, BracketsCloseAfterExceptionsAndTheFirstOneGoesOn) {
    ProbeItem& item = MakeProbe(label, itLine);
    item.onCalc = [] { throw std::runtime_error("calc"); };
    ActingObserver observer;
    label.Attach(&observer);
    observer.act = [](TKSChange) { throw std::runtime_error("observer"); };
    const std::pair<const char*, std::function<void()>> rows[] = {{"observer", [&] { item.StateUpdate(); }},
                                                                  {"calc", [&] { item.StateCalc(); }},
                                                                  {"body", [&] {
                                                                       item.StateUpdate();
                                                                       throw std::runtime_error("body");
                                                                   }}};
    for (const auto& [what, body] : rows) {
        try {
            const UpdateScope bracket(label);
            body();
        } catch (const std::runtime_error& error) {
            EXPECT_STREQ(error.what(), what);
        }
        EXPECT_EQ(label.GetStates(), TVagrelStateOptions{lsModified}) << what;
        EXPECT_FALSE(label.GetUpdate()) << what;
    }
    EXPECT_THROW(label.Refresh(), std::runtime_error);
    EXPECT_FALSE(label.GetUpdate());
    label.Detach(&observer);
    label.EndUpdate(); // the item that failed is not asked again
}

TEST_F(UpdateCycle, ReadingIsSilentAndNumbersGoOnBehindIt) {
    for (std::int32_t highest : {41, 2147483647}) {
        label.BeginRead(false);
        editor.Take();
        EXPECT_FALSE(label.GetOptions().Has(loUndoRedo));
        EXPECT_EQ(MakeProbe(label, itLine).GetInID(), 0);
        label.RaiseMaxID(highest);
        label.ChangeValue(chMeasure);
        EXPECT_THAT(editor.Take(), IsEmpty());
        label.EndRead(true);
        EXPECT_THAT(editor.Take(), ElementsAre(chUnits, chMeasure));
        EXPECT_TRUE(label.GetOptions().Has(loUndoRedo));
        EXPECT_FALSE(label.GetModified());
        EXPECT_EQ(MakeProbe(label, itLine).GetInID(), highest == 41 ? 42 : highest);
    }
}

TEST_F(UpdateCycle, ClearTakesWhatItNames) {
    const struct {
        const char* what;
        TKSLClearSet set;
        bool paint;
        int items, previews, layers;
        std::vector<TKSChange> told;
    } rows[] = {{"all", {cleAll}, true, 0, 0, 1, {chClearSelect, chSelect}},
                {"all, unpainted", {cleAll}, false, 0, 0, 1, {chClearSelect}},
                {"items", {cleItems}, true, 0, 1, 3, {chClearSelect, chSelect}},
                {"selection", {cleSelection}, true, 1, 1, 3, {chClearSelect, chSelect}},
                {"previews", {clePreview}, true, 1, 0, 3, {}},
                {"layers", {cleLayers}, true, 1, 1, 1, {}},
                {"base layer", {cleBaseLayer}, true, 1, 1, 2, {}},
                {"every layer", {cleLayers, cleBaseLayer}, true, 1, 1, 1, {}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        TestHost document;
        RecordingObserver told(duEditor);
        document.AddLayer(), document.AddLayer(), document.SetActiveLayer(3);
        ProbeItem& item = MakeProbe(document, itLine);
        new ProbeItem(document, itLine, {{0, 0}, {1, 1}}, true);
        item.SetLayer(document.GetLayer(3));
        document.AddToSelection(item, false);
        document.Attach(&told);
        told.Take();
        document.Clear(row.set, row.paint);
        EXPECT_EQ(told.Take(), row.told);
        EXPECT_EQ(document.ItemsCount(), row.items);
        EXPECT_EQ(int(document.Preview().size()), row.previews);
        EXPECT_EQ(document.LayersCount(), row.layers);
        EXPECT_EQ(&document.ActiveLayer(), &document.GetLayer(row.layers)); // the same one, or the first
        EXPECT_FALSE(document.GetModified());
        if (row.items == 1) {
            EXPECT_EQ(&item.GetLayer(), &document.GetLayer(row.layers));
        }
        document.SetLayerZOrder(true); // looks at the layers of all items
    }
}

} // namespace
} // namespace vagrel::test
