// SPDX-License-Identifier: MIT
// The worker that computes the crossings of a document, and the list that it fills.
#pragma once

#include <vagrel/editor/AllCrossings.h>
#include <vagrel/foundation/Snapping.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <unordered_set>

namespace vagrel {

/// The crossings of a document as they were published last. Any thread: each operation takes the lock.
class TIntersections {
public:
    /// A computation takes its copies now: what was removed before is not in them.
    void BeginRun();
    /// `fresh` takes the place of the list, without the crossings of items that were removed since `BeginRun`; it is
    /// left with the old one. Nothing when `cancelled` is set.
    void Publish(std::vector<TIntSecPoint>& fresh, const std::atomic<bool>& cancelled);
    /// Takes out what belongs to an item.
    void Remove(std::int32_t id);
    /// Forgets the run too.
    void Clear();
    std::vector<TIntSecPoint> List();
    /// The last crossing within `gap` of a place that satisfies `wanted`; none without one.
    template <class Wanted>
    std::optional<TKSLPto> FindLast(TKSLPto place, std::int64_t gap, Wanted wanted) {
        const std::scoped_lock guard(fCriticalSection);
        DropRemoved();
        for (auto crossing = fIntersect.rbegin(); crossing != fIntersect.rend(); ++crossing)
            if (IsNear(place, crossing->fPoint, gap) && wanted(*crossing))
                return crossing->fPoint;
        return {};
    }

private:
    bool IsRemoved(const TIntSecPoint& crossing) const;
    void DropRemoved();

    std::mutex fCriticalSection;
    std::vector<TIntSecPoint> fIntersect;
    bool fRunning = false;
    // Items are deleted many at a time: their crossings leave the list together, when it is read next.
    std::unordered_set<std::int32_t> fRemoved;
    bool fNeedsDrop = false;
};

/// One computation on a thread of its own, which may outlive this object: it owns what it works on.
class TIntersectThread {
public:
    /// Starts. `finished` runs on the main thread at the end, when this object still stands then.
    TIntersectThread(std::shared_ptr<TIntersections> target, std::vector<TFigure> figures,
                     std::function<void()> finished);
    TIntersectThread(const TIntersectThread&) = delete;
    TIntersectThread& operator=(const TIntersectThread&) = delete;
    /// Terminates it and does not wait.
    ~TIntersectThread();

    /// True until it was terminated or has finished.
    bool IsRunning() const;
    /// Asks it to end: nothing will be published.
    void Terminate();
    /// The same, and waits until nothing of it runs any more, so long at most.
    void TerminateAndWait(std::chrono::milliseconds atMost);

private:
    struct TRun;

    std::shared_ptr<TRun> fRun;
    std::thread fThread;
};

} // namespace vagrel
