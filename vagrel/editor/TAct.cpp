// SPDX-License-Identifier: MIT
// The running editor action.
#include <vagrel/editor/TAct.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Utils.h>
#include <vagrel/messages/TVGRMsg.h>

#include <algorithm>

namespace vagrel {

TAct::TState& TAct::Current() {
    static TState state;
    return state;
}

TKSLSInfo TAct::Reset() {
    TState& act = Current();
    act.fCurAction = eaSelection;
    act.fMoveType = mtNone;
    act.fPos1 = act.fPos2 = 0;
    act.fP = {};
    act.fPoints.clear();
    SelFirstState();
    return GetInfo();
}

TKSLSInfo TAct::ResetPoly() {
    TState& act = Current();
    act.fCurAction = eaSelection;
    act.fCurState = edPickPoint;
    act.fDrawType = dtNone;
    act.fPos2 = 0;
    act.fPoints.clear();
    return GetInfo();
}

TKSLSInfo TAct::SetCurAction(TKSLEdAction action) {
    TState& act = Current();
    if (act.fCurAction != action) {
        act.fCurAction = action;
        act.fDrawType = dtNone;
        act.fPoints.clear();
    }
    SelFirstState();
    return GetInfo();
}

TKSLSInfo TAct::SetLastAction() {
    constexpr TKSLEdActions chains{eaPolyline, eaPolygon, eaBezier};
    TState& act = Current();
    if (chains.Has(act.fCurAction) && act.fCurState != edPickFirst) {
        act.fCurState = edEnd;
        act.fCurEditor = seSelect;
        return GetInfo();
    }
    if (act.fCurLastAction == act.fCurAction)
        act.fCurAction = eaSelection;
    else if (act.fCurLastAction != eaNone)
        act.fCurAction = act.fCurLastAction;
    act.fPoints.clear();
    SelFirstState();
    return GetInfo();
}

TKSLSInfo TAct::SetMove(TKSLMoveType type, std::int16_t pos) {
    TState& act = Current();
    act.fCurAction = eaMove;
    act.fMoveType = type;
    act.fPos1 = pos;
    SelFirstState();
    constexpr TKSLSet<TKSLMoveType> objects = TKSLSet<TKSLMoveType>::Range(mtNW, mtText) + TKSLSet{mtObjects};
    constexpr TKSLSet<TKSLMoveType> radii{mtRadio, mtRadioX, mtRadioY};
    constexpr TKSLSet<TKSLMoveType> points{mtBezier, mtBezierCtrl, mtPoint, mtPolyPoint, mtArc};
    TKSLSInfo info{TVGRMsg::GetActionsValue(u"Move"), {}};
    if (objects.Has(type))
        info.sState = TVGRMsg::GetActionsValue(u"Objects");
    else if (radii.Has(type))
        info.sState = TVGRMsg::GetActionsValue(u"Radio");
    else if (points.Has(type))
        info.sState = TVGRMsg::GetActionsValue(u"Point");
    return info;
}

void TAct::SetActionState(TKSLEdAction action, TKSLEdState state) {
    Current().fCurAction = action;
    Current().fCurState = state;
}

TKSLSInfo TAct::SetState(TKSLEdState state) {
    Current().fCurState = state;
    return GetInfo();
}

TKSLBPoint TAct::Pick(int index) {
    return index >= 0 && index < NumPoints() ? Current().fPoints[std::size_t(index)] : TKSLBPoint();
}

std::int64_t TAct::Distance(int index1, int index2) {
    const TKSLBPoint a = Pick(index1), b = Pick(index2);
    const bool sameX = SamePoint(float(a.X), float(b.X)), sameY = SamePoint(float(a.Y), float(b.Y));
    return vagrel::Distance(a.X, a.Y, sameX ? a.X : b.X, sameY ? a.Y : b.Y);
}

void TAct::NormalizePoints() {
    std::vector<TKSLBPoint>& points = Current().fPoints;
    if (points.size() < 2)
        return;
    if (points[0].X > points[1].X)
        std::swap(points[0].X, points[1].X);
    if (points[0].Y > points[1].Y)
        std::swap(points[0].Y, points[1].Y);
}

void TAct::OrderPointsArc() {
    std::vector<TKSLBPoint>& points = Current().fPoints;
    std::ranges::stable_sort(points.begin(), points.begin() + std::min<std::ptrdiff_t>(3, NumPoints()), {},
                             &TKSLBPoint::X);
}

TKSLActPto TAct::Slot(int slot) { return slot >= 1 && slot <= 3 ? Current().fP[std::size_t(slot - 1)] : TKSLActPto(); }

void TAct::DataPto(int slot, std::int64_t bx, std::int64_t by, std::int32_t ix, std::int32_t iy, float sx, float sy) {
    if (slot >= 1 && slot <= 3)
        Current().fP[std::size_t(slot - 1)] = {bx, by, ix, iy, sx, sy};
}

void TAct::DataBase(int slot, std::int64_t bx, std::int64_t by) {
    const TKSLActPto data = Slot(slot);
    DataPto(slot, bx, by, data.iX, data.iY, data.sX, data.sY);
}

void TAct::DataInt(int slot, std::int32_t ix, std::int32_t iy) {
    const TKSLActPto data = Slot(slot);
    DataPto(slot, data.bX, data.bY, ix, iy, data.sX, data.sY);
}

void TAct::DataSingle(int slot, float sx, float sy) {
    const TKSLActPto data = Slot(slot);
    DataPto(slot, data.bX, data.bY, data.iX, data.iY, sx, sy);
}

void TAct::ResetForTests() { Current() = {}; }

} // namespace vagrel
