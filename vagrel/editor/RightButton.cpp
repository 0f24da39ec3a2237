// SPDX-License-Identifier: MIT
// The press of the right button: it ends, backs out or adds a vertex.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/editor/TAct.h>

namespace vagrel {

void TVGRBaseLabel::RightButton(std::int64_t bx, std::int64_t by, std::int64_t gap, TShiftState shift) {
    constexpr TKSLEdActions chains{eaPolyline, eaPolygon, eaBezier}, cutting{eaTrim, eaExtend};
    const TKSLEdAction action = TAct::GetAction();
    if (chains.Has(action) && TAct::GetState() == edPickNext && GetEditable())
        Construct(shift, false);
    else if (chains.Has(action) && TAct::GetState() == edPickNext)
        fInfo = TAct::Reset();
    else if (cutting.Has(action))
        EndReferences();
    else if (chains.Has(action) || !GetEditable() || !InsertVertex(bx, by, gap))
        LastAction();
    ChangeValue(chCursor);
    FireInfoEvent(true);
}

void TVGRBaseLabel::EndReferences() {
    constexpr TKSLSet<TKSLEdState> leaving{edPickRef, edTrim, edExtend};
    if (TAct::GetState() == edPickNextRef) {
        fInfo = TAct::NextStep(true);
    } else if (leaving.Has(TAct::GetState())) {
        fInfo = TAct::Reset();
        ClearSelection(true);
    }
}

bool TVGRBaseLabel::InsertVertex(std::int64_t bx, std::int64_t by, std::int64_t gap) {
    if (fSelection.size() != 1 || !fSelection[0]->HasTrait(trFreePoints) || !fSelection[0]->Pick(bx, by, gap, false))
        return false;
    TVGRBaseItem& item = *fSelection[0];
    item.InsertPoint(bx, by, gap);
    TAct::ResetPos();
    item.UpdateBounds();
    FillSelPoints();
    ChangeValue(chPropItem);
    return true;
}

} // namespace vagrel
