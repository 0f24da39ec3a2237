// SPDX-License-Identifier: MIT
// The table of operations.
#pragma once

#include <host/Session.h>
#include <host/SessionArguments_p.h>

#include <span>

namespace vagrel {

struct TSessionRow {
    Session::TOperation operation;
    void (*play)(Session&, const SessionArguments&);
};

std::span<const TSessionRow> SessionRows();

} // namespace vagrel
