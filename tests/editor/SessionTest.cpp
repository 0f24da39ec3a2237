// SPDX-License-Identifier: MIT
// Pointer sessions: what each tool leaves behind, who is told in which order, and the way back.
#include <tests/editor/SessionFixture.h>

#include <gmock/gmock.h>

#include <fstream>

namespace vagrel::test {
namespace {

using testing::HasSubstr;

// Tools

struct TTool {
    const char* action;
    TKSLPtoA picks;
    TKSLItemType type;
    TKSLPtoA points; ///< of the item; empty for those that are not compared
    bool right = false;
    const char* after = "eaSelection edPickPoint";
};

const TTool Tools[] = {
    {"eaPoint", {{7000, 8000}}, itPoint, {{7000, 8000}}},
    {"eaLine", {{30000, 20000}, {1000, 40000}}, itLine, {{30000, 20000}, {1000, 40000}}},
    {"eaRectangle", {{30000, 20000}, {1000, 5000}}, itRectangle, {{1000, 5000}, {30000, 20000}}},
    {"eaCirclePR", {{20000, 20000}, {20000, 15000}}, itCircle, {{15000, 15000}, {25000, 25000}}},
    {"eaCircle2P", {{20000, 10000}, {10000, 10000}}, itCircle, {{10000, 5000}, {20000, 15000}}},
    {"eaCircle3P", {{20000, 10000}, {15000, 15000}, {10000, 10000}}, itCircle, {{10000, 5000}, {20000, 15000}}},
    {"eaEllipse", {{20000, 20000}, {14000, 9000}, {9000, 23000}}, itEllipse, {{14000, 17000}, {26000, 23000}}},
    {"eaSectorPR", {{20000, 20000}, {25000, 20000}}, itSector, {{15000, 15000}, {25000, 25000}}},
    {"eaSector2P", {{20000, 10000}, {10000, 10000}}, itSector, {{10000, 5000}, {20000, 15000}}},
    {"eaSector3P", {{20000, 10000}, {15000, 15000}, {10000, 10000}}, itSector, {{10000, 5000}, {20000, 15000}}},
    {"eaPolyline",
     {{1000, 1000}, {9000, 1000}, {5000, 7000}},
     itPolyLine,
     {{1000, 1000}, {9000, 1000}, {5000, 7000}},
     true},
    {"eaPolyline", {{1000, 1000}}, itPolyLine, {{1000, 1000}}, true},
    {"eaPolygon",
     {{1000, 1000}, {9000, 1000}, {5000, 7000}},
     itPolygon,
     {{1000, 1000}, {9000, 1000}, {5000, 7000}},
     true},
    {"eaBezier",
     {{1000, 1000}, {4000, 7000}},
     itBezier,
     {{1000, 1000}, {2000, 3000}, {3000, 5000}, {4000, 7000}},
     true},
    {"eaText", {{5000, 5000}}, itText, {}, false, "eaEdText edEditing"},
    {"eaBarcode", {{5000, 5000}}, itBarcode, {}},
    {"eaPDF417", {{5000, 5000}}, itPDF417, {}},
    {"eaDataMatrix", {{5000, 5000}}, itDataMatrix, {}},
    {"eaQRCode", {{5000, 5000}}, itQRCode, {}},
};

TEST_F(Sessions, EveryToolLeavesItsItem) {
    for (const TTool& tool : Tools) {
        SCOPED_TRACE(tool.action);
        label.New();
        Play(Tool(tool.action));
        for (const TKSLPto pick : tool.picks)
            Play(Event("PickEditor", pick));
        if (tool.right)
            Play(Event("RightButton", tool.picks.back()));
        ASSERT_EQ(label.ItemsCount(), 1);
        TVGRBaseItem& item = *label.GetItem(1);
        EXPECT_EQ(item.GetItemType(), tool.type);
        if (!tool.points.empty()) {
            EXPECT_EQ(item.Points(), tool.points);
        }
        EXPECT_EQ(label.Select(), &item);
        EXPECT_EQ(Where(), tool.after);
    }
}

TEST_F(Sessions, ARadiusMayBeTypedIn) {
    for (const char* action : {"eaCirclePR", "eaSectorPR"}) {
        label.New();
        Play(Tool(action));
        EXPECT_THAT(Traced(R"({"op":"PickEditor","radius":5000})"), HasSubstr("chDraw")) << "no centre yet";
        EXPECT_EQ(label.ItemsCount(), 0);
        Play(Event("PickEditor", {20000, 20000}));
        Traced(R"({"op":"PickEditor","radius":-5000})");
        ASSERT_EQ(label.ItemsCount(), 1);
        EXPECT_EQ(label.GetItem(1)->Points(), (TKSLPtoA{{15000, 15000}, {25000, 25000}}));
        EXPECT_THAT(trace, testing::Not(HasSubstr("chPaint")));
    }
    Play(Tool("eaLine"));
    EXPECT_EQ(Traced(R"({"op":"PickEditor","radius":5000})"), "  = eaLine edPickFirst\n");
}

// Whatever family is there or to come: the tool draws one item that is undone and redone, or says that it is not
// available and leaves everything as it was.
TEST_F(Sessions, EveryToolDrawsOrSaysThatItCannot) {
    int drawn = 0, missing = 0;
    for (int action = eaPoint; action <= eaDimAng; ++action) {
        const std::string name(EnumName(TKSLEdAction(action)));
        SCOPED_TRACE(name);
        label.New();
        label.CreateCircle({20000, 20000}, 10000);
        label.CreateLine(5000, 1000, 5000, 50000);
        label.Clear({cleUndoRedo, cleSelection}, false);
        const std::u16string start = JsonOf(label);
        Play(Tool(name));
        bool thrown = false;
        try {
            for (const TKSLPto pick : TKSLPtoA{{30000, 20000}, {5000, 30000}, {26000, 28000}, {5000, 20000}})
                if (TAct::GetAction() == action)
                    Play(Event("PickEditor", pick));
            if (TAct::GetAction() == action)
                Play(Event("RightButton", {90000, 90000}));
        } catch (const ENotAvailable&) {
            thrown = true;
            EXPECT_EQ(Where(), "eaSelection edPickPoint");
            EXPECT_TRUE(label.IsUndoEmpty());
            EXPECT_EQ(label.SelectionCount(), 0) << "picked references";
        }
        (thrown ? missing : drawn) += 1;
        const std::u16string end = JsonOf(label);
        EXPECT_FALSE(thrown && end != start);
        UndoAll(label);
        EXPECT_EQ(JsonOf(label), start);
        RedoAll(label);
        EXPECT_EQ(JsonOf(label), end);
    }
    EXPECT_GE(drawn, 18);
}

TEST_F(Sessions, NoCircleThroughALineResetsTheTool) {
    Play(Tool("eaCircle3P"));
    Play(Event("PickEditor", {1000, 1000}) + "\n" + Event("PickEditor", {2000, 2000}));
    EXPECT_THROW(Play(Event("PickEditor", {3000, 3000})), EInvalidOperation);
    EXPECT_EQ(Where(), "eaSelection edPickPoint");
    EXPECT_EQ(label.ItemsCount(), 0);
    EXPECT_TRUE(label.IsUndoEmpty());
}

// Choice of tools

TEST_F(Sessions, ChoosingTellsOnceAndEscapeGoesBack) {
    EXPECT_EQ(Traced(Tool("eaLine")), "  chCursor eaLine edPickFirst -> editor\n"
                                      "  info \"Draw Line\" \"Select first point\"\n"
                                      "  = eaLine edPickFirst\n");
    Play(Event("PickEditor", {1, 1}));
    EXPECT_EQ(Traced(Tool("eaLine")), "  = eaLine edPickSecond\n") << "it runs already";
    EXPECT_EQ(Traced(R"({"op":"ResetAction"})"), "  chSelCur -> editor\n"
                                                 "  info \"Selection\" \"Select point\"\n"
                                                 "  = eaSelection edPickPoint\n");
    EXPECT_EQ(Traced(R"({"op":"LastAction"})"), "  chSelect -> editor inspector\n"
                                                "  = eaLine edPickFirst\n");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Traced(Tool("eaSymbol")),
                  (i == 0 ? std::string("  info \"Draw Symbol\" \"Select point\"\n") : std::string()) +
                      "  chSelSymbol -> editor\n  = eaSymbol edPickPoint\n");
    }
    EXPECT_EQ(Traced(Tool("eaEdText")), "  info \"Selection\" \"Select point\"\n"
                                        "  = eaSelection edPickPoint\n")
        << "no text is selected";
    EXPECT_THAT(Traced("{\"op\":\"LastAction\"}"), HasSubstr("chSelSymbol"));
    Play(R"({"op":"FlowAction","type":"ftDecision"})");
    Play(Event("PickEditor", {1, 1}));
    EXPECT_EQ(TAct::GetDrawType(), dtDiamond);
    Play(R"({"op":"LinkAction","type":"ltPolyline"})");
    EXPECT_EQ(Where(), "eaPolyLink edPickFirst");
    Play(R"({"op":"LinkAction","type":"ltArc"})");
    EXPECT_EQ(Where(), "eaLink edPickFirst");
    EXPECT_EQ(TAct::GetLinkType(), ltArc);
}

