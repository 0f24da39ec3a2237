// SPDX-License-Identifier: MIT
// Drags and arrow keys: what moves, where it stops, what is recorded, who is told in which order.
#include <tests/editor/EditorFixture.h>

#include <vagrel/items/figures/TVGRBaseSector.h>

namespace vagrel::test {
namespace {

using TChanges = std::vector<TKSChange>;

// The page is 60000 × 35000.
class Drag : public Editor {
protected:
    Drag() { label.Clear({cleUndoRedo}, false); }

    void Begin(TKSLMoveType type, int pos = 0) {
        TAct::SetMove(type, std::int16_t(pos));
        Told();
    }
    /// A step by the way of the pointer.
    void Step(std::int64_t dx, std::int64_t dy, std::int64_t gx = 0, std::int64_t gy = 0) {
        label.MoveEditor(-dx, -dy, gx, gy, false, false);
    }
    void PointAt(std::int64_t x, std::int64_t y, std::int64_t gx = 0, std::int64_t gy = 0) {
        label.MoveEditor(x, y, gx, gy, false, false);
    }
    bool GridTo(std::int64_t x, std::int64_t y) { return label.MoveGridEditor(x, y, 1000, 1000, false); }
    int Steps() {
        int steps = 0;
        for (; !label.IsUndoEmpty(); ++steps)
            label.Undo();
        return steps;
    }

