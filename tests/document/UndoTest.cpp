// SPDX-License-Identifier: MIT
// What is recorded, how it is grouped, and what a step gives back.
#include <tests/document/ProbeItem.h>

#include <vagrel/document/TVGRCmd.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Exceptions.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace vagrel::test {
namespace {

using testing::ElementsAre;
using TFlags = std::pair<bool, bool>;

class Undo : public testing::Test {
protected:
    Undo() {
        label.Clear({cleUndoRedo}, false);
        label.Attach(&editor);
        editor.Take();
        label.OnUndoRedo = [this](TVGRBaseLabel&, bool undo, bool redo) { events.emplace_back(undo, redo); };
    }

    TestHost label;
    TVGRBaseItem& line = label.CreateLine(1000, 1000, 9000, 5000);
    TVGRBaseItem& box = label.CreateRectangle(10000, 10000, 20000, 8000);
    RecordingObserver editor{duEditor};
    std::vector<TFlags> events;
};

TEST_F(Undo, TheInspectorHearsOfEachStep) {
    RecordingObserver inspector(duInspector);
    label.Attach(&inspector);
    label.SetSelection(&line, isSelected);
    line.SetPenWidth(2);
    inspector.Take(), editor.Take();
    for (const auto step : {&TVGRBaseLabel::Undo, &TVGRBaseLabel::Redo, &TVGRBaseLabel::Redo}) {
        const bool steps = step == &TVGRBaseLabel::Undo || !label.IsRedoEmpty();
        (label.*step)();
        EXPECT_EQ(inspector.Take(), std::vector<TKSChange>(steps, chInspect));
        EXPECT_EQ(editor.Take(), std::vector<TKSChange>(steps, chPaint));
    }
}

TEST_F(Undo, ARunOfChangesOfOnePropertyIsOneCommand) {
    IKSLBack& back = *Query<IKSLBack>(&box);
    IKSLCenter& center = *Query<IKSLCenter>(&label.CreateCircle({30000, 20000}, 4000));
    const struct {
        const char* text;
        std::function<void(int)> set;
        int steps; // of four changes
    } rows[] = {
        {"colour", [&](int i) { line.SetColor(TAlphaColor(i)); }, 1},
        {"pen", [&](int i) { line.SetPenWidth(float(i)); }, 1},
        {"enumeration", [&](int i) { Query<IKSLStyle>(&line)->SetLineType(TKSLineType(i)); }, 1},
        {"boolean", [&](int i) { back.SetFilled(i % 2 == 0); }, 4},
        {"floating point", [&](int i) { center.SetCenterX(20 + float(i)); }, 4},
        {"move", [&](int i) { line.BaseMove(i, 0, 0, 0, moAll, true); }, 1},
        {"one coordinate", [&](int i) { line.SetPointX(1, float(i)); }, 1},
        {"two coordinates", [&](int i) { i % 2 ? line.SetPointX(1, float(i)) : line.SetPointY(1, float(i)); }, 4},
        {"two points", [&](int i) { line.SetPointX(1 + i % 2, float(i)); }, 4},
        {"two items", [&](int i) { (i % 2 ? line : box).SetPenWidth(float(i) + 10); }, 4},
        {"equal values", [&](int) { line.SetColor(77), line.SetPenWidth(9), line.SetPointX(1, 7); }, 3},
    };
    for (const auto& row : rows) {
        label.Clear({cleUndoRedo}, false);
        const auto before = JsonOf(label);
        for (int i = 1; i <= 4; ++i)
            row.set(i);
        const auto after = JsonOf(label);
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(UndoAll(label), row.steps) << row.text;
            EXPECT_EQ(JsonOf(label), before) << row.text;
            EXPECT_EQ(RedoAll(label), row.steps) << row.text;
            EXPECT_EQ(JsonOf(label), after) << row.text;
        }
    }
}

TEST_F(Undo, ABracketIsOneStep) {
    label.Clear({cleUndoRedo}, false);
    const auto before = JsonOf(label);
    {
        const UpdateScope bracket(label);
        for (TVGRBaseItem* item : {&line, &box}) {
            item->SetColor(5);
            item->SetPenWidth(2);
        }
        label.CreatePoint(3, 3);
    }
    line.SetColor(6);
    const auto after = JsonOf(label);
    editor.Take(), events.clear();
    label.PaintEditor(); // leaves `fUpdate` set
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    label.Undo();
    EXPECT_EQ(line.GetColor(), 5u);
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    label.Undo();
    EXPECT_EQ(JsonOf(label), before);
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    EXPECT_TRUE(label.IsUndoEmpty());
    label.Undo(); // nothing
    EXPECT_TRUE(editor.Take().empty());
    label.Redo();
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    label.Redo();
    EXPECT_EQ(JsonOf(label), after);
    EXPECT_TRUE(label.IsRedoEmpty());
}

