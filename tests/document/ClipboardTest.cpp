// SPDX-License-Identifier: MIT
// Deleting, copying and pasting the selection.
#include <tests/document/ProbeItem.h>

#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Exceptions.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vagrel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Clipboard : public testing::Test {
protected:
    Clipboard() {
        for (TVGRBaseItem* item : {&c, &a})
            label.AddToSelection(*item, false);
        label.Clear({cleUndoRedo}, false);
        label.Attach(&editor);
        editor.Take();
        label.OnSelectItem = [this](TVGRBaseLabel&, TVGRBaseItem& item) {
            told.push_back(u"+" + item.GetID());
            EXPECT_NEAR(double(item.BoundsRect().Left), double(item.GetPoint(1).bX), 500)
                << "its bounds are known when it is selected";
        };
        label.OnUnSelectItem = [this](TVGRBaseLabel&, TVGRBaseItem& item) {
            told.push_back(u"-" + item.GetID() + (label.SearchItem(item.GetInID(), false) ? u"" : u" is gone"));
        };
    }

    TestHost label;
    TVGRBaseItem& a = label.CreateLine(1000, 2000, 3000, 4000);
    TVGRBaseItem& b = label.CreateRectangle(1000, 2000, 3000, 4000);
    TVGRBaseItem& c = label.CreatePoint(5000, 6000);
    RecordingObserver editor{duEditor};
    std::vector<std::u16string> told;
};

TEST_F(Clipboard, DeletesTheSelection) {
    const auto start = JsonOf(label);
    label.SetModified(false);
    label.DeleteSelection();
    EXPECT_THAT(told, ElementsAre(u"-Point003", u"-Line001"));
    EXPECT_THAT(editor.Take(), ElementsAre(chSelect));
    EXPECT_EQ(label.ItemsCount(), 1);
    EXPECT_EQ(label.SelectionCount(), 0);
    EXPECT_TRUE(label.GetModified());
    EXPECT_EQ(UndoAll(label), 2); // each item is a step of its own without a bracket
    EXPECT_EQ(label.ItemsCount(), 3);
    EXPECT_EQ(label.SelectionCount(), 0);
    label.DeleteSelection();
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint, chPaint, chSelect)); // of an empty selection, too
}

TEST_F(Clipboard, ADeletedItemLeavesTheSelection) {
    label.DeleteItem(b, true); // was not selected
    EXPECT_THAT(editor.Take(), IsEmpty());
    label.DeleteItem(c, true);
    EXPECT_THAT(editor.Take(), ElementsAre(chSelect));
    label.DeleteItem(a, false);
    EXPECT_THAT(editor.Take(), IsEmpty());
    EXPECT_EQ(label.SelectionCount(), 0);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(Clipboard, DeletesAPoint) {
    TVGRBaseItem& chain = label.CreatePolyLine({{0, 0}, {1000, 1000}, {2000, 0}});
    EXPECT_FALSE(label.DeletePoint(1)); // a point item has none to spare
    label.SetSelection(&chain, isSelected);
    TAct::SetActionState(eaLine, edPickSecond);
    editor.Take();
    EXPECT_FALSE(label.DeletePoint(4));
    EXPECT_EQ(TAct::GetAction(), eaLine);
    EXPECT_TRUE(label.DeletePoint(2));
    EXPECT_EQ(TAct::GetAction(), eaSelection);
    EXPECT_THAT(editor.Take(), ElementsAre(chSelect));
    EXPECT_EQ(chain.BoundsRect(), (TKSLRect{0, 0, 2000, 0}));
    TAct::ResetForTests();
}

TEST_F(Clipboard, PastesWhatWasCopied) {
    label.GetMeasure().SetLabelSizeMM(1, 1); // a paste is not clipped
    label.CopySelection();
    label.DeleteSelection();
    b.SetColor(5);
    label.Clear({cleUndoRedo}, false);
    label.AddToSelection(b, false);
    editor.Take(), told.clear();
    for (int round = 1; round <= 2; ++round) {
        label.PasteSelection();
        ASSERT_EQ(label.ItemsCount(), 1 + 2 * round);
        const TVGRBaseItem &point = *label.GetItem(2 * round), &line = *label.GetItem(2 * round + 1);
        EXPECT_EQ(point.GetItemType(), itPoint);
        EXPECT_EQ(point.GetPoint(1), (TKSLPto{7000, 8000})); // 2 mm aside, each time of the original
        EXPECT_EQ(line.Points(), (TKSLPtoA{{3000, 4000}, {5000, 6000}}));
        EXPECT_EQ(line.GetInID(), 3 + 2 * round);
        EXPECT_EQ(line.GetID(), round == 1 ? u"Line005" : u"Line007");
        EXPECT_EQ(label.GetSelection(1), &point);
        EXPECT_EQ(label.GetSelection(2), &line);
        EXPECT_EQ(label.SelectionCount(), 2);
        EXPECT_EQ(line.GetState(), isSelected);
        EXPECT_EQ(editor.told.back().change, chSelect);
    }
    EXPECT_EQ(std::ranges::count(editor.told, chSelect, &TTold::change), 2);
    EXPECT_THAT(told, ElementsAre(u"-Rectangle002", u"+Point004", u"+Line005", u"-Point004", u"-Line005", u"+Point006",
                                  u"+Line007"));
    EXPECT_TRUE(label.GetModified());
    EXPECT_EQ(label.CreatePoint(1, 1).GetInID(), 8);
    EXPECT_EQ(UndoAll(label), 3); // each paste is a step
    EXPECT_EQ(label.ItemsCount(), 3 - 2);
    RedoAll(label);
}

TEST_F(Clipboard, AnEmptyOneLeavesEverything) {
    label.PasteSelection();
    EXPECT_EQ(label.SelectionCount(), 2);
    EXPECT_THAT(editor.Take(), IsEmpty());
    label.CopySelection();
    label.ClearSelection(false);
    label.CopySelection(); // of nothing
    for (const bool modified : {false, true}) {
        label.SetModified(modified);
        label.PasteSelection();
        EXPECT_EQ(label.GetModified(), modified);
    }
    EXPECT_EQ(label.ItemsCount(), 3);
}

TEST_F(Clipboard, ACopyThatFailsKeepsTheOneBefore) {
    label.CopySelection();
    label.SetSelection(&label.CreatePolyLine(TKSLPtoA(40000)), isSelected);
    EXPECT_THROW(label.CopySelection(), EOutOfRange);
    label.PasteSelection();
    EXPECT_EQ(label.SelectionCount(), 2);
}

TEST_F(Clipboard, APasteThatFailsClosesItsBracket) {
    label.AddToSelection(MakeProbe(label, itSymbol), false); // the host has no class for it
    label.CopySelection();
    EXPECT_THROW(label.PasteSelection(), ENotAvailable);
    EXPECT_FALSE(label.HasAnyState({lsReading, lsPaste, lsUpdating}));
    EXPECT_TRUE(label.GetOptions().Has(loUndoRedo));
    EXPECT_EQ(label.ItemsCount(), 4); // nothing is pasted
    EXPECT_TRUE(label.IsUndoEmpty() || label.UndoName().empty());
}

} // namespace
} // namespace vagrel::test
