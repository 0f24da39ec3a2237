// SPDX-License-Identifier: MIT
// The display names of list properties.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <string>
#include <vector>

namespace vagrel {

/// Replaces `list` by the display names of a kind, in the order of the enumeration that they stand for and in the
/// language of the message table. The lists that depend on a document become empty.
void FillList(TKSListProp kind, std::vector<std::u16string>& list);

/// The one untranslated name at `index`, from 0; empty for an index out of range, for `lpTerm` and for the lists that
/// depend on a document.
std::u16string ItemList(TKSListProp kind, int index);

} // namespace vagrel
