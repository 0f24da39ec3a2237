// SPDX-License-Identifier: MIT
// Which of many boxes meet.
#pragma once

#include <vagrel/foundation/TKSLRect.h>

#include <functional>
#include <span>

namespace vagrel {

/// Calls `use` once for each pair of positions, the lower one first, whose boxes have a point in common, edges
/// included. The pairs come in no particular order; a false answer ends the search. Boxes are normalised.
void ForEachBoxPair(std::span<const TKSLRect> boxes, const std::function<bool(std::uint32_t, std::uint32_t)>& use);

} // namespace vagrel
