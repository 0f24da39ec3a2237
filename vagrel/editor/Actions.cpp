// SPDX-License-Identifier: MIT
// The choice of a tool, and leaving it.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/editor/GroupDrag.h>
#include <vagrel/editor/TAct.h>

namespace vagrel {

void TVGRBaseLabel::SetAction(TKSLEdAction action) {
    if (action != eaMove && action != eaMoveText)
        fGroupDrag->Reset();
    if (action == eaEdText && !GetTextObject()) {
        fInfo = TAct::Reset();
        FireInfoEvent(true);
        return;
    }
    const bool begins = action != TAct::GetAction();
    if (begins)
        fInfo = TAct::SetCurAction(action);
    if (begins && action != eaSymbol)
        ChangeValue(chCursor);
    if (begins)
        FireInfoEvent(true);
    if (action == eaSymbol)
        ChangeValue(chSelSymbol);
}

void TVGRBaseLabel::FlowAction(TKSLFlowType type) {
    TAct::SetFlowType(type);
    SetAction(eaFlow);
}

void TVGRBaseLabel::LinkAction(TKSLinkType type) {
    TAct::SetLinkType(type);
    SetAction(type == ltPolyline ? eaPolyLink : eaLink);
}

void TVGRBaseLabel::ResetAction() {
    fInfo = TAct::Reset();
    ClearSelection(false);
    ChangeValue(chSelCur);
    FireInfoEvent(true);
}

void TVGRBaseLabel::LastAction() {
    fInfo = TAct::SetLastAction();
    ClearSelection(true);
    if (TAct::GetAction() == eaSymbol && !fCurrentLibSym)
        ChangeValue(chSelSymbol);
}

} // namespace vagrel
