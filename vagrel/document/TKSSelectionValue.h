// SPDX-License-Identifier: MIT
// What a document keeps for its editor: the handles of the selection.
#pragma once

#include <vagrel/foundation/Records.h>

namespace vagrel {

class TVGRBaseItem;

/// One handle of the selection. Positions are in the document's unit.
struct TKSSelectionValue {
    float X1 = 0, Y1 = 0;
    float X2 = 0, Y2 = 0; ///< second corner, for the kinds that span a box or a line
    TKSLSelType SelType = stNone;
    TVGRBaseItem* Item = nullptr;
    std::int16_t Pos = 0; ///< index of the point in the item, from 1
};

} // namespace vagrel
