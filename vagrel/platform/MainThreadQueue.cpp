// SPDX-License-Identifier: MIT
// One lock and one condition serve the waiting work and those who wait for its end.
#include <vagrel/platform/MainThreadQueue.h>

#include <vagrel/foundation/Exceptions.h>

#include <exception>
#include <utility>

namespace vagrel {

// What a thread waits for. It lives on that thread's stack until it is done or dropped.
struct MainThreadQueue::TCall {
    bool done = false;
    bool dropped = false;
    std::exception_ptr error;
};

bool MainThreadQueue::IsMainThread() const {
    const std::scoped_lock guard(fLock);
    return std::this_thread::get_id() == fMain;
}

void MainThreadQueue::Bind() {
    const std::scoped_lock guard(fLock);
    fMain = std::this_thread::get_id();
}

bool MainThreadQueue::CanPump() const {
    const std::scoped_lock guard(fLock);
    return IsFree();
}

void MainThreadQueue::SetWakeUp(TWork wakeUp) {
    const std::scoped_lock guard(fLock);
    fWakeUp = std::move(wakeUp);
}

void MainThreadQueue::Append(TEntry entry) {
    TWork wakeUp;
    {
        const std::scoped_lock guard(fLock);
        if (fClosed) {
            if (entry.call)
                entry.call->dropped = true;
            return;
        }
        fWaiting.push_back(std::move(entry));
        wakeUp = fWakeUp;
    }
    fChanged.notify_all();
    if (wakeUp)
        wakeUp();
}

void MainThreadQueue::Post(TWork work) { Append({std::move(work), nullptr}); }

void MainThreadQueue::Synchronize(const TWork& work) {
    if (IsMainThread())
        return work();
    TCall call;
    Append({work, &call});
    std::unique_lock guard(fLock);
    fChanged.wait(guard, [&call] { return call.done || call.dropped; });
    if (call.dropped)
        throw EInvalidOperation(u"The main thread takes no more work");
    if (call.error)
        std::rethrow_exception(call.error);
}

bool MainThreadQueue::RunNext() {
    TEntry entry;
    {
        const std::scoped_lock guard(fLock);
        if (fWaiting.empty())
            return false;
        entry = std::move(fWaiting.front());
        fWaiting.pop_front();
    }
    if (!entry.call)
        return entry.work(), true;
    std::exception_ptr error;
    try {
        entry.work();
    } catch (...) {
        error = std::current_exception();
    }
    entry.work = nullptr; // before its caller goes on: it may hold references to what is his
    {
        const std::scoped_lock guard(fLock);
        entry.call->error = std::move(error);
        entry.call->done = true;
    }
    fChanged.notify_all();
    return true;
}

std::size_t MainThreadQueue::Pump() {
    // No more than what waits now: work that posts itself again must not keep the event loop.
    std::size_t count;
    {
        const std::scoped_lock guard(fLock);
        if (!IsFree())
            return 0;
        fPumping = true;
        count = fWaiting.size();
    }
    struct TEnd {
        MainThreadQueue& queue;
        ~TEnd() {
            const std::scoped_lock guard(queue.fLock);
            queue.fPumping = false;
        }
    } const end{*this};
    for (std::size_t done = 0; done < count; ++done)
        if (!RunNext())
            return done;
    return count;
}

std::size_t MainThreadQueue::WaitAndPump(std::chrono::milliseconds atMost) {
    {
        std::unique_lock guard(fLock);
        if (!IsFree())
            return 0;
        fChanged.wait_for(guard, atMost, [this] { return !fWaiting.empty(); });
    }
    return Pump();
}

void MainThreadQueue::Close() {
    std::deque<TEntry> dropped; // destroyed outside the lock
    {
        const std::scoped_lock guard(fLock);
        fClosed = true;
        dropped.swap(fWaiting);
        for (const TEntry& entry : dropped)
            if (entry.call)
                entry.call->dropped = true;
    }
    fChanged.notify_all();
}

void MainThreadQueue::Open() {
    const std::scoped_lock guard(fLock);
    fClosed = false;
}

MainThreadQueue& MainThread() {
    // Never destroyed: a thread that ends late may still post.
    static MainThreadQueue& queue = *new MainThreadQueue;
    return queue;
}

} // namespace vagrel
