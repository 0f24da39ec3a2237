// SPDX-License-Identifier: MIT
// The rectangle, with or without rounded corners.
#pragma once

#include <vagrel/items/Mixins.h>

namespace vagrel {

/// A rectangle between points 1 and 2.
class TVGRBaseRectangle : public WithLineType<WithWidthHeight<TVGR2DItem>>, public IKSLRadio {
public:
    TVGRBaseRectangle(TVGRBaseLabel& owner, bool preview);
    TVGRBaseRectangle(TVGRBaseLabel& owner, TVGRLayer& layer, bool preview);

    /// The corner radius in the document's unit. A radius above half the height is cut to that.
    float GetRadio() const override;
    void SetRadio(float value) override;
    /// Base units, without limit.
    std::int64_t GetBaseRadio() const override { return fRadio; }
    void SetBaseRadio(std::int64_t value) override;
    float GetMMRadio() const { return FromBase(fRadio); }

    TKSLShape Shape() const override;
    bool Pick(std::int64_t bx, std::int64_t by, std::int64_t gap, bool fill) override;
    bool CheckPoint(std::int64_t bx, std::int64_t by, std::int64_t gap, TKSLSnap snap, TKSLRef& ref) const override;
    TKSLBase CenterPoint() const override;
    void CheckProp(TKSLInpectorBaseTypes& base, TKSLInpectorTypes& props) const override;
    void WriteSVG(TSVGOutput& out) const override;
    void Members(TMembers& members) override;

protected:
    void Keys(TJsonFields& keys) override;
    void Fields(TBinaryFields& fields) override;

private:
    std::int64_t fRadio = 0;
};

} // namespace vagrel
