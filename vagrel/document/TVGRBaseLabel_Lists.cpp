// SPDX-License-Identifier: MIT
// What a document owns: accessors, adoption, layers.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/Owned_p.h>
#include <vagrel/document/TItemIndex_p.h>
#include <vagrel/document/TStateLog_p.h>
#include <vagrel/document/TUndoStacks_p.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/items/lines/TVGRDimStyle.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/symbols/TVGRBaseLibSymbol.h>

#include <algorithm>

namespace vagrel {

namespace {

// The pointer at a one-based index; null outside.
template <class List>
auto* At(const List& list, int index) {
    return index >= 1 && std::size_t(index) <= list.size() ? &*list[std::size_t(index - 1)] : nullptr;
}

// Lets go of an object that destroys itself; searched from the end, where a failed construction left it.
template <class T>
bool Release(std::vector<std::unique_ptr<T>>& list, const T& object) {
    const auto found =
        std::find_if(list.rbegin(), list.rend(), [&](const auto& owned) { return owned.get() == &object; });
    if (found == list.rend())
        return false;
    found->release();
    list.erase(std::next(found).base());
    return true;
}

template <class List, class T>
int IndexOf(const List& list, const T& object) {
    const auto found = std::ranges::find_if(list, [&](const auto& owned) { return owned.get() == &object; });
    return found == list.end() ? -1 : int(found - list.begin());
}

} // namespace

TVGRBaseItem* TVGRBaseLabel::GetItem(int index) const { return At(fItems, index); }
TVGRDimStyle* TVGRBaseLabel::GetDimStyle(int index) const { return At(fDimStyles, index); }
TVGRCounter* TVGRBaseLabel::GetCounter(int index) const { return At(fCounters, index); }
TVGRBaseLibSymbol* TVGRBaseLabel::GetSymbol(int index) const { return At(fSymbols, index); }
TVGRBaseItem* TVGRBaseLabel::GetSelection(int index) const { return At(fSelection, index); }

TVGRLayer& TVGRBaseLabel::GetLayer(int index) const {
    TVGRLayer* layer = At(fLayers, index);
    return layer ? *layer : *fLayers.front();
}

int TVGRBaseLabel::LayerIdx(const TVGRLayer& layer) const { return IndexOf(fLayers, layer); }

TVGRLayer& TVGRBaseLabel::ActiveLayer() const { return GetLayer(fActiveLayer + 1); }

TVGRDimStyle& TVGRBaseLabel::GetActiveDimStyle() const {
    TVGRDimStyle* style = GetDimStyle(fActiveDimStyle + 1);
    return style ? *style : *fDimStyles.front();
}

std::vector<std::u16string> TVGRBaseLabel::GetLayersNames() const {
    std::vector<std::u16string> names;
    for (const auto& layer : fLayers)
        names.push_back(layer->GetName());
    return names;
}

bool TVGRBaseLabel::IsInSelection(std::int32_t id) const {
    return std::ranges::any_of(fSelection, [id](const TVGRBaseItem* item) { return item->GetInID() == id; });
}

bool TVGRBaseLabel::Selected(const TVGRBaseItem& item) const {
    return std::ranges::find(fSelection, &item) != fSelection.end();
}

void TVGRBaseLabel::CheckFit(TKSLExtent& extent) const {
    for (const auto& item : fItems)
        if (item->Shows({lopVisible, lopExport}))
            item->CheckFit(extent);
    extent.minX = std::max<std::int64_t>(extent.minX, 0);
    extent.minY = std::max<std::int64_t>(extent.minY, 0);
}

void TVGRBaseLabel::Adopt(TVGRBaseItem& item) {
    if (item.FromPreview()) {
        fCells->Drop();
        fPreview.emplace_back(&item);
        return;
    }
    fIndex->Appending(item);
    if (!fLogs.empty())
        fLogs.back()->items.Appending(fItems, item);
    fItems.emplace_back(&item);
    fModified = true;
}

void TVGRBaseLabel::Renaming(TVGRBaseItem& item) { fIndex->Renaming(item); }
void TVGRBaseLabel::Placing() { fCells->Drop(); }

std::vector<TVGRBaseItem*> TVGRBaseLabel::PreviewOf(int row, int column) const {
    return fCells->Of(fPreview, row, column);
}

void TVGRBaseLabel::Forget(TVGRBaseItem& item) {
    // One that was parked has left all lists before.
    if (item.fReceiver && !item.fReceiver->item)
        return;
    if (!item.FromPreview())
        ItemsReordering();
    ForgetCommands(item);
    Release(item.FromPreview() ? fPreview : fItems, item);
    Unlist(item);
}

void TVGRBaseLabel::Unlist(TVGRBaseItem& item) {
    item.SetState(isNormal);
    item.FromPreview() ? fCells->Drop() : fIndex->Leaving(item);
    std::erase(fSelection, &item);
    std::erase(fLinks, &item);
    if (item.fAwaitsCalc) {
        const auto at = std::ranges::find(fCalcs, &item);
        fCalcAt -= std::size_t(at - fCalcs.begin()) < fCalcAt;
        fCalcs.erase(at);
        item.fAwaitsCalc = false;
    }
    std::erase_if(fSelPoint, [&](const TKSSelectionValue& handle) { return handle.Item == &item; });
    // Preview copies have the number of the item that they show.
    if (!item.FromPreview())
        RemoveElementFromIntersections(item.GetInID());
}

void TVGRBaseLabel::FreeItem(TVGRBaseItem& item) {
    if (item.FromPreview())
        return;
    if (fLogs.empty())
        delete &item; // takes itself out
    else
        ParkItem(item);
}

// In a transaction an item that goes may come back: it leaves all lists and lives on.
void TVGRBaseLabel::ParkItem(TVGRBaseItem& item) {
    ItemsReordering();
    fLogs.back()->items.Touch(item);
    const auto at =
        std::find_if(fItems.rbegin(), fItems.rend(), [&](const auto& owned) { return owned.get() == &item; });
    if (at == fItems.rend())
        return;
    std::unique_ptr<TVGRBaseItem> taken = std::move(*at);
    fItems.erase(std::next(at).base());
    Unlist(item);
    item.Receiver()->SetItem(nullptr);
    fLogs.back()->items.Park(std::move(taken));
}

void TVGRBaseLabel::FreeItems(TOwned<TVGRBaseItem>& items) {
    if (&items == &fItems && !fLogs.empty()) {
        while (!items.empty())
            ParkItem(*items.back());
        return;
    }
    fIndex->Drop();
    fCells->Drop();
    // Out of the list first: each one that dies looks for itself there.
    const TOwned<TVGRBaseItem> dying = std::move(items);
    items.clear();
}

void TVGRBaseLabel::ItemsReordering() {
    if (!fLogs.empty())
        fLogs.back()->items.Reordering(fItems);
}

namespace {

template <class T>
auto& LogOf(detail::TStateLog& log) {
    if constexpr (std::is_same_v<T, TVGRLayer>)
        return log.layers;
    else if constexpr (std::is_same_v<T, TVGRDimStyle>)
        return log.styles;
    else
        return log.counters;
}

} // namespace

template <class T>
void TVGRBaseLabel::TakeOutPart(TOwned<T>& list, std::size_t index) {
    if (!fLogs.empty())
        LogOf<T>(*fLogs.back()).Reordering(list);
    std::unique_ptr<T> taken = detail::TakeOut(list, index);
    if (!fLogs.empty())
        LogOf<T>(*fLogs.back()).Park(std::move(taken));
    else
        fStacks->Retire(std::shared_ptr<T>(std::move(taken)));
}
template void TVGRBaseLabel::TakeOutPart(TOwned<TVGRLayer>&, std::size_t);
template void TVGRBaseLabel::TakeOutPart(TOwned<TVGRDimStyle>&, std::size_t);
template void TVGRBaseLabel::TakeOutPart(TOwned<TVGRCounter>&, std::size_t);

template <class T>
void TVGRBaseLabel::ShrinkParts(TOwned<T>& list, std::size_t count) {
    while (list.size() > count)
        TakeOutPart(list, list.size() - 1);
}
template void TVGRBaseLabel::ShrinkParts(TOwned<TVGRDimStyle>&, std::size_t);
template void TVGRBaseLabel::ShrinkParts(TOwned<TVGRCounter>&, std::size_t);

void TVGRBaseLabel::Adopt(TVGRLayer& layer) {
    if (!fLogs.empty())
        fLogs.back()->layers.Appending(fLayers, layer);
    fLayers.emplace_back(&layer);
}
void TVGRBaseLabel::Forget(TVGRLayer& layer) { Release(fLayers, layer); }
void TVGRBaseLabel::Adopt(TVGRDimStyle& style) {
    if (!fLogs.empty())
        fLogs.back()->styles.Appending(fDimStyles, style);
    fDimStyles.emplace_back(&style);
}
void TVGRBaseLabel::Forget(TVGRDimStyle& style) { Release(fDimStyles, style); }
void TVGRBaseLabel::Adopt(TVGRCounter& counter) {
    if (!fLogs.empty())
        fLogs.back()->counters.Appending(fCounters, counter);
    fCounters.emplace_back(&counter);
}
void TVGRBaseLabel::Forget(TVGRCounter& counter) { Release(fCounters, counter); }

bool TVGRBaseLabel::SetActiveLayer(int index) {
    if (!At(fLayers, index) || index - 1 == fActiveLayer)
        return false;
    fActiveLayer = index - 1;
    return true;
}

bool TVGRBaseLabel::SetActiveDimStyle(int index) {
    if (!At(fDimStyles, index) || index - 1 == fActiveDimStyle)
        return false;
    fActiveDimStyle = index - 1;
    return true;
}

TVGRLayer& TVGRBaseLabel::AddLayer() {
    return *new TVGRLayer(*this, TVGRMsg::GetInfoValue(u"NewLayer"), OpaqueBlack, OpaqueWhite);
}

void TVGRBaseLabel::FreeLayer(std::size_t position) {
    const TVGRLayer& layer = *fLayers[position];
    if (fLayers.size() > 1) {
        TVGRLayer& heir = *fLayers[position == 0 ? 1 : 0];
        for (const auto& items : {&fItems, &fPreview})
            for (const auto& item : *items)
                if (&item->GetLayer() == &layer)
                    item->StoreLayer(heir);
    }
    if (fActiveLayer == std::int32_t(position))
        fActiveLayer = 0;
    else if (fActiveLayer > std::int32_t(position))
        --fActiveLayer;
    TakeOutPart(fLayers, position);
}

bool TVGRBaseLabel::DeleteLayer(int index) {
    if (index < 2 || index > LayersCount())
        return false;
    FreeLayer(std::size_t(index - 1));
    SortItemsZLayer();
    CheckBackLayer();
    fModified = true;
    return true;
}

bool TVGRBaseLabel::ExchangeLayers(int index1, int index2) {
    auto movable = [this](int index) { return index >= 2 && index <= LayersCount(); };
    if (!movable(index1) || !movable(index2))
        return false;
    if (!fLogs.empty())
        fLogs.back()->layers.Reordering(fLayers);
    std::swap(fLayers[std::size_t(index1 - 1)], fLayers[std::size_t(index2 - 1)]);
    SortItemsZLayer();
    CheckBackLayer();
    return true;
}

void TVGRBaseLabel::SetLayerZOrder(bool value) {
    if (value == fLayerZOrder)
        return;
    fLayerZOrder = value;
    SortItemsZLayer();
}

void TVGRBaseLabel::SortItemsZLayer() {
    if (!fLayerZOrder || fLayers.size() < 2)
        return;
    ItemsReordering();
    std::ranges::stable_sort(fItems, {}, [this](const auto& item) { return LayerIdx(item->GetLayer()); });
}

void TVGRBaseLabel::CheckBackLayer() {
    fIdxBack = -1;
    for (int i = LayersCount(); i >= 1; --i) {
        const TKSLayerOpts options = GetLayer(i).GetOptions();
        if (options.Has(lopVisible) && options.HasAny({lopImage, lopMap})) {
            fIdxBack = i;
            fNeedReadImg = true;
            return;
        }
    }
}

bool TVGRBaseLabel::HasBackMargins() const { return fIdxBack >= 1 && GetLayer(fIdxBack).HasImgMargins(); }

} // namespace vagrel
