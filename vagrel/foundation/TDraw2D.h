// SPDX-License-Identifier: MIT
// Plane geometry on base coordinates: vectors, circles and arcs, arrowheads, offsets, crossings, extending, transforms.
#pragma once

#include <vagrel/foundation/Records.h>

#include <array>
#include <cstdint>
#include <span>

namespace vagrel {

/// A rectangle of single precision.
struct TRectF {
    float Left = 0;
    float Top = 0;
    float Right = 0;
    float Bottom = 0;
    friend bool operator==(const TRectF&, const TRectF&) = default;
};

/// The four corners of the box around a slot.
using TSlotPolygon = std::array<TPoint2D, 4>;

/// Geometry without state. Coordinates are base units, y downward, so a growing angle turns clockwise on screen. Angles
/// are radians, sizes and gaps base units. Fractional results are rounded to nearest, ties to even, and saturate.
/// Differences of coordinates are exact up to 63 bits and saturate beyond. Nothing throws; where nothing else is said,
/// a false answer or a count of 0 leaves the outputs as they were.
struct TDraw2D {
    using Base = std::int64_t;

    // Vectors

    /// (x2 − x1)(y3 − y1) − (y2 − y1)(x3 − x1): above 0 when 1, 2, 3 turn clockwise on screen. The sign is exact.
    static double CrossProduct(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3);
    /// x1·x2 + y1·y2, saturating.
    static Base DotProduct(Base x1, Base y1, Base x2, Base y2);
    static double Magnitude(double x, double y);
    /// The square root, truncated; 0 for a negative value.
    static Base Int64Sqrt(Base aValue);
    /// (Y1 − Y2, X2 − X1): the vector from point 1 to point 2, a quarter-turn on.
    static TKSLPto64 VectorPerpendicular(Base X1, Base Y1, Base X2, Base Y2);
    static TKSLSPoint VectorPerpendicular(float X1, float Y1, float X2, float Y2);
    /// The sign tells the side of the line on which (PX, PY) lies: above 0 towards `VectorPerpendicular`, 0 on it.
    static Base PointSide(Base X1, Base Y1, Base X2, Base Y2, Base PX, Base PY);
    /// Exact for points that share an axis, otherwise rounded.
    static Base Distance(Base x1, Base y1, Base x2, Base y2);
    /// To the infinite line: |cross product| ÷ whole length, truncated; 0 for a line without length.
    static Base DistancePointToLine(Base pX, Base pY, Base ax1, Base ay1, Base ax2, Base ay2);
    /// The angle at (ax1, ay1) between line and point, in degrees, 0 to 180; 0 when either has no length.
    static double AnglePointToLine(Base pX, Base pY, Base ax1, Base ay1, Base ax2, Base ay2);

    // Angles

    /// `a` unchanged within 0 to 2π, both ends included, else reduced into that range.
    static double NormalizeAngle(double a);
    /// The angle between two directions that lie less than a turn apart: 0 to π.
    static double AngleDiff(double a, double b);
    /// aEnd − aStart, plus 2π when negative.
    static double SweepCCW(double aStart, double aEnd);
    /// The size of the arc from start to end, in growing angles with the flag and in falling ones without.
    static double ArcSweep(double aStartAng, double aEndAng, bool aClockWise);
    /// How far along the arc the direction `ang` lies, as `ArcSweep` from the start.
    static double ArcParam(double startAng, double endAng, bool aClockWise, double ang);
    /// Whether a direction lies on the arc. The ends belong to it only when the arc, read with the smaller angle first,
    /// runs clockwise.
    static bool ArcContainsAngle(double angStart, double angEnd, double angFind, bool ClockWise);
    /// Whether a direction lies on the arc of growing angles from initial to final, ends included; any range of angles.
    static bool IsAngleWithinArc(double angle, double initialAngle, double finalAngle);

    // Circles and arcs

