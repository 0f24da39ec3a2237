// SPDX-License-Identifier: MIT
// Selecting, moving and arranging items, with what is told and what is undone.
#include <tests/document/ProbeItem.h>

#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vagrel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Arrange : public testing::Test {
protected:
    Arrange() { label.Attach(&editor); }

    TVGRBaseItem& Box(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height) {
        return label.CreateRectangle(x, y, width, height);
    }
    void Choose(std::initializer_list<TVGRBaseItem*> items) {
        label.ClearSelection(false);
        for (TVGRBaseItem* item : items)
            label.AddToSelection(*item, false);
        editor.Take();
        label.Clear({cleUndoRedo}, false);
    }
    // One step back and forth, byte by byte.
    void ExpectOneStep(const std::u16string& before) {
        const auto after = JsonOf(label);
        EXPECT_EQ(UndoAll(label), 1);
        EXPECT_EQ(JsonOf(label), before);
        EXPECT_EQ(RedoAll(label), 1);
        EXPECT_EQ(JsonOf(label), after);
    }
    static std::vector<std::int64_t> Lefts(std::initializer_list<TVGRBaseItem*> items) {
        std::vector<std::int64_t> lefts;
        for (const TVGRBaseItem* item : items)
            lefts.push_back(item->BoundsRect().Left);
        return lefts;
    }

    TestHost label{emDrawing, unMM, 1};
    RecordingObserver editor{duEditor};
};

TEST_F(Arrange, SelectsOneAndTellsOnce) {
    TVGRBaseItem &a = Box(0, 0, 10, 10), &b = Box(0, 0, 10, 10);
    Choose({&a});
    std::vector<std::string> told;
    label.OnSelectItem = [&](TVGRBaseLabel&, TVGRBaseItem& item) { told.push_back(&item == &b ? "+b" : "?"); };
    label.OnUnSelectItem = [&](TVGRBaseLabel&, TVGRBaseItem& item) { told.push_back(&item == &a ? "-a" : "?"); };
    label.SetSelection(nullptr, isSelected);
    EXPECT_EQ(label.Select(), &a);
    label.SetSelection(&b, isRef);
    EXPECT_EQ(label.Select(), &b);
    EXPECT_EQ(a.GetState(), isNormal);
    EXPECT_EQ(b.GetState(), isRef);
    EXPECT_THAT(told, ElementsAre("-a", "+b"));
    EXPECT_THAT(editor.Take(), ElementsAre(chSelect));
}

TEST_F(Arrange, WalksTheItemsThatCanBePicked) {
    TVGRBaseItem &a = Box(0, 0, 10, 10), &hidden = Box(0, 0, 10, 10), &locked = Box(0, 0, 10, 10);
    TVGRBaseItem &other = Box(0, 0, 10, 10), &b = Box(0, 0, 10, 10), &c = Box(0, 0, 10, 10);
    hidden.SetOptions({lopSelectable});
    locked.SetOptions({lopVisible});
    TVGRLayer& layer = label.AddLayer();
    layer.SetOptions({lopSelectable});
    other.SetLayer(layer);
    EXPECT_FALSE(label.SelectNext()); // nothing selected
    const struct {
        std::initializer_list<TVGRBaseItem*> selected;
        TVGRBaseItem *next, *prior; // null: the selection stays
    } rows[] = {{{&a}, &b, nullptr},    {{&b}, &c, &a},     {{&c}, nullptr, &b},
                {{&c, &a}, &b, &b},     {{&b, &c}, &c, &b}, {{&hidden}, nullptr, nullptr},
                {{&hidden, &b}, &c, &a}};
    for (const auto& row : rows) {
        Choose(row.selected);
        EXPECT_EQ(label.SelectNext(), row.next != nullptr);
        EXPECT_EQ(label.Select(), row.next ? row.next : *row.selected.begin());
        Choose(row.selected);
        EXPECT_EQ(label.SelectPrior(), row.prior != nullptr);
        EXPECT_EQ(label.Select(), row.prior ? row.prior : *row.selected.begin());
    }
}

