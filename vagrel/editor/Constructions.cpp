// SPDX-License-Identifier: MIT
// What each tool leaves behind after its last pick: one row for each.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Rounding.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vagrel {

namespace {

// The picks of the running action as the factories take them.
struct TPicks {
    bool keepAspect; ///< of a picture

    std::int64_t X(int index) const { return TAct::GetPointX(index); }
    std::int64_t Y(int index) const { return TAct::GetPointY(index); }
    TKSLPto operator[](int index) const { return {X(index), Y(index)}; }
    std::int64_t W() const { return SubSat(X(1), X(0)); }
    std::int64_t H() const { return SubSat(Y(1), Y(0)); }
    std::int64_t Radius() const { return TAct::Distance(1, 0); }
    TKSLPtoA All() const {
        TKSLPtoA all;
        for (int i = 0; i < TAct::NumPoints(); ++i)
            all.push_back((*this)[i]);
        return all;
    }
    // The circle that a dimension measures, and the direction of the pick from it.
    TKSLPto Center() const { return {TAct::GetBaseX(1), TAct::GetBaseY(1)}; }
    std::int64_t CircleRadius() const { return TAct::GetIntX(1); }
    double Angle() const { return std::atan2(Difference(Y(0), Center().bY), Difference(X(0), Center().bX)); }
    // The ends of a link.
    TKSLink From() const { return End(TAct::GetID1(), TAct::GetPos1()); }
    TKSLink To() const { return End(TAct::GetID2(), TAct::GetPos2()); }

private:
    static TKSLink End(std::int32_t id, int pos) {
        TKSLink end;
        end.ID = id;
        end.PosFrom = end.PosTo = std::int16_t(pos);
        return end;
    }
};

std::int64_t Size(std::int64_t value) { return value < 0 ? SubSat(0, value) : value; }

using TLabel = TVGRBaseLabel;
using TItem = TVGRBaseItem;

// The row of the inspector that opens with a new item.
struct TInspect {
    TKSLInsProp prop = ipText;
    int row = 0; ///< 0 for none
    bool opens = true;
};

struct TConstruction {
    TKSLEdAction action;
    TItem& (*make)(TLabel&, const TPicks&);
    bool crossings = false;
    bool paint = true;
    TInspect inspect = {};
};

constexpr bool Crossings = true, Repaint = true, Quiet = false;

// clang-format off
constexpr TConstruction Constructions[] = {
    {eaPoint, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreatePoint(p.X(0), p.Y(0)); }},
    {eaLine, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateLine(p.X(0), p.Y(0), p.X(1), p.Y(1)); }, Crossings},
    {eaArrowLine, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateArrowLine(p.X(0), p.Y(0), p.X(1), p.Y(1)); }, Crossings},
    {eaRectangle, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateRectangle(p.X(0), p.Y(0), p.W(), p.H()); }, Crossings},
    {eaPolyline, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreatePolyLine(p.All()); }, Crossings},
    {eaPolygon, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreatePolygon(p.All()); }, Crossings},
    {eaBezier, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateBezier(p.All()); }, Crossings},
    {eaArc, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateArc(p[0], p[1], p[2]); }, Crossings},
    {eaCirclePR, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateCircle(p[0], p.Radius()); }, Crossings},
    {eaCircle2P, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateCircle2P(p[0], p[1]); }, Crossings},
    {eaCircle3P, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateCircle3P(p[0], p[1], p[2]); }, Crossings},
    {eaEllipse, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateEllipse(p[0], Size(p.W()), Size(SubSat(p.Y(2), p.Y(0)))); }, Crossings},
    {eaText, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateText(p.X(0), p.Y(0)); }},
    {eaParagraph, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreatePara(p.X(0), p.Y(0), p.W(), p.H()); }, {}, Quiet, {ipMemo, 1}},
    {eaRichText, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateRichText(p.X(0), p.Y(0), p.W(), p.H()); }, {}, Quiet, {ipMemo, 1}},
    {eaBarcode, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateBarcode(p.X(0), p.Y(0), u"123456", btCODE39); }},
    {eaPDF417, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreatePDF417(p.X(0), p.Y(0), u"PDF417"); }, {}, Repaint, {ipMemo, 10}},
    {eaDataMatrix, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateDataMatrix(p.X(0), p.Y(0), u"DataMatrix"); }, {}, Repaint, {ipMemo, 11}},
    {eaQRCode, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateQRCode(p.X(0), p.Y(0), u"QRCode"); }, {}, Repaint, {ipMemo, 12}},
    {eaImage, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateImage(p.X(0), p.Y(0), p.W(), p.H(), p.keepAspect, u""); }, {}, Repaint, {ipImage, 1, false}},
    {eaFlow, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateFlow(p.X(0), p.Y(0), p.W(), p.H(), TAct::GetFlowType()); }, {}, Quiet, {ipMemo, 2}},
    {eaLink, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateLink(p.From(), p.To(), TAct::GetLinkType()); }},
    {eaPolyLink, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreatePolyLink(p.From(), p.To(), TAct::GetLinkType(), p.All()); }},
    {eaTable, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateTable(p.X(0), p.Y(0), p.W(), p.H()); }},
    {eaPolyText, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreatePolyText(p.X(0), p.Y(0)); }, {}, Repaint, {ipPolyText, 2}},
    {eaRank, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateRank(p.X(0), p.Y(0), p.W(), p.H()); }},
    {eaNutriScore, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateNutriScore(p.X(0), p.Y(0), p.W(), p.H()); }},
    {eaLevel, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateLevel(p[0], p.Radius()); }},
    {eaSymbol, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateSymbol(p.X(0), p.Y(0)); }},
    {eaDim, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateDim(p[0], p[1], p[2]); }},
    {eaDimRad1, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateDimRad1(p.Center(), p.CircleRadius(), p.Angle()); }},
    {eaDimRad2, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateDimRad2(p.Center(), p.CircleRadius(), p.Angle()); }},
    {eaDimDia1, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateDimDia1(p.Center(), p.CircleRadius(), p.Angle()); }},
    {eaDimDia2, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateDimDia2(p.Center(), p.CircleRadius(), p.Angle()); }},
    {eaSectorPR, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateSector(p[0], p.Radius(), 0, 360); }},
    {eaSector2P, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateSector2P(p[0], p[1], 0, 360); }},
    {eaSector3P, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreateSector3P(p[0], p[1], p[2], 0, 360); }},
    {eaPackage, [](TLabel& l, const TPicks& p) -> TItem& { return l.CreatePackage(p.X(0), p.Y(0), p.W(), p.H()); }},
};
// clang-format on

} // namespace

