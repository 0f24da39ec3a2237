// SPDX-License-Identifier: MIT
// The release of the left button: it closes a selection rectangle or a drag.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/editor/GroupDrag.h>
#include <vagrel/editor/TAct.h>

#include <algorithm>
#include <optional>

namespace vagrel {

namespace {

// How a drag closes.
enum class TReset { All, KeepVertex, None };

struct TDragEnd {
    TKSLSet<TKSLMoveType> types;
    std::optional<TKSChange> told;
    TReset reset = TReset::All;
    bool ordersCorners = false;
    bool movesHandles = false;
};

constexpr TDragEnd DragEnds[] = {
    {{mtObjects, mtRadio, mtPoint, mtRadioX, mtRadioY, mtArc, mtText}, chInspect},
    {{mtNW, mtN, mtNE, mtW, mtE, mtSW, mtS, mtSE}, chInspect, TReset::All, true, true},
    {{mtDispWidth}, chInspect, TReset::All, false, true},
    {{mtLinkCurve}, {}},
    {{mtBezier, mtBezierCtrl, mtPolyPoint}, chInspectPoint, TReset::KeepVertex},
    {{mtNone}, {}, TReset::None},
};

} // namespace

void TVGRBaseLabel::UpEditor(std::int64_t bx, std::int64_t by) {
    switch (TAct::GetAction()) {
    case eaSelection:
        EndRectangle(bx, by);
        break;
    case eaMove:
        EndDrag();
        break;
    case eaMoveText:
        EndTextDrag();
        break;
    default:
        break;
    }
}

void TVGRBaseLabel::EndRectangle(std::int64_t bx, std::int64_t by) {
    fInfo = TAct::AddPoint(bx, by);
    if (TAct::NumPoints() < 2) {
        // A click that selected an item opened no rectangle.
        fInfo = TAct::Reset();
        return;
    }
    FireInfoEvent(true);
    TKSLRect rect(TAct::GetPointX(0), TAct::GetPointY(0), TAct::GetPointX(1), TAct::GetPointY(1));
    fInfo = TAct::Reset();
    const bool inside = rect.Left <= rect.Right && rect.Top <= rect.Bottom;
    if (!inside)
        rect.NormalizeRect();
    fRect = rect;
    SearchRectangle(rect, !inside);
}

void TVGRBaseLabel::EndDrag() {
    fGroupDrag->Reset();
    const auto end =
        std::ranges::find_if(DragEnds, [](const TDragEnd& each) { return each.types.Has(TAct::GetMoveType()); });
    if (end == std::end(DragEnds))
        return;
    for (std::size_t i = 0; end->ordersCorners && i < fSelection.size(); ++i)
        fSelection[i]->CheckPosition();
    if (end->movesHandles)
        FillSelPoints();
    if (end->told)
        ChangeValue(*end->told);
    if (end->reset != TReset::None) {
        ChangeValue(chPropItem);
        fInfo = end->reset == TReset::All ? TAct::Reset() : TAct::ResetPoly();
        ChangeValue(chCursor);
    }
    CheckIntersetions();
}

void TVGRBaseLabel::EndTextDrag() {
    if (TAct::GetMoveType() != mtText) {
        fInfo = TAct::SetCurAction(eaText);
        return;
    }
    ChangeValue(chInspect);
    ChangeValue(chPropItem);
    if (fSelection.size() == 1 && !fSelection[0]->IsBound())
        EditSelText();
}

} // namespace vagrel
