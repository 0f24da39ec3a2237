// SPDX-License-Identifier: MIT
// The undo stacks: recording, and replaying a group.
//
// A command is replayed by calling the setter that had recorded it; the setter then records the opposite on the other
// stack. Creation and deletion answer each other in the same way.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRCmd_p.h>

namespace vagrel {

bool TVGRBaseLabel::IsUndoEmpty() const { return fUndo.empty(); }
bool TVGRBaseLabel::IsRedoEmpty() const { return fRedo.empty(); }

void TVGRBaseLabel::TellUndoRedo() {
    if (OnUndoRedo && !fDestroying)
        OnUndoRedo(*this, fUndo.empty(), fRedo.empty());
}

std::int32_t TVGRBaseLabel::UnReID() {
    if (fReplay != TReplay::None)
        return fUnReRef;
    return fIncUnReID ? fUnReID++ : fUnReID;
}

void TVGRBaseLabel::Record(TVGRBaseItem& item, TVGRCmdKind kind, std::int32_t index) {
    if (!fOptions.Has(loUndoRedo) || item.FromPreview())
        return;
    std::vector<TVGRCmd>& stack = Recording();
    if (!item.fReceiver)
        item.fReceiver = std::make_shared<TVGRReceiver>(TVGRReceiver{item.GetInID(), &item});
    if (CoalescingCmds.Has(kind) && !stack.empty() && stack.back().Is(kind, index, item.fReceiver))
        return;
    TVGRCmdValue state = StoreState(item, kind, index);
    stack.push_back({kind, index, UnReID(), item.fReceiver, std::move(state)});
    TellUndoRedo();
}

void TVGRBaseLabel::ForgetCommands(TVGRBaseItem& item) {
    if (!item.fReceiver)
        return;
    item.fReceiver->item = nullptr;
    // A creation that ended before anything else was recorded has been no step: the construction failed.
    std::vector<TVGRCmd>& stack = Recording();
    if (!stack.empty() && stack.back().Is(ckCreate, 0, item.fReceiver))
        stack.pop_back();
}

void TVGRBaseLabel::ClearCommands() {
    fUnReID = 0;
    fUndo.clear();
    fRedo.clear();
    TellUndoRedo();
}

void TVGRBaseLabel::Undo() { Step(TReplay::Undo); }
void TVGRBaseLabel::Redo() { Step(TReplay::Redo); }

void TVGRBaseLabel::Step(TReplay direction) {
    std::vector<TVGRCmd>& stack = direction == TReplay::Undo ? fUndo : fRedo;
    if (stack.empty())
        return;
    const std::int32_t group = stack.back().fUndRedID;
    bool placed = false, revived = false;
    fUpdate = false; // one repaint for all
    while (!stack.empty() && stack.back().fUndRedID == group) {
        const TVGRCmd command = std::move(stack.back());
        stack.pop_back();
        fUnReRef = group;
        Replay(command, direction);
        revived |= command.fKind == ckDelete;
        if (PlacingCmds.Has(command.fKind)) {
            placed = true;
            if (command.fReceiver->item)
                command.fReceiver->item->UpdateBounds();
        }
    }
    if (revived)
        AssignSymbolAndFlowLinks();
    CalcPending();
    RemoveState(lsCalc);
    if (placed)
        FillSelPoints();
    Refresh();
    TellUndoRedo();
    if (GetFreshCrossings())
        CheckIntersetions();
}

void TVGRBaseLabel::Replay(const TVGRCmd& command, TReplay direction) {
    // A redone deletion is recorded as a new one, a step of its own.
    fReplay = command.fKind == ckCreate && direction == TReplay::Redo ? TReplay::None : direction;
    const TFinally end{[this] { fReplay = TReplay::None; }};
    if (command.fKind == ckDelete) {
        Revive(command);
        return;
    }
    TVGRBaseItem* item = command.fReceiver->item ? command.fReceiver->item : SearchItem(command.fReceiver->fID, false);
    if (!item)
        return;
    if (command.fKind == ckCreate)
        DeleteItem(*item, true);
    else
        RestoreState(*item, command);
}

void TVGRBaseLabel::Revive(const TVGRCmd& deletion) {
    TVGRBaseItem& item = CreateElementFromStream(std::get<std::string>(deletion.fValue));
    // The numbers may have begun anew since the deletion: this one is taken again.
    if (item.GetInID() == fMaxID)
        NextID();
    // The item takes the place of the one that was deleted: in the commands from before, and in what its construction
    // recorded just now, when it did not yet have its old number.
    std::vector<TVGRCmd>& stack = Recording();
    for (auto last = stack.rbegin(); last != stack.rend() && last->fReceiver == item.fReceiver; ++last)
        last->fReceiver = deletion.fReceiver;
    item.fReceiver = deletion.fReceiver;
    item.fReceiver->item = &item;
    item.ResolveReferences();
}

} // namespace vagrel