void TVGRBaseLabel::Construct(TShiftState shift, bool typed) {
    const auto row = std::ranges::find(Constructions, TAct::GetAction(), &TConstruction::action);
    if (row == std::end(Constructions))
        return;
    try {
        const UpdateScope bracket(*this, row->paint && !typed);
        TVGRBaseItem& item = row->make(*this, {shift.Has(ssCtrl)});
        SetSelection(&item, isSelected);
        if (row->action == eaPackage)
            item.StateCalc();
    } catch (...) {
        fInfo = TAct::Reset();
        ChangeValue(chCursor);
        FireInfoEvent(true);
        throw;
    }
    if (row->crossings && !typed)
        CheckIntersetions();
    fInfo = row->action == eaText ? TAct::NextStep(false) : TAct::Reset();
    if (row->inspect.row == 0)
        return;
    fChangeVal.fInt1 = row->inspect.prop;
    fChangeVal.fInt2 = row->inspect.row;
    fChangeVal.fBool = true;
    if (row->inspect.opens)
        ChangeValue(chEditInspect);
}

void TVGRBaseLabel::ConstructAngle() {
    const TFinally close{[this] {
        fInfo = TAct::Reset();
        ClearSelection(true);
        ChangeValue(chCursor);
        FireInfoEvent(true);
    }};
    const TPicks picks{};
    int index1 = 0, index2 = 0;
    TKSLRefLine first, second;
    auto find = [&](TVGRBaseItem& item, int pick, int& index, TKSLRefLine& segment) {
        return GetItemLineSegmentIndex(item, picks.X(pick), picks.Y(pick), index, segment);
    };
    const bool several = fSelection.size() > 1;
    if (fSelection.empty() || !find(*fSelection[0], 0, index1, first) ||
        !find(*fSelection[several ? 1 : 0], 1, index2, second))
        return;
    if (!several) {
        const TVGRBaseItem& item = *fSelection[0];
        const bool polygon = item.GetItemType() == itPolygon;
        if (!polygon && item.GetItemType() != itPolyLine)
            return;
        const auto [low, high] = std::minmax(index1, index2);
        if (high - low != 1 && !(polygon && low == 1 && high == item.NumPoints()))
            return;
    }
    const UpdateScope bracket(*this);
    SetSelection(&CreateDimAng(first, second, picks[2]), isSelected);
}

} // namespace vagrel
