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
    act.fCurState = edPickPoint;
    act.fCurEditor = seSelect;
    act.fDrawType = dtNone;
    return {TVGRMsg::GetActionsValue(u"Selection"), TVGRMsg::GetActionsValue(u"SelPoint")};
}

void TAct::SetActionState(TKSLEdAction action, TKSLEdState state) {
    Current().fCurAction = action;
    Current().fCurState = state;
}

void TAct::ResetForTests() { Current() = {}; }

} // namespace vagrel
