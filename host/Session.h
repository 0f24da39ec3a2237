// SPDX-License-Identifier: MIT
// Events of a host as text: one JSON object a line, as docs/sessions.md tells.
#pragma once

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/document/Transaction.h>
#include <vagrel/foundation/Records.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

class TJsonObject;

/// Plays events on a document that outlives it, and watches the document as an editor, an inspector and a preview.
/// Takes the document's information, selection and undo events for the trace.
class Session {
public:
    /// Takes one line of the trace, without a line end.
    using TTrace = std::function<void(const std::string& line)>;

    explicit Session(TVGRBaseLabel& label, TTrace trace = {});
    ~Session();

    /// Plays every line; blank lines and those that begin with `#` are passed over. Throws EVagrel with the line's
    /// number for a line that cannot be played, or that expects something else; what came before it stands.
    void Play(std::string_view text);
    void PlayLine(std::string_view line);

    /// What an operation answered, as `expect` compares it; none when it has no answer.
    std::optional<bool> answer;
    /// The last snap.
    TKSLRef snap;
    TVGRBaseLabel& label;

    /// Transactions that the session opened, the innermost last; those that are left at its end are taken back.
    std::vector<std::unique_ptr<Transaction>> transactions;

    /// An operation and its parameters, with blanks between them; optional ones in brackets.
    struct TOperation {
        std::u16string_view name, parameters;
    };
    static std::vector<TOperation> Operations();

private:
    class Watcher;

    void Tell(std::string text);
    void Watch(TKSDestUpdate dest, TKSChange change, const TKSChangeValue& value);
    void Flush();

    TTrace fTrace;
    std::vector<std::unique_ptr<Watcher>> fWatchers;
    // A change on its way from one observer to the next.
    std::string fChange;
    TKSDestUpdate fLastTold = duEditor;
};

} // namespace vagrel
