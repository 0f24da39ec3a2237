// SPDX-License-Identifier: MIT
// The ellipse with axes along the page.
#pragma once

#include <vagrel/items/figures/TVGRRoundItem.h>

namespace vagrel {

/// An ellipse in the rectangle between points 1 and 2.
class TVGRBaseEllipse : public TVGRRoundItem {
public:
    TVGRBaseEllipse(TVGRBaseLabel& owner, bool preview);
    TVGRBaseEllipse(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    /// In the document's unit; a new radius keeps the centre. Nothing is recorded.
    float GetRadioX() const { return RadioX(); }
    float GetRadioY() const { return RadioY(); }
    void SetRadioX(float value);
    void SetRadioY(float value);
    std::int64_t GetBaseRadioX() const { return fBaseRadioX; }
    std::int64_t GetBaseRadioY() const { return fBaseRadioY; }

    TKSLShape Shape() const override { return TKSLShape::Ellipse(fBaseX, fBaseY, fBaseRadioX, fBaseRadioY); }
    bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) override;
    bool SearchRect(const TKSLRect& rect, bool intersects) const override;
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;
    void WriteSVG(TSVGOutput& out) const override;

protected:
    bool CenterOnScaledLabel() const override { return true; }
};

} // namespace vagrel
