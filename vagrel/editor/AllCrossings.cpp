// SPDX-License-Identifier: MIT
// Pairs come from the boxes of the figures; the exact test looks at those alone.
#include <vagrel/editor/AllCrossings.h>

#include <vagrel/foundation/BoxPairs.h>

#include <algorithm>

namespace vagrel {

namespace {

// By how much figures that touch may miss each other.
constexpr std::int64_t Reach = 1;

struct THit {
    std::uint64_t pair; // the two positions, the lower one above
    TKSLPto point;
};

} // namespace

bool AllCrossings(const std::vector<TFigure>& figures, const std::atomic<bool>& stop, std::vector<TIntSecPoint>& out) {
    std::vector<TKSLRect> boxes;
    boxes.reserve(figures.size());
    for (const TFigure& figure : figures)
        boxes.emplace_back(BoundsOf(figure.shape)).Inflate(Reach, Reach);

    std::vector<THit> hits;
    TKSLPtoA found;
    ForEachBoxPair(boxes, [&](std::uint32_t i, std::uint32_t j) {
        CrossShapes(figures[i].shape, figures[j].shape, found);
        for (const TKSLPto& point : found)
            hits.push_back({std::uint64_t(i) << 32 | j, point});
        return !stop.load(std::memory_order_relaxed);
    });
    if (stop)
        return false;
    // Stable: the crossings of one pair keep their order.
    std::ranges::stable_sort(hits, {}, &THit::pair);

    out.clear();
    out.reserve(hits.size());
    for (const THit& hit : hits)
        out.push_back({hit.point, figures[std::size_t(hit.pair >> 32)].id, figures[std::uint32_t(hit.pair)].id});
    return true;
}

} // namespace vagrel
