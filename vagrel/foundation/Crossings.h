// SPDX-License-Identifier: MIT
// Where two figures cross, on copies of their geometry: a worker may compute it while the items change.
#pragma once

#include <vagrel/foundation/Records.h>

#include <cstdint>
#include <vector>

namespace vagrel {

enum TShapeKind : std::uint8_t { skNone, skSegments, skCircle, skArc, skEllipse };

/// The line of a figure. Base units; radians, y downward.
struct TKSLShape {
    TShapeKind kind = skNone;
    /// Vertices of a chain of segments; `closed` joins the last to the first.
    TKSLPtoA points;
    bool closed = false;
    /// Centre and radii. Circles and arcs have the radius `rx`.
    std::int64_t cx = 0;
    std::int64_t cy = 0;
    std::int64_t rx = 0;
    std::int64_t ry = 0;
    /// An arc runs from start to end, in growing angles when clockwise.
    double angStart = 0;
    double angEnd = 0;
    bool clockwise = false;

    static TKSLShape Segments(TKSLPtoA vertices, bool isClosed);
    static TKSLShape Circle(std::int64_t x, std::int64_t y, std::int64_t radius);
    static TKSLShape Arc(std::int64_t x, std::int64_t y, std::int64_t radius, double start, double end,
                         bool isClockwise);
    static TKSLShape Ellipse(std::int64_t x, std::int64_t y, std::int64_t radiusX, std::int64_t radiusY);
};

/// Where two items cross, and their numbers.
struct TIntSecPoint {
    TKSLPto fPoint;
    std::int32_t fID1 = 0;
    std::int32_t fID2 = 0;

    friend bool operator==(const TIntSecPoint&, const TIntSecPoint&) = default;
};

/// The box of a figure; that of an arc is the box of its circle. All zero for a figure without points.
TKSLRect BoundsOf(const TKSLShape& shape);

/// Replaces `out` by the points that two figures have in common: crossings, touches, and ends of one on the other, each
/// once, rounded to base units.
///
/// Figures of which one is curved touch when they miss each other by up to 1 unit, and of their common points those
/// less than 2 units apart on both axes count once. Segments or arcs that lie on each other have no crossings; a figure
/// with a radius below 1 has none at all. A crossing of an ellipse with a circle, arc or ellipse is solved to less than
/// a base unit; only where the two lines all but coincide over a stretch (a contact of third order) may crossings less
/// than 1.5 degrees apart, seen from the centre, count once.
void CrossShapes(const TKSLShape& a, const TKSLShape& b, std::vector<TKSLPto>& out);

} // namespace vagrel