// Notifications

TEST_F(Sessions, ADrawingTellsInThisOrder) {
    Play(Tool("eaRectangle"));
    EXPECT_EQ(Traced(Event("PickEditor", {1000, 1000})), "  chDraw eaRectangle edPickSecond -> editor preview\n"
                                                         "  info \"Draw Rectangle\" \"Select second point\"\n"
                                                         "  = eaRectangle edPickSecond\n");
    EXPECT_EQ(Traced(Event("PickEditor", {9000, 6000})), "  undo filled, redo empty\n"
                                                         "  select Rectangle001\n"
                                                         "  chSelect -> editor inspector\n"
                                                         "  chPaint 1 -> editor preview\n"
                                                         "  chCursor eaSelection edPickPoint -> editor\n"
                                                         "  info \"Selection\" \"Select point\"\n"
                                                         "  = eaSelection edPickPoint\n");
    Play(Tool("eaText"));
    EXPECT_THAT(Traced(Event("PickEditor", {1000, 1000})), HasSubstr("  unselect Rectangle001\n"
                                                                     "  select Text002\n"
                                                                     "  chText -> editor inspector\n"
                                                                     "  chPaint 1 -> editor preview\n"
                                                                     "  chCursor eaEdText edEditing -> editor\n"
                                                                     "  info \"Edit text\" \"Editing\"\n"
                                                                     "  = eaEdText edEditing\n"));
}

