// SPDX-License-Identifier: MIT
// The drag of several items on a grid.
#pragma once

#include <vagrel/foundation/Records.h>
#include <vagrel/foundation/Rounding.h>

#include <optional>
#include <utility>

namespace vagrel {

/// Where a group of items was grabbed, in grid positions that the pointer reaches.
class GroupDrag {
public:
    void Reset() { fLast.reset(); }
    /// The way from the position that was reached before; nothing at the first one, which is where the group was
    /// grabbed.
    std::optional<TKSLPto> Step(TKSLPto reached) {
        const auto last = std::exchange(fLast, reached);
        if (!last)
            return {};
        return TKSLPto{SubSat(reached.bX, last->bX), SubSat(reached.bY, last->bY)};
    }

private:
    std::optional<TKSLPto> fLast;
};

} // namespace vagrel
