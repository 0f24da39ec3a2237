// SPDX-License-Identifier: MIT
// Document units, and the conversions of a drawing context.
#include <vagrel/foundation/Records.h>
#include <vagrel/foundation/TVGRBaseDraw.h>
#include <vagrel/foundation/Units.h>

#include <gtest/gtest.h>

#include <limits>

namespace vagrel {
namespace {

constexpr auto Most = std::numeric_limits<std::int64_t>::max();
constexpr auto Least = std::numeric_limits<std::int64_t>::min();
constexpr float Infinity = std::numeric_limits<float>::infinity();

TEST(Units, HaveFactorsAndSymbols) {
    // value, base units, symbol without and with `large`
    const std::tuple<int, std::int64_t, std::u16string_view, std::u16string_view> rows[] = {
        {unMM, 1000, u"mm", u"mm"},   {unINCH, 25400, u"inch", u"inch"}, {unCM, 10000, u"cm", u"cm"},
        {unDM, 100000, u"mm", u"dm"}, {unM, 1000000, u"mm", u"m"},       {unFt, 304800, u"mm", u"ft"},
        {unYd, 914000, u"mm", u"yd"}, {unYd + 1, 1000, u"mm", u"mm"},    {-1, 1000, u"mm", u"mm"}};
    for (const auto& [value, factor, small, large] : rows) {
        const auto units = TKSLUnits(value);
        EXPECT_EQ(SetValue(1, units), factor) << value;
        EXPECT_EQ(GetValue(factor, units), 1.0f) << value;
        EXPECT_EQ(SymUnit(units, false), small) << value;
        EXPECT_EQ(SymUnit(units, true), large) << value;
    }
}

TEST(Units, RoundToBaseUnits) {
    const std::tuple<const char*, float, std::int64_t> rows[] = {
        {"tie to the even below", 0.0625f, 62},
        {"negative tie", -0.0625f, -62},
        {"widened before the product", 16777.217f, 16777217},
        {"beyond 64 bits", 1e30f, Most},
        {"beyond 64 bits, negative", -Infinity, Least},
        {"no number", std::numeric_limits<float>::quiet_NaN(), 0}};
    for (const auto& [what, mm, base] : rows)
        EXPECT_EQ(SetBaseValue(mm), base) << what;
    EXPECT_EQ(GetBaseValue(Least), -9.223372e15f);
}

TEST(TKSLPto, MovesInUnits) {
    TKSLPto point;
    point.Define(1, -2, unINCH);
    EXPECT_TRUE(point.SamePto(25400, -50800));
    EXPECT_EQ(point.GetX(unFt), float(25400 / 304800.0));
    point.Move(0.0625f, 1, unMM);
    EXPECT_TRUE(point.SamePto(25462, -49800));
    point.BaseMove(Most, Least);
    EXPECT_TRUE(point.SamePto(Most, Least));
}

TEST(TVGRBaseDraw, ConvertsByItsOwnResolutions) {
    TVGRBaseDraw draw;
    draw.fDpix = 300, draw.fDpiy = 600, draw.fDrawScale = 2;
    const TKSLPto point{25400, 25400};
    EXPECT_EQ(std::pair(point.DrawX(draw), point.DrawY(draw)), std::pair(150.0f, 300.0f));
    EXPECT_EQ(point.DrawGapX(-25400, draw), 0.0f);
    TKSLRefLine line;
    line.SetBase2(-25400, 50800);
    EXPECT_EQ(std::pair(line.DrawX2(draw), line.DrawY2(draw)), std::pair(-150.0f, 600.0f));

    draw.fDpix = 254, draw.fDrawScale = 1; // a dot is 100 base units
    for (const auto& [base, dots] : {std::pair{150, 2}, {250, 2}, {251, 3}, {-250, -2}})
        EXPECT_EQ((TKSLPto{base, 0}.PrintX(draw)), dots) << base;
    EXPECT_EQ(draw.GetPrintX(Most), 363124883340739); // the product saturates
    draw.fDrawScale = Most;
    EXPECT_EQ(draw.GetPrintY(Most), 0);
}

TEST(TVGRBaseDraw, PaperLengthsShowButDoNotPrintFromNothing) {
    TVGRBaseDraw draw;
    draw.fDpix = 254, draw.fDpiy = 127, draw.fDrawScale = 100;
    EXPECT_EQ(draw.BasePtoY(0), 0.0f);
    EXPECT_EQ(draw.DrawBasePtoX(0), 1.0f);
    EXPECT_EQ(draw.DrawBasePtoY(2), 10.0f);
    EXPECT_EQ(draw.PrintBasePtoX(0), 0);
    EXPECT_EQ(draw.PrintBasePtoX(0.25f), 2);
    EXPECT_EQ(draw.PrintBasePtoY(Infinity), Most);
}

TEST(TKSLPto, ConvertsPixelsOfAnyResolution) {
    TKSLPto point;
    point.SetDpIBaseX(1, 96), point.SetDpIBaseY(-3, 16);
    EXPECT_TRUE(point.SamePto(265, -4762)); // 264.58 and the tie 4762.5
    point.SetDpIBaseX(1, 0);
    EXPECT_EQ(point.bX, Most);
    EXPECT_EQ(TKSLPto::GetDraw(25400, 72), 72);
    EXPECT_EQ(TKSLPto::GetDraw(Least, 1 << 30), -363124883340739);
    EXPECT_EQ((TKSLBase{3000, -500}.MMX(2)), 1.5f);
    EXPECT_EQ((TKSLBase{3000, -500}.MMY(1)), -0.5f);
}

} // namespace
} // namespace vagrel
