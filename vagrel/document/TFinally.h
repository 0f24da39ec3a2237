// SPDX-License-Identifier: MIT
// Actions that run when a scope ends.
#pragma once

#include <exception>
#include <utility>

namespace vagrel {

/// Runs an action when its scope ends, whatever ends it. The action may throw; when the scope ends by an exception,
/// that one goes on and the action's own is dropped.
template <class Action>
class TFinally {
public:
    explicit TFinally(Action action) : fAction(std::move(action)) {}
    TFinally(const TFinally&) = delete;
    TFinally& operator=(const TFinally&) = delete;
    ~TFinally() noexcept(false) {
        if (std::uncaught_exceptions() == fUnderWay) {
            fAction();
            return;
        }
        try {
            fAction();
        } catch (...) {
            // A second exception would end the program.
        }
    }

private:
    Action fAction;
    int fUnderWay = std::uncaught_exceptions();
};

} // namespace vagrel