TEST_F(Sessions, ADragTellsInThisOrder) {
    TVGRBaseItem& box = label.CreateRectangle(10000, 10000, 10000, 10000);
    label.SetSelection(&box, isSelected);
    label.Clear({cleUndoRedo}, false);
    EXPECT_EQ(Traced(Event("PickEditor", {10000, 15000})), "  info \"Move\" \"Objects\"\n"
                                                           "  chPickSel -> editor\n"
                                                           "  = eaMove edPickPoint\n");
    EXPECT_EQ(Traced(R"({"op":"MoveEditor","x":-1000,"y":0})"), "  undo filled, redo empty\n"
                                                                "  chPaint 1 -> editor preview\n"
                                                                "  chPropItem -> editor inspector\n"
                                                                "  = eaMove edPickPoint\n");
    EXPECT_THAT(Traced(R"({"op":"MoveEditor","x":-1000,"y":-500})"), testing::Not(HasSubstr("undo")))
        << "one command for the run";
    Play(R"({"op":"UpEditor","x":0,"y":0})");
    EXPECT_EQ(box.Points(), (TKSLPtoA{{12000, 10500}, {22000, 20500}}));
    EXPECT_EQ(Traced(R"({"op":"Undo"})"), "  undo empty, redo filled\n"
                                          "  chPaint 1 -> editor preview\n"
                                          "  chInspect -> inspector\n"
                                          "  undo empty, redo filled\n"
                                          "  = eaSelection edPickPoint\n");
    EXPECT_EQ(box.Points(), (TKSLPtoA{{10000, 10000}, {20000, 20000}}));
}