TEST_F(Arrange, MeasuresTheSelection) {
    TVGRBaseItem &a = Box(1000, 2000, 3000, 4000), &b = Box(500, 2500, 1000, 9000);
    auto bounds = [this] {
        std::vector<std::int64_t> sides;
        for (int side = 0; side <= 5; ++side)
            sides.push_back(label.SelectionBounds(side));
        return sides;
    };
    EXPECT_THAT(bounds(), ElementsAre(-1, -1, -1, -1, -1, -1));
    Choose({&a});
    EXPECT_EQ(label.SizeSelection(2), 4);
    EXPECT_EQ(label.SizeSelection(5), -1);
    Choose({&a, &b});
    EXPECT_THAT(bounds(), ElementsAre(-1, 500, 4000, 2000, 11500, -1));
    EXPECT_EQ(label.SizeSelection(1), -1);
}

TEST_F(Arrange, MovesStopAtThePageTogether) {
    label.GetMeasure().SetLabelSizeMM(100, 100);
    TVGRBaseItem &a = Box(10000, 10000, 10000, 10000), &b = Box(70000, 10000, 20000, 10000);
    Choose({&a, &b});
    EXPECT_FALSE(label.MoveSelection(0, 0, true, true));
    EXPECT_TRUE(label.MoveSelection(50, -50, true, true));
    EXPECT_THAT(editor.Take(), ElementsAre(chPropItem));
    EXPECT_THAT(Lefts({&a, &b}), ElementsAre(20000, 80000));
    EXPECT_EQ(a.BoundsRect().Top, 0);
    EXPECT_TRUE(label.IsUndoEmpty());
    EXPECT_FALSE(label.MoveSelection(1, -1, true, true));
    EXPECT_TRUE(label.MoveSelection(1, 0, true, false));
    EXPECT_TRUE(label.MoveBaseSelection(-1000, 200, true, true));
    EXPECT_FALSE(label.MoveBaseSelection(0, 0, true, true));
    label.MoveBaseSelection(-50000, 0, true, true);
    EXPECT_THAT(Lefts({&a, &b}), ElementsAre(0, 60000));
    EXPECT_EQ(UndoAll(label), 4); // a, b, a, b: the runs are broken
    EXPECT_THAT(Lefts({&a, &b}), ElementsAre(21000, 81000));
}

TEST_F(Arrange, MovesOneSideOfWhatCanBeResized) {
    TVGRBaseItem &box = Box(10000, 10000, 10000, 10000), &line = label.CreateLine(0, 0, 5000, 5000);
    Choose({&line});
    EXPECT_FALSE(label.MoveSize(1, moRight, false, false));
    Choose({&line, &box});
    EXPECT_FALSE(label.MoveSize(1, moTopLeft, false, false));
    EXPECT_FALSE(label.MoveSize(0, moRight, false, false));
    EXPECT_TRUE(label.MoveSize(2, moRight, false, false));
    EXPECT_TRUE(label.MoveSize(3, moTop, false, true));
    EXPECT_EQ(box.BoundsRect(), (TKSLRect{10000, 10000, 22000, 17000}));
    EXPECT_EQ(line.BoundsRect(), (TKSLRect{0, 0, 5000, 5000}));
    EXPECT_THAT(editor.Take(), ElementsAre(chPropItem, chPropItem));
}

TEST_F(Arrange, MovesToTheGrid) {
    label.GetMeasure().SetLabelSizeMM(100, 100);
    TVGRBaseItem &a = Box(10200, 10000, 10000, 10000), &b = Box(40600, 10700, 10000, 10000);
    Choose({&a, &b});
    EXPECT_TRUE(label.MoveBaseGridSelection(1000, 0, true, true, true)); // the nearest line is b's
    EXPECT_THAT(Lefts({&a, &b}), ElementsAre(10600, 41000));
    EXPECT_EQ(a.BoundsRect().Top, 10000);
    EXPECT_TRUE(label.MoveBaseGridSelection(1000, 1000, false, false, true));
    EXPECT_THAT(Lefts({&a, &b}), ElementsAre(10000, 40400));
    EXPECT_EQ(a.BoundsRect().Top, 9300);
    EXPECT_TRUE(label.MoveBaseGridSelection(1000, 0, 1500, 0, true, true)); // each to its own line
    EXPECT_THAT(Lefts({&a, &b}), ElementsAre(12000, 42000));
    label.MoveSelection(-12, 0, false, false);
    EXPECT_FALSE(label.MoveBaseGridSelection(1000, 0, false, false, true)); // one that cannot move holds all
    label.ClearSelection(false);
    EXPECT_FALSE(label.MoveBaseGridSelection(1000, 1000, true, true, true));
}

