// SPDX-License-Identifier: MIT
// Update brackets that close with their scope.
#pragma once

#include <vagrel/document/TFinally.h>
#include <vagrel/document/TVGRBaseLabel.h>

namespace vagrel {

/// An update bracket that closes with its scope, after an exception too. Inside another one it opens and closes
/// nothing. Inside `BeginUpdate` of a host its notices go out at its end, and its commands are of the host's step.
class UpdateScope {
public:
    explicit UpdateScope(TVGRBaseLabel& label, bool paintOnEnd = true)
        : fClose(TClose{label, label.OpenScope(paintOnEnd)}) {}

private:
    struct TClose {
        TVGRBaseLabel& label;
        TVGRBaseLabel::TScope scope;
        void operator()() const { label.CloseScope(scope); }
    };
    TFinally<TClose> fClose;
};

} // namespace vagrel