TEST_F(Sessions, ADeletionTellsInThisOrder) {
    label.CreateLine(0, 0, 5000, 5000);
    label.CreateLine(9000, 0, 5000, 5000);
    Play(R"({"op":"AddToSelection","item":2}
            {"op":"AddToSelection","item":1})");
    label.Clear({cleUndoRedo}, false);
    EXPECT_EQ(Traced(R"({"op":"DeleteSelection"})"), "  unselect Line002\n"
                                                     "  unselect Line001\n"
                                                     "  undo filled, redo empty\n"
                                                     "  undo filled, redo empty\n"
                                                     "  chSelect -> editor inspector\n"
                                                     "  = eaSelection edPickPoint\n");
}

// The left button goes up

TEST_F(Sessions, ARectangleSelectsByItsDirection) {
    label.CreateRectangle(10000, 10000, 10000, 10000);
    label.CreateRectangle(30000, 10000, 10000, 10000);
    auto drag = [&](TKSLPto from, TKSLPto to) {
        Play(Event("PickEditor", from));
        EXPECT_EQ(Where(), "eaSelection edSelectDrag");
        Play(Event("UpEditor", to));
        EXPECT_EQ(Where(), "eaSelection edPickPoint");
        return label.SelectionCount();
    };
    EXPECT_EQ(drag({9000, 9000}, {35000, 25000}), 1) << "by inclusion";
    EXPECT_EQ(drag({35000, 25000}, {9000, 9000}), 2) << "by touch";
    EXPECT_EQ(drag({9000, 25000}, {35000, 9000}), 2) << "upward is by touch too";
    EXPECT_EQ(drag({1000, 1000}, {1000, 1000}), 0);
    // The release of a click that hit an item.
    Play(Event("PickEditor", {10000, 15000}) + "\n" + R"({"op":"expect","selected":[1]})");
    EXPECT_EQ(Traced(Event("UpEditor", {90000, 90000})), "  = eaSelection edPickPoint\n");
    EXPECT_EQ(label.SelectionCount(), 1);
    EXPECT_EQ(TAct::NumPoints(), 0);
}

TEST_F(Sessions, AReleaseClosesEachKindOfDrag) {
    TVGRBaseItem& box = label.CreateRectangle(10000, 10000, 10000, 10000);
    auto close = [&](std::string type) {
        label.SetSelection(&box, isSelected);
        Play(R"({"op":"SetMove","type":")" + type + R"(","pos":2})");
        Traced(R"({"op":"UpEditor","x":0,"y":0})");
        return trace;
    };
    const std::string inspect = "  chInspect -> inspector\n", tail = "  chPropItem -> editor inspector\n"
                                                                     "  chCursor eaSelection edPickPoint -> editor\n"
                                                                     "  = eaSelection edPickPoint\n";
    for (const char* type : {"mtObjects", "mtRadio", "mtPoint", "mtRadioX", "mtRadioY", "mtArc", "mtText", "mtNW",
                             "mtN", "mtNE", "mtW", "mtE", "mtSW", "mtS", "mtSE", "mtDispWidth"}) {
        EXPECT_EQ(close(type), inspect + tail) << type;
        EXPECT_EQ(TAct::GetPos1(), 0) << type;
    }
    EXPECT_EQ(close("mtLinkCurve"), tail);
    for (const char* type : {"mtBezier", "mtBezierCtrl", "mtPolyPoint"}) {
        EXPECT_EQ(close(type), "  chInspectPoint -> inspector\n" + tail) << type;
        EXPECT_EQ(TAct::GetPos1(), 2) << type;
    }
    EXPECT_EQ(close("mtNone"), "  = eaMove edPickPoint\n");

    // An edge that was dragged over the opposite one.
    label.SetSelection(&box, isSelected);
    Play(R"({"op":"SetMove","type":"mtE"}
            {"op":"MoveEditor","x":15000,"y":0}
            {"op":"UpEditor","x":0,"y":0})");
    EXPECT_EQ(box.Points(), (TKSLPtoA{{5000, 10000}, {10000, 20000}}));
    EXPECT_EQ(label.GetSelPoint(1).X1, 5);
}

