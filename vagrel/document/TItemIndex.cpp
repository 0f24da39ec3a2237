// SPDX-License-Identifier: MIT
// Look-ups of items and of preview copies without a walk.
#include <vagrel/document/TItemIndex_p.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <utility>

namespace vagrel::detail {

namespace {

std::size_t Hash(std::u16string_view id) {
    std::uint64_t hash = 0xCBF29CE484222325; // FNV-1a
    for (const char16_t unit : id)
        hash = (hash ^ ToLower(unit)) * 0x100000001B3;
    return std::size_t(hash);
}

template <class Map, class Key>
bool Erase(Map& map, const Key& key, const TVGRBaseItem& item) {
    const auto [first, last] = map.equal_range(key);
    const auto found = std::find_if(first, last, [&](const auto& entry) { return entry.second == &item; });
    if (found == last)
        return false;
    map.erase(found);
    return true;
}

// The only one of a range that is wanted; of several the first in the list, which takes a walk.
template <class Range, class Wanted>
TVGRBaseItem* FirstOf(const TItemIndex::TList& list, const Range& range, Wanted wanted) {
    TVGRBaseItem* only = nullptr;
    for (auto entry = range.first; entry != range.second; ++entry) {
        if (!wanted(*entry->second))
            continue;
        if (only)
            return std::ranges::find_if(list, [&](const auto& item) { return wanted(*item); })->get();
        only = entry->second;
    }
    return only;
}

std::uint64_t Cell(int row, int column) { return std::uint64_t(std::uint32_t(row)) << 32 | std::uint32_t(column); }

} // namespace

void TItemIndex::Appending(TVGRBaseItem& item) {
    if (fBuilt)
        fFresh.insert(&item);
}

void TItemIndex::Renaming(TVGRBaseItem& item) {
    // One that stands in no list is not known, and stays so.
    if (Forget(item))
        fFresh.insert(&item);
}

bool TItemIndex::Forget(TVGRBaseItem& item) {
    if (!fBuilt)
        return false;
    if (fFresh.erase(&item) > 0)
        return true;
    return Erase(fNumbers, item.GetInID(), item) && Erase(fIDs, Hash(item.GetID()), item);
}

void TItemIndex::Drop() {
    fBuilt = false;
    fFresh.clear();
    fNumbers.clear();
    fIDs.clear();
}

void TItemIndex::Add(TVGRBaseItem& item) {
    fNumbers.emplace(item.GetInID(), &item);
    fIDs.emplace(Hash(item.GetID()), &item);
}

void TItemIndex::Bring(const TList& list) {
    // What fails half way is built anew.
    if (std::exchange(fBuilt, false)) {
        for (TVGRBaseItem* item : fFresh)
            Add(*item);
        fFresh.clear();
    } else {
        Drop();
        fNumbers.reserve(list.size());
        fIDs.reserve(list.size());
        for (const auto& item : list)
            Add(*item);
    }
    fBuilt = true;
}

TVGRBaseItem* TItemIndex::First(const TList& list, std::int32_t number) {
    Bring(list);
    return FirstOf(list, fNumbers.equal_range(number),
                   [number](const TVGRBaseItem& item) { return item.GetInID() == number; });
}

TVGRBaseItem* TItemIndex::First(const TList& list, std::u16string_view id) {
    Bring(list);
    return FirstOf(list, fIDs.equal_range(Hash(id)),
                   [id](const TVGRBaseItem& item) { return SameText(item.GetID(), id); });
}

bool TItemIndex::Repeats(const TList& list, std::u16string_view id, const TVGRBaseItem* item) {
    Bring(list);
    const auto [first, last] = fIDs.equal_range(Hash(id));
    return std::any_of(first, last,
                       [&](const auto& entry) { return entry.second != item && SameText(entry.second->GetID(), id); });
}

const std::vector<TVGRBaseItem*>& TCellIndex::Of(const TItemIndex::TList& copies, int row, int column) {
    static const std::vector<TVGRBaseItem*> none;
    if (!fBuilt) {
        Drop();
        for (const auto& copy : copies)
            fCells[Cell(copy->GetRow(), copy->GetCol())].push_back(copy.get());
        fBuilt = true;
    }
    const auto found = fCells.find(Cell(row, column));
    return found == fCells.end() ? none : found->second;
}

void TCellIndex::Drop() {
    fBuilt = false;
    fCells.clear();
}

} // namespace vagrel::detail
