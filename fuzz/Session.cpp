// SPDX-License-Identifier: MIT
// Any lines as a session: each is played or refused, and the document still writes itself and goes back.
#include <host/HostLabel.h>
#include <host/Session.h>
#include <tests/support/StubItem.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Exceptions.h>

using namespace vagrel;

// The fonts of the machine have no part in this.
static const test::FixedTextMeasurer Measurer;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    TAct::ResetForTests();
    HostLabel label(nullptr, Measurer);
    Session session(label);
    std::string_view text(data, size);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        try {
            session.Play(text.substr(0, end));
        } catch (const EVagrel&) {
            // A line that cannot be played leaves the others their turn.
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    while (!session.transactions.empty())
        session.transactions.pop_back();
    label.GetJsonString(true);
    while (!label.IsUndoEmpty())
        label.Undo();
    label.GetJsonString(true);
    return 0;
}
