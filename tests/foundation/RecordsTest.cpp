// SPDX-License-Identifier: MIT
// Rectangles, points that may be absent, links and snap references.
#include <vagrel/foundation/Records.h>

#include <gtest/gtest.h>

#include <limits>

namespace vagrel {
namespace {

constexpr auto Most = std::numeric_limits<std::int64_t>::max();
constexpr auto Least = std::numeric_limits<std::int64_t>::min();

TEST(TKSLRect, LeftAndTopBelongToIt) {
    const TKSLRect rect(0, 0, 10, 20);
    EXPECT_FALSE(rect.Contains(10, 5));
    EXPECT_FALSE(rect.Contains(TKSLRect(0, 0, 11, 20)));
    EXPECT_TRUE(rect.IntersectsWith({9, 19, 30, 30}));
    EXPECT_FALSE(rect.IntersectsWith({10, 0, 30, 20})) << "a common edge";
    EXPECT_TRUE(TKSLRect(5, 5, 5, 9).IsEmpty());
}

TEST(TKSLRect, IntersectsAndGrows) {
    // a, b, common, both
    const std::tuple<const char*, TKSLRect, TKSLRect, TKSLRect, TKSLRect> rows[] = {
        {"overlap", {0, 0, 10, 10}, {5, 6, 20, 30}, {5, 6, 10, 10}, {0, 0, 20, 30}},
        {"a common edge", {0, 0, 10, 10}, {10, 0, 20, 10}, {}, {0, 0, 20, 10}},
        {"an empty second is ignored", {0, 0, 10, 10}, {50, 50, 50, 60}, {}, {0, 0, 10, 10}},
        {"an empty first gives its corner", {50, 50, 50, 50}, {0, 0, 10, 10}, {}, {0, 0, 50, 50}},
        {"both empty", {5, 5, 5, 5}, {9, 9, 9, 9}, {}, {}},
        {"the whole plane", {Least, Least, 0, 0}, {-1, -1, Most, Most}, {-1, -1, 0, 0}, {Least, Least, Most, Most}}};
    for (const auto& [what, a, b, common, both] : rows) {
        TKSLRect out(1, 2, 3, 4);
        EXPECT_EQ(TKSLRect::IntersectRect(out, a, b), !common.IsEmpty()) << what;
        EXPECT_EQ(out, common) << what;
        EXPECT_EQ(TKSLRect::UnionRect(out, a, b), !both.IsEmpty()) << what;
        EXPECT_EQ(out, both) << what;
    }
}

TEST(TKSLRect, ChangesItsCorners) {
    TKSLRect rect({1, 2}, 10, 20);
    rect.Offset(5, -2);
    EXPECT_EQ(rect, TKSLRect(6, 0, 16, 20));
    rect.Inflate(1, 2);
    rect.Inflate(1, 2, 3, 4);
    EXPECT_EQ(rect, TKSLRect(4, -4, 20, 26));
    rect.SetWidth(-4), rect.SetHeight(0);
    rect.NormalizeRect();
    EXPECT_EQ(rect, TKSLRect(0, -4, 4, -4));
    EXPECT_EQ(TKSLRect({Most, Least}, 5, -5), TKSLRect(Most, Least, Most, Least));
    EXPECT_EQ(TKSLRect(Least, 0, Most, 0).GetWidth(), Most);
}

TEST(TKSLPto64, MeasuresExactlyWhereCoordinatesAreLarge) {
    const TKSLPto64 far{Most, Least}, near{Most - 3, Least + 4};
    EXPECT_EQ(far.Distance(near), 5.0);
    EXPECT_EQ((TKSLPto64{Least, 0}.Distance({Most, 0})), 18446744073709551615.0);
    EXPECT_FLOAT_EQ((TKSLPto64{0, 10}.Angle({0, 0})), 1.5707964f);
    EXPECT_TRUE(TKSLPto64::PointInCircle({3, 4}, {0, 0}, 5));
    EXPECT_EQ(TKSLPto64::Zero() - far, (TKSLPto64{-Most, Most}));
}

TEST(TKSLBPoint, ComputesWithCoordinatesAlone) {
    const TKSLBPoint point = TKSLBPoint::Valid(3, -5);
    EXPECT_EQ((point + TPoint{1, 1}), TKSLBPoint::Valid(4, -4));
    EXPECT_EQ(point * 0.5f, TKSLBPoint::Valid(2, -2)) << "ties to even";
    EXPECT_TRUE((point / 0.0f).IsValid);
    EXPECT_EQ(TKSLBPoint::Valid(100000000, 0) / 3.0f, TKSLBPoint::Valid(33333334, 0))
        << "a single-precision reciprocal";
    EXPECT_EQ(-TKSLBPoint::Valid(Least, 0), TKSLBPoint::Valid(Most, 0));
    EXPECT_EQ(TKSLBPoint::Valid(Most, Least) * 2.0f, TKSLBPoint::Valid(Most, Least));
}

TEST(TKSLink, ResetsInParts) {
    TKSLink link{7, 3, 4, 10, 20, 30, 40, true, ltArc};
    link.Reset(false, false);
    EXPECT_EQ(std::tuple(link.ID, link.bX, link.bY, link.sX, link.sY), std::tuple(0, -1, -1, 30, 40));
    EXPECT_EQ(std::tuple(link.draw, link.PosFrom, link.PosTo), std::tuple(true, 3, 4));
    link.Reset(true, true);
    link.SetPos(5), link.SetPos(6), link.SetPos(7);
    EXPECT_EQ(std::tuple(link.draw, link.PosFrom, link.PosTo), std::tuple(false, 5, 7));
}

TEST(TKSLRef, TellsAPlaceOnce) {
    TKSLRef ref;
    ref.draw = true;
    ref.Reset(false);
    EXPECT_TRUE(ref.draw);
    ref.Reset(true);
    EXPECT_EQ(std::tuple(ref.bX, ref.lbY, ref.pX, ref.draw), std::tuple(-1, -1, -1, false));
    EXPECT_FALSE(ref.SamePoint()) << "no last pixel";
    ref.FindRef(rtyCircle);
    EXPECT_EQ(std::tuple(ref.draw, ref.link, ref.fType), std::tuple(false, true, rtyCircle)) << "the same place";
    ref.bY = 9;
    ref.FindRef(rtyCross);
    EXPECT_EQ(std::tuple(ref.draw, ref.lbX, ref.lbY), std::tuple(true, -1, 9));
    ref.pX = 4, ref.pY = -1;
    ref.SetLast();
    EXPECT_EQ(std::tuple(ref.oType, ref.drawed, ref.SamePoint()), std::tuple(rtyCross, true, true));
}

} // namespace
} // namespace vagrel