TEST_F(Sessions, AMovedTextIsOpenedAgain) {
    Play(Tool("eaText") + "\n" + Event("PickEditor", {5000, 5000}));
    Play(R"({"op":"SetMove","type":"mtText"}
            {"op":"SetAction","action":"eaMoveText"})");
    EXPECT_THAT(Traced(R"({"op":"UpEditor","x":0,"y":0})"), HasSubstr("  chInspect -> inspector\n"
                                                                      "  chPropItem -> editor inspector\n"));
    EXPECT_EQ(Where(), "eaEdText edEditing");
    Play(R"({"op":"ResetAction"}
            {"op":"SetAction","action":"eaMoveText"}
            {"op":"UpEditor","x":0,"y":0})");
    EXPECT_EQ(Where(), "eaText edPickPoint");

    // The text of a record is not written by hand, also while there are no records.
    TVGRBaseItem& text = *label.GetItem(1);
    Query<IKSLData>(&text)->SetData(ftJson, u"name", u"");
    label.SetSelection(&text, isSelected);
    Play(R"({"op":"SetMove","type":"mtText"}
            {"op":"SetAction","action":"eaMoveText"}
            {"op":"UpEditor","x":0,"y":0})");
    EXPECT_EQ(TAct::GetAction(), eaMoveText);
}

// The right button

TEST_F(Sessions, TheRightButtonAddsVerticesAndLeaves) {
    TVGRBaseItem& chain = label.CreatePolyLine({{0, 0}, {10000, 0}, {10000, 10000}});
    label.SetSelection(&chain, isSelected);
    EXPECT_EQ(Traced(Event("RightButton", {5000, 200})), "  chPropItem -> editor inspector\n"
                                                         "  chCursor eaSelection edPickPoint -> editor\n"
                                                         "  info \"Selection\" \"Select point\"\n"
                                                         "  = eaSelection edPickPoint\n");
    EXPECT_EQ(chain.Points(), (TKSLPtoA{{0, 0}, {5000, 200}, {10000, 0}, {10000, 10000}}));
    EXPECT_EQ(label.SelPointCount(), 4);
    Play(Event("RightButton", {5000, 9000}));
    EXPECT_EQ(chain.NumPoints(), 4) << "beside it";
    EXPECT_EQ(label.SelectionCount(), 0) << "which leaves";

    Play(Tool("eaPolygon") + "\n" + Event("RightButton", {1, 1}));
    EXPECT_EQ(Where(), "eaSelection edPickPoint");
    Play(Event("RightButton", {50000, 1}));
    EXPECT_EQ(Where(), "eaPolygon edPickFirst") << "the tool comes back";
    EXPECT_EQ(label.ItemsCount(), 1);
}

TEST_F(Sessions, TheRightButtonOnlyLeavesWhatIsNotEditable) {
    TVGRBaseItem& chain = label.CreatePolyLine({{0, 0}, {10000, 0}, {10000, 10000}});
    label.SetSelection(&chain, isSelected);
    label.SetEditable(false);
    Play(Event("RightButton", {5000, 200}));
    EXPECT_EQ(chain.NumPoints(), 3);
    label.SetEditable(true);
    Play(Tool("eaPolyline") + "\n" + Event("PickEditor", {1, 1}) + "\n" + Event("PickEditor", {5000, 5000}));
    label.SetEditable(false);
    Play(Event("RightButton", {5000, 5000}));
    EXPECT_EQ(Where(), "eaSelection edPickPoint");
    EXPECT_EQ(label.ItemsCount(), 1);
}

TEST_F(Sessions, ReferencesAreChosenBeforeTheCut) {
    label.CreateLine(0, 0, 20000, 0);
    label.CreateLine(5000, 5000, 5000, 20000);
    for (const char* action : {"eaTrim", "eaExtend"}) {
        Play(Tool(action));
        Play(Event("PickEditor", {9000, 9000}));
        EXPECT_EQ(TAct::GetState(), edPickRef) << "a miss";
        Play(Event("PickEditor", {9000, 0}));
        EXPECT_EQ(TAct::GetState(), edPickNextRef);
        EXPECT_EQ(label.SelectionCount(), 1);
        Play(R"({"op":"PickEditor","x":5000,"y":9000,"shift":["ssShift"]})");
        EXPECT_EQ(label.SelectionCount(), 2);
        Play(Event("RightButton", {0, 0}));
        EXPECT_EQ(TAct::GetState(), std::string(action) == "eaTrim" ? edTrim : edExtend);
        EXPECT_EQ(label.SelectionCount(), 2) << "the references stand";
        Play(Event("RightButton", {0, 0}));
        EXPECT_EQ(Where(), "eaSelection edPickPoint");
        EXPECT_EQ(label.SelectionCount(), 0);
    }
    // Without Shift the second pick of the trimmer cuts at once, where it hits.
    Play(Tool("eaTrim") + "\n" + Event("PickEditor", {9000, 0}) + "\n" + Event("PickEditor", {50000, 50000}));
    EXPECT_EQ(Where(), "eaTrim edPickNextRef");
    Play(Tool("eaJoin") + "\n" + Event("PickEditor", {50000, 50000}));
    EXPECT_EQ(Where(), "eaJoin edFirstRef");
    Play(R"({"op":"ClearSelection"})");
    Play(Event("PickEditor", {9000, 0}));
    EXPECT_EQ(Where(), "eaJoin edSecondRef");
}

