// SPDX-License-Identifier: MIT
// Moving and resizing the selection.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Arranging.h>

#include <algorithm>

namespace vagrel {

void TVGRBaseLabel::CalcLinks() {
    ForEachLiving(fLinks, [](TVGRBaseItem& link) { link.CalcValues(2); });
}

void TVGRBaseLabel::Recalculate() {
    ForEachLiving(fSelection, [](TVGRBaseItem& item) {
        if (item.HasTrait(trFollowsMove))
            item.CalcValues(2);
    });
    CalcLinks();
}

bool TVGRBaseLabel::MoveSelection(float ax, float ay, bool refLines, bool checkBounds) {
    if (checkBounds)
        for (const TVGRBaseItem* item : fSelection)
            item->BoundsMove(ax, ay);
    if (ax == 0 && ay == 0)
        return false;
    ForEachLiving(fSelection, [=](TVGRBaseItem& item) { item.Move(ax, ay, moAll); });
    Recalculate();
    if (refLines)
        FillRefLines();
    FillSelPoints();
    ChangeValue(chPropItem);
    return true;
}

bool TVGRBaseLabel::MoveSize(float value, TKSLMoveOpt side, bool refLines, bool checkBounds) {
    std::vector<TVGRBaseItem*> items;
    std::ranges::copy_if(fSelection, std::back_inserter(items), &TVGRBaseItem::GetResize);
    float ax = side == moLeft || side == moRight ? value : 0;
    float ay = side == moTop || side == moBottom ? value : 0;
    if (checkBounds)
        for (const TVGRBaseItem* item : items)
            item->BoundsMove(ax, ay);
    if (items.empty() || (ax == 0 && ay == 0))
        return false;
    ForEachLiving(items, [=](TVGRBaseItem& item) { item.Move(ax, ay, side); });
    CalcLinks();
    if (refLines)
        FillRefLines();
    FillSelPoints();
    ChangeValue(chPropItem);
    return true;
}

// Each item that moves reports a repaint at once; `fUpdate` stays set, as a drag goes on.
bool TVGRBaseLabel::MoveAllBy(std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy, bool refLines) {
    if (bx == 0 && by == 0)
        return false;
    fUpdate = true;
    ForEachLiving(fSelection, [=](TVGRBaseItem& item) { item.BaseMove(bx, by, gx, gy, moAll, true); });
    Recalculate();
    if (refLines)
        FillRefLines();
    FillSelPoints();
    return true;
}

bool TVGRBaseLabel::MoveBaseSelection(std::int64_t bx, std::int64_t by, bool refLines, bool checkBounds) {
    return MoveBaseGridSelection(0, 0, bx, by, refLines, checkBounds);
}

bool TVGRBaseLabel::MoveBaseGridSelection(std::int64_t gx, std::int64_t gy, std::int64_t bx, std::int64_t by,
                                          bool refLines, bool checkBounds) {
    if (checkBounds)
        for (const TVGRBaseItem* item : fSelection)
            item->CheckBaseBoundsMove(bx, by, moAll);
    return MoveAllBy(bx, by, gx, gy, refLines);
}

bool TVGRBaseLabel::MoveBaseGridSelection(std::int64_t gx, std::int64_t gy, bool right, bool down, bool refLines) {
    if (fSelection.empty())
        return false;
    TKSLPto64 least{INT64_MAX, INT64_MAX};
    for (TVGRBaseItem* item : fSelection) {
        item->MoveToGrid(gx, gy, right, down);
        least.X = SmallerOffset(item->MoveOffset().X, least.X);
        least.Y = SmallerOffset(item->MoveOffset().Y, least.Y);
    }
    return MoveAllBy(least.X, least.Y, 0, 0, refLines);
}

bool TVGRBaseLabel::MoveBaseSize(std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy, TKSLMoveOpt option,
                                 bool refLines, bool checkBounds) {
    static constexpr TKSLSet<TKSLMoveOpt> left{moLeft, moTopLeft, moBotLeft}, top{moTop, moTopLeft, moTopRight};
    if (checkBounds)
        for (const TVGRBaseItem* item : fSelection)
            item->CheckBaseBoundsMove(bx, by, option);
    if (bx == 0 && by == 0)
        return false;
    fUpdate = true;
    ForEachLiving(fSelection, [=](TVGRBaseItem& item) {
        const TItemHandle alive(item);
        const std::int64_t x = item.GetPoint(left.Has(option) ? 1 : 2).bX;
        const std::int64_t y = item.GetPoint(top.Has(option) ? 1 : 2).bY;
        item.BaseMove(bx, by, GridTarget(x, bx, gx), GridTarget(y, by, gy), option, true);
        if (alive)
            item.CalcValues(1);
    });
    CalcLinks();
    if (refLines)
        FillRefLines();
    FillSelPoints();
    return true;
}

} // namespace vagrel
