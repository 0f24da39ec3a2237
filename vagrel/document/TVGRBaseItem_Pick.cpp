// SPDX-License-Identifier: MIT
// Where an item is: picking, searching, snapping, alignment, crossings.
#include <vagrel/document/TVGRBaseItem.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Snapping.h>
#include <vagrel/foundation/TDraw2D.h>

#include <algorithm>
#include <cmath>

namespace vagrel {

bool TVGRBaseItem::Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool) {
    const TItemTypeRow& row = TypeRow();
    const bool thin = row.line != 0 || row.traits.Has(trLink);
    auto within = [&](std::int64_t value, std::int64_t low, std::int64_t high) {
        if (low == high || thin)
            low = SubSat(low, gap), high = AddSat(high, gap);
        return value >= low && value < high;
    };
    return within(bx, fBoundsRect.Left, fBoundsRect.Right) && within(by, fBoundsRect.Top, fBoundsRect.Bottom);
}

bool TVGRBaseItem::SearchRect(const TKSLRect& rect, bool intersects) const {
    return intersects ? fBoundsRect.IntersectsWith(rect) : rect.Contains(fBoundsRect);
}

bool TVGRBaseItem::Snap(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLPto candidate, TKSRefType type,
                        TKSLRef& ref) {
    if (!IsNear({bx, by}, candidate, gap))
        return false;
    ref.bX = candidate.bX, ref.bY = candidate.bY;
    ref.FindRef(type);
    return true;
}

bool TVGRBaseItem::SnapFoot(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLPto from, TKSLPto to,
                            TKSLRef& ref) {
    TKSLPto foot;
    return ref.HasLast() &&
           TDraw2D::LinePerpenFromPoint(from.bX, from.bY, to.bX, to.bY, ref.lbX, ref.lbY, true, foot.bX, foot.bY) &&
           Snap(bx, by, gap, foot, rtyRect, ref);
}

bool TVGRBaseItem::SnapTangent(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLRef& ref) const {
    const std::optional<TKSLPto> last = ref.HasLast() ? std::optional(TKSLPto{ref.lbX, ref.lbY}) : std::nullopt;
    const auto hit = TangentPoint(Shape(), {bx, by}, gap, last);
    if (!hit)
        return false;
    ref.bX = hit->bX, ref.bY = hit->bY;
    ref.FindRef(rtyCircle);
    return true;
}

bool TVGRBaseItem::CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap, TKSLRef& ref) const {
    const TItemTypeRow& row = TypeRow();
    if (row.line == 0 && !row.traits.HasAny({trChain, trCurve}))
        return false;
    const TKSLChain chain = Chain();
    auto anySegment = [&](auto hit) {
        for (int i = chain.first; i >= 1 && i < chain.last; ++i)
            if (hit(At(i), At(i + 1)))
                return true;
        return false;
    };
    switch (snap) {
    case snMiddle:
        return anySegment([&](TKSLPto a, TKSLPto b) { return Snap(bx, by, gap, Middle(a, b), rtyRect, ref); }) ||
               (chain.closed && Snap(bx, by, gap, Middle(At(chain.first), At(chain.last)), rtyRect, ref));
    case snEnd:
        if (row.traits.Has(trCurve))
            return !fPoints.empty() && (Snap(bx, by, gap, fPoints.front(), rtyRect, ref) ||
                                        Snap(bx, by, gap, fPoints.back(), rtyRect, ref));
        for (int i = std::max(chain.first, 1); i <= chain.last; ++i)
            if (Snap(bx, by, gap, At(i), rtyRect, ref))
                return true;
        return false;
    case snPerpendicular:
        return anySegment([&](TKSLPto a, TKSLPto b) { return SnapFoot(bx, by, gap, a, b, ref); }) ||
               (chain.closed && chain.last >= 3 && SnapFoot(bx, by, gap, At(chain.last), At(chain.first), ref));
    default:
        return false;
    }
}

