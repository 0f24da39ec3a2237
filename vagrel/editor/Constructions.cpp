// SPDX-License-Identifier: MIT
// What each tool leaves behind after its last pick: one row for each.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/UpdateScope.h>
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

// How the picks reach a factory.

template <auto Create>
TItem& Place(TLabel& label, const TPicks& picks) {
    return (label.*Create)(picks.X(0), picks.Y(0));
}
template <auto Create>
TItem& Ends(TLabel& label, const TPicks& picks) {
    return (label.*Create)(picks.X(0), picks.Y(0), picks.X(1), picks.Y(1));
}
template <auto Create>
TItem& Box(TLabel& label, const TPicks& picks) {
    return (label.*Create)(picks.X(0), picks.Y(0), picks.W(), picks.H());
}
template <auto Create>
TItem& Chain(TLabel& label, const TPicks& picks) {
    return (label.*Create)(picks.All());
}
template <auto Create, auto... More>
TItem& Radius(TLabel& label, const TPicks& picks) {
    return (label.*Create)(picks[0], picks.Radius(), More...);
}
template <auto Create, auto... More>
TItem& TwoPoints(TLabel& label, const TPicks& picks) {
    return (label.*Create)(picks[0], picks[1], More...);
}
template <auto Create, auto... More>
TItem& ThreePoints(TLabel& label, const TPicks& picks) {
    return (label.*Create)(picks[0], picks[1], picks[2], More...);
}
template <auto Create>
TItem& OfCircle(TLabel& label, const TPicks& picks) {
    return (label.*Create)(picks.Center(), picks.CircleRadius(), picks.Angle());
}

// A new code shows the name of its symbology.
TItem& Pdf417(TLabel& label, const TPicks& picks) { return label.CreatePDF417(picks.X(0), picks.Y(0), u"PDF417"); }
TItem& DataMatrix(TLabel& label, const TPicks& picks) {
    return label.CreateDataMatrix(picks.X(0), picks.Y(0), u"DataMatrix");
}
TItem& QRCode(TLabel& label, const TPicks& picks) { return label.CreateQRCode(picks.X(0), picks.Y(0), u"QRCode"); }
TItem& Barcode(TLabel& label, const TPicks& picks) {
    return label.CreateBarcode(picks.X(0), picks.Y(0), u"123456", btCODE39);
}
TItem& Ellipse(TLabel& label, const TPicks& picks) {
    return label.CreateEllipse(picks[0], Size(picks.W()), Size(SubSat(picks.Y(2), picks.Y(0))));
}
TItem& Picture(TLabel& label, const TPicks& picks) {
    return label.CreateImage(picks.X(0), picks.Y(0), picks.W(), picks.H(), picks.keepAspect, u"");
}
TItem& Flow(TLabel& label, const TPicks& picks) {
    return label.CreateFlow(picks.X(0), picks.Y(0), picks.W(), picks.H(), TAct::GetFlowType());
}
TItem& Link(TLabel& label, const TPicks& picks) {
    return label.CreateLink(picks.From(), picks.To(), TAct::GetLinkType());
}
TItem& PolyLink(TLabel& label, const TPicks& picks) {
    return label.CreatePolyLink(picks.From(), picks.To(), TAct::GetLinkType(), picks.All());
}

constexpr bool Crossings = true, NoCrossings = false, Repaint = true, NoRepaint = false;

constexpr TConstruction Constructions[] = {
    {eaPoint, Place<&TLabel::CreatePoint>},
    {eaLine, Ends<&TLabel::CreateLine>, Crossings},
    {eaArrowLine, Ends<&TLabel::CreateArrowLine>, Crossings},
    {eaRectangle, Box<&TLabel::CreateRectangle>, Crossings},
    {eaPolyline, Chain<&TLabel::CreatePolyLine>, Crossings},
    {eaPolygon, Chain<&TLabel::CreatePolygon>, Crossings},
    {eaBezier, Chain<&TLabel::CreateBezier>, Crossings},
    {eaArc, ThreePoints<&TLabel::CreateArc>, Crossings},
    {eaCirclePR, Radius<&TLabel::CreateCircle>, Crossings},
    {eaCircle2P, TwoPoints<&TLabel::CreateCircle2P>, Crossings},
    {eaCircle3P, ThreePoints<&TLabel::CreateCircle3P>, Crossings},
    {eaEllipse, Ellipse, Crossings},
    {eaText, Place<&TLabel::CreateText>},
    {eaParagraph, Box<&TLabel::CreatePara>, NoCrossings, NoRepaint, {ipMemo, 1}},
    {eaRichText, Box<&TLabel::CreateRichText>, NoCrossings, NoRepaint, {ipMemo, 1}},
    {eaBarcode, Barcode},
    {eaPDF417, Pdf417, NoCrossings, Repaint, {ipMemo, 10}},
    {eaDataMatrix, DataMatrix, NoCrossings, Repaint, {ipMemo, 11}},
    {eaQRCode, QRCode, NoCrossings, Repaint, {ipMemo, 12}},
    {eaImage, Picture, NoCrossings, Repaint, {ipImage, 1, false}},
    {eaFlow, Flow, NoCrossings, NoRepaint, {ipMemo, 2}},
    {eaLink, Link},
    {eaPolyLink, PolyLink},
    {eaTable, Box<&TLabel::CreateTable>},
    {eaPolyText, Place<&TLabel::CreatePolyText>, NoCrossings, Repaint, {ipPolyText, 2}},
    {eaRank, Box<&TLabel::CreateRank>},
    {eaNutriScore, Box<&TLabel::CreateNutriScore>},
    {eaLevel, Radius<&TLabel::CreateLevel>},
    {eaSymbol, Place<&TLabel::CreateSymbol>},
    {eaDim, ThreePoints<&TLabel::CreateDim>},
    {eaDimRad1, OfCircle<&TLabel::CreateDimRad1>},
    {eaDimRad2, OfCircle<&TLabel::CreateDimRad2>},
    {eaDimDia1, OfCircle<&TLabel::CreateDimDia1>},
    {eaDimDia2, OfCircle<&TLabel::CreateDimDia2>},
    {eaSectorPR, Radius<&TLabel::CreateSector, 0, 360>},
    {eaSector2P, TwoPoints<&TLabel::CreateSector2P, 0, 360>},
    {eaSector3P, ThreePoints<&TLabel::CreateSector3P, 0, 360>},
    {eaPackage, Box<&TLabel::CreatePackage>},
};

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
        if (!item.HasTrait(trChain))
            return;
        const bool closed = item.HasTrait(trClosed);
        const auto [low, high] = std::minmax(index1, index2);
        if (high - low != 1 && !(closed && low == 1 && high == item.NumPoints()))
            return;
    }
    const UpdateScope bracket(*this);
    SetSelection(CreateDimAng(first, second, picks[2]), isSelected);
}

} // namespace vagrel
