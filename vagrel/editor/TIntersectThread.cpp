// SPDX-License-Identifier: MIT
// The worker shares nothing with its document but the list of crossings.
#include <vagrel/editor/TIntersectThread.h>

#include <vagrel/platform/MainThreadQueue.h>

#include <condition_variable>
#include <new>
#include <utility>

namespace vagrel {

void TIntersections::BeginRun() {
    const std::scoped_lock guard(fCriticalSection);
    DropRemoved();
    fRemoved.clear();
    fRunning = true;
}

void TIntersections::Publish(std::vector<TIntSecPoint>& fresh, const std::atomic<bool>& cancelled) {
    const std::scoped_lock guard(fCriticalSection);
    if (cancelled)
        return;
    fIntersect.swap(fresh);
    fRunning = false;
    fNeedsDrop = !fRemoved.empty();
}

void TIntersections::Remove(std::int32_t id) {
    const std::scoped_lock guard(fCriticalSection);
    if (fIntersect.empty() && !fRunning)
        return;
    fRemoved.insert(id);
    fNeedsDrop = true;
}

void TIntersections::Clear() {
    const std::scoped_lock guard(fCriticalSection);
    fIntersect.clear();
    fRemoved.clear();
    fRunning = fNeedsDrop = false;
}

std::vector<TIntSecPoint> TIntersections::List() {
    const std::scoped_lock guard(fCriticalSection);
    DropRemoved();
    return fIntersect;
}

bool TIntersections::IsRemoved(const TIntSecPoint& crossing) const {
    return fRemoved.contains(crossing.fID1) || fRemoved.contains(crossing.fID2);
}

void TIntersections::DropRemoved() {
    if (std::exchange(fNeedsDrop, false))
        std::erase_if(fIntersect, [this](const TIntSecPoint& crossing) { return IsRemoved(crossing); });
}

struct TIntersectThread::TRun {
    std::shared_ptr<TIntersections> target;
    std::vector<TFigure> figures;
    std::atomic<bool> terminated = false;
    std::mutex lock;
    std::condition_variable changed;
    std::function<void()> finished; ///< under the lock; empty when nobody waits for it any more
    bool ended = false;             ///< under the lock

    void Execute() {
        try {
            std::vector<TIntSecPoint> fresh;
            if (!terminated && AllCrossings(figures, terminated, fresh))
                target->Publish(fresh, terminated);
        } catch (const std::bad_alloc&) {
            // More crossings than memory: those that were published before stay.
        }
    }
    std::function<void()> TakeFinished() {
        const std::scoped_lock guard(lock);
        return std::exchange(finished, nullptr);
    }
};

TIntersectThread::TIntersectThread(std::shared_ptr<TIntersections> target, std::vector<TFigure> figures,
                                   std::function<void()> finished)
    : fRun(std::make_shared<TRun>()) {
    fRun->target = std::move(target);
    fRun->figures = std::move(figures);
    fRun->finished = std::move(finished);
    fRun->target->BeginRun();
    fThread = std::thread([run = fRun] {
        run->Execute();
        MainThread().Post([run] {
            if (const auto tell = run->TakeFinished())
                tell();
        });
        {
            const std::scoped_lock guard(run->lock);
            run->ended = true;
        }
        run->changed.notify_all();
    });
}

TIntersectThread::~TIntersectThread() {
    fRun->TakeFinished();
    Terminate();
    fThread.detach();
}

bool TIntersectThread::IsRunning() const {
    const std::scoped_lock guard(fRun->lock);
    return !fRun->terminated && !fRun->ended;
}

void TIntersectThread::Terminate() { fRun->terminated = true; }

void TIntersectThread::TerminateAndWait(std::chrono::milliseconds atMost) {
    Terminate();
    std::unique_lock guard(fRun->lock);
    fRun->changed.wait_for(guard, atMost, [this] { return fRun->ended; });
}

} // namespace vagrel
