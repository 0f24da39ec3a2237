// SPDX-License-Identifier: MIT
// Work that other threads hand to the application's main thread.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace vagrel {

/// Closures that wait for the main thread, in the order in which they came. The application pumps the queue from its
/// event loop; `SetWakeUp` lets it hear of new work.
///
/// The main thread is the one that constructed the queue, until another one calls `Bind`.
class MainThreadQueue {
public:
    using TWork = std::function<void()>;

    bool IsMainThread() const;
    void Bind();
    /// False while the main thread pumps, and on every other thread: `Pump` would do nothing.
    bool CanPump() const;
    /// Called on the posting thread after each post.
    void SetWakeUp(TWork wakeUp);

    /// Leaves work to be done and goes on. Any thread; nothing happens on a closed queue.
    void Post(TWork work);
    /// Has work done and waits for it; what it throws is thrown here. Any thread; on the main thread it is done at
    /// once. Throws EInvalidOperation when the queue is closed, also while it waits for work that was not begun.
    void Synchronize(const TWork& work);

    /// Does what waits at the moment and answers how much that was. An exception of posted work comes out; what stands
    /// behind it waits for the next call. Only the event loop of the main thread pumps: inside of posted work and on
    /// any other thread nothing happens and the answer is 0.
    std::size_t Pump();
    /// The same after waiting for work, so long at most; where `Pump` would do nothing it does not wait.
    std::size_t WaitAndPump(std::chrono::milliseconds atMost);

    /// Drops what waits and refuses new work.
    void Close();
    void Open();

private:
    struct TCall;
    struct TEntry {
        TWork work;
        TCall* call; ///< who waits for it; null for a post
    };

    void Append(TEntry entry);
    bool IsFree() const { return !fPumping && std::this_thread::get_id() == fMain; }
    bool RunNext();

    mutable std::mutex fLock;
    std::condition_variable fChanged;
    std::deque<TEntry> fWaiting;
    std::thread::id fMain = std::this_thread::get_id();
    TWork fWakeUp;
    bool fPumping = false;
    bool fClosed = false;
};

/// The queue of the process. It belongs to the thread that asks for it first, which a document does when it is
/// constructed; a host that begins elsewhere calls `Bind` on its main thread.
MainThreadQueue& MainThread();

} // namespace vagrel
