// SPDX-License-Identifier: MIT
// Item types, quarter turns and sets. The integers of all enumerations are pinned by tests/completeness.
#include <vagrel/foundation/Enumerations.h>

#include <gtest/gtest.h>

#include <limits>

namespace vagrel {
namespace {

TEST(Enumerations, ItemTypesHaveNamesAndPoints) {
    const std::pair<int, std::u16string_view> names[] = {{itUndefined, u"Undefined"},
                                                         {itPara, u"Paragraph"},
                                                         {itFlow, u"FlowDiagram"},
                                                         {itDim, u"Dimension"},
                                                         {itRichText, u"RichText"},
                                                         {30, u"None"},
                                                         {-1, u"None"}};
    for (const auto& [type, name] : names)
        EXPECT_EQ(NameItem(TKSLItemType(type)), name) << type;
    const std::pair<int, int> points[] = {{itUndefined, 1}, {itArrowLine, 4}, {itPolygon, 0}, {itLink, 1},
                                          {itSymbol, 3},    {itBezier, 0},    {itDim, 10},    {itSector, 2},
                                          {30, 1},          {-1, 1}};
    for (const auto& [type, count] : points)
        EXPECT_EQ(NumPointsItem(TKSLItemType(type)), count) << type;
}

TEST(Enumerations, QuarterTurnsGoAgainstTheClock) {
    for (const auto& [angle, degrees, radians] : {std::tuple(1, -90, -1.5707964f),
                                                  {2, -180, -3.1415927f},
                                                  {3, -270, -4.712389f},
                                                  {4, 0, 0.0f},
                                                  {-1, 0, 0.0f}}) {
        EXPECT_EQ(DegAngle(TKSLAngle(angle)), degrees);
        EXPECT_EQ(PrintAngle(TKSLAngle(angle)), radians);
    }
}

TEST(TKSLSet, HoldsThePositionsOfItsValues) {
    using TTypes = TKSLSet<TKSLItemType>;
    EXPECT_EQ((TTypes{itUndefined, itRichText}.Bits()), 0x20000001u);
    EXPECT_EQ(TTypes::Range(itPoint, itArrowLine).Bits(), 0xEu);
    EXPECT_EQ(TTypes::Range(itUndefined, TKSLItemType(31)).Bits(), 0xFFFFFFFFu);
    EXPECT_FALSE((TTypes{itRichText}.HasAll({itRichText, itLine})));
    EXPECT_EQ((TTypes{itText} + TTypes{itLine} - TTypes{itText}) * TTypes{itLine}, TTypes{itLine});
    for (const int beyond : {32, 34, -1, std::numeric_limits<int>::min()})
        EXPECT_TRUE(TTypes{TKSLItemType(beyond)}.Empty()) << beyond;
}

} // namespace
} // namespace vagrel
