// SPDX-License-Identifier: MIT
// Changes of a document that are one step or none.
#pragma once

#include <memory>
#include <string>

namespace vagrel {

class TVGRBaseLabel;
namespace detail {
struct TStateLog;
}

/// Everything that happens to a document between this object's begin and `Commit` is one step of undo, and going back
/// is exact: items, layers, styles, counters and their orders, page, units, settings and definitions of data are what
/// they were, member for member. What a host keeps beside is not: selection, action, preview copies, the data cursor,
/// the host's own data sources, folders, options, clipboard.
///
/// While one is open nothing is recorded and `OnUndoRedo` is silent; brackets, observers and events go on. `Undo` and
/// `Redo` do nothing. Transactions may be nested: an inner one that is taken back takes back its own changes, one that
/// is committed belongs to the outer one. `New`, a full read, and `Clear` of all or of the undo stacks end all of them
/// without a step. Items must be deleted through the document while one is open. Main thread.
class Transaction {
public:
    /// Name and author are kept with the step, see `UndoName` of the document. Throws EInvalidOperation while a
    /// document is read or a step replayed.
    explicit Transaction(TVGRBaseLabel& document, std::u16string name = {}, std::u16string author = {});
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    /// Takes everything back that was not committed.
    ~Transaction();

    /// Ends it. True when a step was left: false when nothing has changed, when the document records nothing, and when
    /// the transaction had ended before. Throws EInvalidOperation while an inner one is open.
    bool Commit();
    /// Takes everything back, inner transactions included. Nothing when it has ended. Throws what observers throw, when
    /// all is done.
    void Rollback();
    bool IsOpen() const;

private:
    TVGRBaseLabel& fDocument;
    std::weak_ptr<detail::TStateLog> fLog;
};

} // namespace vagrel
