// SPDX-License-Identifier: MIT
// The character that tells in a list of fields where a field comes from.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <string>
#include <string_view>

namespace vagrel {

/// The symbols of `TKSLFillType`, a blank where there is none.
constexpr std::u16string_view FillSymbols = u" ~@{^?=@@@ ";
static_assert(FillSymbols[ftList] == u'=' && FillSymbols.size() == ftImg64 + 1);

/// A name with the symbol of its source in front.
inline std::u16string IncSymData(TKSLFillType type, std::u16string_view name) {
    const bool known =
        type > ftNone && std::size_t(type) < FillSymbols.size() && FillSymbols[std::size_t(type)] != u' ';
    return known ? FillSymbols[std::size_t(type)] + std::u16string(name) : std::u16string(name);
}

} // namespace vagrel
