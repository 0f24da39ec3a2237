// SPDX-License-Identifier: MIT
// The straight segment of an item that lies nearest to a place.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Rounding.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vagrel {

namespace {

double DistanceToSegment(TKSLPto place, TKSLPto from, TKSLPto to) {
    const double dx = Difference(to.bX, from.bX), dy = Difference(to.bY, from.bY);
    const double px = Difference(place.bX, from.bX), py = Difference(place.bY, from.bY);
    const double square = dx * dx + dy * dy;
    const double along = square > 0 ? std::clamp((px * dx + py * dy) / square, 0.0, 1.0) : 0;
    return std::hypot(px - along * dx, py - along * dy);
}

} // namespace

bool TVGRBaseLabel::GetItemLineSegmentIndex(const TVGRBaseItem& item, std::int64_t bx, std::int64_t by, int& index,
                                            TKSLRefLine& segment) const {
    const TItemTypeRow& row = item.TypeRow();
    if (row.line == 0 && !row.traits.Has(trChain))
        return false;
    const TKSLChain chain = item.Chain();
    double nearest = std::numeric_limits<double>::infinity();
    auto take = [&](int number, TKSLPto from, TKSLPto to) {
        const double distance = DistanceToSegment({bx, by}, from, to);
        if (distance >= nearest)
            return;
        nearest = distance;
        index = number;
        segment = {from.bX, from.bY, to.bX, to.bY};
    };
    for (int i = chain.first; i >= 1 && i < chain.last; ++i)
        take(i - chain.first + 1, item.GetPoint(i), item.GetPoint(i + 1));
    if (chain.closed && chain.last - chain.first > 1)
        take(chain.last - chain.first + 1, item.GetPoint(chain.last), item.GetPoint(chain.first));
    return nearest < std::numeric_limits<double>::infinity();
}

bool TVGRBaseLabel::GetItemLineSegment(const TVGRBaseItem& item, std::int64_t bx, std::int64_t by,
                                       TKSLRefLine& segment) const {
    int index = 0;
    return GetItemLineSegmentIndex(item, bx, by, index, segment);
}

} // namespace vagrel
