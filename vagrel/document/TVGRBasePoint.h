// SPDX-License-Identifier: MIT
// The point: the smallest item, a place that snapping and links know.
#pragma once

#include <vagrel/document/TVGRBaseItem.h>

namespace vagrel {

/// One point. It has no look in SVG.
class TVGRBasePoint : public TVGRBaseItem, public IKSLLink {
public:
    TVGRBasePoint(TVGRBaseLabel& owner, bool preview);
    TVGRBasePoint(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    float GetRefX(int) const override { return GetPointX(1); }
    float GetRefY(int) const override { return GetPointY(1); }
    /// A square of 500 base units on each side of the point.
    void UpdateBounds() override;
    bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) override;
    bool CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap, TKSLRef& ref) const override;
    TKSLBase CenterPoint() const override { return {GetPoint(1).bX, GetPoint(1).bY}; }
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;

    void LinkPoint(int, TKSLBase& point) const override { point = CenterPoint(); }
    std::int32_t InternalID() const override { return GetInID(); }
    /// Within 1000 base units of the point.
    bool CheckLink(std::int64_t bx, std::int64_t by, TKSLink& link) const override;

    void WriteSVG(TSVGOutput&) const override {}
};

} // namespace vagrel
