// SPDX-License-Identifier: MIT
// What each action begins with, how it steps, and what the status line says of actions and states.
#include <vagrel/editor/TAct.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/messages/TVGRMsg.h>

#include <algorithm>
#include <iterator>
#include <optional>

namespace vagrel {

namespace {

// What an entry leaves as it was set before.
constexpr std::nullopt_t Stay = std::nullopt;

struct TFirst {
    std::optional<TKSLEdState> state;
    std::optional<TKSLStEditor> editor;
    std::optional<TKSLDrawType> draw = Stay;
    bool remembered = true; ///< as the last tool
    const char16_t* caption = u"";
    const char16_t* common = u""; ///< the caption where the table of texts lacks the other
};

// In the order of the actions.
constexpr TFirst Actions[] = {
    {Stay, Stay, Stay, false},                                         // eaNone
    {edPickPoint, seSelect, dtNone, false, u"Selection"},              // eaSelection
    {Stay, seDrag, Stay, false, u"Move"},                              // eaMove
    {edPickPoint, seDraw, Stay, true, u"DrawPoint"},                   // eaPoint
    {edPickFirst, seDraw, dtNone, true, u"DrawLine"},                  // eaLine
    {edPickFirst, seDraw, dtNone, true, u"DrawArrowLine"},             // eaArrowLine
    {edPickFirst, seDraw, Stay, true, u"DrawRectangle"},               // eaRectangle
    {edPickFirst, seDraw, Stay, true, u"DrawPolyline"},                // eaPolyline
    {edPickFirst, seDraw, Stay, true, u"DrawArc"},                     // eaArc
    {edPickFirst, seDraw, Stay, true, u"DrawPolygon"},                 // eaPolygon
    {edPickFirst, seDraw, Stay, true, u"DrawBezier"},                  // eaBezier
    {edPickCenter, seDraw, Stay, true, u"DrawCirclePR"},               // eaCirclePR
    {edPickFirst, seDraw, Stay, true, u"DrawCircle2P"},                // eaCircle2P
    {edPickFirst, seDraw, Stay, true, u"DrawCircle3P"},                // eaCircle3P
    {edPickCenter, seDraw, Stay, true, u"DrawEllipse"},                // eaEllipse
    {edPickPoint, seDraw, Stay, true, u"DrawText"},                    // eaText
    {edEditing, seDraw, dtText, true, u"EditText"},                    // eaEdText
    {Stay, seDrag, Stay, false, u"MoveText"},                          // eaMoveText
    {edPickFirst, seDraw, Stay, true, u"DrawParagraph"},               // eaParagraph
    {edPickFirst, seDraw, Stay, true, u"DrawRichText"},                // eaRichText
    {edPickRef, Stay, Stay, true, u"TrimLines"},                       // eaTrim
    {edFirstRef, Stay, Stay, true, u"JoinLines"},                      // eaJoin
    {edPickRef, Stay, Stay, true, u"ExtendLines"},                     // eaExtend
    {edPickRef, Stay, Stay, true, u"Equidist"},                        // eaEquidist
    {edPickPoint, seDraw, Stay, true, u"DrawBarcode"},                 // eaBarcode
    {edPickPoint, seDraw, Stay, true, u"DrawPDF417"},                  // eaPDF417
    {edPickPoint, seDraw, Stay, true, u"DrawDataMatrix"},              // eaDataMatrix
    {edPickPoint, seDraw, Stay, true, u"DrawQRCode"},                  // eaQRCode
    {edPickFirst, seDraw, Stay, true, u"DrawImage"},                   // eaImage
    {edPickFirst, seDraw, Stay, true, u"DrawFlow"},                    // eaFlow
    {edPickFirst, seDraw, dtLink, true, u"DrawLink"},                  // eaLink
    {edPickFirst, seDraw, dtPolyLink, true, u"DrawLink"},              // eaPolyLink
    {edPickFirst, seDraw, Stay, true, u"DrawTable"},                   // eaTable
    {edPickPoint, seDraw, Stay, true, u"DrawPolytext"},                // eaPolyText
    {edPickFirst, seDraw, Stay, true, u"DrawRank"},                    // eaRank
    {edPickFirst, seDraw, Stay, true, u"DrawNutriScore"},              // eaNutriScore
    {edPickCenter, seDraw, Stay, true, u"DrawLevel"},                  // eaLevel
    {edPickPoint, seDraw, Stay, true, u"DrawSymbol"},                  // eaSymbol
    {edPickFirst, seDraw, Stay, true, u"DrawDim"},                     // eaDim
    {edPickCircle, seDraw, Stay, true, u"DrawDimRad1", u"DrawDimRad"}, // eaDimRad1
    {edPickCircle, seDraw, Stay, true, u"DrawDimRad2", u"DrawDimRad"}, // eaDimRad2
    {edPickCircle, seDraw, Stay, true, u"DrawDimDia1", u"DrawDimDia"}, // eaDimDia1
    {edPickCircle, seDraw, Stay, true, u"DrawDimDia2", u"DrawDimDia"}, // eaDimDia2
    {edPickCenter, seDraw, Stay, true, u"DrawSectorPR"},               // eaSectorPR
    {edPickFirst, seDraw, Stay, true, u"DrawSector2P"},                // eaSector2P
    {edPickFirst, seDraw, Stay, true, u"DrawSector3P"},                // eaSector3P
    {edPickFirst, seDraw, Stay, true, u"DrawPackage"},                 // eaPackage
    {edFirstRef, Stay, Stay, true, u"DrawDimAng"},                     // eaDimAng
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

// Steps. Of the rows with the action and its state the first one counts; without one the state stays.

constexpr std::nullopt_t AnyState = std::nullopt;

struct TStep {
    TKSLEdActions actions;
    std::optional<TKSLEdState> from;
    std::optional<TKSLEdState> to;
    std::optional<TKSLDrawType> draw = Stay;
    std::optional<TKSLStEditor> editor = Stay;
    bool normalize = false;  ///< makes the first two picks the corners of a box
    bool byFlowType = false; ///< draws the outline of the shape
};

constexpr TKSLEdActions Places{eaPoint, eaSymbol, eaPolyText, eaBarcode, eaPDF417, eaDataMatrix, eaQRCode};
constexpr TKSLEdActions Lines{eaLine, eaArrowLine};
constexpr TKSLEdActions Boxes{eaRectangle, eaParagraph, eaRichText, eaImage, eaTable, eaRank, eaNutriScore, eaPackage};
constexpr TKSLEdActions Diameters{eaCircle2P, eaSector2P};
constexpr TKSLEdActions Rims{eaArc, eaCircle3P, eaSector3P};
constexpr TKSLEdActions Radii{eaCirclePR, eaLevel, eaSectorPR};
constexpr TKSLEdActions Chains{eaPolyline, eaPolygon, eaBezier};

constexpr TStep Picks[] = {
    {{eaSelection}, edPickPoint, edSelectDrag, dtSelRect},
    {{eaSelection}, edSelectDrag, edPickPoint, dtNone},
    {Places, edPickPoint, edEnd},
    {{eaText}, edPickPoint, edEnd, dtText},
    {{eaText}, edEnd, edEnd, dtNone},
    {Lines, edPickFirst, edPickSecond, dtLine},
    {Lines, edPickSecond, edEnd, dtNone},
    {Boxes, edPickFirst, edPickSecond, dtRect},
    {Diameters, edPickFirst, edPickSecond, dtCircle2P},
    {{eaFlow}, edPickFirst, edPickSecond, Stay, Stay, false, true},
    {Boxes + Diameters + TKSLEdActions{eaFlow}, edPickSecond, edEnd, dtNone, Stay, true},
    {Chains, edPickFirst, edPickNext, dtLine},
    {Chains, AnyState, Stay, dtLine},
    {Rims, edPickFirst, edPickSecond, dtCircle2P},
    {{eaArc}, edPickSecond, edPickThird, dtArc3P},
    {{eaCircle3P, eaSector3P}, edPickSecond, edPickThird, dtCircle3P},
    {Rims, edPickThird, edEnd, dtNone},
    {Radii, edPickCenter, edPickRadio, dtCircle},
    {Radii, edPickRadio, edEnd, dtNone},
    {{eaEllipse}, edPickCenter, edPickRadioX, dtEllipse},
    {{eaEllipse}, edPickRadioX, edPickRadioY, dtEllipse},
    {{eaEllipse}, edPickRadioY, edEnd, dtNone},
    {{eaDim}, edPickFirst, edPickSecond, dtLine},
    {{eaDim}, edPickSecond, edPickSide, dtNone},
    {{eaDim}, edPickSide, edEnd},
    {{eaDimAng}, edFirstRef, edSecondRef, dtNone},
    {{eaDimAng}, edSecondRef, edPickSide, dtNone},
    {{eaDimAng}, edPickSide, edEnd, dtNone},
    {{eaDimRad1}, edPickCircle, edEnd, dtDimRad1},
    {{eaDimRad2}, edPickCircle, edEnd, dtDimRad2},
    {{eaDimDia1}, edPickCircle, edEnd, dtDimDia1},
    {{eaDimDia2}, edPickCircle, edEnd, dtDimDia2},
    {{eaJoin}, edFirstRef, edSecondRef},
    {{eaJoin}, edSecondRef, edEnd},
    {{eaEquidist}, edPick1Distance, edPick2Distance, dtLine, seDraw},
    {{eaEquidist}, edPick2Distance, edPickSide, dtNone},
};

// In the order of the flow types.
constexpr TKSLDrawType FlowOutlines[] = {dtTerminator, dtRect,        dtDocument, dtDocument, dtDiamond,
                                         dtData,       dtRect,        dtRect,     dtRect,     dtRect,
                                         dtHexagon,    dtFlowEllipse, dtStart,    dtStep,     dtEnd};
static_assert(std::size(FlowOutlines) == ftEnd + 1);

constexpr TStep FirstEnds[] = {
    {{eaLink}, edPickFirst, edPickSecond},
    {{eaPolyLink}, edPickFirst, edPickNext, dtPolyLink},
};
constexpr TStep SecondEnds[] = {
    {{eaLink}, edPickSecond, edEnd, dtNone},
    {{eaPolyLink}, edEnd, edEnd, dtNone},
};

// Without a pick.
constexpr TStep NextSteps[] = {
    {{eaText}, edEnd, edEditing, dtText, seDraw},
    {{eaTrim, eaExtend}, edPickRef, edPickNextRef},
    {{eaEquidist}, edPickRef, edPick1Distance},
};
constexpr TStep Closings[] = {
    {{eaTrim}, edPickNextRef, edTrim},
    {{eaExtend}, edPickNextRef, edExtend},
};

template <std::size_t Count>
const TStep* Find(const TStep (&steps)[Count]) {
    const auto step = std::ranges::find_if(steps, [](const TStep& each) {
        return each.actions.Has(TAct::GetAction()) && (!each.from || each.from == TAct::GetState());
    });
    return step == std::end(steps) ? nullptr : step;
}

TKSLBPoint Place(std::int64_t x, std::int64_t y) {
    TKSLBPoint place;
    place.X = x, place.Y = y;
    return place;
}

std::int64_t Third(std::int64_t from, std::int64_t to) {
    // Thirds have no ties.
    const TInt128 sum = TInt128(from) * 2 + to;
    return std::int64_t((sum + (sum < 0 ? -1 : 1)) / 3);
}

std::u16string TextOf(std::u16string_view key) { return key.empty() ? u"" : TVGRMsg::GetActionsValue(key); }

std::u16string Caption(const TFirst& first) {
    return TextOf(TVGRMsg::Has(std::u16string(u"act") + first.caption) ? first.caption : first.common);
}

} // namespace

void TAct::Enter(std::optional<TKSLEdState> state, std::optional<TKSLDrawType> draw,
                 std::optional<TKSLStEditor> editor) {
    TState& act = Current();
    act.fCurState = state.value_or(act.fCurState);
    act.fDrawType = draw.value_or(act.fDrawType);
    act.fCurEditor = editor.value_or(act.fCurEditor);
}

void TAct::SelFirstState() {
    const TFirst& first = Actions[GetAction()];
    if (first.remembered)
        Current().fCurLastAction = GetAction();
    Enter(first.state, first.draw, first.editor);
}

TKSLSInfo TAct::AddPoint(std::int64_t bx, std::int64_t by) {
    TState& act = Current();
    if (act.fCurState == edPickPoint)
        act.fPoints.clear();
    if (act.fCurAction == eaBezier && act.fCurState == edPickNext && !act.fPoints.empty()) {
        const TKSLBPoint last = act.fPoints.back();
        act.fPoints.push_back(Place(Third(last.X, bx), Third(last.Y, by)));
        act.fPoints.push_back(Place(Third(bx, last.X), Third(by, last.Y)));
    }
    act.fPoints.push_back(Place(bx, by));
    if (const TStep* step = Find(Picks)) {
        if (step->normalize)
            NormalizePoints();
        Enter(step->to, step->byFlowType ? FlowOutlines[act.fCurFlowType] : step->draw, step->editor);
    }
    return GetInfo();
}

TKSLSInfo TAct::AddLink(std::int32_t id, std::int16_t pos) {
    TState& act = Current();
    const TStep* step;
    if ((step = Find(FirstEnds)))
        act.fID1 = id, act.fPos1 = pos;
    else if ((step = Find(SecondEnds)))
        act.fID2 = id, act.fPos2 = pos;
    if (step)
        Enter(step->to, step->draw, step->editor);
    return GetInfo();
}

TKSLSInfo TAct::NextStep(bool close) {
    const TStep* step = Find(NextSteps);
    if (!step && close)
        step = Find(Closings);
    if (step) {
        if (GetAction() == eaText)
            Current().fCurAction = eaEdText;
        Enter(step->to, step->draw, step->editor);
    }
    return GetInfo();
}

TKSLSInfo TAct::GetInfo() { return {Caption(Actions[GetAction()]), TextOf(Prompts[GetState()])}; }

} // namespace vagrel
