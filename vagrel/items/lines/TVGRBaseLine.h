// SPDX-License-Identifier: MIT
// The straight segment.
#pragma once

#include <vagrel/items/Mixins.h>

namespace vagrel {

/// A line from point 1 to point 2.
class TVGRBaseLine : public WithLineType<TVGRBaseItem> {
public:
    TVGRBaseLine(TVGRBaseLabel& owner, bool preview);
    TVGRBaseLine(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    TKSLChain Chain() const override { return {1, 2, false}; }
    bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) override;
    bool SearchRect(const TKSLRect& rect, bool intersects) const override;
    /// Half the absolute differences of the coordinates of the two ends.
    TKSLBase CenterPoint() const override;
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;

    void WriteSVG(TSVGOutput& out) const override;
};

} // namespace vagrel