    TVGRBaseItem& box = label.CreateRectangle(10000, 10000, 10000, 5000);
    TVGRBaseItem& line = label.CreateLine(50000, 20000, 55000, 30000);
};

TEST_F(Drag, TheEditorIsToldInThisOrder) {
    Select({&box});
    Begin(mtObjects);
    Step(0, 0);
    EXPECT_EQ(Told(), TChanges{});
    Step(100, 0);
    EXPECT_EQ(Told(), (TChanges{chPaint, chPropItem}));
    Step(-60000, 0), Told();
    Step(-100, 0);
    EXPECT_EQ(Told(), TChanges{}) << "held by the edge of the page";
    PointAt(100, 0);
    Begin(mtNone);
    Step(100, 0);
    EXPECT_EQ(Told(), TChanges{});

    Select({&box, &line});
    Begin(mtObjects);
    inspector.Take();
    Step(100, 100);
    EXPECT_EQ(Told(), (TChanges{chPaint, chPaint, chPropItem}));
    EXPECT_EQ(inspector.Take(), TChanges{}) << "silent while several move";
    Begin(mtText);
    Step(100, 100);
    EXPECT_EQ(Told(), (TChanges{chPaint, chPaint, chDraw}));
    label.MoveEditor(-10, 0, 0, 0, false, true);
    EXPECT_EQ(Told(), (TChanges{chPaint, chPaint, chPropItem})) << "an arrow key";
}

TEST_F(Drag, BoxHandlesMoveTheirEdges) {
    const struct {
        TKSLMoveType type;
        TKSLRect moved; ///< of each edge by a step of 100, 200
    } rows[] = {{mtNW, {100, 200, 0, 0}}, {mtN, {0, 200, 0, 0}},    {mtNE, {0, 200, 100, 0}}, {mtW, {100, 0, 0, 0}},
                {mtE, {0, 0, 100, 0}},    {mtSW, {100, 0, 0, 200}}, {mtS, {0, 0, 0, 200}},    {mtSE, {0, 0, 100, 200}}};
    Select({&box});
    for (const auto& row : rows) {
        box.AssignPoints({{10000, 10000}, {20000, 15000}});
        Begin(row.type);
        Step(100, 200);
        EXPECT_EQ(box.BoundsRect(), (TKSLRect{10000 + row.moved.Left, 10000 + row.moved.Top, 20000 + row.moved.Right,
                                              15000 + row.moved.Bottom}))
            << row.type;
        EXPECT_EQ(Told(), (TChanges{chPaint, chPropItem})) << row.type;
    }
}

TEST_F(Drag, ArrowKeysGoToTheNextLineOfTheGrid) {
    box.AssignPoints({{10200, 10000}, {20200, 15000}});
    Select({&box});
    label.MoveEditor(-1, 0, 1000, 1000, false, true);
    EXPECT_EQ(box.GetPoint(1), (TKSLPto{11000, 10000})) << "the axis without movement stays";
    label.MoveEditor(1, 1, 1000, 1000, false, true);
    EXPECT_EQ(box.GetPoint(1), (TKSLPto{10000, 9000}));
    Select({&box, &line});
    line.AssignPoints({{50400, 20000}, {55000, 30000}});
    label.MoveEditor(-1, 0, 1000, 1000, false, true);
    EXPECT_EQ(line.GetPoint(1).bX, 51000);
    EXPECT_EQ(box.GetPoint(1).bX, 10600) << "by the shorter way";
}

TEST_F(Drag, SeveralItemsOnTheGridKeepTheirGrab) {
    Select({&box, &line});
    Begin(mtObjects);
    EXPECT_FALSE(GridTo(12400, 12000));
    EXPECT_EQ(box.GetPoint(1), (TKSLPto{10000, 10000})) << "the first step notes the place";
    EXPECT_FALSE(GridTo(12300, 11900));
    EXPECT_TRUE(GridTo(13600, 11000));
    EXPECT_EQ(box.GetPoint(1), (TKSLPto{12000, 9000}));
    EXPECT_EQ(Told(), (TChanges{chPaint, chPaint, chPropItem}));
    Step(100, 0); // a step off the grid lets go
    EXPECT_FALSE(GridTo(30000, 30000));
    EXPECT_EQ(box.GetPoint(1), (TKSLPto{12100, 9000}));
}

TEST_F(Drag, ADocumentThatIsNotEditableStays) {
    for (const auto& forbid : std::initializer_list<std::function<void()>>{
             [&] { label.SetEditable(false); }, [&] { label.SetEditable(true), label.SetEditorMode(emInteractive); }}) {
        forbid();
        for (TVGRBaseItem* item : {&box, &line}) {
            Select({item});
            Begin(mtObjects);
            Step(1000, 1000);
            GridTo(20000, 20000);
            label.MoveEditor(1000, 1000, 0, 0, false, true);
        }
        Select({&box, &line});
        Begin(mtObjects);
        for (const std::int64_t x : {20000, 30000})
            EXPECT_FALSE(GridTo(x, x));
        EXPECT_EQ(Told(), TChanges{});
    }
    EXPECT_EQ(box.GetPoint(1), (TKSLPto{10000, 10000}));
    EXPECT_EQ(line.GetPoint(1), (TKSLPto{50000, 20000}));
}

TEST_F(Drag, OneItemGoesToTheGridPoint) {
    Select({&box});
    Begin(mtObjects);
    EXPECT_TRUE(GridTo(12400, 8600));
    EXPECT_EQ(box.GetPoint(1), (TKSLPto{12000, 9000}));
    EXPECT_EQ(Told(), TChanges{chPropItem});
    EXPECT_FALSE(GridTo(12400, 8600));
    EXPECT_EQ(Told(), TChanges{});
    // Of several the nearest tells the way: none on an axis where one is there already.
    line.AssignPoints({{12000, 20000}, {15000, 30000}});
    Select({&box, &line});
    TAct::SetMove(mtText, 0);
    EXPECT_TRUE(GridTo(12000, 12000));
    EXPECT_EQ(box.GetPoint(1), (TKSLPto{12000, 12000}));
    EXPECT_EQ(line.GetPoint(1), (TKSLPto{12000, 23000}));
    label.ClearSelection(false);
    EXPECT_FALSE(GridTo(1000, 1000));
}

TEST_F(Drag, AVertexFollowsThePointerOnThePage) {
    TVGRBaseItem& chain = label.CreatePolyLine({{1000, 1000}, {5000, 1000}, {5000, 5000}});
    label.Clear({cleUndoRedo}, false);
    Select({&chain});
    Begin(mtPolyPoint, 2);
    PointAt(7000, 2000);
    EXPECT_EQ(chain.GetPoint(2), (TKSLPto{7000, 2000}));
    EXPECT_EQ(Told(), TChanges{chPropItem});
    EXPECT_EQ(chain.BoundsRect(), (TKSLRect{1000, 1000, 7000, 5000}));
    EXPECT_EQ(label.GetSelPoint(2).X1, 7);
    PointAt(60001, 3000);
    EXPECT_EQ(chain.GetPoint(2), (TKSLPto{7000, 3000})) << "off the page on x";
    PointAt(-5, 35001);
    EXPECT_EQ(Told(), TChanges{chPropItem});
    PointAt(7400, 3400, 8000, 4000);
    EXPECT_EQ(chain.GetPoint(2), (TKSLPto{8000, 4000})) << "its place on the grid";
    Begin(mtPolyPoint, 4);
    PointAt(100, 100);
    Begin(mtPolyPoint, 0);
    PointAt(100, 100);
    EXPECT_EQ(Told(), TChanges{}) << "no such vertex";
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(chain.GetPoint(2), (TKSLPto{5000, 1000}));
}

TEST_F(Drag, RadiiStayOnThePage) {
    TVGRBaseItem& ellipse = label.CreateEllipse({20000, 10000}, 5000, 3000);
    Select({&ellipse});
    Begin(mtRadioX);
    PointAt(12000, 0);
    EXPECT_EQ(ellipse.BoundsRect(), (TKSLRect{12000, 7000, 28000, 13000}));
    PointAt(-9000, 0);
    EXPECT_EQ(ellipse.BoundsRect(), (TKSLRect{0, 7000, 40000, 13000}));
    Begin(mtRadioY);
    PointAt(0, 33000);
    EXPECT_EQ(ellipse.BoundsRect(), (TKSLRect{0, 0, 40000, 20000}));
    EXPECT_EQ(Told(), TChanges{chPropItem});

    TVGRBaseItem& circle = label.CreateCircle({50000, 28000}, 3000);
    Select({&circle});
    Begin(mtRadio);
    PointAt(50000, 28000 + 4000, 53000, 24000); // the grid's place counts: 5000 away
    EXPECT_EQ(circle.BoundsRect(), (TKSLRect{45000, 23000, 55000, 33000}));
    label.Clear({cleUndoRedo}, false);
    PointAt(20000, 28000);
    EXPECT_EQ(circle.BoundsRect(), (TKSLRect{43000, 21000, 57000, 35000})) << "the bottom edge is nearest";
    PointAt(49000, 28000);
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(circle.BoundsRect(), (TKSLRect{45000, 23000, 55000, 33000}));
    PointAt(45000, 28000);
    EXPECT_EQ(Steps(), 0) << "as large as before";

    Select({&ellipse}); // a host may take its handle for that of a circle
    PointAt(20000, 14000);
    EXPECT_EQ(ellipse.BoundsRect(), (TKSLRect{16000, 6000, 24000, 14000}));
    Select({&box});
    Told();
    PointAt(20000, 28000);
    EXPECT_EQ(Told(), TChanges{}) << "no centre";
}

TEST_F(Drag, ArcsLinksAndDisplayWidthsTakeTheirOwnWay) {
    ProbeArc& arc = *new ProbeArc(label);
    Select({&arc});
    Begin(mtArc, 3);
    PointAt(4321, 1234, 4000, 1000);
    EXPECT_EQ(arc.rim[2], (TKSLPto{4000, 1000}));

    auto& link = *new ProbeLink(label, 1, 2, ltArc, {{1000, 1000}, {2000, 2000}});
    Select({&link});
    Begin(mtLinkCurve);
    PointAt(4321, 1234);
    EXPECT_EQ(link.GetLinkPoint(1), (TKSLPto{4321, 1234}));
    Begin(mtPolyPoint, 2);
    PointAt(9999, 8888);
    EXPECT_EQ(link.GetLinkPoint(2), (TKSLPto{9999, 8888}));
    EXPECT_TRUE(link.calcs.empty());
    label.Undo();
    EXPECT_EQ(link.GetLinkPoint(2), (TKSLPto{2000, 2000}));

    TVGRBaseText& text = MakeText(label);
    Select({&text});
    Begin(mtDispWidth);
    PointAt(27000, 12000);
    EXPECT_EQ(text.GetDispWidth(), 7000);
    Select({&box});
    Told();
    PointAt(27000, 12000);
    EXPECT_EQ(Told(), TChanges{});
}

TEST_F(Drag, GuidesFollowOnRequest) {
    label.CreatePoint(12000, 30000);
    Select({&box});
    Begin(mtObjects);
    label.MoveEditor(-2000, 0, 0, 0, true, false);
    EXPECT_EQ(label.NumRefLines(), 1);
    label.MoveEditor(-10, 0, 0, 0, false, false);
    EXPECT_EQ(label.NumRefLines(), 1) << "not asked";
    label.MoveEditor(-10, 0, 0, 0, true, false);
    EXPECT_EQ(label.NumRefLines(), 0);
}

} // namespace
} // namespace vagrel::test
