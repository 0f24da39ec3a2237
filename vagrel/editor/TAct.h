// SPDX-License-Identifier: MIT
// The one running editor action of the process: what the user is doing and which pick comes next.
#pragma once

#include <vagrel/foundation/Records.h>

#include <array>

namespace vagrel {

/// State of the running action, shared by all documents of the process. Main thread. What changes the action answers
/// the status texts. The transitions of picks join with the drawing tools.
class TAct {
public:
    static TKSLEdAction GetAction() { return Current().fCurAction; }
    static TKSLEdState GetState() { return Current().fCurState; }
    static TKSLStEditor GetEditor() { return Current().fCurEditor; }
    static TKSLDrawType GetDrawType() { return Current().fDrawType; }
    static TKSLMoveType GetMoveType() { return Current().fMoveType; }
    /// In eaMove the handle or vertex that moves, from 1.
    static int GetPos1() { return Current().fPos1; }

    /// Back to selection with nothing collected; the last tool stays remembered.
    static TKSLSInfo Reset();
    /// Begins an action at its first state. Picks of another action are dropped.
    static TKSLSInfo SetCurAction(TKSLEdAction action);
    /// Opens a drag of `type`; `pos` is the handle or vertex, from 1.
    static TKSLSInfo SetMove(TKSLMoveType type, std::int16_t pos);
    /// Sets action and state without further effect.
    static void SetActionState(TKSLEdAction action, TKSLEdState state);

    // Three data slots, 1 to 3. Any other index stores nothing and reads 0.

    static void DataBase(int slot, std::int64_t bx, std::int64_t by);
    static void DataInt(int slot, std::int32_t ix, std::int32_t iy);
    static void DataSingle(int slot, float sx, float sy);
    static void DataPto(int slot, std::int64_t bx, std::int64_t by, std::int32_t ix, std::int32_t iy, float sx,
                        float sy);
    static std::int64_t GetBaseX(int slot) { return Slot(slot).bX; }
    static std::int64_t GetBaseY(int slot) { return Slot(slot).bY; }
    static std::int32_t GetIntX(int slot) { return Slot(slot).iX; }
    static std::int32_t GetIntY(int slot) { return Slot(slot).iY; }
    static float GetSinX(int slot) { return Slot(slot).sX; }
    static float GetSinY(int slot) { return Slot(slot).sY; }

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
    static TKSLActPto Slot(int slot);
    /// Puts the machine into the first state of its action.
    static void SelFirstState();
    /// The caption of the action and the prompt of the state.
    static TKSLSInfo GetInfo();
};

} // namespace vagrel
