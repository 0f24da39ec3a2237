// SPDX-License-Identifier: MIT
// The closed chain of segments.
#pragma once

#include <vagrel/items/Mixins.h>

namespace vagrel {

/// Any number of points; the last one is joined to the first.
class TVGRBasePolygon : public WithLineType<TVGR2DItem> {
public:
    TVGRBasePolygon(TVGRBaseLabel& owner, bool preview);
    TVGRBasePolygon(TVGRBaseLabel& owner, int points, bool preview);
    TVGRBasePolygon(TVGRBaseLabel& owner, TVGRLayer& layer, int points, bool preview);

    void Update() { UpdateBounds(); }

    TKSLChain Chain() const override { return fPoints.empty() ? TKSLChain() : TKSLChain{1, NumPoints(), true}; }
    bool InsertPoint(std::int64_t bx, std::int64_t by, std::int64_t gap) override { return InsertInChain(bx, by, gap); }
    bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) override;
    TKSLBase CenterPoint() const override { return MeanPoint(); }
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;
    void WriteSVG(TSVGOutput& out) const override;
};

} // namespace vagrel
