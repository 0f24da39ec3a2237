// SPDX-License-Identifier: MIT
// The points of an item: access, insertion, bounds, extent.
#include <vagrel/document/TVGRBaseItem.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Units.h>

#include <algorithm>

namespace vagrel {

void TKSLExtent::Widen(std::int64_t x, std::int64_t y, std::int64_t by) {
    // Callers may hand in some limits of their own and leave others unset.
    auto isUnset = [this](std::int64_t limit) { return !fHasValues && limit == -1; };
    auto lower = [&](std::int64_t& limit, std::int64_t value) {
        limit = isUnset(limit) ? value : std::min(limit, value);
    };
    auto raise = [&](std::int64_t& limit, std::int64_t value) {
        limit = isUnset(limit) ? value : std::max(limit, value);
    };
    lower(minX, SubSat(x, by)), raise(maxX, AddSat(x, by));
    lower(minY, SubSat(y, by)), raise(maxY, AddSat(y, by));
    fHasValues = true;
}

TKSLPto TVGRBaseItem::GetPoint(int index) const { return InRange(index) ? At(index) : TKSLPto(); }

float TVGRBaseItem::GetPointX(int index) const { return GetPoint(index).GetX(fOwner.GetUnits()); }
float TVGRBaseItem::GetPointY(int index) const { return GetPoint(index).GetY(fOwner.GetUnits()); }
float TVGRBaseItem::GetPointMMX(int index) const { return FromBase(GetPoint(index).bX); }
float TVGRBaseItem::GetPointMMY(int index) const { return FromBase(GetPoint(index).bY); }

void TVGRBaseItem::SetPointX(int index, float value) {
    if (InRange(index) && GetPointX(index) != value)
        StoreX(index, SetValue(value, fOwner.GetUnits()));
}

void TVGRBaseItem::SetPointY(int index, float value) {
    if (InRange(index) && GetPointY(index) != value)
        StoreY(index, SetValue(value, fOwner.GetUnits()));
}

void TVGRBaseItem::StoreX(int index, std::int64_t base) {
    fOwner.AddState(lsUpdate);
    if (!Record({ckPosX, index}) || !InRange(index))
        return;
    At(index).bX = base;
    PointStored();
}

void TVGRBaseItem::StoreY(int index, std::int64_t base) {
    fOwner.AddState(lsUpdate);
    if (!Record({ckPosY, index}) || !InRange(index))
        return;
    At(index).bY = base;
    PointStored();
}

void TVGRBaseItem::PointStored() {
    if (fOwner.HasAnyState({lsReading}))
        return;
    if (HasTrait(trDerivedPoints))
        UpdatePoints();
    else
        UpdateBounds();
}

void TVGRBaseItem::SetPoint(int index, TKSLPto value) {
    if (!InRange(index))
        return;
    Touch();
    At(index) = value;
}

void TVGRBaseItem::SetBase(int index, std::int64_t x, std::int64_t y) { SetPoint(index, {x, y}); }

void TVGRBaseItem::SetBaseX(int index, std::int64_t x) { SetBase(index, x, GetPoint(index).bY); }
void TVGRBaseItem::SetBaseY(int index, std::int64_t y) { SetBase(index, GetPoint(index).bX, y); }

bool TVGRBaseItem::DeletePoint(int index) {
    if (!HasTrait(trFreePoints) || !InRange(index))
        return false;
    Touch();
    fPoints.erase(fPoints.begin() + (index - 1));
    return true;
}

void TVGRBaseItem::AssignPoints(const TKSLPtoA& points) {
    Touch();
    std::copy_n(points.begin(), std::min(points.size(), fPoints.size()), fPoints.begin());
    UpdateBounds();
}

void TVGRBaseItem::NormalizePoints() {
    if (fPoints.size() == 2 && !HasTrait(trOrderedPoints))
        TVGRBaseItem::CheckPosition();
}

void TVGRBaseItem::CheckPosition() {
    if (fPoints.size() != 2)
        return;
    Touch();
    if (At(1).bX > At(2).bX)
        std::swap(At(1).bX, At(2).bX);
    if (At(1).bY > At(2).bY)
        std::swap(At(1).bY, At(2).bY);
}

bool TVGRBaseItem::InsertPoint(std::int64_t, std::int64_t, std::int64_t) { return false; }

bool TVGRBaseItem::InsertInChain(std::int64_t bx, std::int64_t by, std::int64_t gap) {
    const int segment = PickLines(bx, by, gap);
    if (segment < 1)
        return false;
    Touch();
    fPoints.insert(fPoints.begin() + segment, TKSLPto{bx, by});
    return true;
}

TKSLBase TVGRBaseItem::MeanPoint() const {
    if (fPoints.empty())
        return {};
    TInt128 x = 0, y = 0;
    for (const TKSLPto& point : fPoints)
        x += point.bX, y += point.bY;
    const auto count = TInt128(fPoints.size());
    return {std::int64_t(x / count), std::int64_t(y / count)};
}

void TVGRBaseItem::UpdateBounds() {
    Touch();
    const TItemTypeRow& row = TypeRow();
    if (row.traits.Has(trInPlace)) {
        if (fOwner.GetAction() >= eaText && fOwner.GetAction() <= eaMoveText)
            fOwner.FillSelPoints();
        return;
    }
    if (fPoints.size() == 2 || row.line != 0) {
        const int first = std::max(row.line, 1);
        const TKSLPto a = GetPoint(first), b = GetPoint(first + 1);
        fBoundsRect = {a.bX, a.bY, b.bX, b.bY};
    } else {
        // -1 on the left or the top means that there is no value yet.
        fBoundsRect.EmptyRect();
        for (const TKSLPto& point : fPoints) {
            if (fBoundsRect.Left == -1 || point.bX < fBoundsRect.Left)
                fBoundsRect.Left = point.bX;
            if (fBoundsRect.Top == -1 || point.bY < fBoundsRect.Top)
                fBoundsRect.Top = point.bY;
            fBoundsRect.Right = std::max(fBoundsRect.Right, point.bX);
            fBoundsRect.Bottom = std::max(fBoundsRect.Bottom, point.bY);
        }
    }
    fBoundsRect.NormalizeRect();
}

void TVGRBaseItem::CheckFit(TKSLExtent& extent) const {
    for (const TKSLPto& point : fPoints)
        extent.Widen(point.bX, point.bY, fPenWidth / 2);
}

} // namespace vagrel
