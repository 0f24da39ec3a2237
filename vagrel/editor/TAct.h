// SPDX-License-Identifier: MIT
// The one running editor action of the process: what the user is doing and which pick comes next.
#pragma once

#include <vagrel/foundation/Records.h>

#include <array>

namespace vagrel {

/// State of the running action, shared by all documents of the process. The transitions join with the editor.
class TAct {
public:
    static TKSLEdAction GetAction() { return Current().fCurAction; }
    static TKSLEdState GetState() { return Current().fCurState; }
    static TKSLMoveType GetMoveType() { return Current().fMoveType; }

    /// Back to selection with nothing collected; the last tool stays remembered. Answers the status texts.
    static TKSLSInfo Reset();
    /// Sets action and state without further effect.
    static void SetActionState(TKSLEdAction action, TKSLEdState state);
    /// Everything as at the start of the process, for tests.
    static void ResetForTests();

private:
    struct TState {
        TKSLEdAction fCurLastAction = eaNone;
        TKSLEdAction fCurAction = eaNone;
        TKSLEdState fCurState = edPickPoint;
        TKSLStEditor fCurEditor = seDraw;
        TKSLDrawType fDrawType = dtNone;
        TKSLMoveType fMoveType = mtNone;
        TKSLFlowType fCurFlowType = ftTerminator;
        TKSLinkType fCurLinkType = ltDirLine;
        std::vector<TKSLBPoint> fPoints;
        std::int32_t fID1 = 0, fID2 = 0;
        std::int16_t fPos1 = 0, fPos2 = 0;
        std::u16string fText;
        std::array<TKSLActPto, 3> fP;
    };
    static TState& Current();
};

} // namespace vagrel
