// SPDX-License-Identifier: MIT
// Moving, turning and offsetting an item, and keeping it on the page.
#include <vagrel/document/TVGRBaseItem.h>

#include <vagrel/document/TItemHandle.h>
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/TDraw2D.h>
#include <vagrel/foundation/Utils.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vagrel {

namespace {

using TOptions = TKSLSet<TKSLMoveOpt>;

constexpr TOptions LeftEdge{moLeft, moTopLeft, moBotLeft};
constexpr TOptions RightEdge{moRight, moTopRight, moBotRight};
constexpr TOptions TopEdge{moTop, moTopLeft, moTopRight};
constexpr TOptions BottomEdge{moBottom, moBotLeft, moBotRight};

// Shrinks a move of a span so that it ends inside 0 to `size`. A span that already reaches beyond stays where it is.
template <class T>
void ClipMove(T& offset, T low, T high, T size) {
    if (offset > 0 && offset > size - high)
        offset = std::max<T>(size - high, 0);
    else if (offset < 0 && low + offset < 0)
        offset = std::min<T>(-low, 0);
}

// The same on integers of any size.
void ClipBase(std::int64_t& offset, std::int64_t low, std::int64_t high, std::int64_t size) {
    TInt128 wide = offset;
    ClipMove<TInt128>(wide, low, high, size);
    offset = std::int64_t(wide);
}

// Moves a coordinate, to the grid where that is on and the coordinate moves at all.
std::int64_t Moved(std::int64_t value, std::int64_t offset, std::int64_t grid) {
    const std::int64_t moved = AddSat(value, offset);
    return grid > 0 && offset != 0 ? AdjustGrid(moved, grid, offset > 0) : moved;
}

// An edge that is dragged: an absolute place where `grid` gives one, else the offset is added.
void MoveEdge(std::int64_t& value, std::int64_t offset, std::int64_t grid) {
    value = grid >= 0 ? grid : AddSat(value, offset);
}

void MoveAll(TKSLPtoA& points, std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy) {
    if (!points.empty() && (gx > 0 || gy > 0)) {
        const TKSLPto first = points.front();
        bx = SubSat(Moved(first.bX, bx, gx), first.bX);
        by = SubSat(Moved(first.bY, by, gy), first.bY);
    }
    for (TKSLPto& point : points)
        point.BaseMove(bx, by);
}

// Moves the corners of the box that the option names.
void MoveCorners(TKSLPtoA& points, std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy,
                 TKSLMoveOpt option) {
    if (points.size() < 2)
        return;
    if (LeftEdge.Has(option))
        MoveEdge(points[0].bX, bx, gx);
    if (RightEdge.Has(option))
        MoveEdge(points[1].bX, bx, gx);
    if (TopEdge.Has(option))
        MoveEdge(points[0].bY, by, gy);
    if (BottomEdge.Has(option))
        MoveEdge(points[1].bY, by, gy);
}

// The position in `points` at which the segment nearest to a place starts.
std::size_t NearestSegment(const TKSLPtoA& points, bool closed, std::int64_t bx, std::int64_t by) {
    const std::size_t count = points.size();
    std::size_t nearest = 0;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < (closed ? count : count - 1); ++i) {
        const TKSLPto a = points[i], b = points[(i + 1) % count];
        const double dx = double(b.bX) - double(a.bX), dy = double(b.bY) - double(a.bY);
        const double px = double(bx) - double(a.bX), py = double(by) - double(a.bY);
        const double square = dx * dx + dy * dy;
        const double along = square > 0 ? std::clamp((px * dx + py * dy) / square, 0.0, 1.0) : 0;
        const double distance = std::hypot(px - along * dx, py - along * dy);
        if (distance < least)
            least = distance, nearest = i;
    }
    return nearest;
}

} // namespace

