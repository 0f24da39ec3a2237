// SPDX-License-Identifier: MIT
// What circle, ellipse and sector share: a centre and radii that follow from the box between points 1 and 2.
#pragma once

#include <vagrel/items/Mixins.h>

namespace vagrel {

/// A figure inscribed in a box. Centre and radii are kept beside the points, in base units, and refreshed with the
/// bounds.
class TVGRRoundItem : public WithLineType<TVGR2DItem>, public IKSLCenter {
public:
    std::int64_t GetBaseCenterX() const override { return fBaseX; }
    std::int64_t GetBaseCenterY() const override { return fBaseY; }
    /// In the document's unit. A new centre keeps the figure on the label; the change is recorded.
    float GetCenterX() const override;
    float GetCenterY() const override;
    void SetCenterX(float value) override;
    void SetCenterY(float value) override;

    void UpdateBounds() override;
    TKSLBase CenterPoint() const override { return {fBaseX, fBaseY}; }
    bool CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap, TKSLRef& ref) const override;
    void Members(TMembers& members) override;

protected:
    using WithLineType::WithLineType;

    /// Whether the label that the centre is kept on is measured in base coordinates or on paper.
    virtual bool CenterOnScaledLabel() const { return false; }
    float RadioX() const;
    float RadioY() const;
    /// Puts the two points around the centre.
    void Rebuild(std::int64_t radiusX, std::int64_t radiusY);
    bool PickDisc(std::int64_t bx, std::int64_t by, std::int64_t gap) const;
    /// False when the figure would draw nothing.
    bool Draws() const { return fFill || fPenWidth > 0; }
    /// The figure as a whole circle.
    void WriteCircle(TSVGOutput& out) const;

    std::int64_t fBaseX = 0;
    std::int64_t fBaseY = 0;
    std::int64_t fBaseRadioX = 0;
    std::int64_t fBaseRadioY = 0;

private:
    std::int64_t KeptOnLabel(std::int64_t center, std::int64_t radius, TKSLMeasureType size) const;
};

} // namespace vagrel
