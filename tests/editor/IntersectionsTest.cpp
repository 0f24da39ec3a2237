// SPDX-License-Identifier: MIT
// The worker that finds crossings, and what becomes of them while the document changes.
#include <tests/editor/EditorFixture.h>

#include <vagrel/platform/MainThreadQueue.h>

#include <random>

namespace vagrel::test {
namespace {

class Intersections : public Editor {
protected:
    /// Pumps until the worker has reported.
    void Settle() {
        while (label.GetComputActive())
            MainThread().WaitAndPump(std::chrono::milliseconds(10));
    }
    void Compute() {
        label.CheckIntersetions();
        Settle();
    }
    std::vector<TKSLPto> Places() const {
        std::vector<TKSLPto> places;
        for (const TIntSecPoint& crossing : label.GetIntersections())
            places.push_back(crossing.fPoint);
        return places;
    }
    bool Snap(TKSLPto at, bool excludeSelected = false) {
        return label.SearchPoint(at.bX, at.bY, 100, snCross, ref, excludeSelected);
    }

    TVGRBaseItem& across = label.CreateLine(5000, 10000, 30000, 10000);
    TVGRBaseItem& down = label.CreateLine(10000, 5000, 10000, 20000);
    TVGRBaseItem& circle = label.CreateCircle({20000, 10000}, 3000);
    TKSLRef ref;
};

TEST_F(Intersections, RisingPairsOfVisibleItems) {
    EXPECT_EQ(Places(), TKSLPtoA{});
    Compute();
    EXPECT_EQ(label.GetIntersections(),
              (std::vector<TIntSecPoint>{{{10000, 10000}, 1, 2}, {{17000, 10000}, 1, 3}, {{23000, 10000}, 1, 3}}));
    circle.SetOptions({lopSelectable});
    Compute();
    EXPECT_EQ(Places(), (TKSLPtoA{{10000, 10000}}));
    down.SetOptions({});
    Compute();
    EXPECT_EQ(Places(), TKSLPtoA{}) << "one visible item is left";
}

TEST_F(Intersections, SnapToTheLastOneNearby) {
    Compute();
    label.CreateLine(9950, 5000, 9950, 20000);
    Compute();
    EXPECT_TRUE(Snap({10000, 10000}));
    EXPECT_EQ(ref.bX, 9950) << "searched from the end";
    EXPECT_EQ(ref.fType, rtyRect);
    EXPECT_TRUE(Snap({17100, 9900}));
    EXPECT_FALSE(Snap({17101, 10000}));
    Select({&circle});
    EXPECT_FALSE(Snap({17000, 10000}, true));
    EXPECT_TRUE(Snap({10000, 10000}, true));
}

TEST_F(Intersections, DeletedItemsTakeTheirsAlongAtOnce) {
    Compute();
    label.FreeItem(circle);
    EXPECT_FALSE(Snap({17000, 10000}));
    EXPECT_EQ(Places(), (TKSLPtoA{{10000, 10000}}));
    // Deleted while a computation with it runs.
    label.CheckIntersetions();
    label.FreeItem(down);
    Settle();
    EXPECT_EQ(Places(), TKSLPtoA{});
    label.CreateLine(20000, 5000, 20000, 20000);
    Compute();
    label.Clear({cleItems}, false);
    EXPECT_EQ(Places(), TKSLPtoA{});
}

TEST_F(Intersections, StayBehindEditsOnlyWhereTheyNeedNotBeFresh) {
    EXPECT_TRUE(label.GetFreshCrossings()) << "the choice of the reference host";
    for (const bool fresh : {false, true}) {
        label.SetFreshCrossings(fresh);
        Compute();
        label.CheckIntersetions();
        EXPECT_TRUE(label.GetComputActive());
        TVGRBaseItem& line = label.CreateLine(12000, 5000, 12000, 20000);
        label.CheckIntersetions();
        Settle();
        EXPECT_EQ(Places().size(), fresh ? 4u : 3u) << "with the new line when its request was remembered";
        Compute();
        label.DeleteItem(line, true);
        for (const std::size_t places : {4u, 3u}) {
            places == 4 ? label.Undo() : label.Redo();
            EXPECT_EQ(label.GetComputActive(), fresh);
            Settle();
            EXPECT_EQ(Places().size(), fresh ? places : 3u);
        }
    }
}

TEST_F(Intersections, ADocumentThatIsClearedDoesNotGetTheOldOnes) {
    label.CheckIntersetions();
    label.New();
    EXPECT_FALSE(label.GetComputActive());
    label.CreateLine(0, 0, 10000, 10000);
    label.CreateLine(0, 10000, 10000, 0);
    Compute();
    MainThread().Pump(); // the report of the computation that was given up
    EXPECT_EQ(label.GetIntersections(), (std::vector<TIntSecPoint>{{{5000, 5000}, 1, 2}}));
}

// Lines all over the page.
void Scatter(TVGRBaseLabel& label, int count) {
    std::mt19937 random(7);
    std::uniform_int_distribution<std::int64_t> x(0, 60000), y(0, 35000);
    for (int i = 0; i < count; ++i) {
        const std::int64_t x1 = x(random), y1 = y(random), x2 = x(random), y2 = y(random);
        label.CreateLine(x1, y1, x2, y2);
    }
}

TEST_F(Intersections, ADocumentMayDieWhileTheyAreComputed) {
    for (int i = 0; i < 5; ++i) {
        TestHost dying;
        Scatter(dying, 1500);
        dying.CheckIntersetions();
    }
    MainThread().Pump();
}

// Work that was posted is the event loop's: a document that ends runs none of it, neither here nor on its own thread.
TEST_F(Intersections, ADocumentThatDiesDoesNobodysWork) {
    for (const bool elsewhere : {false, true}) {
        auto dying = std::make_unique<TestHost>();
        Scatter(*dying, 300);
        dying->CheckIntersetions();
        int done = 0;
        MainThread().Post([&] { done += dying ? 100 : 1; });
        if (elsewhere)
            std::thread([&] { dying.reset(); }).join();
        else
            dying.reset();
        EXPECT_EQ(done, 0);
        while (MainThread().Pump()) { // and the worker's report finds nobody
        }
        EXPECT_EQ(done, 1);
    }
}

TEST_F(Intersections, TheMainThreadEditsMeanwhile) {
    Scatter(label, 300);
    for (int round = 0; round < 40; ++round) {
        label.CheckIntersetions();
        TVGRBaseItem& item = *label.GetItem(4 + round);
        Select({&item});
        label.MoveBaseSelection(round % 2 ? 100 : -100, 50, false, true);
        Snap({30000, 15000});
        if (round % 4 == 0)
            label.FreeItem(item);
        MainThread().Pump();
    }
    Settle();
    Compute();
    // What was published belongs to the items as they stand.
    std::vector<TIntSecPoint> expected;
    for (int i = 1; i <= label.ItemsCount(); ++i)
        for (int j = i + 1; j <= label.ItemsCount(); ++j)
            label.GetItem(i)->IntersectsWith(*label.GetItem(j), expected);
    EXPECT_EQ(label.GetIntersections(), expected);
    EXPECT_GT(expected.size(), 1000u);
}

} // namespace
} // namespace vagrel::test
