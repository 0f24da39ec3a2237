// SPDX-License-Identifier: MIT
// What spares the document a walk over all items or preview copies. Both indexes are built by the first search.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vagrel {

class TVGRBaseItem;

namespace detail {

/// Finds the items of a list by number and by identifier, without regard to case.
class TItemIndex {
public:
    using TList = std::vector<std::unique_ptr<TVGRBaseItem>>;

    // What becomes of an item is told before it happens.

    void Appending(TVGRBaseItem& item);
    void Renaming(TVGRBaseItem& item);
    void Leaving(TVGRBaseItem& item) { Forget(item); }
    /// Whatever else happens to the list or to what its items are called. Its order is of no interest.
    void Drop();

    /// The first one in the list; null for none.
    TVGRBaseItem* First(const TList& list, std::int32_t number);
    TVGRBaseItem* First(const TList& list, std::u16string_view id);
    /// Whether another item than `item` has the identifier.
    bool Repeats(const TList& list, std::u16string_view id, const TVGRBaseItem* item);

private:
    void Bring(const TList& list);
    void Add(TVGRBaseItem& item);
    bool Forget(TVGRBaseItem& item);

    bool fBuilt = false;
    std::unordered_set<TVGRBaseItem*> fFresh; ///< wait for the next search: a new item is renamed while it is read
    std::unordered_multimap<std::int32_t, TVGRBaseItem*> fNumbers;
    std::unordered_multimap<std::size_t, TVGRBaseItem*> fIDs; ///< by the hash of the folded identifier
};

/// The preview copies of each sheet cell.
class TCellIndex {
public:
    const std::vector<TVGRBaseItem*>& Of(const TItemIndex::TList& copies, int row, int column);
    void Drop();

private:
    bool fBuilt = false;
    std::unordered_map<std::uint64_t, std::vector<TVGRBaseItem*>> fCells;
};

} // namespace detail
} // namespace vagrel