void TVGRBaseItem::BaseMove(std::int64_t bx, std::int64_t by, std::int64_t gx, std::int64_t gy, TKSLMoveOpt option,
                            bool update) {
    TKSLPtoA points = fPoints;
    if (option == moAll)
        MoveAll(points, bx, by, gx, gy);
    else
        MoveCorners(points, bx, by, gx, gy, option);
    const bool moved = points != fPoints;
    if (moved && !Record({ckElePos, 0}))
        return;
    Put(fPoints, std::move(points));
    if (update)
        UpdateBounds();
    if (moved)
        StateUpdate();
}

void TVGRBaseItem::Move(float ax, float ay, TKSLMoveOpt option) {
    Touch();
    const TItemHandle self(*this); // who is told may end it
    const TKSLUnits units = fOwner.GetUnits();
    if (option == moAll) {
        for (TKSLPto& point : fPoints)
            point.Move(ax, ay, units);
    } else if (fPoints.size() >= 2) {
        const float dx = option == moLeft ? -ax : option == moRight ? ax : 0;
        const float dy = option == moTop ? -ay : option == moBottom ? ay : 0;
        At(2).Move(dx, dy, units);
        StateCalc();
    }
    if (self)
        UpdateBounds();
}

void TVGRBaseItem::RotateLeft() {
    Touch();
    fAngle = fAngle >= ag0 && fAngle < ag270 ? TKSLAngle(fAngle + 1) : ag0;
    const std::int64_t height = fOwner.GetMeasure().GetSize(mtLabelHeight, true);
    for (TKSLPto& point : fPoints)
        point = {point.bY, SubSat(height, point.bX)};
    NormalizePoints();
    UpdateBounds();
}

void TVGRBaseItem::RotateRight() {
    Touch();
    fAngle = fAngle > ag0 && fAngle <= ag270 ? TKSLAngle(fAngle - 1) : ag270;
    const std::int64_t width = fOwner.GetMeasure().GetSize(mtLabelWidth, true);
    for (TKSLPto& point : fPoints)
        point = {SubSat(width, point.bY), point.bX};
    NormalizePoints();
    UpdateBounds();
}

void TVGRBaseItem::BoundsMove(float& ax, float& ay) const {
    if (HasTrait(trOffPage))
        return;
    const TVGRMeasure& measure = fOwner.GetMeasure();
    const int count = HasTrait(trLineOnPage) ? 2 : NumPoints();
    for (int i = 1; i <= count; ++i) {
        ClipMove(ax, GetPointX(i), GetPointX(i), measure.WidthUnits());
        ClipMove(ay, GetPointY(i), GetPointY(i), measure.HeightUnits());
    }
}

void TVGRBaseItem::CheckBaseBoundsMove(std::int64_t& bx, std::int64_t& by, TKSLMoveOpt) const {
    if (HasTrait(trOffPage))
        return;
    const TVGRMeasure& measure = fOwner.GetMeasure();
    const std::int64_t width = measure.GetSize(mtLabelWidth, true), height = measure.GetSize(mtLabelHeight, true);
    const int count = HasTrait(trLineOnPage) ? 2 : int(fPoints.size());
    for (int i = 1; i <= count; ++i) {
        ClipBase(bx, At(i).bX, At(i).bX, width);
        ClipBase(by, At(i).bY, At(i).bY, height);
    }
}

void TVGRBaseItem::CheckBaseBoundsMove(std::int64_t& bx, std::int64_t& by) const {
    if (!HasTrait(trOffPage))
        ClipToPage(bx, by, fBoundsRect);
}

void TVGRBaseItem::ClipToPage(std::int64_t& bx, std::int64_t& by, const TKSLRect& rect) const {
    const TVGRMeasure& measure = fOwner.GetMeasure();
    ClipBase(bx, rect.Left, rect.Right, measure.GetSize(mtLabelWidth, true));
    ClipBase(by, rect.Top, rect.Bottom, measure.GetSize(mtLabelHeight, true));
}

