// SPDX-License-Identifier: MIT
// The arithmetic of snapping: when a cursor is near a point, and which point of a curve it means.
#pragma once

#include <vagrel/foundation/Crossings.h>

#include <optional>

namespace vagrel {

/// Whether a cursor lies in the square of `gap` on each side of a point, edges included.
bool IsNear(TKSLPto cursor, TKSLPto point, std::int64_t gap);

/// Halfway from `a` to `b`, in whole units; a half unit is lost on the side of `a`.
TKSLPto Middle(TKSLPto a, TKSLPto b);

/// The point of a circle or arc that a cursor within `gap` of its outline snaps to: where a line from the point
/// `last` touches it or, without one, the outline towards the cursor. None where the outline has no such point.
std::optional<TKSLPto> TangentPoint(const TKSLShape& outline, TKSLPto cursor, std::int64_t gap,
                                    std::optional<TKSLPto> last);

} // namespace vagrel
