// SPDX-License-Identifier: MIT
// The open chain of segments.
#pragma once

#include <vagrel/items/Mixins.h>
#include <vagrel/items/TTerminal.h>

namespace vagrel {

/// Any number of points joined by segments, with a terminal at either end.
class TVGRBasePolyLine : public WithTerminals<WithLineType<TVGRBaseItem>> {
public:
    TVGRBasePolyLine(TVGRBaseLabel& owner, bool preview);
    TVGRBasePolyLine(TVGRBaseLabel& owner, int points, bool preview);
    TVGRBasePolyLine(TVGRBaseLabel& owner, TVGRLayer& layer, int points, bool preview);

    /// Appends a point, in the document's unit.
    void AddPoint(float x, float y);
    void Update() { UpdateBounds(); }

    TKSLChain Chain() const override { return fPoints.empty() ? TKSLChain() : TKSLChain{1, NumPoints(), false}; }
    bool InsertPoint(std::int64_t bx, std::int64_t by, std::int64_t gap) override { return InsertInChain(bx, by, gap); }
    bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) override;
    bool SearchRect(const TKSLRect& rect, bool intersects) const override;
    void CheckFit(TKSLExtent& extent) const override;
    TKSLBase CenterPoint() const override { return MeanPoint(); }
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;

    void WriteSVG(TSVGOutput& out) const override;
};

} // namespace vagrel
