// SPDX-License-Identifier: MIT
// One computation at a time; its report comes through the queue of the main thread.
#include <vagrel/editor/CrossingsWorker.h>

#include <vagrel/platform/MainThreadQueue.h>

#include <system_error>
#include <utility>

namespace vagrel {

CrossingsWorker::CrossingsWorker(std::function<std::vector<TFigure>()> figures) : fFigures(std::move(figures)) {
    MainThread(); // it belongs to the thread that comes first
}

void CrossingsWorker::Request() {
    if (!MainThread().IsMainThread())
        return;
    if (fThread) {
        fNeedsComput = fRemembers;
        return;
    }
    std::vector<TFigure> figures = fFigures();
    if (figures.size() < 2) {
        fIntersect->Clear();
        return;
    }
    try {
        fThread = std::make_unique<TIntersectThread>(fIntersect, std::move(figures), [this] { Finished(); });
    } catch (const std::system_error&) {
        // No thread to be had: the crossings wait for the next edit.
    }
}

void CrossingsWorker::Finished() {
    fThread.reset();
    if (std::exchange(fNeedsComput, false))
        Request();
}

void CrossingsWorker::Stop() {
    if (fThread)
        fThread->TerminateAndWait(std::chrono::seconds(3));
    fThread.reset();
    fNeedsComput = false;
}

void CrossingsWorker::Clear() {
    fThread.reset();
    fNeedsComput = false;
    fIntersect->Clear();
}

} // namespace vagrel
