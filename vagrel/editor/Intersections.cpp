// SPDX-License-Identifier: MIT
// The document's side of the intersection worker.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/editor/TIntersectThread.h>
#include <vagrel/platform/MainThreadQueue.h>

#include <system_error>

namespace vagrel {

namespace {

constexpr std::chrono::milliseconds Pause{10};
constexpr std::chrono::milliseconds Patience{3000};

} // namespace

void TVGRBaseLabel::CheckIntersetions() {
    if (fComputActive)
        return;
    std::vector<TFigure> figures;
    for (const auto& item : fItems)
        if (item->Shows({lopVisible}))
            if (TKSLShape shape = item->Shape(); shape.kind != skNone)
                figures.push_back({item->GetInID(), std::move(shape)});
    if (figures.size() < 2) {
        fIntersect->Clear();
        return;
    }
    try {
        fThread = std::make_unique<TIntersectThread>(fIntersect, std::move(figures), [this] { ThreadFinished(); });
    } catch (const std::system_error&) {
        return; // no thread to be had: the crossings wait for the next edit
    }
    fComputActive = true;
    fTerminando = false;
}

void TVGRBaseLabel::ThreadFinished() {
    if (!fTerminando)
        fComputActive = false;
    fThread.reset();
}

void TVGRBaseLabel::TerminarThread() {
    if (fThread) {
        fTerminando = true;
        fThread->Terminate();
        // The end of the worker is told through the queue, which nobody else pumps now.
        const auto deadline = std::chrono::steady_clock::now() + Patience;
        while (fThread && std::chrono::steady_clock::now() < deadline) {
            try {
                MainThread().WaitAndPump(Pause);
            } catch (...) {
                // Work of others that failed must not keep this document from its end.
            }
        }
        fThread.reset();
    }
    fComputActive = false;
}

void TVGRBaseLabel::EmptyIntersect() {
    // A computation under way works on items that go: its end is not waited for.
    fThread.reset();
    fComputActive = false;
    fIntersect->Clear();
}

void TVGRBaseLabel::RemoveElementFromIntersections(std::int32_t id) { fIntersect->Remove(id); }

std::vector<TIntSecPoint> TVGRBaseLabel::GetIntersections() const { return fIntersect->List(); }

} // namespace vagrel