    /// The circle whose diameter is the segment. Always true.
    static bool CircleTwoPoints(Base x1, Base y1, Base x2, Base y2, Base& cx, Base& cy, Base& r);
    /// The same with a centre of single precision; the radius is a whole number.
    static bool CircleTwoPoints(double x1, double y1, double x2, double y2, float& cx, float& cy, float& r);
    /// The circle through three points; false for points on one line.
    static bool CircleThreePoints(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base& cx, Base& cy, Base& r);
    /// The arc from point 1 through 2 to 3; false for points on one line. Start and end are directions in 0 to 2π, the
    /// sweep is positive when clockwise and negative otherwise.
    static bool ArcThreePoints(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base& cx, Base& cy, Base& r,
                               double& angStart, double& angEnd, double& angSweep, bool& ClockWise);
    static bool PointInCircle(Base cx, Base cy, Base r, Base posX, Base posY, Base gap);
    static bool PointOnCircle(Base cx, Base cy, Base r, Base posX, Base posY, Base gap);
    /// (dx ÷ rx)² + (dy ÷ ry)² ≤ 1; false for a radius below 1.
    static bool PointInEllipse(Base cx, Base cy, Base rx, Base ry, Base posX, Base posY);
    /// On the band of width `gap` around the line: the outer edge belongs to it, the inner does not.
    static bool PointOnEllipse(Base cx, Base cy, Base rx, Base ry, Base posX, Base posY, Base gap);
    /// On an arc with a sweep that runs negative: start ≥ direction ≥ start + sweep, with the direction in 0 to 2π.
    static bool PointInArc(Base cx, Base cy, Base r, Base posX, Base posY, Base aGap, double dgAngStart,
                           double dgAngSweep);
    /// Strictly nearer than `gap` to one of 101 samples of the cubic.
    static bool PointInBezier(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base x, Base y,
                              Base gap);

    // Points at lines

    /// Within `gap` of the segment; of its point when it has no length.
    static bool PointInLine(Base x1, Base y1, Base x2, Base y2, Base posX, Base posY, Base gap);
    /// Inside the segment's box and at most `aTol` from its line.
    static bool PointOnSegment(Base aX, Base aY, Base aSX, Base aSY, Base aEX, Base aEY, double aTol);
    /// Strictly within `gap` on both axes.
    static bool CursorOnPos(Base x1, Base y1, Base posX, Base posY, Base gap);
    /// The same for fractional positions; mind the order.
    static bool CursorOnPosS(double x1, double y1, double gap, double posX, double posY);
    /// Whether the point lies above the line on screen; for a vertical line, to its right.
    static bool PosPoint(Base x1, Base y1, Base x2, Base y2, Base px, Base py);

    // Arrowheads, markers and parallels. The wings open by π ÷ S to each side, not at all for S = 0. The answer is
    // `arrowSize` above 0; the points are set in any case.

    /// The wings of a head at (x2, y2) that comes from (x1, y1).
    static bool DrawArrow(Base x1, Base y1, Base x2, Base y2, Base arrowSize, Base& x1p, Base& y1p, Base& x2p,
                          Base& y2p, double S);
    /// The wings of a head at (x1, y1): `ag0` points right, `ag90` up, `ag180` left, `ag270` down.
    static bool DrawArrow(Base x1, Base y1, Base arrowSize, TKSLAngle angle, Base& x1p, Base& y1p, Base& x2p, Base& y2p,
                          double S);
    /// The same for a direction in radians.
    static bool DrawArrow(float x1, float y1, double angle, float arrowSize, float& x1p, float& y1p, float& x2p,
                          float& y2p, double S);
    /// A head at the end (px, py) of an arc, along its tangent. Always true.
    static bool DrawArrowArc(Base cx, Base cy, Base px, Base py, Base arrowSize, Base& x1p, Base& y1p, Base& x2p,
                             Base& y2p, bool clockWise, double S);
    /// A slash through (x2, y2), 45° clockwise of the line, `arrowSize` to each side.
    static bool DrawLeft(Base x1, Base y1, Base x2, Base y2, Base arrowSize, Base& x1p, Base& y1p, Base& x2p,
                         Base& y2p);
    /// The same 45° the other way.
    static bool DrawRight(Base x1, Base y1, Base x2, Base y2, Base arrowSize, Base& x1p, Base& y1p, Base& x2p,
                          Base& y2p);
    /// The segment shifted by a signed distance along `VectorPerpendicular`. False, with the segment itself, for a
    /// distance or length of 0.
    static bool DrawParallelLine(Base x1, Base y1, Base x2, Base y2, Base distance, Base& x1p, Base& y1p, Base& x2p,
                                 Base& y2p);
    /// The same on the side of (PX, PY).
    static bool DrawParalLine(Base X1, Base Y1, Base X2, Base Y2, Base PX, Base PY, Base Distance, Base& X3, Base& Y3,
                              Base& X4, Base& Y4);
    /// The middle of the shifted segment, halves truncated; answers as `DrawParallelLine`.
    static bool PosMidParal(Base X1, Base Y1, Base X2, Base Y2, Base Distance, Base& aPosX, Base& aPosY);
    /// Control points of the curve between two anchors, by the sides of the figures on which the anchors lie. False,
    /// with the points as they were, for a pair of anchors without a rule.
    static bool CurvePoints(TKSLBase p1, TKSLBase p2, std::int16_t aPos1, std::int16_t aPos2, TKSLBase& pt1,
                            TKSLBase& pt2);

