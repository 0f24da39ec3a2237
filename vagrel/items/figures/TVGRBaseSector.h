// SPDX-License-Identifier: MIT
// The sector of a circle.
#pragma once

#include <vagrel/items/figures/TVGRRoundItem.h>

namespace vagrel {

/// A slice of the circle in the square between points 1 and 2. Angles are degrees, growing clockwise on screen; a sweep
/// of 360 makes the whole circle.
class TVGRBaseSector : public TVGRRoundItem, public IKSLRadio, public IKSLAngle {
public:
    TVGRBaseSector(TVGRBaseLabel& owner, bool preview);
    TVGRBaseSector(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    float GetRadio() const override { return RadioX(); }
    void SetRadio(float value) override;
    std::int64_t GetBaseRadio() const override { return fBaseRadioX; }
    void SetBaseRadio(std::int64_t value) override;

    /// −359 to 360.
    float GetStartAngle() const { return fAngleStart; }
    void SetStartAngle(float value);
    /// 0 to 360 − |start|.
    float GetSweepAngle() const { return fAngleGap; }
    void SetSweepAngle(float value);
    /// The start angle after the item's rotation.
    float GetCalcStart() const { return fCalcStart; }

    TKSLAngle GetAngle() const override { return fAngle; }
    void SetAngle(TKSLAngle value) override;
    void RotateLeft() override;
    void RotateRight() override;
    bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) override;
    bool SearchRect(const TKSLRect& rect, bool intersects) const override;
    void CheckFit(TKSLExtent& extent) const override;
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;
    void WriteSVG(TSVGOutput& out) const override;
    void Members(TMembers& members) override;

protected:
    void Keys(TJsonFields& keys) override;
    void Fields(TBinaryFields& fields) override;

private:
    void AdjustStartAngle();
    /// From the centre to the rim in a direction.
    TPoint2D ToRim(float degrees) const;

    float fAngleStart = 0;
    float fAngleGap = 0;
    float fCalcStart = 0;
};

} // namespace vagrel
