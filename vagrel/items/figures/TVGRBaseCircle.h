// SPDX-License-Identifier: MIT
// The circle.
#pragma once

#include <vagrel/items/figures/TVGRRoundItem.h>

namespace vagrel {

/// A circle in the square between points 1 and 2.
class TVGRBaseCircle : public TVGRRoundItem, public IKSLRadio {
public:
    TVGRBaseCircle(TVGRBaseLabel& owner, bool preview);
    TVGRBaseCircle(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    /// In the document's unit; a new radius keeps the centre.
    float GetRadio() const override { return RadioX(); }
    void SetRadio(float value) override;
    std::int64_t GetBaseRadio() const override { return fBaseRadioX; }
    void SetBaseRadio(std::int64_t value) override;

    TKSLShape Shape() const override { return TKSLShape::Circle(fBaseX, fBaseY, fBaseRadioX); }
    bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) override;
    bool SearchRect(const TKSLRect& rect, bool intersects) const override;
    bool CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap, TKSLRef& ref) const override;
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;
    void WriteSVG(TSVGOutput& out) const override { WriteCircle(out); }
};

} // namespace vagrel
