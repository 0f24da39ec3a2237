// SPDX-License-Identifier: MIT
// What the steps of a drag and the arrow keys do to the selection.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRCmd.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/editor/GroupDrag.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Arranging.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Utils.h>
#include <vagrel/items/text/TVGRBaseText.h>

#include <algorithm>

namespace vagrel {

namespace {

// The handles of a box: what they move, on which axes.
struct TBoxHandle {
    TKSLMoveType type;
    TKSLMoveOpt option;
    bool onX, onY;
};
constexpr TBoxHandle BoxHandles[] = {
    {mtNW, moTopLeft, true, true}, {mtN, moTop, false, true},      {mtNE, moTopRight, true, true},
    {mtW, moLeft, true, false},    {mtE, moRight, true, false},    {mtSW, moBotLeft, true, true},
    {mtS, moBottom, false, true},  {mtSE, moBotRight, true, true},
};

bool HasGrid(std::int64_t gx, std::int64_t gy) { return gx > 0 || gy > 0; }

std::int64_t Size(std::int64_t value) { return value < 0 ? SubSat(0, value) : value; }

// The first item with a capability; null without one.
template <class Capability>
Capability* FirstOf(const std::vector<TVGRBaseItem*>& selection) {
    for (TVGRBaseItem* item : selection)
        if (auto* found = Query<Capability>(item))
            return found;
    return nullptr;
}

// The radius around a centre that ends at the first or the last edge of a page.
std::int64_t InsideLow(std::int64_t radius, std::int64_t center) {
    return SubSat(center, radius) < 0 ? center : radius;
}
std::int64_t InsideHigh(std::int64_t radius, std::int64_t center, std::int64_t page) {
    return AddSat(center, radius) > page ? SubSat(page, center) : radius;
}

} // namespace

bool TVGRBaseLabel::MoveBasePoint(std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy, bool refLines,
                                  bool checkBounds) {
    if (fSelection.empty())
        return false;
    TVGRBaseItem& item = *fSelection[0];
    const int index = TAct::GetPos1();
    auto* link = Query<IKSLLinkItem>(&item);
    if (index < 1 || index > (link ? link->NumLinkPoints() : item.NumPoints()))
        return false;
    if (HasGrid(gx, gy))
        bx = gx, by = gy;
    else if (checkBounds)
        item.BasePointMove(bx, by);
    const TKSLPto before = link ? link->GetLinkPoint(index) : item.GetPoint(index);
    const TKSLPto after{bx == -1 ? before.bX : bx, by == -1 ? before.bY : by};
    if (after == before)
        return false;
    if (!TVGRBasePosCmd::AddCommand(item, link ? cmd::LinkPoint : cmd::ItemPoint, index))
        return false;
    if (link)
        link->SetBasePoint(index, after.bX, after.bY, false);
    else
        item.SetPoint(index, after);
    if (refLines)
        FillRefLines();
    if (!link)
        item.CalcValues(1);
    item.UpdateBounds();
    FillSelPoints();
    return true;
}

// The host's events

void TVGRBaseLabel::MoveEditor(std::int64_t bx, std::int64_t by, std::int64_t grX, std::int64_t grY, bool refLines,
                               bool fromKeyboard) {
    if (!GetEditable() || (bx == 0 && by == 0))
        return;
    bool moved;
    if (!fromKeyboard)
        moved = Drag(bx, by, grX, grY, refLines);
    else if (HasGrid(grX, grY)) // an axis without movement stays off its grid
        moved = MoveBaseGridSelection(bx != 0 ? grX : 0, by != 0 ? grY : 0, bx < 0, by < 0, refLines);
    else
        moved = MoveBaseSelection(SubSat(0, bx), SubSat(0, by), refLines, true);
    if (!moved)
        return;
    const bool several = fSelection.size() > 1;
    ChangeValue(!fromKeyboard && several && TAct::GetMoveType() != mtObjects ? chDraw : chPropItem);
}

bool TVGRBaseLabel::Drag(std::int64_t bx, std::int64_t by, std::int64_t grX, std::int64_t grY, bool refLines) {
    const TKSLMoveType type = TAct::GetMoveType();
    const std::int64_t dx = SubSat(0, bx), dy = SubSat(0, by);
    const bool grid = HasGrid(grX, grY);
    if (const auto box = std::ranges::find(BoxHandles, type, &TBoxHandle::type); box != std::end(BoxHandles))
        return MoveBaseSize(box->onX ? dx : 0, box->onY ? dy : 0, grX, grY, box->option, refLines, true);
    switch (type) {
    case mtObjects:
    case mtText:
        if (fSelection.size() > 1)
            fGroupDrag->Reset();
        else if (grid)
            return MoveBaseGridSelection(grX, grY, dx, dy, refLines, true);
        return MoveBaseSelection(dx, dy, refLines, true);
    case mtBezier:
    case mtBezierCtrl:
    case mtPoint:
    case mtPolyPoint:
        return MoveBasePoint(bx, by, grX, grY, refLines, true);
    case mtDispWidth:
        return DragShape({bx, by});
    case mtRadio:
    case mtRadioX:
    case mtRadioY:
        return DragRadius(grid ? TKSLPto{grX, grY} : TKSLPto{bx, by});
    case mtArc:
    case mtLinkCurve:
        return DragShape(grid ? TKSLPto{grX, grY} : TKSLPto{bx, by});
    default:
        return false;
    }
}

bool TVGRBaseLabel::DragShape(TKSLPto pointer) {
    bool moved = false;
    switch (TAct::GetMoveType()) {
    case mtDispWidth:
        if (auto* text = fSelection.empty() ? nullptr : dynamic_cast<TVGRBaseText*>(fSelection[0]))
            text->SetDispWidthFromMouse(pointer.bX, pointer.bY), moved = true;
        break;
    case mtArc:
        if (auto* arc = FirstOf<IKSLArc>(fSelection))
            arc->MoveBasePoint(TAct::GetPos1(), pointer.bX, pointer.bY), moved = true;
        break;
    default:
        if (auto* link = FirstOf<IKSLLinkItem>(fSelection))
            moved = link->SetBasePoint(1, pointer.bX, pointer.bY, true);
    }
    if (moved)
        FillSelPoints();
    return moved;
}

bool TVGRBaseLabel::DragRadius(TKSLPto pointer) {
    TVGRBaseItem* item = fSelection.empty() ? nullptr : fSelection[0];
    const auto* figure = Query<IKSLCenter>(item);
    if (!figure)
        return false;
    const std::int64_t width = fMeasure->GetSize(mtLabelWidth, true), height = fMeasure->GetSize(mtLabelHeight, true);
    const std::int64_t cx = figure->GetBaseCenterX(), cy = figure->GetBaseCenterY();
    const TKSLPto one = item->GetPoint(1), two = item->GetPoint(2);
    std::int64_t rx = SubSat(two.bX, one.bX) / 2, ry = SubSat(two.bY, one.bY) / 2;
    switch (TAct::GetMoveType()) {
    case mtRadioX:
        rx = InsideHigh(InsideLow(Size(SubSat(cx, pointer.bX)), cx), cx, width);
        break;
    case mtRadioY:
        ry = InsideHigh(InsideLow(Size(SubSat(cy, pointer.bY)), cy), cy, height);
        break;
    default:
        rx = InsideHigh(InsideLow(Distance(cx, cy, pointer.bX, pointer.bY), cx), cx, width);
        rx = ry = InsideHigh(InsideLow(rx, cy), cy, height);
    }
    // A centre off the page leaves no room.
    rx = std::max<std::int64_t>(rx, 0), ry = std::max<std::int64_t>(ry, 0);
    const auto* round = Query<IKSLRadio>(item);
    if (TAct::GetMoveType() == mtRadio && round && round->GetBaseRadio() != rx &&
        !TVGRBaseValueCmd::AddCommand(*item, cmd::Radio))
        return false;
    item->AssignPoints({{SubSat(cx, rx), SubSat(cy, ry)}, {AddSat(cx, rx), AddSat(cy, ry)}});
    FillSelPoints();
    return true;
}

bool TVGRBaseLabel::MoveGridEditor(std::int64_t bx, std::int64_t by, std::int64_t grX, std::int64_t grY,
                                   bool refLines) {
    if (!GetEditable())
        return false;
    const std::int64_t gx = AdjustGrid(bx, grX), gy = AdjustGrid(by, grY);
    if (fSelection.size() > 1 && TAct::GetAction() == eaMove && TAct::GetMoveType() == mtObjects) {
        const auto step = fGroupDrag->Step({gx, gy});
        const bool moved = step && MoveBaseSelection(step->bX, step->bY, refLines, true);
        if (moved)
            ChangeValue(chPropItem);
        return moved;
    }
    TKSLPto64 common;
    for (std::size_t i = 0; i < fSelection.size(); ++i) {
        fSelection[i]->MoveToPoint(gx, gy);
        const TKSLPto64 offset = fSelection[i]->MoveOffset();
        common = i == 0 ? offset : TKSLPto64{SmallerOffset(common.X, offset.X), SmallerOffset(common.Y, offset.Y)};
    }
    if (common.IsZero())
        return false;
    ForEachLiving(fSelection, [&](TVGRBaseItem& item) { item.BaseMove(common.X, common.Y, 0, 0, moAll, true); });
    if (refLines)
        FillRefLines();
    Recalculate();
    FillSelPoints();
    ChangeValue(chPropItem);
    return true;
}

} // namespace vagrel
