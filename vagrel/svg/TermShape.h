// SPDX-License-Identifier: MIT
// The outlines of terminals, for whoever draws them.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <array>
#include <vector>

namespace vagrel {

/// A place in millimetres on paper.
struct TSpot {
    float x = 0;
    float y = 0;
};

/// One piece of a terminal, in millimetres on paper.
struct TTermPart {
    enum TKind : std::uint8_t { Line, Polygon, Circle, Square };

    TKind kind = Line;
    bool filled = false;
    /// The ends of a line, the vertices of a polygon, the centre of a circle, the top left corner of a square.
    std::array<TSpot, 4> spots{};
    int count = 0;
    /// The radius of a circle, the side of a square.
    float size = 0;
};

/// The pieces of a terminal at `tip`, in the order in which they are drawn; none for `ttNone`. The line arrives there
/// in `direction`, radians. Arrows take `size` as a whole number of millimetres and open by π ÷ `open` to either side.
std::vector<TTermPart> TermShape(TKSLTermType type, TSpot tip, double direction, float size, int open);

/// The wings of an arrow open by π ÷ 8 to either side.
inline constexpr int ArrowOpen = 8;

} // namespace vagrel
