// SPDX-License-Identifier: MIT
// Handlers and hosts that add, delete, clear and throw in the middle of what the document does.
#include <tests/document/ProbeItem.h>
#include <tests/support/ItemSuite.h>

#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/items/figures/TVGRBaseRectangle.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace vagrel::test {
namespace {

using testing::ElementsAre;

class Hostile : public testing::Test {
protected:
    // A host whose reading of a snapshot fails from time to time.
    struct TShaky : TestHost {
        using TestHost::TestHost;
        TVGRBaseItem& CreateElementFromStream(std::string_view snapshot) override {
            if (failing-- == 0)
                throw EStreamError(std::string("no"));
            return TestHost::CreateElementFromStream(snapshot);
        }
        int failing = -1;
    };

    TShaky label;
    TVGRBaseItem& line = label.CreateLine(1000, 1000, 9000, 5000);
    TVGRBaseItem& box = label.CreateRectangle(10000, 10000, 20000, 8000);
    RecordingObserver editor{duEditor};
};

TEST_F(Hostile, NobodyIsToldOfAnItemBeforeItIsWhole) {
    int told = 0;
    label.OnUndoRedo = [&](auto&&...) {
        ++told;
        if (label.ItemsCount() < 3)
            return;
        TVGRBaseItem& last = *label.GetItem(label.ItemsCount());
        ASSERT_TRUE(dynamic_cast<TVGRBaseRectangle*>(&last));
        EXPECT_EQ(last.BoundsRect(), (TKSLRect{1000, 2000, 4000, 6000}));
    };
    label.CreateRectangle(1000, 2000, 3000, 4000);
    EXPECT_EQ(told, 1);
    label.Undo();
    label.Redo();
    EXPECT_EQ(label.ItemsCount(), 3);
    // Made by hand: told with what comes next.
    told = 0;
    label.OnUndoRedo = [&](auto&&...) { ++told; };
    MakeProbe(label, itLine);
    EXPECT_EQ(told, 0);
    label.BeginUpdate(true);
    label.EndUpdate();
    EXPECT_EQ(told, 1);
}

TEST_F(Hostile, AStepThatFailsStaysWhereItWas) {
    const auto before = JsonOf(label);
    ProbeItem& probe = MakeProbe(label, itLine);
    label.Clear({cleUndoRedo}, false);
    {
        const UpdateScope bracket(label);
        line.SetPenWidth(3);
        label.DeleteItem(line, false);
        label.DeleteItem(box, false);
        probe.SetColor(5);
        label.CreatePoint(4, 4);
    }
    // Reading the second item fails, then a setter of the last command, then all is well.
    for (const int failing : {1, 0}) {
        label.failing = failing;
        EXPECT_THROW(label.Undo(), EStreamError);
        EXPECT_EQ(label.ItemsCount(), 2);
        EXPECT_EQ(probe.GetColor(), 5u);
        EXPECT_TRUE(label.IsRedoEmpty());
    }
    label.failing = -1;
    label.Undo();
    EXPECT_EQ(label.ItemsCount(), 3);
    label.FreeItem(probe);
    for (int i = 1; i <= 2; ++i)
        EXPECT_EQ(label.GetItem(i)->GetPenWidth(), 0.1f);
    label.Redo();
    EXPECT_EQ(label.ItemsCount(), 1);
    EXPECT_EQ(label.GetItem(1)->GetItemType(), itPoint);
}

TEST_F(Hostile, ASetterThatThrowsInAReplayTakesTheStepBack) {
    struct TRefusing : ProbeItem {
        using ProbeItem::ProbeItem;
        void SetColor(TAlphaColor value) override {
            if (refuses)
                throw std::runtime_error("no");
            ProbeItem::SetColor(value);
        }
        bool refuses = false;
    };
    auto& item = *new TRefusing(label, itLine, {{0, 0}, {9, 9}});
    label.Clear({cleUndoRedo}, false);
    {
        const UpdateScope bracket(label);
        item.SetColor(5);
        line.SetPenWidth(3);
        label.DeleteItem(box, false);
    }
    const auto after = JsonOf(label);
    item.refuses = true;
    EXPECT_THROW(label.Undo(), std::runtime_error);
    EXPECT_EQ(JsonOf(label), after);
    EXPECT_TRUE(label.IsRedoEmpty());
    item.refuses = false;
    EXPECT_EQ(UndoAll(label), 1);
    EXPECT_EQ(label.ItemsCount(), 3);
    EXPECT_EQ(line.GetPenWidth(), 0.1f);
    RedoAll(label);
    EXPECT_EQ(JsonOf(label), after);
}

TEST_F(Hostile, CommandsOfTheDeadNeverFallOnOthers) {
    box.SetColor(0xFFFF0000);
    label.SetSelection(&box, isSelected);
    label.CopySelection();
    label.Clear({cleItems}, false);
    const auto cleared = JsonOf(label);
    label.PasteSelection();
    label.GetItem(1)->SetPenWidth(3);
    label.Undo();
    label.Undo(); // the paste
    EXPECT_EQ(label.ItemsCount(), 0);
    label.Redo();
    UndoAll(label);
    EXPECT_EQ(JsonOf(label), cleared);
}

TEST_F(Hostile, AnEventThatThrowsLeavesNoCommandWithoutItsChange) {
    label.Clear({cleUndoRedo}, false);
    label.OnUndoRedo = [](auto&&...) { throw std::runtime_error("no"); };
    const auto before = JsonOf(label);
    EXPECT_THROW(line.SetColor(5), std::runtime_error);
    EXPECT_THROW(label.DeleteItem(box, true), std::runtime_error);
    EXPECT_THROW(line.BaseMove(5, 5, 0, 0, moAll, true), std::runtime_error);
    EXPECT_EQ(JsonOf(label), before);
    EXPECT_TRUE(label.IsUndoEmpty());
    label.OnUndoRedo = {};
    line.SetColor(5);
    label.Attach(&editor);
    editor.onUpdate = [](TKSChange) { throw std::runtime_error("no"); };
    int told = 0;
    label.OnUndoRedo = [&](auto&&...) { ++told; };
    EXPECT_THROW(label.Undo(), std::runtime_error);
    EXPECT_EQ(line.GetColor(), OpaqueBlack);
    EXPECT_GE(told, 1);
}

TEST_F(Hostile, AnEventMayDeleteTheItemThatItTellsOf) {
    const std::function<void(TVGRBaseItem&)> changes[] = {
        [](TVGRBaseItem& item) { item.SetColor(5); },
        [](TVGRBaseItem& item) { item.SetPenWidth(5); },
        [](TVGRBaseItem& item) { item.SetPointX(1, 5); },
        [](TVGRBaseItem& item) { item.BaseMove(5, 5, 0, 0, moAll, true); },
        [](TVGRBaseItem& item) { Query<IKSLStyle>(&item)->SetLineType(ii11); },
        [](TVGRBaseItem& item) { Query<IKSLRadio>(&item)->SetRadio(5); },
        [](TVGRBaseItem& item) { Query<IKSLCenter>(&item)->SetCenterX(5); },
        [](TVGRBaseItem& item) { Query<IKSLSize>(&item)->SetBaseWidth(5); },
        [](TVGRBaseItem& item) { item.KSLab().DeleteItem(item, true); },
    };
    for (const auto& change : changes) {
        TVGRBaseItem& circle = label.CreateCircle({20000, 20000}, 4000);
        bool deleted = false;
        label.OnUndoRedo = [&](auto&&...) {
            if (!std::exchange(deleted, true))
                label.FreeItem(circle);
        };
        change(circle);
        EXPECT_TRUE(deleted);
        EXPECT_EQ(label.ItemsCount(), 2);
        label.OnUndoRedo = {};
    }
}

// Whoever is told of a change may end the item that changes.
TEST_F(Hostile, EverySetterOfEveryFamilyMayBeItsItemsLast) {
    label.SetOptions({loUndoRedo}); // all take the same identifier
    int ends = 0;
    for (const TKSLItemType type : AvailableItemTypes()) {
        std::size_t count = 1;
        for (std::size_t i = 0; i < 4 * count; ++i) {
            TestHost one;
            one.SetOptions({loUndoRedo});
            TVGRBaseItem& item = MakeSample(one, *SampleOf(type));
            one.PaintEditor(); // from here on, as in a drag, every change is told at once
            std::vector<std::function<void()>> acts;
            for (const TSetter& set : SettersOf(item, false))
                acts.push_back(set);
            for (const TKSLMoveOpt side : {moAll, moLeft, moRight, moTop, moBottom}) {
                acts.push_back([&item, side] { item.Move(1, 1, side); });
                acts.push_back([&item, side] { item.BaseMove(70, 50, 0, 0, side, true); });
            }
            acts.push_back([&item] { item.RotateLeft(); });
            acts.push_back([&item] { item.CalcValues(2); });
            count = acts.size();
            if (i % 2)
                one.AddToSelection(item, false);
            const TItemHandle handle(item);
            bool ended = false;
            auto end = [&](auto&&...) {
                if (!std::exchange(ended, true))
                    one.Clear({cleItems}, false);
            };
            RecordingObserver watching(duEditor);
            one.Attach(&watching);
            if (i / 2 % 2)
                one.OnUndoRedo = end;
            else
                watching.onUpdate = end;
            acts[i / 4]();
            one.OnUndoRedo = {};
            watching.onUpdate = {};
            ends += ended;
            EXPECT_EQ(one.SelectionCount(), handle ? int(i % 2) : 0) << type << " " << i;
        }
    }
    EXPECT_GT(ends, 300);
}

TEST_F(Hostile, TheSelectionBearsHandlersThatAddAndDelete) {
    // Each is told of one item at a time and takes all of them away, or floods the document.
    const std::function<void()> acts[] = {[&] { label.Clear({cleItems}, true); },
                                          [&] {
                                              for (int i = 0; i < 100; ++i)
                                                  label.CreatePoint(i, i);
                                          },
                                          [] { throw std::runtime_error("no"); }};
    const std::function<void()> commands[] = {
        [&] { label.SearchItem(1, true); },
        [&] { label.SearchItem(u"Line001", true); },
        [&] { label.ElementByID(u"Line001", true); },
        [&] { label.ClearSelection(true); },
        [&] { label.DeleteSelection(); },
        [&] { label.SelectNext(); },
        [&] { label.SearchSelection(15000, 12000, 100, {}, true); },
        [&] {
            label.SearchRectangle({0, 0, 90000, 90000}, true);
        },
        [&] { label.AlignObjects(oaLeft); },
        [&] { label.CenterHorizontal(); },
        [&] { label.SpaceHorizontal(1); },
        [&] { label.SameWidth(); },
        [&] { label.MoveBaseSelection(5, 5, true, true); },
        [&] { label.MoveSelection(1, 1, true, true); },
        [&] { label.GetLayer(1).SetValues(); },
    };
    for (const auto& act : acts)
        for (const auto& command : commands) {
            label.Clear({cleAll}, false);
            label.CreateLine(1000, 1000, 9000, 5000).SetColor(7);
            label.CreateRectangle(10000, 10000, 20000, 8000);
            label.CreateRectangle(15000, 20000, 10000, 8000);
            for (int i = 1; i <= 3; ++i)
                label.AddToSelection(*label.GetItem(i), false);
            int calls = 0;
            auto once = [&](auto&&...) {
                if (++calls == 2)
                    act();
            };
            RecordingObserver watching(duEditor);
            label.Attach(&watching);
            watching.onUpdate = once;
            label.OnSelectItem = label.OnUnSelectItem = once;
            label.OnUndoRedo = once;
            try {
                command();
            } catch (const std::runtime_error&) {
            }
            label.OnSelectItem = label.OnUnSelectItem = {};
            label.OnUndoRedo = {};
            watching.onUpdate = {};
            for (int i = 1; i <= label.SelectionCount(); ++i)
                EXPECT_TRUE(label.SearchItem(label.GetSelection(i)->GetInID(), false));
            UndoAll(label);
        }
}

TEST_F(Hostile, ASecondReadingDoesNotEndUndo) {
    label.BeginRead(false);
    label.BeginRead(true);
    label.EndRead(false);
    label.EndRead(false);
    EXPECT_TRUE(label.GetOptions().Has(loUndoRedo));
}

TEST_F(Hostile, AHandleFollowsAnItemThroughItsDeaths) {
    std::vector<bool> told;
    const TItemWatch watch(box, [&](TVGRBaseItem* item) { told.push_back(item != nullptr); });
    const TItemHandle handle(box);
    label.DeleteItem(box, true);
    EXPECT_FALSE(handle);
    label.Undo();
    ASSERT_TRUE(handle);
    EXPECT_EQ(handle.Get(), label.GetItem(2));
    EXPECT_EQ(handle, watch);
    EXPECT_THAT(told, ElementsAre(false, true));
    {
        auto other = std::make_unique<TestHost>();
        const TItemHandle outlives(other->CreatePoint(1, 1));
        other.reset();
        EXPECT_FALSE(outlives);
    }
}

TEST_F(Hostile, AScopeInsideABracketKeepsItsStep) {
    label.Clear({cleUndoRedo}, false);
    label.Attach(&editor);
    label.AddToSelection(line, false);
    label.AddToSelection(box, false);
    editor.Take();
    label.BeginUpdate(true);
    line.SetColor(5);
    label.AlignObjects(oaLeft);
    EXPECT_THAT(editor.Take(), testing::Contains(chPaint)); // its notices go out as without the bracket
    line.SetPenWidth(3);
    label.SetEditorMode(emDrawing);
    EXPECT_THAT(editor.Take(), testing::Not(testing::Contains(chMeasure)));
    label.EndUpdate();
    EXPECT_THAT(editor.Take(), ElementsAre(chMeasure));
    EXPECT_EQ(UndoAll(label), 1);
    editor.Take();
    {
        const UpdateScope outer(label);
        line.SetColor(6);
        {
            const UpdateScope inner(label);
            box.SetColor(6);
        }
        EXPECT_THAT(editor.Take(), testing::Not(testing::Contains(chPaint)));
        line.SetPenWidth(4);
    }
    EXPECT_EQ(UndoAll(label), 1);
}

} // namespace
} // namespace vagrel::test
