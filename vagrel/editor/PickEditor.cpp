// SPDX-License-Identifier: MIT
// The press of the left button: one row for each group of actions.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/foundation/Rounding.h>

#include <algorithm>

namespace vagrel {

// A press and what the actions make of it.
struct TVGRBaseLabel::TPress {
    TVGRBaseLabel& label;
    std::int64_t bx, by;
    std::int32_t gap;
    TShiftState shift;
    bool refLines;

    void Selection();
    void EditedText() { label.SearchSelection(bx, by, gap, shift, false); }
    void Chain();
    void TrimOrExtend();
    void Join();
    void Equidistant();
    void AngleDimension();
    void RoundDimension();
    void Dimension();
    void Link();
    void PolyLink();
    void Figure();

private:
    void AddPoint() { label.fInfo = TAct::AddPoint(bx, by); }
    void AddLink();
    void NextStep() { label.fInfo = TAct::NextStep(false); }
    bool PickReference() { return label.SearchRef(bx, by, gap, shift, false); }
    bool Apply() { return label.SearchRef(bx, by, gap, shift, true); }
    void Show() { label.ChangeValue(chDraw); }
    void ShowCursor() { label.ChangeValue(chCursor); }
    void TellInfo() { label.FireInfoEvent(true); }
    void Construct() {
        label.Construct(shift, false);
        ShowCursor();
    }
};

void TVGRBaseLabel::TPress::Selection() {
    if (label.SearchSelection(bx, by, gap, shift, refLines))
        return;
    label.ResetRefLines();
    AddPoint();
}

void TVGRBaseLabel::TPress::Chain() {
    AddPoint();
    Show();
    TellInfo();
}

void TVGRBaseLabel::TPress::TrimOrExtend() {
    const TKSLEdState state = TAct::GetState();
    if (state == edTrim || state == edExtend) {
        Apply();
    } else if (state == edPickRef || state == edPickNextRef) {
        const bool cuts =
            state == edPickNextRef && TAct::GetAction() == eaTrim && !label.fSelection.empty() && !shift.Has(ssShift);
        if ((!cuts || !Apply()) && PickReference())
            NextStep();
    }
}

void TVGRBaseLabel::TPress::Join() {
    if (TAct::GetState() == edFirstRef) {
        if (PickReference())
            AddPoint();
    } else if (Apply()) {
        label.fInfo = TAct::Reset();
        label.ClearSelection(true);
        ShowCursor();
    }
}

void TVGRBaseLabel::TPress::Equidistant() {
    switch (TAct::GetState()) {
    case edPickRef:
        if (PickReference()) {
            NextStep();
            Show();
        }
        break;
    case edPick1Distance:
        AddPoint();
        TellInfo();
        break;
    case edPick2Distance:
        AddPoint();
        ShowCursor();
        TellInfo();
        break;
    case edPickSide:
        if (!label.fSelection.empty())
            label.UpdateCurAction(*label.fSelection[0], bx, by);
        break;
    default:
        break;
    }
}

void TVGRBaseLabel::TPress::AngleDimension() {
    const TKSLEdState state = TAct::GetState();
    if (state == edPickSide) {
        AddPoint();
        label.ConstructAngle();
    } else if ((state == edFirstRef || state == edSecondRef) && PickReference()) {
        AddPoint();
        ShowCursor();
    }
}

void TVGRBaseLabel::TPress::RoundDimension() {
    if (TAct::GetState() == edPickCircle && label.SearchCircleAt(bx, by, gap))
        AddPoint();
    if (TAct::GetState() == edEnd)
        Construct();
    TellInfo();
}

void TVGRBaseLabel::TPress::Dimension() {
    AddPoint();
    if (TAct::GetState() == edEnd) {
        Construct();
    } else {
        if (TAct::GetState() == edPickSide)
            ShowCursor();
        Show();
    }
    TellInfo();
}

void TVGRBaseLabel::TPress::AddLink() {
    label.fInfo = TAct::AddLink(ToInt32(bx), std::int16_t(std::clamp<std::int64_t>(by, INT16_MIN, INT16_MAX)));
}

void TVGRBaseLabel::TPress::Link() {
    AddLink();
    TAct::GetState() == edEnd ? Construct() : Show();
    TellInfo();
}

void TVGRBaseLabel::TPress::PolyLink() {
    switch (TAct::GetState()) {
    case edPickFirst:
        AddLink();
        break;
    case edPickNext:
        AddPoint();
        Show();
        break;
    case edEnd: // which the host sets when a pick lands on an anchor
        AddLink();
        Construct();
        break;
    default:
        Show();
    }
    TellInfo();
}

void TVGRBaseLabel::TPress::Figure() {
    AddPoint();
    TAct::GetState() == edEnd ? Construct() : Show();
    TellInfo();
}

void TVGRBaseLabel::PickEditor(std::int64_t bx, std::int64_t by, std::int32_t gap, TShiftState shift, bool refLines) {
    struct TRow {
        TKSLEdActions actions;
        void (TPress::*answer)();
    };
    // Actions that stand in no row draw a figure with a fixed number of picks.
    static constexpr TRow rows[] = {
        {{eaSelection}, &TPress::Selection},
        {{eaEdText}, &TPress::EditedText},
        {{eaPolyline, eaPolygon, eaBezier}, &TPress::Chain},
        {{eaTrim, eaExtend}, &TPress::TrimOrExtend},
        {{eaJoin}, &TPress::Join},
        {{eaEquidist}, &TPress::Equidistant},
        {{eaDimAng}, &TPress::AngleDimension},
        {{eaDimRad1, eaDimRad2, eaDimDia1, eaDimDia2}, &TPress::RoundDimension},
        {{eaDim}, &TPress::Dimension},
        {{eaLink}, &TPress::Link},
        {{eaPolyLink}, &TPress::PolyLink},
    };
    constexpr TKSLEdActions idle{eaNone, eaMove, eaMoveText};
    const TKSLEdAction action = TAct::GetAction();
    if (idle.Has(action) || (!GetEditable() && action != eaSelection))
        return;
    const auto row = std::ranges::find_if(rows, [action](const TRow& each) { return each.actions.Has(action); });
    TPress press{*this, bx, by, gap, shift, refLines};
    (press.*(row == std::end(rows) ? &TPress::Figure : row->answer))();
}

void TVGRBaseLabel::PickEditor(std::int32_t radius, TShiftState shift, bool) {
    constexpr TKSLEdActions round{eaCirclePR, eaLevel, eaSectorPR};
    if (!GetEditable() || !round.Has(TAct::GetAction()))
        return;
    if (TAct::GetState() != edPickRadio)
        return ChangeValue(chDraw);
    fInfo = TAct::AddPoint(AddSat(TAct::GetPointX(0), radius), TAct::GetPointY(0));
    Construct(shift, true);
    ChangeValue(chCursor);
    FireInfoEvent(true);
}

} // namespace vagrel
