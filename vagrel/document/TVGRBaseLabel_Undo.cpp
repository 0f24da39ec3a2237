// SPDX-License-Identifier: MIT
// Recording on the undo stacks, the road of creation, and replaying a step.
//
// A command is replayed by calling the setter that had recorded it; the setter then records the opposite on the other
// stack. Creation and deletion answer each other in the same way. Items that come back are made first, since that may
// fail; when anything fails later, the opposites that were recorded until then take back what was done, and the step
// stays where it was.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TStateLog_p.h>
#include <vagrel/document/TUndoStacks_p.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Exceptions.h>

namespace vagrel {

using detail::TReplay;

bool TVGRBaseLabel::IsUndoEmpty() const { return fStacks->undo.empty(); }
bool TVGRBaseLabel::IsRedoEmpty() const { return fStacks->redo.empty(); }
std::int32_t TVGRBaseLabel::UnReID() { return fStacks->NextGroup(); }

// Recording

void TVGRBaseLabel::TellUndoRedo() {
    // While an item is half built or a transaction is open it is owed.
    fTellOwed = fCreating > 0 || InTransaction();
    if (!OnUndoRedo || fDestroying || fTellOwed)
        return;
    const TKSLUndoRedoEvent told = OnUndoRedo; // which the host may replace in it
    try {
        told(*this, IsUndoEmpty(), IsRedoEmpty());
    } catch (...) {
        if (!fStepping)
            throw;
        // A step goes on to its end and then says so.
        if (!fStepFault)
            fStepFault = std::current_exception();
    }
}

void TVGRBaseLabel::TellOwed() {
    if (fTellOwed)
        TellUndoRedo();
}

bool TVGRBaseLabel::Record(TVGRBaseItem& item, TVGRCmdKind kind, std::int32_t index) {
    if (kind == ckColor)
        AddState(lsUpdate);
    Touch(item);
    if (!fOptions.Has(loUndoRedo) || item.FromPreview() || fStacks->replay == TReplay::Back || InTransaction())
        return true;
    const std::shared_ptr<TVGRReceiver> receiver = item.Receiver();
    if (fStacks->Coalesces(kind, index, receiver))
        return true;
    TVGRCmdValue state = StoreState(item, kind, index);
    if (kind == ckDelete && std::holds_alternative<std::monostate>(state))
        return true; // too large for a snapshot: the item goes all the same, for good
    fStacks->Push({kind, index, UnReID(), receiver, std::move(state)});
    if (fStacks->replay == TReplay::None && fStacks->RedoHoldsTransaction())
        fStacks->redo.clear();
    if (kind == ckCreate) {
        fTellOwed = true; // the item is half built
        return true;
    }
    try {
        TellUndoRedo();
    } catch (...) {
        fStacks->DropLast(kind, index, receiver); // nothing will change
        throw;
    }
    if (!fLogs.empty()) { // the event has opened a transaction, to which the change belongs
        fStacks->DropLast(kind, index, receiver);
        Touch(item);
    }
    return receiver->item == &item;
}

void TVGRBaseLabel::ForgetCommands(TVGRBaseItem& item) {
    if (!item.fReceiver)
        return;
    if (fOptions.Has(loUndoRedo) && fStacks->replay != TReplay::Back && fStacks->DropConstruction(item.fReceiver))
        fTellOwed = true;
    item.fReceiver->SetItem(nullptr);
}

void TVGRBaseLabel::ClearCommands() {
    fStacks->Clear();
    TellUndoRedo();
}

// Creation

TVGRBaseItem& TVGRBaseLabel::NewItem(const std::function<TVGRBaseItem&()>& construct,
                                     const std::function<void(TVGRBaseItem&)>& initialise) {
    TItemHandle made;
    try {
        {
            ++fCreating;
            const TFinally whole{[this] { --fCreating; }};
            made = TItemHandle(construct());
            if (initialise)
                initialise(*made);
        }
        TellOwed();
    } catch (...) {
        if (made)
            delete made.Get();
        try {
            TellOwed();
        } catch (...) {
            // The first fault is the one to tell.
        }
        throw;
    }
    if (!made)
        throw EInvalidOperation(u"The new item was deleted by the one who was told of it");
    return *made;
}

// Steps

void TVGRBaseLabel::Undo() { Step(TReplay::Undo); }
void TVGRBaseLabel::Redo() { Step(TReplay::Redo); }

void TVGRBaseLabel::Step(TReplay direction) {
    std::vector<TVGRCmd>& from = direction == TReplay::Undo ? fStacks->undo : fStacks->redo;
    if (fStepping || InTransaction() || from.empty())
        return;
    fStepping = true;
    fStepFault = nullptr;
    fUpdate = false; // one repaint for all
    {
        const TFinally told{[this] {
            TellUndoRedo();
            fStepping = false;
        }};
        const TFinally shown{[this] { ShowStep(); }};
        ReplayStep(direction, from);
    }
    if (GetFreshCrossings())
        CheckIntersetions();
    if (const auto fault = std::exchange(fStepFault, nullptr))
        std::rethrow_exception(fault);
}

void TVGRBaseLabel::ShowStep() {
    // The inspector alone: editors paint.
    const TFinally inspected{[this] { ChangeValue(chInspect); }};
    FillSelPoints();
    Refresh();
}

void TVGRBaseLabel::ReplayStep(TReplay direction, std::vector<TVGRCmd>& from) {
    std::vector<TVGRCmd>& opposites = direction == TReplay::Undo ? fStacks->redo : fStacks->undo;
    const std::size_t before = opposites.size();
    const std::uint32_t cleared = fStacks->TimesCleared();
    std::vector<TVGRCmd> step = fStacks->TakeStep(from);
    // An observer may clear the document in the middle; then there is nothing left to do.
    auto stands = [&] { return fStacks->TimesCleared() == cleared; };
    const bool calculates = !std::ranges::all_of(step, [](const TVGRCmd& each) { return each.fKind == ckState; });
    try {
        bool revived = false;
        for (auto command = step.begin(); command != step.end() && stands(); ++command)
            if (command->fKind == ckDelete) {
                Revive(*command, direction);
                revived = true;
            }
        for (auto command = step.begin(); command != step.end() && stands(); ++command)
            if (command->fKind != ckDelete)
                Replay(*command, direction);
        if (revived && stands())
            AssignSymbolAndFlowLinks();
    } catch (...) {
        if (stands()) {
            TakeBack(opposites, before);
            fStacks->PutBack(from, step);
        }
        throw;
    }
    if (!calculates)
        return; // an image holds what was calculated
    const TFinally calculated{[this] { RemoveState(lsCalc); }};
    CalcPending();
}

void TVGRBaseLabel::TakeBack(std::vector<TVGRCmd>& opposites, std::size_t before) {
    while (opposites.size() > before) {
        const TVGRCmd command = std::move(opposites.back());
        opposites.pop_back();
        try {
            if (command.fKind == ckDelete)
                Revive(command, TReplay::Back);
            else if (command.fKind == ckCreate)
                Discard(command);
            else
                Replay(command, TReplay::Back);
        } catch (...) {
            // What cannot be taken back stays; the first fault is the one to tell.
        }
    }
}

void TVGRBaseLabel::Discard(const TVGRCmd& creation) {
    fStacks->replay = TReplay::Back;
    const TFinally end{[this] { fStacks->replay = TReplay::None; }};
    if (creation.fReceiver->item)
        FreeItem(*creation.fReceiver->item);
}

void TVGRBaseLabel::Replay(const TVGRCmd& command, TReplay direction) {
    if (const TLog* log = std::get_if<TLog>(&command.fValue)) {
        const TReceivers receivers = ExchangeState(**log);
        if (direction != TReplay::Back) {
            auto& opposites = direction == TReplay::Undo ? fStacks->redo : fStacks->undo;
            fStacks->PushState(opposites, {ckState, command.fIndex, fStacks->StepGroup(), nullptr, *log});
        }
        TellExchanged(**log, receivers);
        return;
    }
    TVGRBaseItem* item = command.fReceiver->item;
    if (!item)
        return; // it went without a command
    fStacks->replay = command.fKind == ckCreate && direction == TReplay::Redo ? TReplay::Deletion : direction;
    const TFinally end{[this] { fStacks->replay = TReplay::None; }};
    if (command.fKind == ckCreate) {
        DeleteItem(*item, true);
        return;
    }
    RestoreState(*item, command);
    if (PlacingCmds.Has(command.fKind) && command.fReceiver->item)
        command.fReceiver->item->UpdateBounds();
}

void TVGRBaseLabel::Revive(const TVGRCmd& deletion, TReplay direction) {
    if (deletion.fReceiver->item)
        return; // it is back by another way
    fStacks->replay = direction;
    const TFinally end{[this] { fStacks->replay = TReplay::None; }};
    {
        ++fCreating;
        const TFinally whole{[this] { --fCreating; }};
        TVGRBaseItem& item = CreateElementFromStream(std::get<std::string>(deletion.fValue));
        // The numbers may have begun anew since the deletion: this one is taken again.
        if (item.GetInID() == fMaxID)
            NextID();
        // The item takes the place of the one that was deleted: in commands and handles from before, and in what its
        // construction recorded just now.
        std::vector<TVGRCmd>& stack = fStacks->Recording();
        for (auto last = stack.rbegin(); last != stack.rend() && last->fReceiver == item.fReceiver; ++last)
            last->fReceiver = deletion.fReceiver;
        if (item.fReceiver)
            item.fReceiver->item = nullptr;
        item.fReceiver = deletion.fReceiver;
        item.fReceiver->SetItem(&item);
        item.ResolveReferences();
    }
    TellOwed();
}

} // namespace vagrel
