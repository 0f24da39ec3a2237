// SPDX-License-Identifier: MIT
// The handles of selected items: one row for each form, with what it shows alone and among several.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Snapping.h>
#include <vagrel/items/text/TVGRBaseText.h>

#include <iterator>

namespace vagrel {

namespace {

// The handles of one item as they are gathered.
struct THandles {
    TVGRBaseItem& item;
    bool alone; ///< the only selected item
    std::vector<TKSSelectionValue>& out;

    void Add(TKSLSelType type, int pos, TKSLPto at, TKSLPto to = {}) const {
        const TVGRBaseLabel& label = item.KSLab();
        auto value = [&](std::int64_t base) { return label.GetVal(base, false); };
        out.push_back({value(at.bX), value(at.bY), value(to.bX), value(to.bY), type, &item, std::int16_t(pos)});
    }
    void AddBox(TKSLSelType type, const TKSLRect& box) const {
        Add(type, 1, {box.Left, box.Top}, {box.Right, box.Bottom});
    }
    /// At the item's reference point, which is in the document's unit.
    void AddReference(TKSLSelType type) const {
        out.push_back({item.GetRefX(1), item.GetRefY(1), 0, 0, type, &item, 1});
    }
    /// A handle that drags when the item is alone.
    TKSLSelType Movable(TKSLSelType type) const { return alone ? type : stFixedPoint; }
    TKSLPto LineEnd(int end) const { return item.GetPoint(item.TypeRow().line + end); }
    TKSLPto Center() const { return Middle(item.GetPoint(1), item.GetPoint(2)); }
};

void Reference(const THandles& to) { to.AddReference(to.Movable(stPoint)); }

// The ends of its line.
void Ends(const THandles& to) {
    for (int end = 0; end < 2; ++end)
        to.Add(to.Movable(stSizePoint), end + 1, to.LineEnd(end));
}

void Segment(const THandles& to) { to.Add(stRefLine, 1, to.LineEnd(0), to.LineEnd(1)); }

void Vertices(const THandles& to) {
    for (int i = 1; i <= to.item.NumPoints(); ++i)
        to.Add(to.Movable(stPolyPoint), i, to.item.GetPoint(i));
}

void FixedVertices(const THandles& to) {
    for (int i = 1; i <= to.item.NumPoints(); ++i)
        to.Add(to.Movable(stSizePoint), 1, to.item.GetPoint(i));
}

void CurvePoints(const THandles& to) {
    for (int i = 1; i <= to.item.NumPoints(); ++i)
        to.Add(to.Movable((i - 1) % 3 == 0 ? stBezier : stBezierCtrl), i, to.item.GetPoint(i));
}

void RimPoints(const THandles& to) {
    const auto* arc = Query<const IKSLArc>(&to.item);
    if (!arc)
        return;
    if (!to.alone)
        return to.Add(stFixedPoint, 1, arc->GetPto(2));
    for (int i = 1; i <= 3; ++i)
        to.Add(stArc, i, arc->GetPto(i));
}

void Corners(const THandles& to) {
    const TKSLPto a = to.item.GetPoint(1), b = to.item.GetPoint(2), middle = to.Center();
    if (!to.alone) {
        for (const TKSLPto corner : {a, TKSLPto{a.bX, b.bY}, TKSLPto{b.bX, a.bY}, b})
            to.Add(stFixedRect, 1, corner);
        return;
    }
    to.Add(stSizeRectNW, 1, a);
    to.Add(stSizeRectN, 1, {middle.bX, a.bY});
    to.Add(stSizeRectNE, 1, {b.bX, a.bY});
    to.Add(stSizeRectW, 1, {a.bX, middle.bY});
    to.Add(stSizeRectE, 1, {b.bX, middle.bY});
    to.Add(stSizeRectSW, 1, {a.bX, b.bY});
    to.Add(stSizeRectS, 1, {middle.bX, b.bY});
    to.Add(stSizeRectSE, 1, b);
}

void CornersInBox(const THandles& to) {
    Corners(to);
    if (to.alone)
        to.AddBox(stRect, to.item.BoundsRect());
}

// Centre and radius, the latter as the point with the number `rim`.
void Round(const THandles& to, TKSLSelType center, int rim) {
    const TKSLPto middle = to.Center();
    if (!to.alone)
        return to.Add(stFixedPoint, 1, middle);
    to.Add(center, 1, middle);
    to.Add(stRadio, rim, {to.item.GetPoint(2).bX, middle.bY});
}

void Circle(const THandles& to) { Round(to, stCenterCircle, 2); }
void FixedCircle(const THandles& to) { Round(to, stCenter, 1); }

template <int Rim>
void Ellipse(const THandles& to) {
    const TKSLPto middle = to.Center();
    if (!to.alone)
        return to.Add(stFixedPoint, 1, middle);
    to.Add(stCenter, 1, middle);
    to.Add(stRadioX, Rim, {to.item.GetPoint(2).bX, middle.bY});
    to.Add(stRadioY, Rim, {middle.bX, to.item.GetPoint(1).bY});
}

void ArcLink(const THandles& to) {
    const auto* link = Query<const IKSLLinkItem>(&to.item);
    if (link && link->GetLinkType() == ltArc)
        to.Add(to.Movable(stArcLink), 1, link->GetLinkPoint(1));
}

void Course(const THandles& to) {
    ArcLink(to);
    const auto* link = Query<const IKSLLinkItem>(&to.item);
    for (int i = 1; link && link->GetLinkType() == ltPolyline && i <= link->NumLinkPoints(); ++i)
        to.Add(to.Movable(stPolyPoint), i, link->GetLinkPoint(i));
}

void Code(const THandles& to) {
    to.AddBox(to.Movable(stRect), to.item.BoundsRect());
    to.AddReference(stAlign);
}

void Anchor(const THandles& to) {
    if (Query<const IKSLAlign>(&to.item))
        to.AddReference(stAlign);
    else
        to.Add(stAlign, 1, {to.item.BoundsRect().Left, to.item.BoundsRect().Top});
}

void Text(const THandles& to) {
    const auto* text = to.item.IsBound() ? dynamic_cast<const TVGRBaseText*>(&to.item) : nullptr;
    to.AddBox(to.Movable(stRect), text ? text->GetDisplayBoundsRect() : to.item.BoundsRect());
    Anchor(to);
    if (text && to.item.KSLab().GetShowDispWidthHandle()) {
        const TKSLRect grip = text->GetDispWidthHandleRect();
        const TKSLPto end{grip.Right, grip.Bottom};
        to.Add(stDispWidth, 1, Middle({grip.Left, grip.Top}, end), end);
    }
}

void None(const THandles&) {}

using TFill = void (*)(const THandles&);

struct TRow {
    TFill selected;
    TFill reference; ///< what a picked reference shows
};

// By THandleForm.
constexpr TRow Rows[] = {
    {None, None},
    {Reference, None},
    {Ends, Segment},
    {Vertices, FixedVertices},
    {CurvePoints, None},
    {RimPoints, None},
    {Corners, Corners},
    {Corners, None},
    {CornersInBox, Corners},
    {Circle, FixedCircle},
    {Circle, None},
    {Ellipse<2>, Ellipse<1>},
    {Course, ArcLink},
    {Code, None},
    {Text, None},
};
static_assert(std::size(Rows) == hfText + 1);

void Gather(const std::vector<TVGRBaseItem*>& selection, std::vector<TKSSelectionValue>& out, TFill TRow::*form) {
    out.clear();
    for (TVGRBaseItem* item : selection)
        (Rows[item->TypeRow().handles].*form)({*item, selection.size() == 1, out});
}

} // namespace

void TVGRBaseLabel::FillSelPoints() { Gather(fSelection, fSelPoint, &TRow::selected); }
void TVGRBaseLabel::FillRefPoints() { Gather(fSelection, fSelPoint, &TRow::reference); }

TKSSelectionValue TVGRBaseLabel::GetSelPoint(int index) const {
    return index >= 1 && index <= SelPointCount() ? fSelPoint[std::size_t(index - 1)] : TKSSelectionValue();
}

} // namespace vagrel
