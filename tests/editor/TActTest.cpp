// SPDX-License-Identifier: MIT
// The running action: what each tool waits for, pick by pick, and how it is left.
#include <host/EnumNames.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/platform/Files.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

namespace vagrel::test {
namespace {

class Act : public testing::Test {
protected:
    Act() {
        TAct::ResetForTests();
        TAct::Reset();
    }
    ~Act() override { TAct::ResetForTests(); }

    static std::string Where() {
        return std::string(EnumName(TAct::GetAction())) + " " + std::string(EnumName(TAct::GetState()));
    }
    static std::vector<std::pair<std::int64_t, std::int64_t>> Points() {
        std::vector<std::pair<std::int64_t, std::int64_t>> points;
        for (int i = 0; i < TAct::NumPoints(); ++i)
            points.emplace_back(TAct::GetPointX(i), TAct::GetPointY(i));
        return points;
    }
};

using TPlaces = std::vector<std::pair<std::int64_t, std::int64_t>>;

// Tools and their script: the first state, editor and preview, and the same after each pick. "*" is a pick, "+" a step
// without one, "++" one that closes, "@" an end of a link.
constexpr std::pair<const char*, const char*> Scripts[] = {
    {"eaSelection", "edPickPoint seSelect dtNone * edSelectDrag seSelect dtSelRect * edPickPoint seSelect dtNone"},
    {"eaPoint eaSymbol eaPolyText eaBarcode eaPDF417 eaDataMatrix eaQRCode",
     "edPickPoint seDraw dtNone * edEnd seDraw dtNone"},
    {"eaText", "edPickPoint seDraw dtNone * edEnd seDraw dtText * edEnd seDraw dtNone + edEditing seDraw dtText"},
    {"eaEdText", "edEditing seDraw dtText * edEditing seDraw dtText"},
    {"eaLine", "edPickFirst seDraw dtNone * edPickSecond seDraw dtLine * edEnd seDraw dtNone * edEnd seDraw dtNone"},
    {"eaArrowLine", "edPickFirst seDraw dtNone * edPickSecond seDraw dtLine * edEnd seDraw dtNone"},
    {"eaRectangle eaParagraph eaRichText eaImage eaTable eaRank eaNutriScore eaPackage",
     "edPickFirst seDraw dtNone * edPickSecond seDraw dtRect * edEnd seDraw dtNone"},
    {"eaFlow", "edPickFirst seDraw dtNone * edPickSecond seDraw dtTerminator * edEnd seDraw dtNone"},
    {"eaCircle2P eaSector2P", "edPickFirst seDraw dtNone * edPickSecond seDraw dtCircle2P * edEnd seDraw dtNone"},
    {"eaArc",
     "edPickFirst seDraw dtNone * edPickSecond seDraw dtCircle2P * edPickThird seDraw dtArc3P * edEnd seDraw dtNone"},
    {"eaCircle3P eaSector3P", "edPickFirst seDraw dtNone * edPickSecond seDraw dtCircle2P * edPickThird seDraw "
                              "dtCircle3P * edEnd seDraw dtNone"},
    {"eaCirclePR eaSectorPR eaLevel", "edPickCenter seDraw dtNone * edPickRadio seDraw dtCircle * edEnd seDraw dtNone"},
    {"eaEllipse", "edPickCenter seDraw dtNone * edPickRadioX seDraw dtEllipse * edPickRadioY seDraw dtEllipse * edEnd "
                  "seDraw dtNone"},
    {"eaPolyline eaPolygon eaBezier",
     "edPickFirst seDraw dtNone * edPickNext seDraw dtLine * edPickNext seDraw dtLine"},
    {"eaDim",
     "edPickFirst seDraw dtNone * edPickSecond seDraw dtLine * edPickSide seDraw dtNone * edEnd seDraw dtNone"},
    {"eaDimAng",
     "edFirstRef seSelect dtNone * edSecondRef seSelect dtNone * edPickSide seSelect dtNone * edEnd seSelect dtNone"},
    {"eaDimRad1", "edPickCircle seDraw dtNone * edEnd seDraw dtDimRad1"},
    {"eaDimRad2", "edPickCircle seDraw dtNone * edEnd seDraw dtDimRad2"},
    {"eaDimDia1", "edPickCircle seDraw dtNone * edEnd seDraw dtDimDia1"},
    {"eaDimDia2", "edPickCircle seDraw dtNone * edEnd seDraw dtDimDia2"},
    {"eaJoin", "edFirstRef seSelect dtNone * edSecondRef seSelect dtNone * edEnd seSelect dtNone"},
    {"eaTrim", "edPickRef seSelect dtNone ++ edPickNextRef seSelect dtNone + edPickNextRef seSelect dtNone * "
               "edPickNextRef seSelect dtNone ++ edTrim seSelect dtNone + edTrim seSelect dtNone"},
    {"eaExtend", "edPickRef seSelect dtNone + edPickNextRef seSelect dtNone ++ edExtend seSelect dtNone"},
    {"eaEquidist", "edPickRef seSelect dtNone + edPick1Distance seSelect dtNone * edPick2Distance seDraw dtLine * "
                   "edPickSide seDraw dtNone"},
    {"eaLink", "edPickFirst seDraw dtLink @ edPickSecond seDraw dtLink @ edEnd seDraw dtNone @ edEnd seDraw dtNone"},
    {"eaPolyLink", "edPickFirst seDraw dtPolyLink @ edPickNext seDraw dtPolyLink @ edPickNext seDraw dtPolyLink * "
                   "edPickNext seDraw dtPolyLink"},
    {"eaMove eaMoveText", "edPickPoint seDrag dtNone * edPickPoint seDrag dtNone"},
    {"eaNone", "edPickPoint seSelect dtNone * edPickPoint seSelect dtNone"},
};

TEST_F(Act, EveryToolStepsAsItsScriptSays) {
    std::set<std::string> seen;
    for (const auto& [actions, script] : Scripts) {
        std::istringstream names(actions);
        for (std::string action; names >> action;) {
            SCOPED_TRACE(action);
            TAct::ResetForTests();
            TAct::Reset();
            std::istringstream words(script);
            std::string step, state, editor, draw;
            seen.insert(action);
            TAct::SetCurAction(EnumValue<TKSLEdAction>(action).value());
            int picks = 0;
            do {
                if (step == "*")
                    TAct::AddPoint(100 * picks, 50 * picks), ++picks;
                else if (step == "@")
                    TAct::AddLink(7, 1);
                else if (!step.empty())
                    TAct::NextStep(step == "++");
                ASSERT_TRUE(words >> state >> editor >> draw);
                EXPECT_EQ(EnumName(TAct::GetState()), state) << "after " << picks << " picks";
                EXPECT_EQ(EnumName(TAct::GetEditor()), editor) << "after " << picks << " picks";
                EXPECT_EQ(EnumName(TAct::GetDrawType()), draw) << "after " << picks << " picks";
            } while (words >> step);
            const std::set<std::string> forgotten{"eaNone", "eaSelection", "eaMove", "eaMoveText"};
            EXPECT_EQ(EnumName(TAct::GetLastAction()), forgotten.contains(action) ? "eaNone" : action);
        }
    }
    for (int action = eaNone; action <= eaDimAng; ++action)
        EXPECT_TRUE(seen.contains(std::string(EnumName(TKSLEdAction(action))))) << EnumName(TKSLEdAction(action));
}

TEST_F(Act, AnotherActionDropsPicksAndTheSameOneKeepsThem) {
    TAct::SetCurAction(eaLine);
    TAct::AddPoint(1, 1);
    TAct::SetCurAction(eaLine);
    EXPECT_EQ(Where(), "eaLine edPickFirst");
    EXPECT_EQ(TAct::NumPoints(), 1);
    TAct::SetCurAction(eaCirclePR);
    EXPECT_EQ(TAct::NumPoints(), 0);
    EXPECT_EQ(TAct::GetDrawType(), dtNone);
}

TEST_F(Act, MeasuresAndOrdersPicks) {
    constexpr std::int64_t far = std::int64_t(1) << 40;
    TAct::SetCurAction(eaPolyline);
    for (const auto& [x, y] : TPlaces{{30, 40}, {0, 0}, {30, 0}, {far, 0}, {far + 1, 7}})
        TAct::AddPoint(x, y);
    EXPECT_EQ(TAct::Distance(0, 1), 50);
    EXPECT_EQ(TAct::Distance(2, 0), 40);
    EXPECT_EQ(TAct::Distance(1, 2), 30);
    EXPECT_EQ(TAct::Distance(3, 3), 0);
    EXPECT_EQ(TAct::Distance(3, 4), 7) << "equal in single precision";
    EXPECT_EQ(TAct::Distance(1, 9), 0) << "no such pick";
    TAct::OrderPointsArc();
    EXPECT_EQ(Points(), (TPlaces{{0, 0}, {30, 40}, {30, 0}, {far, 0}, {far + 1, 7}}));
}

TEST_F(Act, TellsCaptionsAndPrompts) {
    const TKSLSInfo line = TAct::SetCurAction(eaLine);
    EXPECT_EQ(line.aAction, u"Draw Line");
    EXPECT_EQ(line.sState, u"Select first point");
    EXPECT_EQ(TAct::AddPoint(0, 0).sState, u"Select second point");
    EXPECT_EQ(TAct::AddPoint(0, 0).sState, u"");
    EXPECT_EQ(TAct::SetCurAction(eaTrim).aAction, u"Trime Lines");
    EXPECT_EQ(TAct::NextStep(false).sState, u"Select Next Ref Lines");
    EXPECT_EQ(TAct::NextStep(true).sState, u"Select Trim Lines");
    EXPECT_EQ(TAct::SetCurAction(eaJoin).sState, u"Select Ref Lines");
    EXPECT_EQ(TAct::SetCurAction(eaDimRad1).sState, u"Select Circle");
    EXPECT_EQ(TAct::SetCurAction(eaPolyLink).aAction, u"Draw Link");
    EXPECT_EQ(TAct::SetMove(mtSE, 0).aAction, u"Move");
    const std::pair<TKSLMoveType, const char16_t*> moves[] = {
        {mtNone, u""},        {mtObjects, u"Objects"}, {mtNW, u"Objects"},   {mtSE, u"Objects"},
        {mtText, u"Objects"}, {mtRadio, u"Radio"},     {mtRadioY, u"Radio"}, {mtBezierCtrl, u"Point"},
        {mtArc, u"Point"},    {mtPolyPoint, u"Point"}, {mtLinkCurve, u""},   {mtDispWidth, u""}};
    for (const auto& [type, prompt] : moves)
        EXPECT_EQ(TAct::SetMove(type, 0).sState, *prompt ? TVGRMsg::GetActionsValue(prompt) : u"") << EnumName(type);
}

TEST_F(Act, ALanguageMayNameToolsThatHaveNoCaption) {
    EXPECT_EQ(TAct::SetCurAction(eaFlow).aAction, u"");
    EXPECT_EQ(TAct::SetCurAction(eaDimRad2).aAction, TVGRMsg::GetActionsValue(u"DrawDimRad"));
    const std::string file = testing::TempDir() + "captions.lng";
    WriteFile(file, "[Actions]\nactDrawFlow=Figur\nactDrawDimRad2=Radius\n");
    TVGRMsg::LoadResources(FromUtf8(file));
    std::remove(file.c_str());
    EXPECT_EQ(TAct::SetCurAction(eaFlow).aAction, u"Figur");
    EXPECT_EQ(TAct::SetCurAction(eaDimRad2).aAction, u"Radius");
    EXPECT_EQ(TAct::SetCurAction(eaDimRad1).aAction, TVGRMsg::GetActionsValue(u"DrawDimRad"));
    TVGRMsg::LoadResources(u"");
}

} // namespace
} // namespace vagrel::test
