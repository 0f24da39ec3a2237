// SPDX-License-Identifier: MIT
// Clicks, drag rectangles and references: what is hit, what becomes of the selection, who is told.
#include <tests/editor/EditorFixture.h>

#include <vagrel/document/TVGRLayer.h>

namespace vagrel::test {
namespace {

using TItems = std::vector<TVGRBaseItem*>;
using TChanges = std::vector<TKSChange>;

class Picking : public Editor {
protected:
    Picking() {
        label.OnSelectItem = [this](TVGRBaseLabel&, TVGRBaseItem& item) {
            events += "+" + std::to_string(item.GetInID());
        };
        label.OnUnSelectItem = [this](TVGRBaseLabel&, TVGRBaseItem& item) {
            events += "-" + std::to_string(item.GetInID());
        };
    }
    TItems Selection() const {
        TItems items;
        for (int i = 1; i <= label.SelectionCount(); ++i)
            items.push_back(label.GetSelection(i));
        return items;
    }
    bool Click(TKSLPto at, TShiftState shift = {}) { return label.SearchSelection(at.bX, at.bY, 300, shift, true); }
    std::string Events() { return std::exchange(events, {}); }

    std::string events;
    // Numbers 1 to 3; the later one lies on top.
    TVGRBaseItem& low = label.CreateRectangle(10000, 10000, 10000, 10000);
    TVGRBaseItem& high = label.CreateRectangle(15000, 15000, 10000, 10000);
    TVGRBaseItem& line = label.CreateLine(40000, 10000, 50000, 10000);
};

TEST_F(Picking, AClickTakesTheTopItemThatMayBePicked) {
    EXPECT_TRUE(Click({16000, 16000}));
    EXPECT_EQ(Selection(), TItems{&high});
    EXPECT_EQ(Events(), "+2");
    EXPECT_EQ(Told(), TChanges{chSelect});
    EXPECT_EQ(label.SelPointCount(), 8);

    EXPECT_TRUE(Click({11000, 11000}));
    EXPECT_EQ(Selection(), TItems{&low}) << "in the place of the first";
    EXPECT_EQ(Events(), "-2+1");

    high.SetOptions({lopVisible, lopPrint});
    EXPECT_FALSE(label.SearchSelection(22000, 22000, 300, {}, false)) << "not selectable";
    EXPECT_TRUE(Click({16000, 16000}));
    EXPECT_EQ(Selection(), TItems{&low}) << "the one below";
    label.GetLayer(1).SetOptions({lopVisible});
    EXPECT_FALSE(Click({11000, 11000})) << "a layer that is not selectable";
}

TEST_F(Picking, ASecondClickPicksUpAndShiftAddsAndTakesOut) {
    Click({11000, 11000});
    Click({45000, 10000}, {ssShift});
    EXPECT_EQ(Selection(), (TItems{&low, &line}));
    Told(), Events();
    EXPECT_TRUE(Click({11000, 11000}));
    EXPECT_EQ(Selection(), (TItems{&low, &line}));
    EXPECT_EQ(Told(), TChanges{chPickSel});
    EXPECT_EQ(TAct::GetAction(), eaMove);
    EXPECT_EQ(TAct::GetMoveType(), mtObjects);

    TAct::Reset();
    EXPECT_TRUE(Click({11000, 11000}, {ssShift}));
    EXPECT_EQ(Selection(), TItems{&line});
    EXPECT_EQ(low.GetState(), isNormal);
    EXPECT_EQ(Events(), "-1");
    EXPECT_EQ(Told(), TChanges{chSelect});
    EXPECT_EQ(label.SelPointCount(), 2);

    label.SetEditable(false);
    EXPECT_TRUE(Click({45000, 10000}));
    EXPECT_EQ(TAct::GetAction(), eaSelection) << "nothing moves in a document that is not editable";
}

TEST_F(Picking, AMissClearsOnlyWhatIsThere) {
    EXPECT_FALSE(Click({1000, 1000}));
    EXPECT_EQ(Told(), TChanges{});
    Click({11000, 11000});
    Told(), Events();
    TAct::SetCurAction(eaEdText);
    EXPECT_FALSE(Click({1000, 1000}));
    EXPECT_EQ(TAct::GetAction(), eaSelection);
    EXPECT_EQ(Events(), "-1");
    EXPECT_EQ(Told(), TChanges{chSelect});
}

TEST_F(Picking, ASingleTextIsOpenedForEditing) {
    TVGRBaseText& text = MakeText(label);
    bool visible = true;
    editor.onUpdate = [&](TKSChange change) {
        if (change == chText)
            visible = text.GetOptions().Has(lopVisible);
    };
    EXPECT_TRUE(Click({21000, 11000}));
    EXPECT_EQ(Told(), TChanges{chText});
    EXPECT_FALSE(visible) << "the repaint leaves it out";
    EXPECT_TRUE(text.GetOptions().Has(lopVisible));
    EXPECT_EQ(TAct::GetAction(), eaEdText);
    EXPECT_EQ(TAct::GetState(), edEditing);

    EXPECT_TRUE(label.SearchSelectedText(21000, 11000, 300, {}));
    EXPECT_EQ(TAct::GetMoveType(), mtText);
    EXPECT_EQ(Told(), TChanges{chPickSel});
    EXPECT_FALSE(label.SearchSelectedText(1000, 1000, 300, {}));

    TAct::Reset();
    label.ClearSelection(false);
    EXPECT_TRUE(label.SearchRectangle({19000, 9000, 31000, 15000}, false));
    EXPECT_EQ(Told(), TChanges{chText});

    TAct::Reset();
    label.ClearSelection(false);
    label.SetEditable(false);
    Click({21000, 11000});
    EXPECT_EQ(Told(), TChanges{chSelect});

    // A rectangle asks only where the host wants it.
    for (const bool guarded : {false, true}) {
        TAct::Reset();
        label.ClearSelection(false);
        label.SetGuardedTexts(guarded);
        label.PickEditor(31000, 14500, 300, {}, false);
        label.UpEditor(26000, 9000);
        EXPECT_EQ(Told(), TChanges{guarded ? chSelect : chText});
        EXPECT_EQ(label.GetSelectionRect(), TKSLRect(26000, 9000, 31000, 14500));
    }
}

TEST_F(Picking, ATextThatItsHostDeletesStaysDeleted) {
    TVGRBaseText& text = MakeText(label);
    editor.onUpdate = [&](TKSChange change) {
        if (change == chText)
            label.FreeItem(text);
    };
    Click({21000, 11000});
    EXPECT_EQ(label.ItemsCount(), 3);
}

TEST_F(Picking, ReferencesJoinAndLeaveAsReferences) {
    TAct::SetCurAction(eaDimAng);
    auto pick = [&](TKSLPto at) { return label.SearchRef(at.bX, at.bY, 300, {}, false); };
    TVGRBaseItem& chain = label.CreatePolyLine({{30000, 20000}, {40000, 20000}, {35000, 30000}});
    MakeText(label);
    EXPECT_FALSE(pick({21000, 11000})) << "a text is no reference";
    EXPECT_TRUE(pick({45000, 10000}));
    EXPECT_EQ(line.GetState(), isRef);
    EXPECT_EQ(label.SelPointCount(), 1);
    EXPECT_EQ(label.GetSelPoint(1).SelType, stRefLine);
    EXPECT_TRUE(pick({35000, 20000}));
    EXPECT_EQ(Told(), (TChanges{chSelect, chSelect}));
    EXPECT_TRUE(pick({37500, 25000})) << "a second segment of the same item";
    EXPECT_EQ(Told(), TChanges{});
    EXPECT_EQ(Selection(), (TItems{&line, &chain}));
    EXPECT_TRUE(pick({45000, 10000}));
    EXPECT_EQ(Selection(), TItems{&chain});
    EXPECT_EQ(Events(), "+3+4-3");

    TVGRBaseItem& curve = label.CreateBezier({{10000, 30000}, {15000, 30000}, {20000, 30000}, {25000, 30000}});
    EXPECT_FALSE(pick({15000, 30000})) << "a curve is no reference of a dimension";
    TAct::SetCurAction(eaEquidist);
    EXPECT_TRUE(pick({15000, 30000}));
    EXPECT_EQ(curve.GetState(), isRef);
}

TEST_F(Picking, CirclesAreFoundFromBelowOnHiddenLayersToo) {
    TVGRBaseItem& first = label.CreateCircle({30000, 20000}, 5000);
    label.CreateCircle({30000, 21000}, 6000);
    first.SetOptions({});
    EXPECT_FALSE(label.SearchCircleAt(50000, 30000, 300));
    EXPECT_TRUE(label.SearchCircleAt(30000, 15000, 300));
    EXPECT_EQ(TAct::GetBaseX(1), 30000);
    EXPECT_EQ(TAct::GetBaseY(1), 20000);
    EXPECT_EQ(TAct::GetIntX(1), 5000);
    EXPECT_EQ(TAct::GetIntX(4), 0);
}

TEST_F(Picking, LinksAttachToAnchorsAndFollowTheSelection) {
    TVGRBaseItem& point = label.CreatePoint(30000, 5000);
    TKSLink link;
    TAct::SetActionState(eaLink, edPickFirst);
    EXPECT_TRUE(label.SearchLink(31000, 4000, link));
    EXPECT_EQ(link.ID, point.GetInID());
    EXPECT_EQ(link.PosFrom, 0);
    TAct::SetActionState(eaLink, edPickSecond);
    EXPECT_FALSE(label.SearchLink(45000, 10000, link)) << "a line has no anchors";
    EXPECT_EQ(link.PosFrom, 0) << "stays for the second pick";
    EXPECT_EQ(link.ID, 0);

    auto& tied = *new ProbeLink(label, low.GetInID(), line.GetInID(), ltPolyline, {});
    auto& other = *new ProbeLink(label, line.GetInID(), 99, ltPolyline, {});
    Click({11000, 11000});
    EXPECT_EQ(tied.GetState(), isSelected);
    EXPECT_EQ(other.GetState(), isNormal);
    EXPECT_FALSE(label.Selected(tied));
    label.MoveBaseSelection(10, 10, false, true);
    EXPECT_EQ(tied.calcs, std::vector{2});
    Click({16000, 16000});
    EXPECT_EQ(tied.GetState(), isNormal);
}

} // namespace
} // namespace vagrel::test
