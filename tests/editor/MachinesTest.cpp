// SPDX-License-Identifier: MIT
// The document's machines without a document: guides, the drag of a group, the computations of crossings.
#include <vagrel/editor/CrossingsWorker.h>
#include <vagrel/editor/GroupDrag.h>
#include <vagrel/editor/Guides.h>
#include <vagrel/platform/MainThreadQueue.h>

#include <gtest/gtest.h>

#include <limits>

namespace vagrel::test {
namespace {

constexpr std::int64_t Far = std::numeric_limits<std::int64_t>::max();

TEST(GuidesTable, KeepsFourAndAnswersBesideThem) {
    Guides guides;
    guides.Align({0, 0}, {1, 1}); // no coordinate in common
    EXPECT_EQ(guides.Count(), 0);
    guides.Align({0, -Far}, {0, Far});
    guides.Align({0, -Far}, {0, 5}); // shortens the first one, whose span no 64 bits hold
    EXPECT_EQ(guides.Get(1).bY2, 5);
    for (int i = 0; i < 9; ++i)
        guides.Align({1, 7}, {2, 7});
    EXPECT_EQ(guides.Count(), 4);
    for (const int outside : {0, 5, -1})
        EXPECT_EQ(guides.Get(outside).bX1, 0);
    guides.Reset();
    EXPECT_EQ(guides.Get(1).bY1, 0);
}

TEST(GroupDrag, TellsTheWayFromTheGrab) {
    GroupDrag drag;
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(drag.Step({5, 5}), std::nullopt);
        EXPECT_EQ(drag.Step({7, 4}), (TKSLPto{2, -1}));
        EXPECT_EQ(drag.Step({-Far, Far}), (TKSLPto{-Far - 1, Far - 4})) << "at the ends of the type";
        drag.Reset();
    }
}

class Crossings : public testing::Test {
protected:
    void Settle() {
        while (worker.IsActive())
            MainThread().WaitAndPump(std::chrono::milliseconds(10));
    }
    static TFigure Line(std::int32_t id, TKSLPto from, TKSLPto to) {
        return {id, TKSLShape::Segments({from, to}, false)};
    }

    std::vector<TFigure> figures{Line(1, {0, 0}, {10, 10}), Line(2, {0, 10}, {10, 0})};
    int asked = 0;
    CrossingsWorker worker{[this] {
        ++asked;
        return figures;
    }};
};

TEST_F(Crossings, RequestsMeanwhileAreDroppedOrMadeOnce) {
    for (const bool remembers : {false, true}) {
        worker.SetRemembers(remembers);
        asked = 0;
        for (int i = 0; i < 3; ++i)
            worker.Request();
        Settle();
        EXPECT_EQ(asked, remembers ? 2 : 1);
        EXPECT_EQ(worker.Published().List(), (std::vector<TIntSecPoint>{{{5, 5}, 1, 2}}));
    }
    // What was remembered goes with the computation that is given up.
    worker.Request(), worker.Request();
    worker.Clear();
    EXPECT_TRUE(worker.Published().List().empty());
    worker.Request(), worker.Request();
    worker.Stop();
    asked = 0;
    while (MainThread().Pump()) {
    }
    EXPECT_EQ(asked, 0);
    EXPECT_FALSE(worker.IsActive());
}

TEST_F(Crossings, BelongToTheMainThread) {
    std::thread([&] { worker.Request(); }).join();
    EXPECT_FALSE(worker.IsActive());
    EXPECT_EQ(asked, 0);
    figures.pop_back();
    worker.Request();
    EXPECT_FALSE(worker.IsActive()) << "one alone crosses nothing";
}

} // namespace
} // namespace vagrel::test