TEST_F(Undo, TellsOfEachRecordingAndEachStep) {
    label.Clear({cleUndoRedo}, false);
    EXPECT_THAT(events, ElementsAre(TFlags(true, true)));
    events.clear();
    line.SetColor(5);
    line.SetColor(6);
    EXPECT_THAT(events, ElementsAre(TFlags(false, true)));
    events.clear();
    label.Undo();
    EXPECT_THAT(events, ElementsAre(TFlags(true, false), TFlags(true, false)));
    EXPECT_TRUE(label.IsUndoEmpty());
    EXPECT_FALSE(label.IsRedoEmpty());
    events.clear();
    label.New();
    EXPECT_THAT(events, ElementsAre(TFlags(true, true)));
    EXPECT_TRUE(label.IsRedoEmpty());
    EXPECT_EQ(label.UnReID(), 0);
    EXPECT_EQ(label.UnReID(), 1);
}

TEST_F(Undo, NewChangesLeaveTheRedoEntries) {
    label.Clear({cleUndoRedo}, false);
    line.SetColor(5);
    label.Undo();
    box.SetColor(7);
    EXPECT_FALSE(label.IsRedoEmpty());
    label.Redo();
    EXPECT_EQ(line.GetColor(), 5u);
    EXPECT_EQ(UndoAll(label), 2);
    EXPECT_EQ(line.GetColor(), OpaqueBlack);
    EXPECT_EQ(box.GetColor(), OpaqueBlack);
}

TEST_F(Undo, NothingIsRecordedWithoutTheOption) {
    line.SetPenWidth(1);
    label.SetOptions({loUniqueID});
    line.SetPenWidth(2);
    box.SetColor(3);
    label.DeleteItem(box, false);
    label.SetOptions({loUndoRedo});
    line.SetPenWidth(3); // the option is on again: still the same run
    EXPECT_EQ(UndoAll(label), 1);
    EXPECT_EQ(line.BasePenWidth(), 100);
    EXPECT_EQ(label.ItemsCount(), 1);
    RedoAll(label);
    EXPECT_EQ(line.GetPenWidth(), 3);
}

TEST_F(Undo, TheNumberOfAnItemThatIsMadeAnewIsTaken) {
    const std::int32_t id = box.GetInID();
    label.DeleteItem(box, false);
    label.Clear({cleItems}, false); // numbers begin anew, the commands stay
    label.Undo();
    ASSERT_TRUE(label.SearchItem(id, false));
    EXPECT_NE(label.CreatePoint(1, 1).GetInID(), id);
}

TEST_F(Undo, ARedoneDeletionOfManyIsManySteps) {
    label.Clear({cleUndoRedo}, false);
    {
        const UpdateScope bracket(label);
        label.DeleteItem(line, false);
        label.DeleteItem(box, false);
    }
    EXPECT_EQ(UndoAll(label), 1);
    EXPECT_EQ(RedoAll(label), 1);
    EXPECT_EQ(label.ItemsCount(), 0);
    EXPECT_EQ(UndoAll(label), 2);
    EXPECT_EQ(label.ItemsCount(), 2);
}

TEST_F(Undo, AnItemThatWentWithoutACommandIsPassedOver) {
    label.Clear({cleUndoRedo}, false);
    line.SetColor(5);
    box.SetColor(6);
    label.FreeItem(line);
    label.FreeItem(box);
    EXPECT_EQ(UndoAll(label), 2);
    EXPECT_TRUE(label.IsRedoEmpty());
}

TEST_F(Undo, AReplayCoalescesWithItsOwnStepAlone) {
    label.Clear({cleUndoRedo}, false);
    std::vector<std::u16string> states;
    for (int i = 0; i < 3; ++i) { // move, undo, move, undo ...
        line.BaseMove(1000 * (i + 1), 0, 0, 0, moAll, true);
        states.push_back(JsonOf(label));
        label.Undo();
    }
    label.Redo();
    EXPECT_EQ(JsonOf(label), states[2]);
}

TEST_F(Undo, WhatSettersCutToThePageComesBackExactly) {
    TVGRBaseItem& circle = label.CreateCircle({20333, 17777}, 4001);
    TVGRBaseItem& slice = label.CreateSector({30001, 9999}, 5003, 10, 200);
    for (TVGRBaseItem* item : {&circle, &slice}) {
        item->AssignPoints({{-7001, 900000001}, {2001, 900009003}}); // off the page
        label.Clear({cleUndoRedo}, false);
        const TKSLPtoA far = item->Points();
        Query<IKSLCenter>(item)->SetCenterX(20);
        Query<IKSLCenter>(item)->SetCenterY(20);
        TVGRBaseValueCmd::AddCommand(*item, cmd::Radio);
        item->AssignPoints({{0, 0}, {2002, 2002}});
        const TKSLPtoA changed = item->Points();
        for (int i = 0; i < 2; ++i) {
            UndoAll(label);
            EXPECT_EQ(item->Points(), far);
            RedoAll(label);
            EXPECT_EQ(item->Points(), changed);
        }
    }
}

