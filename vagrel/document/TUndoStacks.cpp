// SPDX-License-Identifier: MIT
// Grouping and coalescing of commands.
#include <vagrel/document/TUndoStacks_p.h>

#include <vagrel/document/TStateLog_p.h>

#include <algorithm>
#include <iterator>

namespace vagrel::detail {

std::int32_t TUndoStacks::NextGroup() {
    if (Regroups())
        return fUnReRef;
    return fIncUnReID ? fUnReID++ : fUnReID;
}

void TUndoStacks::CloseGroup() {
    ++fUnReID;
    fIncUnReID = true;
}

bool TUndoStacks::Coalesces(TVGRCmdKind kind, std::int32_t index, const std::shared_ptr<TVGRReceiver>& receiver) {
    const TStack& stack = Recording();
    return CoalescingCmds.Has(kind) && !stack.empty() && stack.back().Is(kind, index, receiver) &&
           (!Regroups() || stack.back().fUndRedID == fUnReRef);
}

void TUndoStacks::DropLast(TVGRCmdKind kind, std::int32_t index, const std::shared_ptr<TVGRReceiver>& receiver) {
    TStack& stack = Recording();
    if (!stack.empty() && stack.back().Is(kind, index, receiver))
        stack.pop_back();
}

bool TUndoStacks::DropConstruction(const std::shared_ptr<TVGRReceiver>& receiver) {
    TStack& stack = Recording();
    auto first = stack.end();
    while (first != stack.begin() && std::prev(first)->fReceiver == receiver) {
        --first;
        if (first->fKind == ckDelete)
            return false;
        if (first->fKind == ckCreate) {
            stack.erase(first, stack.end());
            return true;
        }
    }
    return false;
}

TUndoStacks::TStack TUndoStacks::TakeStep(TStack& stack) {
    TStack step;
    if (stack.empty())
        return step;
    fUnReRef = stack.back().fUndRedID;
    while (!stack.empty() && stack.back().fUndRedID == fUnReRef) {
        fStateTaken = fStateTaken || stack.back().fKind == ckState;
        step.push_back(std::move(stack.back()));
        stack.pop_back();
    }
    return step;
}

void TUndoStacks::PutBack(TStack& stack, TStack& step) {
    fRedoIsTold = false;
    std::move(step.rbegin(), step.rend(), std::back_inserter(stack));
}

TUndoStacks::TKept TUndoStacks::PutAside() {
    return {std::exchange(undo, {}), std::exchange(redo, {}), fUnReID, std::exchange(fRetired, {})};
}

void TUndoStacks::BringBack(TKept kept) {
    undo = std::move(kept.undo);
    redo = std::move(kept.redo);
    fUnReID = kept.group;
    fRetired = std::move(kept.retired);
}

bool TUndoStacks::RedoHoldsTransaction() {
    auto isTold = [](const TVGRCmd& each) { return each.fKind != ckState || each.fIndex == 0; };
    fRedoIsTold = fRedoIsTold || std::ranges::all_of(redo, isTold);
    return !fRedoIsTold;
}

void TUndoStacks::PushState(TStack& stack, TVGRCmd command) {
    fRedoIsTold = false;
    stack.push_back(std::move(command));
}

void TUndoStacks::Clear() {
    fUnReID = 0;
    fStateTaken = false;
    ++fTimesCleared;
    // Elements that were parked end here; what they tell of must find empty stacks.
    const TStack ends[] = {std::exchange(undo, {}), std::exchange(redo, {})};
    const auto retired = std::exchange(fRetired, {});
}

void TUndoStacks::Retire(std::shared_ptr<void> part) {
    auto holds = [](const TVGRCmd& command) { return command.fKind == ckState; };
    if (fStateTaken || std::ranges::any_of(undo, holds) || std::ranges::any_of(redo, holds))
        fRetired.push_back(std::move(part));
}

} // namespace vagrel::detail
