// SPDX-License-Identifier: MIT
// The chain of cubic Bezier curves.
#pragma once

#include <vagrel/items/Mixins.h>
#include <vagrel/items/TTerminal.h>

namespace vagrel {

/// A start point followed by groups of two control points and an end point: 3k + 1 points.
class TVGRBaseBezier : public WithTerminals<WithLineType<TVGR2DItem>> {
public:
    TVGRBaseBezier(TVGRBaseLabel& owner, bool preview);
    TVGRBaseBezier(TVGRBaseLabel& owner, int points, bool preview);
    TVGRBaseBezier(TVGRBaseLabel& owner, TVGRLayer& layer, int points, bool preview);

    void Update() { UpdateBounds(); }

    /// On the straight segments between stored points, control points included.
    bool InsertPoint(std::int64_t bx, std::int64_t by, std::int64_t gap) override { return InsertInChain(bx, by, gap); }
    bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) override;
    TKSLBase CenterPoint() const override { return MeanPoint(); }
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;
    void WriteSVG(TSVGOutput& out) const override;
};

} // namespace vagrel