TEST_F(Arrange, ResizesWithAndWithoutAGrid) {
    label.GetMeasure().SetLabelSizeMM(100, 100);
    TVGRBaseItem& box = Box(10200, 10000, 10000, 10000);
    Choose({&box});
    const struct {
        std::int64_t bx, by, grid;
        TKSLMoveOpt option;
        TKSLRect bounds;
    } rows[] = {{100, 0, 0, moRight, {10200, 10000, 20300, 20000}},
                {100, 300, 1000, moRight, {10200, 10000, 21000, 20000}},
                {-100, -100, 0, moTopLeft, {10100, 9900, 21000, 20000}},
                {-50, 0, 1000, moTopLeft, {10000, 9900, 21000, 20000}},
                {99999, 99999, 0, moBotRight, {10000, 9900, 100000, 100000}}};
    for (const auto& row : rows) {
        EXPECT_TRUE(label.MoveBaseSize(row.bx, row.by, row.grid, row.grid, row.option, true, true));
        EXPECT_EQ(box.BoundsRect(), row.bounds) << row.bx;
    }
    EXPECT_FALSE(label.MoveBaseSize(1, 1, 0, 0, moBotRight, true, true));
    UndoAll(label);
    EXPECT_EQ(box.BoundsRect(), (TKSLRect{10200, 10000, 20200, 20000}));
}

TEST_F(Arrange, MovesAskFollowersToCalculate) {
    auto& arrow = MakeProbe(label, itArrowLine);
    auto& line = MakeProbe(label, itLine);
    Choose({&arrow, &line});
    label.MoveBaseSelection(5, 5, false, false);
    label.MoveSelection(1, 0, false, false);
    EXPECT_THAT(arrow.calcs, ElementsAre(2, 2));
    EXPECT_THAT(line.calcs, IsEmpty());
    label.MoveBaseSize(5, 5, 0, 0, moRight, false, false);
    EXPECT_THAT(line.calcs, ElementsAre(1));
}

TEST_F(Arrange, AlignsWithTheFirst) {
    const TKSLRect first{10000, 20000, 15000, 26000};
    for (const TKSLObjectAlign edge : {oaLeft, oaTop, oaRight, oaBottom}) {
        TVGRBaseItem &a = Box(first.Left, first.Top, 5000, 6000), &b = Box(3000, 4000, 1000, 2000);
        TVGRBaseItem& c = label.CreateCircle({50000, 60000}, 3000);
        Choose({&a});
        label.AlignObjects(edge);
        EXPECT_THAT(editor.Take(), IsEmpty()); // one is not enough
        Choose({&a, &b, &c});
        label.SetModified(false);
        const auto before = JsonOf(label);
        label.AlignObjects(edge);
        EXPECT_THAT(editor.Take(), ElementsAre(chPaint, chSelect));
        EXPECT_TRUE(label.GetModified());
        EXPECT_EQ(a.BoundsRect(), first);
        for (const TVGRBaseItem* item : {&b, &c}) {
            const TKSLRect& r = item->BoundsRect();
            const bool there = edge == oaLeft    ? r.Left == first.Left
                               : edge == oaTop   ? r.Top == first.Top
                               : edge == oaRight ? r.Right == first.Right
                                                 : r.Bottom == first.Bottom;
            EXPECT_TRUE(there) << edge;
        }
        EXPECT_EQ(c.BoundsRect().GetWidth(), 6000);
        ExpectOneStep(before);
    }
}