TEST_F(Sessions, AFixedDocumentOnlySelects) {
    label.CreateRectangle(10000, 10000, 10000, 10000);
    label.SetEditable(false);
    Play(R"({"op":"PickEditor","x":10000,"y":15000}
            {"op":"expect","selection":1}
            {"op":"PickEditor","x":10000,"y":15000}
            {"op":"expect","action":"eaSelection"}
            {"op":"SetAction","action":"eaCirclePR"}
            {"op":"PickEditor","x":10000,"y":15000}
            {"op":"expect","state":"edPickCenter"}
            {"op":"SetState","state":"edPickRadio"}
            {"op":"PickEditor","radius":1000}
            {"op":"expect","state":"edPickRadio","items":1})");
}

// Sessions as text

TEST_F(Sessions, BadLinesAreToldWithTheirNumber) {
    const std::pair<const char*, const char*> rows[] = {
        {"{", "line 2: "},
        {"[]", "line 2: "},
        {"{}", "line 2: \"op\" is missing"},
        {R"({"op":5})", "\"op\" is missing"},
        {R"({"op":"Explode"})", "line 2: There is no operation \"Explode\""},
        {R"({"op":"Undo","gap":5})", "line 2: Undo has no parameter \"gap\""},
        {R"({"op":"UpEditor","x":5})", "line 2: \"y\" is missing"},
        {R"({"op":"UpEditor","x":5.5,"y":0})", "x: not a whole number"},
        {R"({"op":"UpEditor","x":"5","y":0})", "x: not a whole number"},
        {R"({"op":"MoveSelection","x":true,"y":0})", "x: not a number"},
        {R"({"op":"PickEditor","x":0,"y":0,"gap":3000000000})",
         "gap: 3000000000 is not allowed, only whole numbers of 32 bits"},
        {R"({"op":"PickEditor","x":0,"y":0,"shift":"ssCtrl"})", "shift: not a list"},
        {R"({"op":"PickEditor","x":0,"y":0,"shift":["ssCtrl","ctrl"]})", "\"ctrl\" is none of ssShift, ssAlt, ssCtrl"},
        {R"({"op":"SetAction","action":3})", "action: \"\" is none of eaNone, eaSelection"},
        {R"({"op":"BeginUpdate","paintOnEnd":1})", "paintOnEnd: neither true nor false"},
        {R"({"op":"SetSelection","item":"Line009"})", "item: no such item"},
        {R"({"op":"expect","items":3})", "line 2: the number of items is 0, not 3"},
        {R"({"op":"expect","action":"eaLine"})", "the action is eaSelection, not eaLine"},
        {R"({"op":"expect","selected":[1]})", "the selection is [], not [1]"},
        {R"({"op":"expect","answer":true})", "the answer is none, not true"},
    };
    for (const auto& [line, message] : rows) {
        try {
            Play("# a session\n" + std::string(line) + "\n");
            ADD_FAILURE() << line;
        } catch (const EVagrel& error) {
            EXPECT_THAT(error.what(), HasSubstr(message));
        }
    }
}

TEST_F(Sessions, ThePageTellsOfEveryOperation) {
    std::ifstream file(VAGREL_SESSIONS_PAGE);
    const std::string page{std::istreambuf_iterator<char>(file), {}};
    for (const Session::TOperation& operation : Session::Operations())
        EXPECT_THAT(page, HasSubstr("| `" + ToUtf8(operation.name) + "` | " + ToUtf8(operation.parameters)));
}

} // namespace
} // namespace vagrel::test
