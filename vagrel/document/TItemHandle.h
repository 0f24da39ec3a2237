// SPDX-License-Identifier: MIT
// Weak references to items: null when the item dies, the new one when undo makes it anew.
#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace vagrel {

class TVGRBaseItem;
struct TVGRReceiver;

/// A weak reference to an item of a document. It may outlive the item and the document. Main thread.
class TItemHandle {
public:
    TItemHandle() = default;
    explicit TItemHandle(TVGRBaseItem& item);

    /// Null while there is no such item.
    TVGRBaseItem* Get() const;
    explicit operator bool() const { return Get() != nullptr; }
    TVGRBaseItem& operator*() const { return *Get(); }
    TVGRBaseItem* operator->() const { return Get(); }
    /// Whether both stand for the same item, one that lives or one that may come back.
    friend bool operator==(const TItemHandle&, const TItemHandle&) = default;

protected:
    std::shared_ptr<TVGRReceiver> fReceiver;
};

/// A handle that is told when its item dies and when it is back.
class TItemWatch : public TItemHandle {
public:
    /// Takes null when the item dies, after it left the lists of its document, and the item that undo made anew. Must
    /// not throw.
    using TTold = std::function<void(TVGRBaseItem* item)>;

    TItemWatch(TVGRBaseItem& item, TTold told);
    TItemWatch(const TItemWatch&) = delete;
    TItemWatch& operator=(const TItemWatch&) = delete;
    ~TItemWatch();

private:
    friend struct TVGRReceiver;
    TTold fTold;
};

/// Calls `action` for each item of a list as it stands now, if the item is alive when its turn comes: the action may
/// run code of the host, which adds and deletes.
template <class Items, class Action>
void ForEachLiving(const Items& items, Action action) {
    std::vector<TItemHandle> handles;
    handles.reserve(items.size());
    for (const auto& item : items)
        handles.emplace_back(*item);
    for (const TItemHandle& handle : handles)
        if (TVGRBaseItem* item = handle.Get())
            action(*item);
}

} // namespace vagrel
