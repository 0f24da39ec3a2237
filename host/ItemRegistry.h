// SPDX-License-Identifier: MIT
// Which class of the host stands for an item type. All constructions of items by type go through here.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <vector>

namespace vagrel {

class TVGRBaseItem;
class TVGRBaseLabel;
class TVGRLayer;

/// How many points an item has, for the types whose points come from their data; other types take no notice.
using TPointCount = int;

/// Constructs an item of a stored type on a layer, or a preview copy; the document owns it. Throws ENotAvailable for a
/// type that this host has no class for yet, EVagrel for a number that is no type.
TVGRBaseItem& MakeItem(TVGRBaseLabel& label, TVGRLayer& layer, TKSLItemType type, TPointCount points,
                       bool preview = false);

/// The types that have a class.
std::vector<TKSLItemType> AvailableItemTypes();

} // namespace vagrel
