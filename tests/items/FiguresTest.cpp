// SPDX-License-Identifier: MIT
// Rectangle, polygon, Bezier, circle, ellipse, sector.
#include <tests/support/ItemSuite.h>

#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/items/figures/TVGRBaseBezier.h>
#include <vagrel/items/figures/TVGRBaseCircle.h>
#include <vagrel/items/figures/TVGRBaseEllipse.h>
#include <vagrel/items/figures/TVGRBasePolygon.h>
#include <vagrel/items/figures/TVGRBaseRectangle.h>
#include <vagrel/items/figures/TVGRBaseSector.h>
#include <vagrel/persistence/TBinaryWriter.h>

#include <gtest/gtest.h>

namespace vagrel::test {
namespace {

// One of each in a label of 60 × 35 mm.
struct Figures : testing::Test {
    TestHost label;
    TVGRBaseRectangle& rectangle = Make<TVGRBaseRectangle>(label.CreateRectangle(10000, 10000, 20000, 10000));
    TVGRBasePolygon& polygon =
        Make<TVGRBasePolygon>(label.CreatePolygon({{10000, 10000}, {40000, 10000}, {10000, 30000}}));
    TVGRBaseBezier& bezier =
        Make<TVGRBaseBezier>(label.CreateBezier({{10000, 30000}, {10000, 10000}, {40000, 10000}, {40000, 30000}}));
    TVGRBaseCircle& circle = Make<TVGRBaseCircle>(label.CreateCircle({30000, 20000}, 10000));
    TVGRBaseEllipse& ellipse = Make<TVGRBaseEllipse>(label.CreateEllipse({30000, 20000}, 20000, 10000));
    TVGRBaseSector& sector = Make<TVGRBaseSector>(label.CreateSector({30000, 20000}, 10000, 0, 90));

