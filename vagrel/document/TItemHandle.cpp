// SPDX-License-Identifier: MIT
// Handles share one receiver with the item and its commands.
#include <vagrel/document/TItemHandle.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRReceiver_p.h>

namespace vagrel {

TItemHandle::TItemHandle(TVGRBaseItem& item) : fReceiver(item.Receiver()) {}

TVGRBaseItem* TItemHandle::Get() const { return fReceiver ? fReceiver->item : nullptr; }

TItemWatch::TItemWatch(TVGRBaseItem& item, TTold told) : TItemHandle(item), fTold(std::move(told)) {
    fReceiver->watches.push_back(this);
}

TItemWatch::~TItemWatch() { std::erase(fReceiver->watches, this); }

void TVGRReceiver::TellWatches() {
    // One that is told may end others.
    const std::vector<TItemWatch*> told = watches;
    for (TItemWatch* watch : told)
        if (std::ranges::find(watches, watch) != watches.end() && watch->fTold)
            watch->fTold(item);
}

} // namespace vagrel
