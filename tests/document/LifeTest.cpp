// SPDX-License-Identifier: MIT
// Who owns what, and what is left behind when a construction fails.
#include <tests/support/TestHost.h>

#include <tests/support/StubItem.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/items/lines/TVGRBaseLine.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace vagrel::test {
namespace {

// An item whose construction fails after its base class has handed it to the document, selected itself and asked to be
// calculated.
class FailingLine : public TVGRBaseLine {
public:
    explicit FailingLine(TVGRBaseLabel& owner) : TVGRBaseLine(owner, false) {
        owner.AddToSelection(*this, false);
        StateCalc();
        throw std::runtime_error("no");
    }
    void DrawItem(const TVGRBaseDraw&) override {}
    void PrintItem(const TVGRBaseDraw&) override {}
};

TEST(Life, AFailedConstructionLeavesNothingBehind) {
    TestHost label;
    label.CreateLine(0, 0, 10, 10);
    label.Clear({cleUndoRedo}, false);
    EXPECT_THROW(new FailingLine(label), std::runtime_error);
    EXPECT_TRUE(label.IsUndoEmpty());
    EXPECT_EQ(label.ItemsCount(), 1);
    EXPECT_EQ(label.SelectionCount(), 0);
    label.BeginUpdate(true);
    label.EndUpdate(); // would calculate the dead item
    EXPECT_EQ(label.CreateLine(0, 0, 1, 1).GetInID(), 3);
}

TEST(Life, AnObserverThatDiesIsDetached) {
    TestHost label;
    {
        RecordingObserver editor(duEditor);
        label.Attach(&editor);
        label.Attach(&editor);
        EXPECT_EQ(editor.Take(), std::vector<TKSChange>{chLabelDef});
    }
    label.Refresh();
    bool told = false;
    label.OnInfoMsg = [&](auto&&...) { told = true; };
    label.FireInfoEvent(true);
    EXPECT_FALSE(told);
}

TEST(Life, ADyingDocumentTellsNobody) {
    RecordingObserver editor(duEditor);
    int events = 0;
    {
        TestHost label;
        label.AddToSelection(label.CreateLine(0, 0, 10, 10), false);
        label.Attach(&editor);
        editor.Take();
        label.OnUndoRedo = [&](auto&&...) { ++events; };
        label.OnUnSelectItem = [&](auto&&...) { ++events; };
    }
    EXPECT_TRUE(editor.told.empty());
    EXPECT_EQ(events, 0);
}

} // namespace
} // namespace vagrel::test
