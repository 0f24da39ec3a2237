// SPDX-License-Identifier: MIT
// The running editor action.
#include <vagrel/editor/TAct.h>

#include <vagrel/messages/TVGRMsg.h>

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
