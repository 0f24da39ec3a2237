// SPDX-License-Identifier: MIT
// All crossings of a drawing, computed on copies of its geometry.
#pragma once

#include <vagrel/foundation/Crossings.h>

#include <atomic>
#include <vector>

namespace vagrel {

/// The line of one item, and its number.
struct TFigure {
    std::int32_t id = 0;
    TKSLShape shape;
};

/// Replaces `out` by the crossings of each figure with each later one, in rising pairs of positions. False, and `out`
/// of no use, when `stop` was set meanwhile.
bool AllCrossings(const std::vector<TFigure>& figures, const std::atomic<bool>& stop, std::vector<TIntSecPoint>& out);

} // namespace vagrel
