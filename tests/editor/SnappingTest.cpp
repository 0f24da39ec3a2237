// SPDX-License-Identifier: MIT
// Snap searches over the whole document, and the guides of a selected item.
#include <tests/editor/EditorFixture.h>

#include <vagrel/document/TVGRLayer.h>

namespace vagrel::test {
namespace {

class Snapping : public Editor {
protected:
    TKSLPto Find(TKSLPto at, TKSLSnap snap, bool excludeSelected = false) {
        ref.Reset(true);
        return label.SearchPoint(at.bX, at.bY, 300, snap, ref, excludeSelected) ? TKSLPto{ref.bX, ref.bY}
                                                                                : TKSLPto{-1, -1};
    }
    static constexpr TKSLPto No{-1, -1};
    TKSLRef ref;
};

TEST_F(Snapping, TheTopItemAnswersUnlessItIsLeftOut) {
    label.CreateLine(10000, 10000, 20000, 10000);
    TVGRBaseItem& top = label.CreateLine(10100, 10100, 20000, 20000);
    EXPECT_EQ(Find({10000, 10000}, snEnd), (TKSLPto{10100, 10100}));
    Select({&top});
    EXPECT_EQ(Find({10000, 10000}, snEnd), (TKSLPto{10100, 10100}));
    EXPECT_EQ(Find({10000, 10000}, snEnd, true), (TKSLPto{10000, 10000}));
    top.SetOptions({lopVisible});
    EXPECT_EQ(Find({10000, 10000}, snEnd), (TKSLPto{10000, 10000}));
    label.GetLayer(1).SetOptions({lopSelectable});
    EXPECT_EQ(Find({10000, 10000}, snEnd), No);
}

TEST_F(Snapping, AHitBecomesTheLastPointOfTheNextSearch) {
    label.CreatePoint(10000, 30000);
    label.CreateLine(5000, 10000, 30000, 10000);
    label.CreateCircle({40000, 20000}, 5000);
    EXPECT_EQ(Find({10000, 10000}, snPerpendicular), No) << "from nowhere";
    EXPECT_EQ(Find({40000, 15100}, snTangent), (TKSLPto{40000, 15000})) << "the outline itself";
    Find({10000, 30000}, snPoint);
    EXPECT_TRUE(ref.link && ref.draw);
    EXPECT_TRUE(label.SearchPoint(10200, 9900, 300, snPerpendicular, ref, false));
    EXPECT_EQ((TKSLPto{ref.lbX, ref.lbY}), (TKSLPto{10000, 10000}));
}

class Guides : public Editor {
protected:
    using TGuide = std::array<std::int64_t, 4>;
    std::vector<TGuide> Fill() {
        label.FillRefLines();
        std::vector<TGuide> guides;
        for (int i = 1; i <= label.NumRefLines(); ++i) {
            const TKSLRefLine line = label.GetRefLine(i);
            guides.push_back({line.bX1, line.bY1, line.bX2, line.bY2});
        }
        return guides;
    }
    TVGRBaseItem& own = label.CreateRectangle(10000, 10000, 5000, 5000);
};

TEST_F(Guides, RunBetweenPointsOnOneLine) {
    label.CreatePoint(10000, 30000);                            // below the top left corner
    label.CreatePoint(40000, 15000);                            // right of the bottom right one
    label.CreatePoint(10001, 29999);                            // near is not on
    label.CreateRectangle(10000, 10000, 2000, 3000);            // on both axes: vertical alone
    label.CreatePoint(15000, 1000).SetOptions({lopVisible});    // seen, not selectable
    label.CreatePoint(15000, 2000).SetOptions({lopSelectable}); // hidden
    EXPECT_EQ(Fill(), std::vector<TGuide>{}) << "nothing is selected";
    Select({&own});
    EXPECT_EQ(Fill(), (std::vector<TGuide>{{10000, 10000, 10000, 10000}, // shortened to the nearer one
                                           {10000, 10000, 10000, 10000},
                                           {15000, 15000, 40000, 15000},
                                           {15000, 15000, 15000, 1000}}));
    EXPECT_EQ(label.GetRefLine(5).bX1, 0);
    label.ResetRefLines();
    EXPECT_EQ(label.NumRefLines(), 0);
    label.AddToSelection(*label.GetItem(2), false);
    EXPECT_EQ(Fill(), std::vector<TGuide>{}) << "two are selected";
}

TEST_F(Guides, AreFourAtMostAndShortenInTheirDirectionAlone) {
    Select({&own});
    for (const std::int64_t x : {50000, 40000, 30000, 20000, 16000})
        label.CreatePoint(x, 10000);
    EXPECT_EQ(Fill(), (std::vector<TGuide>{{10000, 10000, 20000, 10000}, // each nearer point ends the first guide
                                           {10000, 10000, 40000, 10000},
                                           {10000, 10000, 30000, 10000},
                                           {10000, 10000, 20000, 10000}}));
    // A farther point shortens nothing.
    for (int i = 6; i > 3; --i)
        label.FreeItem(*label.GetItem(i));
    label.CreatePoint(55000, 10000);
    EXPECT_EQ(Fill(), (std::vector<TGuide>{
                          {10000, 10000, 40000, 10000}, {10000, 10000, 40000, 10000}, {10000, 10000, 55000, 10000}}));
}

} // namespace
} // namespace vagrel::test
