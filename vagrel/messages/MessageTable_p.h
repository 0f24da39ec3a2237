// SPDX-License-Identifier: MIT
// The groups of messages and their default texts.
#pragma once

#include <span>
#include <string_view>

namespace vagrel {

struct TMessage {
    std::u16string_view key; // without the prefix of its group
    std::u16string_view text;
};

struct TMessageGroup {
    std::u16string_view prefix;
    std::u16string_view section; // of a language file
    std::span<const TMessage> defaults;
};

/// All groups, in the order in which a language file is read.
std::span<const TMessageGroup> MessageGroups();

} // namespace vagrel
