// SPDX-License-Identifier: MIT
// Aligning, spacing, sizing, turning and ordering items. The first selected item is the reference.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Arranging.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>

#include <algorithm>

namespace vagrel {

namespace {

TKSLSpan BoundsOn(TKSLAlignType axis, const TVGRBaseItem& item) {
    const TKSLRect& r = item.BoundsRect();
    return axis == anHorz ? TKSLSpan{r.Left, r.Right} : TKSLSpan{r.Top, r.Bottom};
}

// What the item is aligned by; nothing for one that has no extent on the axis.
std::optional<TKSLSpan> ExtentOn(TKSLAlignType axis, const TVGRBaseItem& item) {
    TKSLSpan span;
    if (item.AlignTypes().Has(axis) && item.AlignPoints(axis, span.from, span.to))
        return span;
    return {};
}

void MoveOn(TKSLAlignType axis, TVGRBaseItem& item, std::int64_t offset) {
    item.BaseMove(axis == anHorz ? offset : 0, axis == anHorz ? 0 : offset, 0, 0, moAll, true);
}

std::int64_t LabelLength(TKSLAlignType axis, const TVGRBaseLabel& label) {
    return label.GetMeasure().GetSize(axis == anHorz ? mtLabelWidth : mtLabelHeight, true);
}

// The capability of an item whose size can be made that of another.
IKSLSize* SizeOf(TVGRBaseItem& item) { return item.HasTrait(trCurve) ? nullptr : Query<IKSLSize>(&item); }

} // namespace

void TVGRBaseLabel::AlignObjects(TKSLObjectAlign edge) {
    constexpr std::int64_t TKSLRect::*sides[] = {&TKSLRect::Left, &TKSLRect::Top, &TKSLRect::Right, &TKSLRect::Bottom};
    if (fSelection.size() < 2 || edge < oaLeft || edge > oaBottom)
        return;
    const auto side = sides[edge];
    const TKSLAlignType axis = edge == oaLeft || edge == oaRight ? anHorz : anVert;
    const std::int64_t target = fSelection[0]->BoundsRect().*side;
    {
        const UpdateScope bracket(*this);
        ForEachLiving(std::vector(fSelection.begin() + 1, fSelection.end()),
                      [&](TVGRBaseItem& item) { MoveOn(axis, item, SubSat(target, item.BoundsRect().*side)); });
        CalcLinks();
    }
    fModified = true;
    FillSelPoints();
    ChangeValue(chSelect);
    CheckIntersetions();
}

void TVGRBaseLabel::CenterSelection(TKSLAlignType axis) {
    if (fSelection.empty())
        return;
    const bool single = fSelection.size() == 1;
    const std::int64_t target = single ? LabelLength(axis, *this) / 2 : BoundsOn(axis, *fSelection[0]).Middle();
    {
        const UpdateScope bracket(*this);
        ForEachLiving(std::vector(fSelection.begin() + !single, fSelection.end()),
                      [&](TVGRBaseItem& item) { MoveOn(axis, item, SubSat(target, BoundsOn(axis, item).Middle())); });
        fStates += {lsModified, lsUpdate};
        CalcLinks();
        fModified = true;
        FillSelPoints();
    }
    CheckIntersetions();
}

void TVGRBaseLabel::SortSelection(TKSLAlignType axis) {
    SortInPlaces(fSelection, [axis](const TVGRBaseItem* item) -> std::optional<std::int64_t> {
        const auto extent = ExtentOn(axis, *item);
        return extent ? std::optional(extent->from) : std::nullopt;
    });
}

void TVGRBaseLabel::SpaceSelection(TKSLAlignType axis, float gap) {
    std::vector<TVGRBaseItem*> items;
    std::vector<std::int64_t> offsets;
    if (fSelection.size() == 1 && fSelection[0]->AlignTypes().Has(axis)) {
        const TKSLSpan bounds = BoundsOn(axis, *fSelection[0]);
        items = fSelection;
        offsets = {SubSat(SubSat(LabelLength(axis, *this), bounds.Length()) / 2, bounds.from)};
        if (offsets[0] == 0)
            return;
    } else {
        SortSelection(axis);
        std::vector<TKSLSpan> spans;
        for (TVGRBaseItem* item : fSelection)
            if (const auto extent = ExtentOn(axis, *item))
                items.push_back(item), spans.push_back(*extent);
        if (items.size() <= 2)
            return;
        const std::int64_t base = MulSat(SetValue(gap, fUnits), fMeasure->GetDrawScale());
        auto found = gap == -1 ? SpaceEvenly(spans) : SpaceByGap(spans, base);
        if (!found)
            return;
        offsets = std::move(*found);
    }
    std::vector<TItemHandle> handles;
    for (TVGRBaseItem* item : items)
        handles.emplace_back(*item);
    {
        const UpdateScope bracket(*this);
        for (std::size_t i = 0; i < items.size(); ++i)
            if (offsets[i] != 0 && handles[i])
                MoveOn(axis, *handles[i], offsets[i]);
        fStates += {lsModified, lsUpdate};
        CalcLinks();
        FillSelPoints();
    }
    CheckIntersetions();
}

void TVGRBaseLabel::SameSize(TKSLAlignType axis) {
    const auto first = std::ranges::find_if(fSelection, [](TVGRBaseItem* item) { return SizeOf(*item) != nullptr; });
    if (first == fSelection.end())
        return;
    const TVGRBaseItem* reference = *first;
    const bool wide = axis == anHorz;
    const std::int64_t value = wide ? SizeOf(**first)->BaseWidth() : SizeOf(**first)->BaseHeight();
    if (value < 1)
        return;
    {
        const UpdateScope bracket(*this);
        ForEachLiving(fSelection, [=](TVGRBaseItem& item) {
            IKSLSize* size = SizeOf(item);
            if (!size || &item == reference)
                return;
            const TItemHandle alive(item);
            const bool both = item.HasTrait(trOneSize);
            if (wide || both)
                size->SetBaseWidth(value);
            if (alive && (!wide || both))
                size->SetBaseHeight(value);
            if (alive && wide)
                item.StateCalc();
        });
        Recalculate();
    }
    FillSelPoints();
    ChangeValue(chSelect);
}

void TVGRBaseLabel::Turn(bool left) {
    if (fEditorMode != emLabelling)
        return;
    const TLog log = OpenLog(); // one step, although nothing of it is recorded
    fAngle = TKSLAngle((fAngle + (left ? 1 : 3)) & 3);
    {
        const TFinally step{[&] { CommitLog(log, false); }};
        const TFinally inner{[&] { RollBackLogs(log, false); }}; // that handlers left open
        const UpdateScope bracket(*this);
        fMeasure->Turn();
        ForEachLiving(fItems, [left](TVGRBaseItem& item) { left ? item.RotateLeft() : item.RotateRight(); });
        if (!fSelection.empty())
            FillSelPoints();
        fModified = true;
        AddState(lsUpdateMeasure);
    }
    if (OnLabelRotate)
        OnLabelRotate(*this);
    CheckIntersetions();
}

void TVGRBaseLabel::MoveInZOrder(bool front) {
    if (fItems.size() < 2 || fSelection.empty())
        return;
    const auto at = std::ranges::find_if(fItems, [this](const auto& item) { return item.get() == fSelection.front(); });
    if (at == fItems.end() || at == (front ? fItems.end() - 1 : fItems.begin()))
        return;
    const UpdateScope bracket(*this);
    ItemsReordering();
    if (front)
        std::rotate(at, at + 1, fItems.end());
    else
        std::rotate(fItems.begin(), at, at + 1);
    fSelection.front()->StateUpdate();
}

} // namespace vagrel
