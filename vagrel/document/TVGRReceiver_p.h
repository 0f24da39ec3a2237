// SPDX-License-Identifier: MIT
// An item as its commands and handles know it.
#pragma once

#include <vector>

namespace vagrel {

class TItemWatch;
class TVGRBaseItem;

/// Shared by an item, its commands and its handles. It outlives the item, and an item that is made anew takes its place
/// here: thus all of them follow at once.
struct TVGRReceiver {
    TVGRBaseItem* item = nullptr; ///< null while there is none
    std::vector<TItemWatch*> watches;

    /// Stores the item and tells the watches.
    void SetItem(TVGRBaseItem* value) { item = value, TellWatches(); }
    void TellWatches();
};

} // namespace vagrel