void TVGRBaseItem::CheckBaseBoundsMoveResize(std::int64_t& bx, std::int64_t& by, TKSLMoveOpt option) const {
    if (HasTrait(trOffPage))
        return;
    const TVGRMeasure& measure = fOwner.GetMeasure();
    const std::int64_t width = measure.GetSize(mtLabelWidth, true), height = measure.GetSize(mtLabelHeight, true);
    auto clip = [](std::int64_t& offset, std::int64_t first, std::int64_t second, bool low, bool high,
                   std::int64_t size) {
        if (low)
            ClipBase(offset, first, first, size);
        if (high)
            ClipBase(offset, second, second, size);
    };
    const bool all = option == moAll;
    const TKSLPto one = GetPoint(1), two = GetPoint(2);
    clip(bx, one.bX, two.bX, all || LeftEdge.Has(option), all || RightEdge.Has(option), width);
    clip(by, one.bY, two.bY, all || TopEdge.Has(option), all || BottomEdge.Has(option), height);
}

void TVGRBaseItem::MoveToGrid(std::int64_t gx, std::int64_t gy, bool right, bool down) {
    const TKSLPto point = GetPoint(1);
    fmx = SubSat(AdjustGrid(point.bX, gx, right), point.bX);
    fmy = SubSat(AdjustGrid(point.bY, gy, down), point.bY);
    CheckBaseBoundsMove(fmx, fmy, moAll);
}

bool TVGRBaseItem::MoveToPoint(std::int64_t bx, std::int64_t by) {
    const TKSLPto point = GetPoint(1);
    fmx = SubSat(bx, point.bX);
    fmy = SubSat(by, point.bY);
    CheckBaseBoundsMove(fmx, fmy, moAll);
    return fmx != 0 || fmy != 0;
}

void TVGRBaseItem::BasePointMove(std::int64_t& bx, std::int64_t& by) const {
    const TVGRMeasure& measure = fOwner.GetMeasure();
    if (bx < 0 || bx > measure.GetSize(mtLabelWidth, true))
        bx = -1;
    if (by < 0 || by > measure.GetSize(mtLabelHeight, true))
        by = -1;
}

void TVGRBaseItem::Offset(std::int64_t dist, std::int64_t bx, std::int64_t by, bool closed, TKSLPtoA& points) const {
    const std::size_t count = fPoints.size();
    points = fPoints;
    if (count < 2)
        return;
    // The segment nearest to the place tells the side. Its nearest vertex would not: behind a corner the two segments
    // have the place on different sides.
    const std::size_t nearest = NearestSegment(fPoints, closed, bx, by);
    auto next = [&](std::size_t i) { return (i + 1) % count; };
    const TKSLPto a = fPoints[nearest], b = fPoints[next(nearest)];
    if (TDraw2D::PointSide(a.bX, a.bY, b.bX, b.bY, bx, by) < 0)
        dist = SubSat(0, dist);

    const std::size_t segments = closed ? count : count - 1;
    std::vector<TKSLRefLine> moved(segments);
    for (std::size_t i = 0; i < segments; ++i) {
        const TKSLPto from = fPoints[i], to = fPoints[next(i)];
        TKSLRefLine& line = moved[i];
        line = {from.bX, from.bY, to.bX, to.bY};
        TDraw2D::DrawParallelLine(from.bX, from.bY, to.bX, to.bY, dist, line.bX1, line.bY1, line.bX2, line.bY2);
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (!closed && i == 0) {
            points[i] = {moved[0].bX1, moved[0].bY1};
        } else if (!closed && i + 1 == count) {
            points[i] = {moved[i - 1].bX2, moved[i - 1].bY2};
        } else {
            const TKSLRefLine& before = moved[(i + segments - 1) % segments];
            const TKSLRefLine& after = moved[i];
            // Parallel neighbours do not cross; their common vertex is where the earlier one ends.
            points[i] = {before.bX2, before.bY2};
            TKSLPto crossing;
            if (TDraw2D::IntersectLines(before.bX1, before.bY1, before.bX2, before.bY2, after.bX1, after.bY1, after.bX2,
                                        after.bY2, false, false, crossing.bX, crossing.bY))
                points[i] = crossing;
        }
    }
}

} // namespace vagrel
