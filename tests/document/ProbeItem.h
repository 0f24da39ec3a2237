// SPDX-License-Identifier: MIT
// Items of any type that tests watch from inside.
#pragma once

#include <tests/support/TestHost.h>

#include <vagrel/document/TVGR2DItem.h>

#include <functional>

namespace vagrel::test {

/// An item with the rules of its base class alone. Counts what the document asks of it.
template <class Base>
class Probe : public Base {
public:
    Probe(TVGRBaseLabel& owner, TKSLItemType type, const TKSLPtoA& points, bool preview = false)
        : Base(owner, type, preview) {
        this->fPoints = points;
        this->UpdateBounds();
    }

    using Base::fAngle;
    TKSLChain chain;
    std::vector<int> calcs; ///< what `CalcValues` was called with
    std::function<void()> onCalc = [] {};

    TKSLChain Chain() const override { return chain; }
    void CalcValues(int kind) override { calcs.push_back(kind), onCalc(); }
    TKSLBase CenterPoint() const override { return {}; }
    void CheckProp(TKSLInpectorBaseTypes&, TKSLInpectorTypes&) const override {}
    void WriteSVG(TSVGOutput&) const override {}
    void DrawItem(const TVGRBaseDraw&) override {}
    void PrintItem(const TVGRBaseDraw&) override {}
};
using ProbeItem = Probe<TVGRBaseItem>;
using ProbeBox = Probe<TVGR2DItem>;

/// The document owns what is made.
inline ProbeItem& MakeProbe(TVGRBaseLabel& label, TKSLItemType type, const TKSLPtoA& points = {{0, 0}, {100, 100}}) {
    return *new ProbeItem(label, type, points);
}

} // namespace vagrel::test