    // Offsets

    /// A closed polygon, each vertex shifted along the normal (dy, −dx) of the edge that starts there, or against it
    /// with `aIn`; joints get no mitre. A vertex equal to the next stays in place.
    static TKSLPtoA PoligonParalel(const TKSLPtoA& aPoints, Base aDist, bool aIn);
    /// An approximate parallel arc about the centroid of the three points; with `aIner` the middle point lies on the
    /// other side. False when no radius is left.
    static bool EquidistArc(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base aDist, bool aIner, Base& x1o,
                            Base& y1o, Base& x2o, Base& y2o, Base& x3o, Base& y3o);
    /// The parallel arc at |aDist| on the side of (px, py). False for points on one line, which come back unchanged,
    /// and when no radius is left.
    static bool EquidistArc(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base px, Base py, Base aDist,
                            Base& x1o, Base& y1o, Base& x2o, Base& y2o, Base& x3o, Base& y3o);
    /// The same for an arc by centre and angles. False when no radius is left.
    static bool EquidistArc(Base cx, Base cy, Base r, double angStart, double angEnd, Base aDist, Base px, Base py,
                            Base& cxo, Base& cyo, Base& ro, double& angStartO, double& angEndO);

    // Line against line and figure

    /// The crossing of two lines; false for parallels. With `Cross` it must lie on both segments, and without `EndLine`
    /// not on one of the four ends. The outputs are set for every pair that is not parallel.
    static bool IntersectLines(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, bool Cross,
                               bool EndLine, Base& xi, Base& yi);
    /// The foot of the perpendicular; with `Cross` on the segment. False for a line without length and for a point on a
    /// horizontal or vertical line.
    static bool LinePerpenFromPoint(Base x1, Base y1, Base x2, Base y2, Base px, Base py, bool Cross, Base& xi,
                                    Base& yi);
    /// Whether the segment and the rectangle have a point in common, edges included.
    static bool RectangleIntersectLine(Base X1, Base Y1, Base X2, Base Y2, const TKSLRect& aRect);
    /// Crossings of the infinite line, in the order of its direction; a line that misses by about 5 units gives the
    /// nearest point. With one, both outputs hold it.
    static std::int16_t LineCrossCircle(Base x1, Base y1, Base x2, Base y2, Base cx, Base cy, Base r, Base& p1x,
                                        Base& p1y, Base& p2x, Base& p2y);
    /// The same for an ellipse, without the tolerance.
    static std::int16_t LineCrossEllipse(Base x1, Base y1, Base x2, Base y2, Base cx, Base cy, Base rx, Base ry,
                                         Base& p1x, Base& p1y, Base& p2x, Base& p2y);
    /// Crossings of the segment with the rectangle between two corners: its left, right, top, bottom side, at most 2.
    static std::int16_t LineCrossRect(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base& p1x,
                                      Base& p1y, Base& p2x, Base& p2y);
    /// Crossings of two circles, which may miss each other by 1 unit. Both points are always set: to 0 when there is
    /// none, and a little apart from each other for a touch.
    static std::int16_t CircleCrossCircle(Base c1x, Base c1y, Base r1, Base c2x, Base c2y, Base r2, Base& p1x,
                                          Base& p1y, Base& p2x, Base& p2y);
    /// The same in double precision, with a tolerance of 5 units.
    static std::int32_t CircleCircleIntersections(double c1x, double c1y, double r1, double c2x, double c2y, double r2,
                                                  double& p1x, double& p1y, double& p2x, double& p2y);
    /// Whether the arc of growing angles has a point in common with the rectangle.
    static bool ArcIntersectsRect(Base CenterX, Base CenterY, Base Radius, double StartAngle, double EndAngle,
                                  const TKSLRect& Rect);
    /// Whether the filled ellipse has a point in common with the rectangle; false for a negative radius.
    static bool EllipseIntersectsRect(Base CenterX, Base CenterY, Base RadiusX, Base RadiusY, const TKSLRect& Rect);

