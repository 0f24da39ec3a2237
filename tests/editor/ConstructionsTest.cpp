// SPDX-License-Identifier: MIT
// What tools hand to the host's factories, also of families that are still to come, and which row of the inspector they
// open.
#include <tests/document/ProbeItem.h>
#include <tests/editor/SessionFixture.h>

#include <vagrel/foundation/Rounding.h>

namespace vagrel::test {
namespace {

using TBase = std::int64_t;

// A host that notes each call. Its items are probes of the right type.

class NotingHost final : public TestHost {
public:
    using TestHost::TestHost;

    std::string called;
    bool noAngle = false;

    // clang-format off
    TVGRBaseItem& CreatePara(TBase x, TBase y, TBase w, TBase h) override { return Note(itPara, {x, y, w, h}); }
    TVGRBaseItem& CreateRichText(TBase x, TBase y, TBase w, TBase h) override { return Note(itRichText, {x, y, w, h}); }
    TVGRBaseItem& CreateArrowLine(TBase x1, TBase y1, TBase x2, TBase y2) override { return Note(itArrowLine, {x1, y1, x2, y2}); }
    TVGRBaseItem& CreateArc(TKSLPto a, TKSLPto b, TKSLPto c) override { return Note(itArc, {a.bX, a.bY, b.bX, b.bY, c.bX, c.bY}); }
    TVGRBaseItem& CreatePackage(TBase x, TBase y, TBase w, TBase h) override { return Note(itPackage, {x, y, w, h}); }
    TVGRBaseItem& CreateLevel(TKSLPto c, TBase r) override { return Note(itLevel, {c.bX, c.bY, r}); }
    TVGRBaseItem& CreateBarcode(TBase x, TBase y, std::u16string_view text, TKSLBarType type) override { return Note(itBarcode, {x, y, type}, text); }
    TVGRBaseItem& CreatePDF417(TBase x, TBase y, std::u16string_view text) override { return Note(itPDF417, {x, y}, text); }
    TVGRBaseItem& CreateDataMatrix(TBase x, TBase y, std::u16string_view text) override { return Note(itDataMatrix, {x, y}, text); }
    TVGRBaseItem& CreateQRCode(TBase x, TBase y, std::u16string_view text) override { return Note(itQRCode, {x, y}, text); }
    TVGRBaseItem& CreateImage(TBase x, TBase y, TBase w, TBase h, bool keep, std::u16string_view source) override { return Note(itImage, {x, y, w, h, keep}, source); }
    TVGRBaseItem& CreateFlow(TBase x, TBase y, TBase w, TBase h, TKSLFlowType type) override { return Note(itFlow, {x, y, w, h, type}); }
    TVGRBaseItem& CreateLink(const TKSLink& from, const TKSLink& to, TKSLinkType type) override { return Note(itLink, {from.ID, to.ID, from.PosFrom, to.PosTo, type}); }
    TVGRBaseItem& CreatePolyLink(const TKSLink& from, const TKSLink& to, TKSLinkType type, const TKSLPtoA& points) override { return Note(itLink, {from.ID, to.ID, from.PosFrom, to.PosTo, type, TBase(points.size()), points.at(0).bX, points.at(0).bY}); }
    TVGRBaseItem& CreateTable(TBase x, TBase y, TBase w, TBase h) override { return Note(itTable, {x, y, w, h}); }
    TVGRBaseItem& CreatePolyText(TBase x, TBase y) override { return Note(itPolyText, {x, y}); }
    TVGRBaseItem& CreateRank(TBase x, TBase y, TBase w, TBase h) override { return Note(itRank, {x, y, w, h}); }
    TVGRBaseItem& CreateNutriScore(TBase x, TBase y, TBase w, TBase h) override { return Note(itNutriScore, {x, y, w, h}); }
    TVGRBaseItem& CreateSymbol(TBase x, TBase y) override { return Note(itSymbol, {x, y}); }
    TVGRBaseItem& CreateDim(TKSLPto a, TKSLPto b, TKSLPto c) override { return Note(itDim, {a.bX, a.bY, b.bX, b.bY, c.bX, c.bY}); }
    TVGRBaseItem* CreateDimAng(const TKSLRefLine& a, const TKSLRefLine& b, TKSLPto side) override { return noAngle ? nullptr : &Note(itDim, {a.bX1, a.bY1, a.bX2, a.bY2, b.bX1, b.bY1, b.bX2, b.bY2, side.bX, side.bY}); }
    TVGRBaseItem& CreateDimRad1(TKSLPto c, TBase r, double angle) override { return Note(itDim, {1, c.bX, c.bY, r, Round(angle * 1000)}); }
    TVGRBaseItem& CreateDimRad2(TKSLPto c, TBase r, double angle) override { return Note(itDim, {2, c.bX, c.bY, r, Round(angle * 1000)}); }
    TVGRBaseItem& CreateDimDia1(TKSLPto c, TBase r, double angle) override { return Note(itDim, {3, c.bX, c.bY, r, Round(angle * 1000)}); }
    TVGRBaseItem& CreateDimDia2(TKSLPto c, TBase r, double angle) override { return Note(itDim, {4, c.bX, c.bY, r, Round(angle * 1000)}); }
    // clang-format on

private:
    TVGRBaseItem& Note(TKSLItemType type, const std::vector<TBase>& numbers, std::u16string_view text = {}) {
        called = EnumName(type);
        for (const TBase number : numbers)
            called += " " + std::to_string(number);
        if (!text.empty())
            called += " " + ToUtf8(text);
        return MakeProbe(*this, type, {{0, 0}, {1000, 1000}, {0, 1000}, {0, 0}, {0, 0}, {5, 5}});
    }
};

class Constructions : public SessionsOn<NotingHost> {
protected:
    /// Draws with a tool and answers the changes told behind the last pick.
    std::string Draw(const std::string& action, const TKSLPtoA& picks, const std::string& more = "") {
        Play(Tool(action));
        for (const TKSLPto pick : picks) {
            const std::string event = Event("PickEditor", pick);
            Traced(event.substr(0, event.size() - 1) + more + "}");
        }
        return trace;
    }
};

TEST_F(Constructions, PicksReachTheFactories) {
    struct TRow {
        const char* action;
        TKSLPtoA picks;
        const char* called;
        const char* inspect = ""; ///< the request, none when empty
        bool paint = true;
    };
    const TKSLPtoA box{{9000, 2000}, {1000, 5000}};
    const TRow rows[] = {
        {"eaArrowLine", box, "itArrowLine 9000 2000 1000 5000"},
        {"eaArc", {{9000, 1}, {5000, 2}, {1000, 3}}, "itArc 9000 1 5000 2 1000 3"},
        {"eaParagraph", box, "itPara 1000 2000 8000 3000", "ipMemo 1", false},
        {"eaRichText", box, "itRichText 1000 2000 8000 3000", "ipMemo 1", false},
        {"eaBarcode", {{7, 8}}, "itBarcode 7 8 4 123456"},
        {"eaPDF417", {{7, 8}}, "itPDF417 7 8 PDF417", "ipMemo 10"},
        {"eaDataMatrix", {{7, 8}}, "itDataMatrix 7 8 DataMatrix", "ipMemo 11"},
        {"eaQRCode", {{7, 8}}, "itQRCode 7 8 QRCode", "ipMemo 12"},
        {"eaImage", box, "itImage 1000 2000 8000 3000 0"},
        {"eaFlow", box, "itFlow 1000 2000 8000 3000 4", "ipMemo 2", false},
        {"eaTable", box, "itTable 1000 2000 8000 3000"},
        {"eaPolyText", {{7, 8}}, "itPolyText 7 8", "ipPolyText 2"},
        {"eaRank", box, "itRank 1000 2000 8000 3000"},
        {"eaNutriScore", box, "itNutriScore 1000 2000 8000 3000"},
        {"eaLevel", {{7000, 8000}, {7000, 5000}}, "itLevel 7000 8000 3000"},
        {"eaSymbol", {{7, 8}}, "itSymbol 7 8"},
        {"eaDim", {{9, 1}, {5, 2}, {1, 3}}, "itDim 9 1 5 2 1 3"},
        {"eaPackage", box, "itPackage 1000 2000 8000 3000"},
        {"eaLink", {{4, 2}, {6, 3}}, "itLink 4 6 2 3 4"},
    };
    TAct::SetFlowType(ftDecision);
    TAct::SetLinkType(ltArc);
    for (const TRow& row : rows) {
        SCOPED_TRACE(row.action);
        label.Clear({cleAll}, false);
        const std::string told = Draw(row.action, row.picks);
        EXPECT_EQ(label.called, row.called);
        ASSERT_EQ(label.SelectionCount(), 1);
        EXPECT_EQ(Where(), "eaSelection edPickPoint");
        const std::string request =
            *row.inspect ? "  chEditInspect " + std::string(row.inspect) + " true -> inspector\n" : "";
        EXPECT_NE(told.find(request + "  chCursor"), std::string::npos) << told;
        EXPECT_EQ(told.find("chEditInspect") != std::string::npos, *row.inspect != 0) << told;
        EXPECT_FALSE(!row.paint && told.find("chPaint") != std::string::npos) << told;
    }
}

TEST_F(Constructions, APictureKeepsItsAspectWithCtrl) {
    Draw("eaImage", {{0, 0}, {5, 5}}, R"(,"shift":["ssCtrl"])");
    EXPECT_EQ(label.called, "itImage 0 0 5 5 1");
    EXPECT_EQ(label.GetChangedValue(chEditInspect).fInt1, ipImage) << "ready, but not asked for";
}

TEST_F(Constructions, APolylineLinkEndsWhereItsHostSays) {
    TAct::SetLinkType(ltPolyline);
    Draw("eaPolyLink", {{4, 2}, {7000, 8000}});
    EXPECT_EQ(Where(), "eaPolyLink edPickNext");
    Play(R"({"op":"SetState","state":"edEnd"}
            {"op":"PickEditor","x":6,"y":3})");
    EXPECT_EQ(label.called, "itLink 4 6 2 3 6 1 7000 8000");
}

TEST_F(Constructions, RoundDimensionsTakeTheCircleUnderThePick) {
    label.CreateCircle({20000, 20000}, 10000);
    int kind = 0;
    for (const char* action : {"eaDimRad1", "eaDimRad2", "eaDimDia1", "eaDimDia2"}) {
        Draw(action, {{90000, 90000}});
        EXPECT_EQ(Where(), std::string(action) + " edPickCircle") << "a miss";
        Draw(action, {{20000, 29900}});
        EXPECT_EQ(label.called, "itDim " + std::to_string(++kind) + " 20000 20000 10000 1571");
    }
}

TEST_F(Constructions, AnglesAreBetweenTwoSegments) {
    label.CreateLine(0, 0, 20000, 0);
    label.CreateLine(5000, 5000, 5000, 20000);
    Draw("eaDimAng", {{50000, 50000}});
    EXPECT_EQ(Where(), "eaDimAng edFirstRef") << "a miss";
    const std::string told = Draw("eaDimAng", {{9000, 0}, {5000, 9000}, {1, 2}});
    EXPECT_EQ(label.called, "itDim 0 0 20000 0 5000 5000 5000 20000 1 2");
    EXPECT_NE(told.find("  chSelect -> editor inspector\n"
                        "  chCursor eaSelection edPickPoint -> editor\n"
                        "  info \"Selection\" \"Select point\"\n"),
              std::string::npos);
    EXPECT_EQ(label.SelectionCount(), 0);

    label.noAngle = true;
    Draw("eaDimAng", {{9000, 0}, {5000, 9000}, {1, 2}});
    EXPECT_EQ(Where(), "eaSelection edPickPoint");
    EXPECT_EQ(label.ItemsCount(), 3);
}

TEST_F(Constructions, AnglesOfOneChainAreBetweenNeighbours) {
    const TKSLPtoA corners{{0, 0}, {20000, 0}, {20000, 20000}, {0, 20000}};
    const TKSLPto top{9000, 0}, right{19900, 9000}, bottom{9000, 19900}, left{0, 9000};
    struct TRow {
        bool closed;
        TKSLPto first, second;
        const char* called;
    };
    const TRow rows[] = {
        {false, top, right, "itDim 0 0 20000 0 20000 0 20000 20000 1 2"},
        {false, bottom, right, "itDim 20000 20000 0 20000 20000 0 20000 20000 1 2"},
        {false, top, bottom, ""},
        {false, top, top, ""},
        {true, left, top, "itDim 0 20000 0 0 0 0 20000 0 1 2"},
        {true, left, right, ""},
    };
    for (const TRow& row : rows) {
        label.Clear({cleAll}, false);
        label.called.clear();
        row.closed ? label.CreatePolygon(corners) : label.CreatePolyLine(corners);
        Draw("eaDimAng", {row.first, row.second, {1, 2}});
        EXPECT_EQ(label.called, row.called);
        EXPECT_EQ(Where(), "eaSelection edPickPoint");
        EXPECT_EQ(label.SelectionCount(), 0);
    }
}

} // namespace
} // namespace vagrel::test
