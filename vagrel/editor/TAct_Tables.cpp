// SPDX-License-Identifier: MIT
// What each action begins with, and what the status line says of actions and states.
#include <vagrel/editor/TAct.h>

#include <vagrel/messages/TVGRMsg.h>

#include <iterator>

namespace vagrel {

namespace {

// "Stay" entries leave what the action before had set.
constexpr auto Stay = -1;

struct TFirst {
    int state;
    int editor;
    int draw = Stay;
    bool remembered = true; ///< as the last tool
    const char16_t* caption = u"";
};

// In the order of the actions.
constexpr TFirst Actions[] = {
    {Stay, Stay, Stay, false},                             // eaNone
    {edPickPoint, seSelect, dtNone, false, u"Selection"},  // eaSelection
    {Stay, seDrag, Stay, false, u"Move"},                  // eaMove
    {edPickPoint, seDraw, Stay, true, u"DrawPoint"},       // eaPoint
    {edPickFirst, seDraw, dtNone, true, u"DrawLine"},      // eaLine
    {edPickFirst, seDraw, dtNone, true, u"DrawArrowLine"}, // eaArrowLine
    {edPickFirst, seDraw, Stay, true, u"DrawRectangle"},   // eaRectangle
    {edPickFirst, seDraw, Stay, true, u"DrawPolyline"},    // eaPolyline
    {edPickFirst, seDraw, Stay, true, u"DrawArc"},         // eaArc
    {edPickFirst, seDraw, Stay, true, u"DrawPolygon"},     // eaPolygon
    {edPickFirst, seDraw, Stay, true, u"DrawBezier"},      // eaBezier
    {edPickCenter, seDraw, Stay, true, u"DrawCirclePR"},   // eaCirclePR
    {edPickFirst, seDraw, Stay, true, u"DrawCircle2P"},    // eaCircle2P
    {edPickFirst, seDraw, Stay, true, u"DrawCircle3P"},    // eaCircle3P
    {edPickCenter, seDraw, Stay, true, u"DrawEllipse"},    // eaEllipse
    {edPickPoint, seDraw, Stay, true, u"DrawText"},        // eaText
    {edEditing, seDraw, dtText, true, u"EditText"},        // eaEdText
    {Stay, seDrag, Stay, false, u"MoveText"},              // eaMoveText
    {edPickFirst, seDraw, Stay, true, u"DrawParagraph"},   // eaParagraph
    {edPickFirst, seDraw, Stay, true, u"DrawRichText"},    // eaRichText
    {edPickRef, Stay, Stay, true, u"TrimLines"},           // eaTrim
    {edFirstRef, Stay, Stay, true, u"JoinLines"},          // eaJoin
    {edPickRef, Stay, Stay, true, u"ExtendLines"},         // eaExtend
    {edPickRef, Stay, Stay, true, u"Equidist"},            // eaEquidist
    {edPickPoint, seDraw, Stay, true, u"DrawBarcode"},     // eaBarcode
    {edPickPoint, seDraw, Stay, true, u"DrawPDF417"},      // eaPDF417
    {edPickPoint, seDraw, Stay, true, u"DrawDataMatrix"},  // eaDataMatrix
    {edPickPoint, seDraw, Stay, true, u"DrawQRCode"},      // eaQRCode
    {edPickFirst, seDraw, Stay, true, u"DrawImage"},       // eaImage
    {edPickFirst, seDraw, Stay},                           // eaFlow: the table of texts has no caption
    {edPickFirst, seDraw, dtLink, true, u"DrawLink"},      // eaLink
    {edPickFirst, seDraw, dtPolyLink, true, u"DrawLink"},  // eaPolyLink
    {edPickFirst, seDraw, Stay, true, u"DrawTable"},       // eaTable
    {edPickPoint, seDraw, Stay, true, u"DrawPolytext"},    // eaPolyText
    {edPickFirst, seDraw, Stay, true, u"DrawRank"},        // eaRank
    {edPickFirst, seDraw, Stay, true, u"DrawNutriScore"},  // eaNutriScore
    {edPickCenter, seDraw, Stay, true, u"DrawLevel"},      // eaLevel
    {edPickPoint, seDraw, Stay, true, u"DrawSymbol"},      // eaSymbol
    {edPickFirst, seDraw, Stay, true, u"DrawDim"},         // eaDim
    {edPickCircle, seDraw, Stay, true, u"DrawDimRad"},     // eaDimRad1
    {edPickCircle, seDraw, Stay, true, u"DrawDimRad"},     // eaDimRad2
    {edPickCircle, seDraw, Stay, true, u"DrawDimDia"},     // eaDimDia1
    {edPickCircle, seDraw, Stay, true, u"DrawDimDia"},     // eaDimDia2
    {edPickCenter, seDraw, Stay, true, u"DrawSectorPR"},   // eaSectorPR
    {edPickFirst, seDraw, Stay, true, u"DrawSector2P"},    // eaSector2P
    {edPickFirst, seDraw, Stay, true, u"DrawSector3P"},    // eaSector3P
    {edPickFirst, seDraw, Stay, true, u"DrawPackage"},     // eaPackage
    {edFirstRef, Stay, Stay, true, u"DrawDimAng"},         // eaDimAng
};
static_assert(std::size(Actions) == eaDimAng + 1);

// In the order of the states. Some have no prompt.
constexpr const char16_t* Prompts[] = {u"SelPoint",
                                       u"",
                                       u"SelFirstPoint",
                                       u"SelSecondPoint",
                                       u"SelThirdPoint",
                                       u"SelNextPoint",
                                       u"",
                                       u"SelCenter",
                                       u"SelRadioX",
                                       u"SelRadioY",
                                       u"",
                                       u"Editing",
                                       u"SelPickRef",
                                       u"SelPickNextRef",
                                       u"SelPickRef",
                                       u"SelPickRef",
                                       u"SelFirstPointDistance",
                                       u"SelSecondPointDistance",
                                       u"SelTrimLines",
                                       u"",
                                       u"",
                                       u"",
                                       u"SelSidePos",
                                       u"SelCircle"};
static_assert(std::size(Prompts) == edPickCircle + 1);

std::u16string TextOf(std::u16string_view key) { return key.empty() ? u"" : TVGRMsg::GetActionsValue(key); }

} // namespace

void TAct::SelFirstState() {
    TState& act = Current();
    const TFirst& first = Actions[act.fCurAction];
    if (first.remembered)
        act.fCurLastAction = act.fCurAction;
    if (first.state != Stay)
        act.fCurState = TKSLEdState(first.state);
    if (first.editor != Stay)
        act.fCurEditor = TKSLStEditor(first.editor);
    if (first.draw != Stay)
        act.fDrawType = TKSLDrawType(first.draw);
}

TKSLSInfo TAct::GetInfo() { return {TextOf(Actions[GetAction()].caption), TextOf(Prompts[GetState()])}; }

} // namespace vagrel