int TVGRBaseItem::PickLines(std::int64_t bx, std::int64_t by, std::int64_t gap) const {
    auto near = [&](TKSLPto a, TKSLPto b) {
        const TInt128 dx = TInt128(b.bX) - a.bX, dy = TInt128(b.bY) - a.bY;
        if (dx == 0 && dy == 0)
            return false;
        const double cross = double(dx) * double(TInt128(by) - a.bY) - double(dy) * double(TInt128(bx) - a.bX);
        return Round(std::fabs(cross) / std::hypot(double(dx), double(dy))) <= gap;
    };
    const int count = int(fPoints.size());
    for (int i = 1; i < count; ++i)
        if (near(At(i), At(i + 1)))
            return i;
    return HasTrait(trClosed) && count >= 2 && near(fPoints.back(), fPoints.front()) ? count : -1;
}

int TVGRBaseItem::GetNumRefPoints() const {
    constexpr int counts[] = {0, 1, 2, 2, 4}; // by TGuidePoints
    const TGuidePoints guides = TypeRow().guides;
    return guides == gpVertices ? int(fPoints.size()) : counts[guides];
}

TKSLPto TVGRBaseItem::GetRefPoint(int index) const {
    if (index < 1 || index > GetNumRefPoints())
        return {};
    const TGuidePoints guides = TypeRow().guides;
    const TKSLRect& r = fBoundsRect;
    const TKSLPto middle = Middle({r.Left, r.Top}, {r.Right, r.Bottom});
    if (guides == gpEdges)
        return std::array<TKSLPto, 4>{{{middle.bX, r.Top},
                                       {r.Right, middle.bY},
                                       {middle.bX, r.Bottom},
                                       {r.Left, middle.bY}}}[std::size_t(index - 1)];
    if (const auto* arc = Query<const IKSLArc>(this))
        return arc->GetPto(index == 1 ? 1 : 3);
    if (guides != gpCorners)
        return GetPoint(index);
    return index == 1 ? TKSLPto{r.Left, r.Top} : TKSLPto{r.Right, r.Bottom};
}

TKSLAlignTypes TVGRBaseItem::AlignTypes() const {
    const TAlignRule rule = TypeRow().align;
    if (rule == arNone)
        return {};
    TKSLAlignTypes types;
    types.Put(anHorz, rule != arStraight || GetPoint(1).bX == GetPoint(2).bX);
    types.Put(anVert, rule != arStraight || GetPoint(1).bY == GetPoint(2).bY);
    return types;
}

bool TVGRBaseItem::AlignPoints(TKSLAlignType axis, std::int64_t& from, std::int64_t& to) const {
    const TItemTypeRow& row = TypeRow();
    if (row.align == arNone || row.align == arPlace)
        return false;
    auto along = [axis](TKSLPto point) { return axis == anHorz ? point.bX : point.bY; };
    if (row.align == arBounds) {
        from = along({fBoundsRect.Left, fBoundsRect.Top});
        to = along({fBoundsRect.Right, fBoundsRect.Bottom});
        return true;
    }
    const std::int64_t first = along(GetPoint(1));
    const std::int64_t second = row.points == 1 ? first : along(GetPoint(2));
    from = std::min(first, second);
    to = std::max(first, second);
    return true;
}

TKSLShape TVGRBaseItem::Shape() const {
    const TKSLChain chain = Chain();
    if (chain.first < 1 || chain.last <= chain.first)
        return {};
    return TKSLShape::Segments(TKSLPtoA(fPoints.begin() + (chain.first - 1), fPoints.begin() + chain.last),
                               chain.closed);
}

void TVGRBaseItem::IntersectsWith(const TVGRBaseItem& other, std::vector<TIntSecPoint>& crossings) const {
    TKSLPtoA found;
    CrossShapes(Shape(), other.Shape(), found);
    for (const TKSLPto& point : found)
        crossings.push_back({point, fInID, other.fInID});
}

} // namespace vagrel
