// SPDX-License-Identifier: MIT
// The two stacks of commands and the numbers that group them. What a command does is the document's business.
#pragma once

#include <vagrel/document/TVGRCmd_p.h>

#include <cstdint>
#include <vector>

namespace vagrel::detail {

/// What a command in replay does with what it causes to be recorded.
enum class TReplay : std::uint8_t {
    None,
    Undo,     ///< recorded for redo, under the number of the step
    Redo,     ///< recorded for undo, likewise
    Deletion, ///< redone: recorded for undo as a step of its own
    Back      ///< not recorded: a step that failed is taken back
};

class TUndoStacks {
public:
    using TStack = std::vector<TVGRCmd>;

    TStack undo, redo;
    TReplay replay = TReplay::None;

    /// The stack that commands are recorded on now.
    TStack& Recording() { return replay == TReplay::Undo ? redo : undo; }
    /// The number of the step that the next command belongs to.
    std::int32_t NextGroup();
    /// Between them all commands have one number.
    void OpenGroup() { fIncUnReID = false; }
    void CloseGroup();
    /// Each command has a number of its own again.
    void LeaveGroup() { fIncUnReID = true; }
    bool InGroup() const { return !fIncUnReID; }
    std::int32_t Group() const { return fUnReID; }
    /// Back to the number that `Group` answered, and whether commands share it.
    void RestoreGroup(std::int32_t group, bool open) { fUnReID = group, fIncUnReID = !open; }

    /// Whether the last command holds what a new one of this property would: then nothing is recorded. In a replay it
    /// must be of the step that is replayed.
    bool Coalesces(TVGRCmdKind kind, std::int32_t index, const std::shared_ptr<TVGRReceiver>& receiver);
    void Push(TVGRCmd command) { Recording().push_back(std::move(command)); }
    /// Takes out the last command when it is the one given by these.
    void DropLast(TVGRCmdKind kind, std::int32_t index, const std::shared_ptr<TVGRReceiver>& receiver);
    /// An item that ends before anything else was recorded than its own creation and what followed from it has been no
    /// step. True when commands were taken out.
    bool DropConstruction(const std::shared_ptr<TVGRReceiver>& receiver);

    /// Takes the commands of the last step out of a stack, the newest first. What is recorded from now on in a replay
    /// belongs to this step.
    TStack TakeStep(TStack& stack);
    /// Puts such a step back.
    void PutBack(TStack& stack, TStack& step);

    std::int32_t StepGroup() const { return fUnReRef; }
    /// What was found is kept until a transaction's command comes to that stack: all recordings ask.
    bool RedoHoldsTransaction();
    /// The opposite of a transaction's command.
    void PushState(TStack& stack, TVGRCmd command);

    /// What stands on the stacks, to be put aside and brought back.
    struct TKept {
        TStack undo, redo;
        std::int32_t group;
        std::vector<std::shared_ptr<void>> retired;
    };
    TKept PutAside();
    void BringBack(TKept kept);

    /// Forgets all commands; numbers begin anew.
    void Clear();
    /// Keeps what left the document while commands may hold its address.
    void Retire(std::shared_ptr<void> part);
    bool HasRetired() const { return !fRetired.empty(); }
    /// How often that was done.
    std::uint32_t TimesCleared() const { return fTimesCleared; }

private:
    bool Regroups() const { return replay != TReplay::None && replay != TReplay::Deletion; }

    bool fIncUnReID = true;
    bool fStateTaken = false; ///< a step that is replayed may hold states, too
    bool fRedoIsTold = true;  ///< certainly without a transaction's command
    std::int32_t fUnReID = 0, fUnReRef = 0;
    std::uint32_t fTimesCleared = 0;
    std::vector<std::shared_ptr<void>> fRetired;
};

} // namespace vagrel::detail