TEST_F(Undo, ATextIsMeasuredAlsoWhileSelected) {
    TVGRBaseItem& text = label.CreateText(20000, 20000);
    Query<IKSLText>(&text)->SetText(u"short");
    const TKSLRect before = text.BoundsRect();
    Query<IKSLText>(&text)->SetText(u"quite a bit longer");
    label.SetSelection(&text, isSelected);
    label.Undo();
    EXPECT_EQ(text.BoundsRect(), before);
}

TEST_F(Undo, PlacesOfPointsComeBackExactly) {
    const TKSLPtoA far{{900000000000001, 3}, {900000000000777, 5}};
    line.AssignPoints(far);
    label.Clear({cleUndoRedo}, false);
    line.BaseMove(1, 1, 0, 0, moAll, true);
    TVGRBasePosCmd::AddCommand(line, cmd::ItemPoint, 2);
    line.SetBase(2, 7, 7);
    const TKSLPtoA changed = line.Points();
    UndoAll(label);
    EXPECT_EQ(line.Points(), far);
    EXPECT_EQ(line.BoundsRect(), (TKSLRect{900000000000001, 3, 900000000000777, 5}));
    RedoAll(label);
    EXPECT_EQ(line.Points(), changed);
    TVGRBasePosCmd::AddCommand(line, cmd::ItemPoint, 5); // no such point
    UndoAll(label);
    EXPECT_EQ(line.Points(), far);
    EXPECT_THROW(TVGRBasePosCmd::AddCommand(line, cmd::LinkPoint, 1), ENotAvailable);
    EXPECT_THROW(TVGRTxtCmd::AddCommand(line, cmd::Text), ENotAvailable);
}

TEST_F(Undo, PendingCalculationsRunBeforeTheRepaint) {
    ProbeItem& probe = MakeProbe(label, itLine);
    probe.StateCalc();
    bool calculated = false;
    probe.onCalc = [&] { calculated = editor.told.empty(); };
    line.SetColor(5);
    editor.Take();
    label.Undo();
    EXPECT_TRUE(calculated);
    EXPECT_FALSE(label.HasAnyState({lsCalc}));
}

TEST_F(Undo, WhatThrowsInAConstructionLeavesNoCommand) {
    label.Clear({cleUndoRedo}, false);
    label.OnUndoRedo = [](TVGRBaseLabel&, bool, bool) { throw std::runtime_error("no"); };
    EXPECT_THROW(label.CreatePoint(1, 1), std::runtime_error);
    label.OnUndoRedo = {};
    EXPECT_EQ(label.ItemsCount(), 2);
    EXPECT_TRUE(label.IsUndoEmpty());

    // A snapshot that cannot be read.
    struct Damaged : TestHost {
        TVGRBaseItem& CreateElementFromStream(std::string_view snapshot) override {
            return TestHost::CreateElementFromStream(snapshot.substr(0, 20));
        }
    } other;
    other.DeleteItem(other.CreatePoint(1, 1), false);
    EXPECT_THROW(other.Undo(), EStreamError);
    EXPECT_TRUE(other.IsRedoEmpty());
    other.Clear({cleUndoRedo}, false);
    other.CreatePoint(2, 2); // recorded where it belongs
    EXPECT_TRUE(other.IsRedoEmpty());
    UndoAll(other);
    EXPECT_EQ(other.ItemsCount(), 0);
}

TEST_F(Undo, AnItemTooLargeForASnapshotIsDeletedForGood) {
    TVGRBaseItem& long_ = label.CreatePolyLine(TKSLPtoA(40000));
    label.Clear({cleUndoRedo}, false);
    label.DeleteItem(long_, false);
    EXPECT_EQ(label.ItemsCount(), 2);
    EXPECT_TRUE(label.IsUndoEmpty());
}

TEST_F(Undo, AnObserverMayClearInTheMiddleOfAStep) {
    struct Clearing final : IKSObserver {
        explicit Clearing(TVGRBaseLabel& clears) : label(clears) {}
        TVGRBaseLabel& label;
        TKSDestUpdate GetDest() const override { return duEditor; }
        void Update(TKSChange change, const TKSChangeValue&) override {
            if (change == chSelect && label.ItemsCount() > 0)
                label.New();
        }
    } clearing(label);
    label.Attach(&clearing);
    label.AddToSelection(label.CreatePoint(1, 1), false);
    label.Undo(); // the point leaves the selection, and with it everything goes
    EXPECT_EQ(label.ItemsCount(), 0);
    EXPECT_TRUE(label.IsUndoEmpty());
}

} // namespace
} // namespace vagrel::test
