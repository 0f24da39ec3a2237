// SPDX-License-Identifier: MIT
// Lines and polylines.
#include <tests/support/ItemSuite.h>

#include <vagrel/items/lines/TVGRBasePolyLine.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>

#include <gtest/gtest.h>

namespace vagrel::test {
namespace {

const TKSLPtoA Steps{{10000, 10000}, {30000, 10000}, {30000, 30000}, {50000, 20000}};

TVGRBasePolyLine& PolyLine(TestHost& label, const TKSLPtoA& points) {
    return dynamic_cast<TVGRBasePolyLine&>(label.CreatePolyLine(points));
}

TEST(Lines, PickFollowsTheOutline) {
    TestHost label;
    TVGRBaseItem& line = label.CreateLine(10000, 10000, 40000, 50000);
    TVGRBaseItem& dot = label.CreateLine(20000, 20000, 20000, 20000);
    TVGRBaseItem& flat = label.CreatePolyLine({{10000, 10000}, {40000, 10000}});
    TVGRBaseItem& steps = label.CreatePolyLine(Steps);
    TVGRBaseItem& twice = label.CreatePolyLine({{10000, 10000}, {10000, 10000}, {20000, 30000}});
    TVGRBaseItem& none = label.CreatePolyLine({});
    const struct {
        const char* text;
        TVGRBaseItem& item;
        TKSLPto at;
        bool hit;
    } rows[] = {
        {"beside the line, at the tolerance", line, {25400, 29700}, true},
        {"beside the line, beyond it", line, {25404, 29697}, false},
        {"before the first end, beyond", line, {9699, 9599}, false},
        {"a line of no length", dot, {20300, 20400}, true},
        {"a flat polyline is widened", flat, {20000, 10499}, true},
        {"but not at its end", flat, {40000, 10000}, false},
        {"a segment counts as an infinite line", steps, {45000, 10100}, true},
        {"above the bounds", steps, {20000, 9999}, false},
        {"a segment without length is near nothing", twice, {19000, 12000}, false},
        {"and does not hide the next one", twice, {15000, 20000}, true},
        {"no segment at all", none, {0, 0}, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.item.Pick(row.at.bX, row.at.bY, 500, true), row.hit) << row.text;
    EXPECT_FALSE(line.SearchRect({10000, 40000, 20000, 50000}, true));
    EXPECT_FALSE(steps.SearchRect({12000, 12000, 28000, 28000}, true));
    EXPECT_FALSE(PolyLine(label, {{20000, 20000}}).SearchRect({10000, 10000, 30000, 30000}, true));
    EXPECT_TRUE(line.SearchRect({10000, 10000, 40000, 50000}, false));
    EXPECT_FALSE(line.SearchRect({10000, 10000, 40000, 49999}, false));
}

TEST(Lines, SnapsFindTheFirstPointInOrder) {
    constexpr TKSLPto no = NoPoint;
    TestHost label;
    TVGRBaseItem& line = label.CreateLine(10000, 10000, 40001, 10000);
    TVGRBaseItem& steps = label.CreatePolyLine(Steps);
    CheckSnaps({
        {"middle, halved towards zero", line, snMiddle, {25300, 9700}, no, {25000, 10000}},
        {"just beyond the box", line, snMiddle, {25301, 10000}, no, no},
        {"foot", line, snPerpendicular, {20100, 10100}, {20000, 50000}, {20000, 10000}},
        {"foot beyond the segment", line, snPerpendicular, {50000, 10000}, {50000, 50000}, no},
        {"foot without a last point", line, snPerpendicular, {20000, 10000}, no, no},
        {"third end", steps, snEnd, {30200, 29800}, no, {30000, 30000}},
        {"foot on the second segment", steps, snPerpendicular, {30000, 15000}, {5000, 15000}, {30000, 15000}},
    });
}

TEST(Lines, TerminalSizesAreClamped) {
    TestHost label(emDrawing, unMM, 10);
    TVGRBasePolyLine& steps = PolyLine(label, Steps);
    EXPECT_EQ(steps.BaseSizeFrom(), 2500); // as the settings store it, whatever the scale
    for (const auto& [given, kept] : {std::array{0.1f, 0.5f}, {60, 50}, {1e30f, 50}, {-3, 0.5f}, {7.25f, 7.25f}}) {
        steps.SetSizeFrom(given);
        EXPECT_EQ(steps.GetSizeFrom(), kept) << given;
    }
    steps.SetBaseSizeTo(-1);
    EXPECT_EQ(steps.BaseSizeTo(), 500);
    // A binary file is read as it is; a JSON document is not.
    TBinaryWriter writer;
    steps.Write(writer);
    std::string bytes = std::string(4, '\0') + writer.Bytes();
    bytes.replace(bytes.size() - 4, 4, std::string("\x64\0\0\0", 4));
    auto& copy = dynamic_cast<TVGRBasePolyLine&>(label.CreateElementFromStream(bytes));
    EXPECT_EQ(copy.BaseSizeTo(), 100);
    copy.ReadJson(0, *copy.WriteJson());
    EXPECT_EQ(copy.BaseSizeTo(), 500);
}

TEST(Lines, SettersAskForPaint) {
    TestHost label;
    TVGRBasePolyLine& line = PolyLine(label, Steps);
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"LineType", [&] { line.SetLineType(ii31); }},
        {"FromType", [&] { line.SetFromType(ttCross); }},
        {"ToColor", [&] { line.SetToColor(0xFF112233); }},
        {"SizeFrom", [&] { line.SetSizeFrom(4); }},
    };
    for (const auto& [name, set] : rows) {
        for (const bool changes : {true, false}) {
            label.RemoveState(lsUpdate);
            set();
            EXPECT_EQ(label.HasAnyState({lsUpdate}), changes) << name;
        }
    }
}

TEST(Lines, ExtentHoldsPlacesAtMinusOne) {
    TestHost label;
    TVGRBaseItem& line = label.CreateLine(49, 1000, 20000, 49);
    line.SetPenWidth(0.1f);
    TKSLExtent extent, whole;
    line.CheckFit(extent);
    EXPECT_TRUE(extent.minX == -1 && extent.maxX == 20050 && extent.minY == -1 && extent.maxY == 1050);
    label.CheckFit(whole);
    EXPECT_TRUE(whole.minX == 0 && whole.maxX == 20050 && whole.minY == 0 && whole.maxY == 1050);
    TKSLExtent given;
    given.minX = 40, given.maxX = 30000;
    line.CheckFit(given);
    EXPECT_TRUE(given.minX == -1 && given.maxX == 30000 && given.minY == -1 && given.maxY == 1050);
}

TEST(Lines, SvgFollowsTheTemplates) {
    TestHost label(emDrawing, unMM, 10);
    TVGRBaseItem& line = label.CreateLine(10000, 20000, 100000, 205000);
    line.SetID(u"My Line 1");
    line.SetColor(0x80FF0000);
    Query<IKSLStyle>(&line)->SetLineType(ii21);
    TVGRBasePolyLine& steps = PolyLine(label, {{100000, 0}, {200000, 0}, {200000, 55000}});
    steps.SetFromType(ttCircle);
    steps.SetToType(ttFillSquare);
    steps.SetToColor(0xFF0000FF);
    TKSLExtent extent;
    steps.CheckFit(extent);
    EXPECT_EQ(extent.minX, 97500); // the terminals reach further than the pen
    EXPECT_EQ(extent.maxY, 57500);
    TSVGOutput out{svCurrentUnit, 3, true, false, {}, {}};
    line.WriteSVG(out);
    out.attrID = false;
    out.ExportType = svFactor;
    steps.WriteSVG(out);
    const std::vector<std::string> lines{
        R"(<line id="MyLine1"  x1="1" y1="2" x2="10" y2="20.50"  stroke="#FF0000" stroke-opacity="0.5")"
        R"( stroke-width="0.1" stroke-dasharray="2 1" />)",
        R"(<polyline points="30,0 60,0 60,16.50"  stroke="#000000" fill="none" stroke-width="0.1"/>)",
        R"(<circle cx="30" cy="0" r="3.75" fill="none"  stroke="#000000" stroke-width="0.1"/>)",
        R"(<rect x="56.25" y="12.75" width="7.50" height="7.50"  fill="#0000FF"  stroke="#000000" stroke-width="0.1"/>)",
    };
    EXPECT_EQ(out.svg, lines);
    // Terminals need an end to sit on.
    TVGRBasePolyLine& none = PolyLine(label, {});
    none.SetToType(ttCross);
    none.WriteSVG(out);
    EXPECT_EQ(out.svg.size(), 5u);
}

} // namespace
} // namespace vagrel::test