TEST_F(Arrange, CentersOnTheFirstOrOnTheLabel) {
    label.GetMeasure().SetLabelSizeMM(100, 60);
    label.GetMeasure().SetDrawScale(10);
    TVGRBaseItem &a = Box(10000, 20000, 5001, 6000), &b = Box(3000, 4000, 1000, 2001);
    label.CenterHorizontal(); // nothing
    Choose({&a, &b});
    const auto before = JsonOf(label);
    label.CenterHorizontal();
    EXPECT_THAT(Lefts({&a, &b}), ElementsAre(10000, 12000));
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    ExpectOneStep(before);
    label.CenterVertical();
    EXPECT_EQ(b.BoundsRect().Top, 22000);
    Choose({&a});
    label.CenterHorizontal();
    label.CenterVertical();
    EXPECT_EQ(a.BoundsRect().Left, 500000 - 2500);
    EXPECT_EQ(a.BoundsRect().Top, 300000 - 3000);
}

TEST_F(Arrange, Spaces) {
    label.SetUnits(unCM);
    label.GetMeasure().SetDrawScale(2);
    TVGRBaseItem &a = Box(10000, 0, 10000, 10000), &b = Box(90000, 0, 10000, 10000), &c = Box(30000, 0, 10000, 10000);
    TVGRBaseItem &slanted = label.CreateLine(0, 0, 5000, 7000), &upright = label.CreateLine(5000, 0, 5000, 100);
    Choose({&b, &a});
    label.SpaceHorizontal(1); // too few
    label.SpaceHorizontal(-1);
    EXPECT_THAT(Lefts({&a, &b}), ElementsAre(10000, 90000));
    EXPECT_EQ(label.Select(), &a); // but sorted
    Choose({&b, &slanted, &a});
    label.SpaceHorizontal(-1);
    EXPECT_THAT(Lefts({&a, &b}), ElementsAre(10000, 90000));
    EXPECT_EQ(label.GetSelection(2), &slanted);
    EXPECT_THAT(editor.Take(), IsEmpty());

    Choose({&b, &slanted, &c, &a});
    auto before = JsonOf(label);
    label.SpaceHorizontal(-1);
    EXPECT_THAT(Lefts({&a, &c, &b, &slanted}), ElementsAre(10000, 50000, 90000, 0));
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    ExpectOneStep(before);

    Choose({&c, &upright, &b, &a});
    before = JsonOf(label);
    label.SpaceHorizontal(1); // from the line on: 1 cm on paper at a scale of 2
    EXPECT_THAT(Lefts({&upright, &a, &c, &b}), ElementsAre(5000, 25000, 55000, 85000));
    ExpectOneStep(before);

    TVGRBaseItem &wide = Box(0, 0, 90000, 10), &middle = Box(10, 0, 50, 10), &end = Box(95000, 0, 50, 10);
    Choose({&wide, &middle, &end});
    label.SpaceHorizontal(-1);
    EXPECT_EQ(middle.BoundsRect().Left, 92475); // an odd room truncates
    Choose({&wide, &middle, &b});
    editor.Take();
    label.SpaceHorizontal(-1); // no room
    EXPECT_THAT(editor.Take(), IsEmpty());
}

TEST_F(Arrange, SpacesASingleItemOnTheLabel) {
    label.GetMeasure().SetLabelSizeMM(100, 60);
    label.GetMeasure().SetDrawScale(10);
    TVGRBaseItem& a = Box(10000, 20000, 5000, 6001);
    Choose({&a});
    const auto before = JsonOf(label);
    label.SpaceHorizontal(5);
    EXPECT_EQ(a.BoundsRect().Left, 497500);
    ExpectOneStep(before);
    label.SpaceVertical(-1);
    EXPECT_EQ(a.BoundsRect().Top, 296999);
    editor.Take();
    label.SpaceVertical(-1); // is there already
    EXPECT_THAT(editor.Take(), IsEmpty());
    Choose({&label.CreateLine(0, 0, 5, 5)});
    label.SpaceHorizontal(-1);
    EXPECT_THAT(editor.Take(), IsEmpty());
}

