// SPDX-License-Identifier: MIT
// A seeded editor that does thousands of things to a document, whatever comes. Undoing all of it restores the document
// as it was, redoing all of it as it became.
//
// Two things are outside what undo restores: the order of items, since one that is made anew comes last, and pasted
// items, which stay.
#include <tests/support/TestHost.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/persistence/TJsonObject.h>

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace vagrel::test {
namespace {

using TForms = std::map<std::int32_t, std::string>;

// The items by their numbers.
TForms FormsOf(const TVGRBaseLabel& label) {
    TForms forms;
    for (int i = 1; i <= label.ItemsCount(); ++i)
        forms[label.GetItem(i)->GetInID()] = label.GetItem(i)->WriteJson()->ToUtf8JSON();
    return forms;
}

class RandomEditor {
public:
    explicit RandomEditor(unsigned seed) : fRandom(seed) {
        label.GetMeasure().SetLabelSizeMM(400, 400);
        for (int i = 0; i < 12; ++i)
            Create();
        label.Clear({cleUndoRedo}, false);
    }

    void Work(int actions, bool withUndo) {
        for (int i = 0; i < actions; ++i) {
            const bool bracket = Below(4) == 0;
            if (bracket)
                label.BeginUpdate(true);
            Act(withUndo);
            if (bracket) {
                for (int more = Below(4); more > 0; --more)
                    Act(false);
                label.EndUpdate();
            }
        }
    }

    TestHost label{emDrawing, unMM, 1};
    TForms pasted; ///< as they came

private:
    int Below(int limit) { return int(fRandom() % unsigned(limit)); }
    // Even, so that the halves of centres and radii are whole.
    std::int64_t Even(int low, int high) { return low + 2 * Below((high - low) / 2); }
    TVGRBaseItem* Any() { return label.ItemsCount() > 0 ? label.GetItem(1 + Below(label.ItemsCount())) : nullptr; }

    void Create() {
        const std::int64_t x = Even(60000, 300000), y = Even(60000, 300000), size = Even(4000, 40000);
        switch (Below(6)) {
        case 0:
            label.CreateLine(x, y, Even(0, 400000), Even(0, 400000));
            break;
        case 1:
            label.CreatePolyLine({{x, y}, {x + size, y}, {x, y + size}});
            break;
        case 2:
            label.CreateCircle({x, y}, size);
            break;
        case 3:
            label.CreateEllipse({x, y}, size, size / 2 + size % 4);
            break;
        case 4:
            label.CreatePoint(x, y);
            break;
        default:
            label.CreateRectangle(x, y, size, Even(4000, 40000));
        }
    }

    void Select() {
        label.ClearSelection(false);
        for (int i = 0; i <= Below(5); ++i)
            if (TVGRBaseItem* item = Any(); item && !label.Selected(*item))
                label.AddToSelection(*item, false);
    }

    void SetSomething(TVGRBaseItem& item) {
        auto* style = Query<IKSLStyle>(&item);
        auto* back = Query<IKSLBack>(&item);
        auto* terminals = Query<IKSLSTerm>(&item);
        auto* center = Query<IKSLCenter>(&item);
        auto* radius = Query<IKSLRadio>(&item);
        auto* size = Query<IKSLSize>(&item);
        const bool round = center != nullptr;
        // A centre is kept on the page, also by undo: a figure that reaches beyond does not come back there.
        const TKSLRect page{0, 0, 400000, 400000};
        switch (Below(11)) {
        case 0:
            item.SetColor(TAlphaColor(Below(3)));
            break;
        case 1:
            item.SetPenWidth(0.25f * float(Below(4)));
            break;
        case 2:
            if (style)
                style->SetLineType(TKSLineType(Below(4)));
            break;
        case 3:
            if (back)
                back->SetBackColor(TAlphaColor(Below(3)));
            break;
        case 4:
            if (back)
                back->SetFilled(Below(2) == 0);
            break;
        case 5:
            if (terminals)
                Below(2) ? terminals->SetFromType(TKSLTermType(Below(4))) : terminals->SetSizeTo(float(Below(9)));
            break;
        case 6:
            if (center && page.Contains(item.BoundsRect()))
                Below(2) ? center->SetCenterX(float(Below(400))) : center->SetCenterY(float(Below(400)));
            break;
        case 7:
            if (radius)
                radius->SetBaseRadio(Even(100, 30000));
            break;
        case 8:
            if (size && item.GetItemType() != itCircle)
                Below(2) ? size->SetBaseWidth(Even(2000, 60000)) : size->SetBaseHeight(Even(2000, 60000));
            break;
        case 9:
            if (!round)
                Below(2) ? item.SetPointX(1, float(Below(60))) : item.SetPointY(1, float(Below(60)));
            break;
        default:
            item.BaseMove(Even(-9000, 9000), Even(-9000, 9000), 0, 0, moAll, true);
        }
    }

    void Act(bool withUndo) {
        const int action = Below(20);
        if (action < 9) {
            if (TVGRBaseItem* item = Any())
                SetSomething(*item);
        } else if (action < 11) {
            Create();
        } else if (action == 11) {
            if (TVGRBaseItem* item = Any())
                label.DeleteItem(*item, Below(2) == 0);
        } else if (action == 12) {
            Select();
            label.DeleteSelection();
        } else if (action == 13) {
            Paste();
        } else if (action == 14 && withUndo) {
            for (int i = Below(6); i > 0; --i)
                label.Undo();
        } else if (action == 15 && withUndo) {
            for (int i = Below(6); i > 0; --i)
                label.Redo();
        } else {
            Select();
            Command();
        }
    }

    void Command() {
        const std::int64_t dx = Even(-9000, 9000), dy = Even(-9000, 9000);
        switch (Below(9)) {
        case 0:
            label.AlignObjects(TKSLObjectAlign(Below(4)));
            break;
        case 1:
            Below(2) ? label.CenterHorizontal() : label.CenterVertical();
            break;
        case 2:
            Below(2) ? label.SpaceHorizontal(-1) : label.SpaceVertical(float(Below(20)));
            break;
        case 3:
            Below(2) ? label.SameWidth() : label.SameHeight();
            break;
        case 4:
            Below(2) ? label.SendToBack() : label.BringToFront();
            break;
        case 5:
            label.MoveBaseGridSelection(1000, 1000, Below(2) == 0, Below(2) == 0, true);
            break;
        case 6:
            label.MoveBaseGridSelection(500, 500, dx, dy, true, true);
            break;
        case 7:
            Below(2) ? label.SelectNext() : label.SelectPrior();
            break;
        default:
            label.MoveBaseSelection(dx, dy, true, true);
        }
    }

    void Paste() {
        Select();
        label.CopySelection();
        label.PasteSelection();
        for (int i = 1; i <= label.SelectionCount(); ++i)
            pasted[label.GetSelection(i)->GetInID()] = label.GetSelection(i)->WriteJson()->ToUtf8JSON();
    }

    std::mt19937 fRandom;
};

class RandomEditing : public testing::TestWithParam<unsigned> {};

TEST_P(RandomEditing, IsUndoneAndRedone) {
    RandomEditor editor(GetParam());
    TForms start = FormsOf(editor.label);
    editor.Work(1500, false);
    start.merge(TForms(editor.pasted));
    const TForms end = FormsOf(editor.label);
    for (int i = 0; i < 3; ++i) {
        UndoAll(editor.label);
        EXPECT_EQ(FormsOf(editor.label), start);
        RedoAll(editor.label);
        EXPECT_EQ(FormsOf(editor.label), end);
    }
}

// Steps back and forth in between: what stands on the redo stack then grows old, and what it does is free. The way back
// to the start stays.
TEST_P(RandomEditing, FindsBackWithStepsInBetween) {
    RandomEditor editor(GetParam());
    TForms start = FormsOf(editor.label);
    editor.Work(1500, true);
    start.merge(TForms(editor.pasted));
    UndoAll(editor.label);
    EXPECT_EQ(FormsOf(editor.label), start);
    RedoAll(editor.label);
    UndoAll(editor.label);
    EXPECT_EQ(FormsOf(editor.label), start);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEditing, testing::Range(1u, 9u));

} // namespace
} // namespace vagrel::test
