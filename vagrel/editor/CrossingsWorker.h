// SPDX-License-Identifier: MIT
// The computations of a document's crossings: when one runs, and what becomes of requests meanwhile.
#pragma once

#include <vagrel/editor/TIntersectThread.h>

namespace vagrel {

class TVGRBaseLabel;

/// Copies of the visible items that can cross others, from the lowest one up.
std::vector<TFigure> FiguresOf(const TVGRBaseLabel& label);

/// The published crossings and the one computation that may be under way. Belongs to the main thread, whose queue
/// brings the reports of the computations.
class CrossingsWorker {
public:
    /// `figures` gives copies of what may cross; it is asked at the start of each computation.
    explicit CrossingsWorker(std::function<std::vector<TFigure>()> figures);
    CrossingsWorker(const CrossingsWorker&) = delete;
    CrossingsWorker& operator=(const CrossingsWorker&) = delete;
    ~CrossingsWorker() { Stop(); }

    /// Starts a computation. While one runs the request is dropped, or with `Remembers` made when that has reported.
    /// Nothing outside of the main thread, which alone hears of the end.
    void Request();
    /// True from the start of a computation until its end was reported.
    bool IsActive() const { return fThread != nullptr; }
    bool Remembers() const { return fRemembers; }
    void SetRemembers(bool value) { fRemembers = value; }
    /// Ends the computation and waits for it, three seconds at most. Nobody's work is done meanwhile.
    void Stop();
    /// Gives the computation up without waiting and forgets the crossings.
    void Clear();
    TIntersections& Published() const { return *fIntersect; }

private:
    void Finished();

    std::function<std::vector<TFigure>()> fFigures;
    std::shared_ptr<TIntersections> fIntersect = std::make_shared<TIntersections>();
    std::unique_ptr<TIntersectThread> fThread;
    bool fRemembers = false;
    bool fNeedsComput = false; ///< a request that is remembered
};

} // namespace vagrel