    template <class Family>
    static Family& Make(TVGRBaseItem& item) {
        return dynamic_cast<Family&>(item);
    }
};

TEST_F(Figures, PickKnowsFilledFromHollow) {
    const struct {
        const char* text;
        TVGR2DItem& item;
        TKSLPto at;
        bool filled, hollow;
    } rows[] = {
        {"its ring runs inwards", rectangle, {20000, 10599}, true, true},
        {"by tolerance and pen", rectangle, {20000, 10600}, true, false},
        {"inside a polygon", polygon, {15000, 15000}, true, false},
        {"on its closing side", polygon, {10400, 20000}, true, true},
        {"in its bounds only", polygon, {35000, 25000}, false, false},
        {"on a curve", bezier, {25000, 15100}, true, true},
        {"inside a curve", bezier, {25000, 25000}, false, false},
        {"on the chord of a curve", bezier, {25000, 29900}, true, false},
        {"outside by less than the tolerance", circle, {37200, 27200}, false, true},
        {"outside, where the offsets add up to little", circle, {30100, 10050}, true, true},
        {"in its bounds only", ellipse, {48000, 28000}, false, false},
        {"in the part of the disc that a sector leaves out", sector, {25000, 15000}, true, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.item.Pick(row.at.bX, row.at.bY, 500, true), row.filled) << row.text;
        row.item.SetFilled(false);
        EXPECT_EQ(row.item.Pick(row.at.bX, row.at.bY, 500, true), row.hollow) << row.text << ", hollow";
        row.item.SetFilled(true);
    }
    EXPECT_FALSE(polygon.Pick(15000, 15000, 500, false));
    circle.SetBackColor(0x00FFFFFF);
    EXPECT_FALSE(circle.Pick(30000, 20000, 500, true));
}

TEST_F(Figures, SearchFollowsTheOutline) {
    EXPECT_FALSE(circle.SearchRect({20000, 10000, 22000, 12000}, true)) << "a corner of the box";
    EXPECT_TRUE(circle.SearchRect({29000, 19000, 31000, 21000}, true)) << "inside";
    EXPECT_FALSE(ellipse.SearchRect({10000, 10000, 14000, 12000}, true)) << "a corner of the box";
    EXPECT_FALSE(ellipse.SearchRect({10000, 10000, 49999, 30000}, false)) << "all but a bit";
    EXPECT_TRUE(polygon.SearchRect({35000, 25000, 39000, 29000}, true)) << "a polygon counts as its box";
    EXPECT_TRUE(sector.SearchRect({10000, 5000, 25000, 15000}, true)) << "a corner in the disc";
    EXPECT_FALSE(sector.SearchRect({10000, 19000, 50000, 21000}, true)) << "a band across";
    EXPECT_TRUE(sector.SearchRect({20000, 10000, 40000, 30000}, true)) << "around";
}

TEST_F(Figures, SnapsFindTheirPoints) {
    constexpr TKSLPto no = NoPoint;
    CheckSnaps({
        {"top", rectangle, snMiddle, {20200, 9800}, no, {20000, 10000}},
        {"corner", rectangle, snEnd, {29800, 10200}, no, {30000, 10000}},
        {"foot on the bottom", rectangle, snPerpendicular, {12000, 20000}, {12000, 50000}, {12000, 20000}},
        {"foot on the closing side", polygon, snPerpendicular, {10000, 12000}, {40000, 12000}, {10000, 12000}},
        {"middle of the closing side", polygon, snMiddle, {10300, 19700}, no, {10000, 20000}},
        {"end of a curve", bezier, snEnd, {40300, 29700}, no, {40000, 30000}},
        {"control points are no ends", bezier, snEnd, {40000, 10000}, no, no},
        {"centre", circle, snCenter, {30200, 19800}, no, {30000, 20000}, rtyCircle},
        {"rim towards the cursor", circle, snTangent, {30000, 10200}, no, {30000, 10000}, rtyCircle},
        {"not near the rim", circle, snTangent, {30000, 10301}, no, no},
        {"upper tangent", circle, snTangent, {35000, 11340}, {50000, 20000}, {35000, 11340}, rtyCircle},
        {"lower tangent, from afar", circle, snTangent, {20000, 20001}, {50000, 20000}, {35000, 28660}, rtyCircle},
        {"no tangent from inside", circle, snTangent, {40000, 20000}, {32000, 20000}, no},
    });
    rectangle.SetBaseRadio(10);
    TKSLRef ref;
    EXPECT_FALSE(rectangle.CheckPoint(10000, 10000, 300, snEnd, ref));
}

TEST_F(Figures, SettersKeepTheirLimits) {
    auto start = [&](float value) { return sector.SetStartAngle(value), sector.GetStartAngle(); };
    auto sweep = [&](float value) { return sector.SetSweepAngle(value), sector.GetSweepAngle(); };
    EXPECT_EQ(start(400), 360);
    EXPECT_EQ(start(-400), -359);
    EXPECT_EQ(start(-100), -100);
    EXPECT_EQ(sweep(300), 260);
    EXPECT_EQ(sweep(-5), 0);

    rectangle.SetRadio(7);
    EXPECT_EQ(rectangle.GetRadio(), 5);
    rectangle.SetBaseRadio(std::int64_t(1) << 31);
    TBinaryWriter writer;
    EXPECT_THROW(rectangle.Write(writer), EOutOfRange);

    auto centre = [](auto& item, float x, float y) {
        item.SetCenterX(x);
        item.SetCenterY(y);
        return item.CenterPoint();
    };
    EXPECT_EQ(centre(circle, 0, 100), (TKSLBase{10000, 25000}));
    EXPECT_EQ(centre(ellipse, 100, 0), (TKSLBase{40000, 10000}));
    EXPECT_EQ(ellipse.Points(), (TKSLPtoA{{20000, 0}, {60000, 20000}}));
    circle.SetRadio(2.5f);
    EXPECT_EQ(circle.Points(), (TKSLPtoA{{7500, 22500}, {12500, 27500}}));
    ellipse.SetRadioY(3);
    EXPECT_EQ(ellipse.BoundsRect(), (TKSLRect{20000, 7000, 60000, 13000}));

    // On a scaled label only the ellipse may go where the drawing is.
    TestHost drawing(emDrawing, unMM, 10);
    drawing.GetMeasure().SetLabelSizeMM(60, 35);
    auto& wide = Make<TVGRBaseEllipse>(drawing.CreateEllipse({30000, 20000}, 10000, 10000));
    auto& round = Make<TVGRBaseCircle>(drawing.CreateCircle({30000, 20000}, 10000));
    EXPECT_EQ(centre(wide, 300, 400), (TKSLBase{300000, 340000}));
    EXPECT_EQ(centre(round, 300, 400), (TKSLBase{50000, 25000}));
}

TEST_F(Figures, ExtentOfASectorIsItsSlice) {
    auto extent = [&](float start, float sweep) {
        sector.SetStartAngle(start);
        sector.SetSweepAngle(sweep);
        TKSLExtent found;
        sector.CheckFit(found);
        return TKSLRect{found.minX, found.minY, found.maxX, found.maxY};
    };
    EXPECT_EQ(extent(0, 90), (TKSLRect{30000, 20000, 40000, 30000}));
    EXPECT_EQ(extent(180, 90), (TKSLRect{20000, 10000, 30000, 20000}));
    EXPECT_EQ(extent(0, 360), (TKSLRect{20000, 10000, 40000, 30000}));
}

TEST_F(Figures, SvgFollowsTheTemplates) {
    auto written = [](const TVGRBaseItem& item) {
        TSVGOutput out;
        item.WriteSVG(out);
        EXPECT_LE(out.svg.size(), 1u);
        return out.svg.empty() ? std::string() : out.svg.front();
    };
    const std::string pen = R"(  stroke="#000000" stroke-width="0.1")", full = R"(  fill="#FFFFFF")" + pen;
    const std::string none = R"( fill="none")" + pen;
    const std::string box = R"(<rect x="10" y="10" width="20" height="10" )";
    const std::string points = R"(<polygon points="10,10 40,10 10,30")";
    const std::string curve = R"(<path d="M 10,30 C 10,10 40,10 40,30)";
    const std::string disc = R"(<circle cx="30" cy="20" r="10")";
    const std::string oval = R"(<ellipse cx="30" cy="20" rx="20" ry="10")";
    const std::string slice = R"(<path d="M30,20 L40,20 A10,10 0 0,1 30,30 Z")";
    const struct {
        TVGR2DItem& item;
        std::string filled, hollow;
        bool needsPen;
    } rows[] = {
        {rectangle, box + full.substr(1) + "/>", box + none + "/>", false},
        {polygon, points + full + "/>", points + none + "/>", false},
        {bezier, curve + " Z\"" + full + "/>",
         curve + R"("  stroke="#000000" fill="none" stroke-width="0.1" stroke-linecap="round" />)", false},
        {circle, disc + full + " />", disc + none + " />", true},
        {ellipse, oval + full + "/>", oval + none + "/>", true},
        {sector, slice + full + " />", slice + none + " />", true},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(written(row.item), row.filled);
        row.item.SetFilled(false);
        EXPECT_EQ(written(row.item), row.hollow);
        row.item.SetPenWidth(0);
        EXPECT_EQ(written(row.item).empty(), row.needsPen) << row.hollow;
        row.item.SetPenWidth(0.1f);
        row.item.SetFilled(true);
    }

    rectangle.SetRadio(2.5f);
    EXPECT_EQ(written(rectangle), box + R"( rx="2.50" )" + full.substr(1) + "/>");
    sector.SetLineType(ii11);
    sector.SetSweepAngle(200);
    sector.RotateLeft(); // about the page, 35 mm high
    EXPECT_EQ(sector.GetStartAngle(), 0);
    EXPECT_EQ(written(sector),
              R"(<path d="M20,5 L20,-5 A10,10 0 1,1 16.58,14.40 Z")" + full + R"(  stroke-dasharray="1" />)");
    sector.SetSweepAngle(360);
    EXPECT_EQ(written(sector), R"(<circle cx="20" cy="5" r="10")" + full + R"(  stroke-dasharray="1" />)");
    TestHost other;
    EXPECT_EQ(written(other.CreateBezier({{10, 10}})), "");
}

} // namespace
} // namespace vagrel::test