    // Extending. The end nearer to the pick (px, py) moves along the line, the second on a tie; the other stays. On a
    // false answer the outputs hold the segment.

    /// Grows segment (3, 4) up to the infinite line (1, 2); the outputs are the kept end, then the crossing, whichever
    /// end was picked. False for parallels and when the segment reaches the line.
    static bool ExtendLines(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base px, Base py,
                            Base& ax1, Base& ay1, Base& ax2, Base& ay2);
    static bool ExtendLineToCircle(Base cx, Base cy, Base r, Base x3, Base y3, Base x4, Base y4, Base px, Base py,
                                   Base& ax1, Base& ay1, Base& ax2, Base& ay2);
    static bool ExtendLineToEllipse(Base cx, Base cy, Base rx, Base ry, Base x1, Base y1, Base x2, Base y2, Base px,
                                    Base py, Base& ax1, Base& ay1, Base& ax2, Base& ay2);
    /// Up to a side of the rectangle between corners 1 and 2.
    static bool ExtendLineToRectangle(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base px,
                                      Base py, Base& ax1, Base& ay1, Base& ax2, Base& ay2);
    /// False also for a crossing with a coordinate below 1.
    static bool ExtendLineToPolyline(const TKSLPtoA& aPoints, Base x1, Base y1, Base x2, Base y2, Base px, Base py,
                                     bool isClose, Base& ax1, Base& ay1, Base& ax2, Base& ay2);
    /// Up to the circle of the arc 1, 2, 3, at a point that must lie on the arc.
    static bool ExtendLineToArc(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base x5,
                                Base y5, Base px, Base py, Base& ax1, Base& ay1, Base& ax2, Base& ay2);
    /// Cuts segment (4, 5) back to its crossing with the arc 1, 2, 3 that lies nearest to the pick; ends of the arc
    /// count within 0.001 radians.
    static bool TrimLineAtArc(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base x5, Base y5,
                              Base px, Base py, Base& ax1, Base& ay1, Base& ax2, Base& ay2);
    /// Brings two segments to their common corner; each keeps the part on which its pick lies. The first keeps its
    /// direction, the second runs from its kept end to the corner. False for parallels and segments without length.
    static bool JoinLines(Base x1, Base y1, Base x2, Base y2, Base x3, Base y3, Base x4, Base y4, Base px1, Base py1,
                          Base px2, Base py2, Base& ax1, Base& ay1, Base& ax2, Base& ay2, Base& ax3, Base& ay3,
                          Base& ax4, Base& ay4);

    // Rectangles and transforms

    /// The largest rectangle of an aspect ratio, centred in the window, with whole sizes and offsets. Empty, in the
    /// middle, for a size of 0 or less.
    static TKSLRect CenteredRect(double OriginalWidth, double OriginalHeight, const TKSLRect& WindowRect);
    static TRectF CenteredRect(double OriginalWidth, double OriginalHeight, const TRectF& WindowRect);
    /// The box around a slot between two centres: along the side of `VectorPerpendicular` and back on the other. For
    /// equal centres a square from its top left corner clockwise.
    static TSlotPolygon CalculateSlotPolygon(double X1, double Y1, double X2, double Y2, double Diameter);
    /// Sorts three points by X.
    static void OrderPoints(std::span<TKSLPto, 3> aPoint);
    /// A quarter-turn about the centre, counterclockwise on screen.
    static void RotatePoint(TKSLPto& aPo, TKSLPto Center, TKSLAngle Angle);
    static void RotatePoint(TPoint& aPo, TPoint Center, TKSLAngle Angle);
    /// A turn by degrees, clockwise on screen.
    static TKSLPto RotatePoint(Base pX, Base pY, Base aCx, Base aCy, double aAngle);
    static TKSLSPoint RotatePoint(float pX, float pY, float aCx, float aCy, double aAngle);
    /// A quarter-turn of a rectangle, as of its corners; left and top come out smaller.
    static void Rotate(TRectF& Re, TKSLSPoint Center, TKSLAngle Angle);
    /// Start and sweep of the filled part of a circle, filled to a share of 0 to 1 like a vessel of water, or from the
    /// side with `aVert`. Degrees without `aRadian`.
    static void AngleSegment(double aUPercent, bool aRadian, bool aVert, double& angFrom, double& angMove);
    /// The two ends of the surface of that filling, in radians.
    static void ArcSegment(double aUPercent, bool aVert, double& angFrom, double& angTo);
};

} // namespace vagrel
