// SPDX-License-Identifier: MIT
// The selection: walking it, measuring it, copying and deleting it.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRCmd.h>
#include <vagrel/document/Versions.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/TBinaryWriter.h>

#include <algorithm>

namespace vagrel {

void TVGRBaseLabel::SetSelection(TVGRBaseItem* item, TKSLItemState state) {
    if (!item)
        return;
    const TItemHandle chosen(*item);
    ClearSelection(false);
    if (!chosen)
        return;
    item->SetState(state);
    fSelection.push_back(item);
    if (OnSelectItem)
        OnSelectItem(*this, *item);
    FillSelPoints();
    ChangeValue(GetTextObject() ? chChText : chSelect);
}

bool TVGRBaseLabel::SelectNext() { return SelectNeighbour(true); }
bool TVGRBaseLabel::SelectPrior() { return SelectNeighbour(false); }

bool TVGRBaseLabel::SelectNeighbour(bool forward) {
    if (fSelection.empty() || fItems.size() < 2)
        return false;
    bool passed = false;
    for (std::size_t i = 0; i < fItems.size(); ++i) {
        TVGRBaseItem& item = *fItems[forward ? i : fItems.size() - 1 - i];
        if (!item.Shows({lopVisible, lopSelectable}))
            continue;
        if (passed) {
            SetSelection(&item, isSelected);
            return true;
        }
        passed = Selected(item);
    }
    return false;
}

float TVGRBaseLabel::SizeSelection(int side) const {
    return fSelection.size() == 1 && side >= 1 && side <= 4 ? GetValue(SelectionBounds(side), fUnits) : -1;
}

std::int64_t TVGRBaseLabel::SelectionBounds(int side) const {
    constexpr std::int64_t TKSLRect::*sides[] = {&TKSLRect::Left, &TKSLRect::Right, &TKSLRect::Top, &TKSLRect::Bottom};
    if (fSelection.empty() || side < 1 || side > 4)
        return -1;
    auto at = [&](const TVGRBaseItem* item) { return item->BoundsRect().*sides[side - 1]; };
    const bool lowest = side == 1 || side == 3;
    return at(lowest ? *std::ranges::min_element(fSelection, {}, at) : *std::ranges::max_element(fSelection, {}, at));
}

void TVGRBaseLabel::DeleteItem(TVGRBaseItem& item, bool removeSelection) {
    const TItemHandle doomed(item);
    if (Query<IKSLLink>(&item)) {
        const std::int32_t id = item.GetInID();
        for (std::size_t i = fLinks.size(); i-- > 0;) {
            const auto* link = Query<IKSLLinkItem>(fLinks[i]);
            if (link && (link->GetFromID() == id || link->GetToID() == id))
                FreeItem(*fLinks[i]);
        }
    }
    if (std::erase(fSelection, &item) > 0 && removeSelection)
        ChangeValue(chSelect);
    // Those that are told may have deleted it.
    if (!doomed || item.FromPreview() || &item.KSLab() != this || !TVGRDeleteCmd::AddCommand(item))
        return;
    FreeItem(item);
    fModified = true;
}

void TVGRBaseLabel::DeleteSelection() {
    TellUnselected();
    fSelPoint.clear(); // each item that dies would look through all handles
    ForEachLiving(std::vector(fSelection.rbegin(), fSelection.rend()),
                  [this](TVGRBaseItem& item) { DeleteItem(item, false); });
    ClearSelection(true);
}

bool TVGRBaseLabel::DeletePoint(int index) {
    if (fSelection.empty() || !fSelection[0]->DeletePoint(index))
        return false;
    fSelection[0]->UpdateBounds();
    fInfo = TAct::Reset();
    FillSelPoints();
    ChangeValue(chSelect);
    return true;
}

void TVGRBaseLabel::CopySelection() {
    TBinaryWriter writer;
    writer.Write(std::int32_t(fSelection.size()));
    for (const TVGRBaseItem* item : fSelection)
        item->WriteData(writer);
    fMemCopy = writer.Take();
}

void TVGRBaseLabel::ReadClipboard(const std::function<void(std::int32_t version, TBinaryReader& reader)>& read) {
    if (fMemCopy.empty())
        return;
    const TFinally show{[this, count = fItems.size(), modified = fModified] {
        fModified = modified || fItems.size() > count; // the end of the bracket cleared it
        FillSelPoints();
        FillLinkList();
        ChangeValue(chSelect);
    }};
    ClearSelection(false);
    BeginRead(true);
    const TFinally end{[this] { EndRead(false); }};
    const std::string copy = fMemCopy; // a handler may fill it anew
    TBinaryReader reader(copy);
    const auto count = reader.Read<std::int32_t>();
    for (std::int32_t i = 0; i < count; ++i)
        read(CurrentVersion, reader);
}

} // namespace vagrel