TEST_F(Arrange, MakesSizesEqual) {
    TVGRBaseItem &bezier = label.CreateBezier({{0, 0}, {1, 1}, {2, 2}, {3, 3}}), &line = label.CreateLine(0, 0, 9, 9);
    TVGRBaseItem &box = Box(0, 0, 8000, 6000), &other = Box(100, 200, 50, 60);
    TVGRBaseItem& circle = label.CreateCircle({50000, 50000}, 1000);
    Choose({&bezier, &line, &box, &other, &circle});
    const auto before = JsonOf(label);
    label.SameWidth();
    EXPECT_EQ(other.BoundsRect(), (TKSLRect{100, 200, 8100, 260}));
    EXPECT_EQ(circle.BoundsRect(), (TKSLRect{49000, 49000, 57000, 57000}));
    EXPECT_EQ(line.BoundsRect().Right, 9);
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint, chSelect));
    ExpectOneStep(before);
    label.RemoveState(lsUpdate); // which the replayed setters left
    editor.Take();
    label.SameHeight();
    EXPECT_EQ(other.BoundsRect(), (TKSLRect{100, 200, 8100, 6200}));
    EXPECT_EQ(circle.BoundsRect(), (TKSLRect{49000, 49000, 55000, 55000}));
    EXPECT_THAT(editor.Take(), ElementsAre(chSelect));
    Choose({&Box(0, 0, 0, 5), &box});
    label.SameWidth(); // a reference without a width
    Choose({&line, &bezier});
    label.SameWidth(); // no reference
    EXPECT_THAT(editor.Take(), IsEmpty());
}

TEST_F(Arrange, TurnsTheLabel) {
    TestHost sheet(emLabelling);
    TVGRBaseItem& box = sheet.CreateRectangle(1000, 2000, 5000, 4000);
    sheet.Clear({cleUndoRedo}, false);
    sheet.Attach(&editor);
    editor.Take();
    std::vector<TKSChange> toldBefore;
    sheet.OnLabelRotate = [&](TVGRBaseLabel&) { toldBefore = editor.Take(); };
    const auto start = JsonOf(sheet);
    sheet.RotateLeft();
    EXPECT_THAT(toldBefore, ElementsAre(chMeasure));
    EXPECT_EQ(sheet.GetAngle(), ag90);
    EXPECT_EQ(sheet.GetMeasure().GetSize(mtLabelWidth, true), 35000);
    EXPECT_EQ(sheet.GetMeasure().GetSize(mtPaperHeight, true), 210000);
    EXPECT_EQ(box.BoundsRect(), (TKSLRect{2000, 54000, 6000, 59000}));
    const auto turned = JsonOf(sheet);
    EXPECT_EQ(UndoAll(sheet), 1);
    EXPECT_EQ(JsonOf(sheet), start);
    EXPECT_EQ(RedoAll(sheet), 1);
    EXPECT_EQ(JsonOf(sheet), turned);
    sheet.RotateRight();
    EXPECT_EQ(JsonOf(sheet), start);
    sheet.RotateRight();
    EXPECT_EQ(sheet.GetAngle(), ag270);
    for (int i = 0; i < 5; ++i)
        sheet.RotateLeft();
    EXPECT_EQ(JsonOf(sheet), start);
    const auto drawing = JsonOf(label);
    label.RotateLeft();
    EXPECT_EQ(JsonOf(label), drawing);
}

TEST_F(Arrange, OrdersTheFirstOfTheSelection) {
    TVGRBaseItem &a = Box(0, 0, 1, 1), &b = Box(0, 0, 1, 1), &c = Box(0, 0, 1, 1);
    auto order = [this] {
        std::vector<std::int32_t> ids;
        for (int i = 1; i <= label.ItemsCount(); ++i)
            ids.push_back(label.GetItem(i)->GetInID());
        return ids;
    };
    label.BringToFront(); // nothing selected
    Choose({&b, &a});
    label.BringToFront();
    EXPECT_THAT(order(), ElementsAre(1, 3, 2));
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    label.BringToFront(); // is there already
    EXPECT_THAT(editor.Take(), IsEmpty());
    label.SendToBack();
    EXPECT_THAT(order(), ElementsAre(2, 1, 3));
    label.SendToBack();
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    EXPECT_TRUE(label.IsUndoEmpty());
    Choose({&c});
    label.SendToBack();
    EXPECT_THAT(order(), ElementsAre(3, 2, 1));
}

} // namespace
} // namespace vagrel::test
