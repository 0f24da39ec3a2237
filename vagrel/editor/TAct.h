// SPDX-License-Identifier: MIT
// The one running editor action of the process: what the user is doing and which pick comes next.
#pragma once

#include <vagrel/foundation/Records.h>

#include <array>
#include <optional>

namespace vagrel {

/// State of the running action, shared by all documents of the process. Main thread. What changes the action answers
/// the status texts. Points are picks in base units, from 0.
class TAct {
public:
    static TKSLEdAction GetAction() { return Current().fCurAction; }
    static TKSLEdAction GetLastAction() { return Current().fCurLastAction; }
    static TKSLEdState GetState() { return Current().fCurState; }
    static TKSLStEditor GetEditor() { return Current().fCurEditor; }
    static TKSLDrawType GetDrawType() { return Current().fDrawType; }
    static TKSLMoveType GetMoveType() { return Current().fMoveType; }
    static TKSLFlowType GetFlowType() { return Current().fCurFlowType; }
    static TKSLinkType GetLinkType() { return Current().fCurLinkType; }
    /// In eaMove the handle or vertex that moves, from 1; in the link actions the anchor at the start.
    static int GetPos1() { return Current().fPos1; }
    static int GetPos2() { return Current().fPos2; }
    /// In the link actions the items at the start and at the end.
    static std::int32_t GetID1() { return Current().fID1; }
    static std::int32_t GetID2() { return Current().fID2; }
    /// A text that the action carries for the host.
    static const std::u16string& GetText() { return Current().fText; }
    static void SetText(std::u16string_view text) { Current().fText = text; }
    static void SetFlowType(TKSLFlowType type) { Current().fCurFlowType = type; }
    static void SetLinkType(TKSLinkType type) { Current().fCurLinkType = type; }

    // Steps

    /// Keeps a pick and steps; one that the action does not wait for is kept all the same.
    static TKSLSInfo AddPoint(std::int64_t bx, std::int64_t by);
    /// The same for hosts that also know the place on the screen, which is not kept.
    static TKSLSInfo AddPointInt(std::int64_t bx, std::int64_t by, std::int32_t, std::int32_t) {
        return AddPoint(bx, by);
    }
    static TKSLSInfo AddPointSin(std::int64_t bx, std::int64_t by, float, float) { return AddPoint(bx, by); }
    /// Steps the link actions: an item and its anchor.
    static TKSLSInfo AddLink(std::int32_t id, std::int16_t pos);
    /// Steps without a pick; `close` ends the choice of references.
    static TKSLSInfo NextStep(bool close);

    // Changes of the action

    /// Back to selection with nothing collected; the last tool stays remembered.
    static TKSLSInfo Reset();
    /// The same after a vertex was moved, which stays known.
    static TKSLSInfo ResetPoly();
    static void ResetPos() { Current().fPos1 = Current().fPos2 = 0; }
    /// Begins an action at its first state. Picks of another action are dropped.
    static TKSLSInfo SetCurAction(TKSLEdAction action);
    /// Leaves the action: closes off a chain of points, else goes from the last tool to selection and back.
    static TKSLSInfo SetLastAction();
    /// Opens a drag of `type`; `pos` is the handle or vertex, from 1.
    static TKSLSInfo SetMove(TKSLMoveType type, std::int16_t pos);
    /// Sets action and state without further effect.
    static void SetActionState(TKSLEdAction action, TKSLEdState state);
    static TKSLSInfo SetState(TKSLEdState state);
    static void SetStateEditor(TKSLStEditor editor) { Current().fCurEditor = editor; }
    /// Puts the machine into the first state of its action.
    static void SelFirstState();

    // Picks. One that does not exist reads 0.

    static int NumPoints() { return int(Current().fPoints.size()); }
    static std::int64_t GetPointX(int index) { return Pick(index).X; }
    static std::int64_t GetPointY(int index) { return Pick(index).Y; }
    /// Coordinates that are equal in single precision count as equal.
    static std::int64_t Distance(int index1, int index2);
    /// Makes pick 0 the top left and pick 1 the bottom right one.
    static void NormalizePoints();
    /// The first three picks from left to right.
    static void OrderPointsArc();

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
    static TKSLBPoint Pick(int index);
    /// What is not given stays.
    static void Enter(std::optional<TKSLEdState> state, std::optional<TKSLDrawType> draw,
                      std::optional<TKSLStEditor> editor);
    /// The caption of the action and the prompt of the state.
    static TKSLSInfo GetInfo();
};

} // namespace vagrel
