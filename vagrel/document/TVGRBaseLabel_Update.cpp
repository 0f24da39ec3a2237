// SPDX-License-Identifier: MIT
// The update cycle: reports of items, brackets, observers, reading and clearing.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/Owned_p.h>
#include <vagrel/document/TUndoStacks_p.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/editor/CrossingsWorker.h>
#include <vagrel/editor/GroupDrag.h>
#include <vagrel/editor/TAct.h>
#include <vagrel/items/lines/TVGRDimStyle.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/symbols/TVGRBaseLibSymbol.h>

#include <algorithm>

namespace vagrel {

void TVGRBaseLabel::Attach(IKSObserver* observer) {
    if (!observer || !fObservers.Attach(*observer))
        return;
    if (auto* component = dynamic_cast<TComponent*>(observer))
        FreeNotification(*component);
    if (observer->GetDest() == duEditor)
        observer->Update(chLabelDef, GetChangedValue(chLabelDef));
}

void TVGRBaseLabel::Detach(IKSObserver* observer) { fObservers.Detach(observer); }

TKSChangeValue TVGRBaseLabel::GetChangedValue(TKSChange change) const {
    TKSChangeValue value;
    switch (change) {
    case chLabelDef:
    case chMeasure:
        value.fInt1 = fMeasure->GetSize(mtLabelWidth, false);
        value.fInt2 = fMeasure->GetSize(mtLabelHeight, false);
        break;
    case chBackSurf:
    case chAligns:
        value.fInt1 = -1;
        break;
    case chUnits:
        value.fInt1 = fUnits;
        break;
    case chPaint:
        value.fInt1 = fUpdate;
        break;
    case chDraw:
    case chCursor:
        value.fInt1 = TAct::GetAction();
        value.fInt2 = TAct::GetState();
        break;
    case chEditInspect:
        return fChangeVal;
    default:
        break;
    }
    return value;
}

void TVGRBaseLabel::ChangeValue(TKSChange change) {
    if (fDestroying)
        return;
    if (change == chMeasure && fStates.Has(lsUpdating)) {
        AddState(lsUpdateMeasure);
        return;
    }
    const bool dragging = TAct::GetAction() == eaMove && TAct::GetMoveType() == mtObjects && fSelection.size() > 1;
    const bool tellInspectors =
        !(change == chPropItem && dragging) && !(change == chScrollSelect && fEditorMode == emInteractive);
    fObservers.Tell(change, GetChangedValue(change), tellInspectors);
}

void TVGRBaseLabel::ChangeState(TVagrelState state, TVGRBaseItem& item) {
    AddState(lsModified);
    const bool tells = fUpdate && !fStates.Has(lsReading); // one that is half read is shown to nobody
    switch (state) {
    case lsUpdate:
        tells ? ChangeValue(chPaint) : AddState(lsUpdate);
        break;
    case lsUpdateMeasure:
        tells ? ChangeValue(chMeasure) : AddState(lsUpdateMeasure);
        break;
    case lsCalc:
        AddState(lsUpdate);
        if (tells) {
            item.CalcValues(2);
            ChangeValue(chPaint);
        } else {
            if (!item.fAwaitsCalc)
                fCalcs.push_back(&item);
            item.fAwaitsCalc = true;
            AddState(lsCalc);
        }
        break;
    case lsCalcNoUpdate:
        item.CalcValues(2);
        break;
    default:
        break;
    }
}

void TVGRBaseLabel::FireInfoEvent(bool checkEditors) {
    constexpr TKSLSet<TKSLMoveType> vertexMoves{mtBezier, mtBezierCtrl, mtPolyPoint};
    if (TAct::GetAction() == eaMove && vertexMoves.Has(TAct::GetMoveType()))
        ChangeValue(chInspectPoint);
    if (OnInfoMsg && (!checkEditors || fObservers.HasEditors()))
        OnInfoMsg(*this, fInfo.aAction, fInfo.sState);
}

void TVGRBaseLabel::BeginUpdate(bool paintOnEnd) {
    fUpdate = false;
    AddState(lsUpdating);
    if (!paintOnEnd)
        AddState(lsNoPaint);
    fStacks->OpenGroup();
}

void TVGRBaseLabel::CalcPending() {
    // Calculating one item may ask for another, since links follow their shapes, and may end any. Those that are left
    // are calculated also when one fails.
    std::exception_ptr fault;
    for (fCalcAt = 0; fCalcAt < fCalcs.size();) {
        try {
            fCalcs[fCalcAt++]->CalcValues(2);
        } catch (...) {
            if (!fault)
                fault = std::current_exception();
        }
    }
    DropCalcs();
    if (fault)
        std::rethrow_exception(fault);
}

void TVGRBaseLabel::DropCalcs() {
    for (TVGRBaseItem* item : fCalcs)
        item->fAwaitsCalc = false;
    fCalcs.clear();
}

void TVGRBaseLabel::FinishUpdate() {
    const TFinally clear{[this] {
        fUpdate = false;
        fStates -= {lsNoPaint, lsUpdate, lsUpdateMeasure, lsCalc};
    }};
    fUpdate = true;
    {
        const TFinally close{[this] { RemoveState(lsUpdating); }};
        FillSelPoints();
    }
    if (fStates.Has(lsUpdateMeasure))
        ChangeValue(chMeasure);
    else if (fStates.Has(lsUpdate) && !fStates.Has(lsNoPaint))
        ChangeValue(chPaint);
}

void TVGRBaseLabel::EndUpdate() {
    fStacks->CloseGroup();
    CloseBracket();
}

void TVGRBaseLabel::CloseBracket() {
    const TFinally told{[this] { TellOwed(); }};
    const TFinally finish{[this] { FinishUpdate(); }};
    CalcPending();
}

TVGRBaseLabel::TScope TVGRBaseLabel::OpenScope(bool paintOnEnd) {
    if (fScopes++ > 0)
        return TScope::Nested;
    const bool inner = fStacks->InGroup();
    BeginUpdate(paintOnEnd);
    return inner ? TScope::Inner : TScope::Whole;
}

void TVGRBaseLabel::CloseScope(TScope scope) {
    --fScopes;
    if (scope == TScope::Nested)
        return;
    if (scope == TScope::Whole)
        return EndUpdate();
    // The bracket around it goes on.
    const TFinally reopen{[this] { AddState(lsUpdating); }};
    CloseBracket();
}

void TVGRBaseLabel::EndUpdateSelection() {
    fUpdate = true;
    fModified = false;
    FillSelPoints();
    if (fSelection.size() == 1 && GetTextObject()) {
        ChangeValue(chChText);
        return;
    }
    ChangeValue(chSelect);
    ChangeValue(chPaint);
}

void TVGRBaseLabel::Refresh() {
    const TFinally clear{[this] { fUpdate = false; }};
    fUpdate = true;
    ChangeValue(chPaint);
}

void TVGRBaseLabel::PaintEditor() {
    fUpdate = true;
    ChangeValue(chPaint);
}

void TVGRBaseLabel::BeginRead(bool paste) {
    if (!paste) {
        fMaxID = 1;
        ResetRefLines();
        Clear({cleAll}, true);
    }
    if (!fStates.Has(lsReading))
        fUndoOpt = fOptions.Has(loUndoRedo);
    fStates.Put(lsPaste, paste);
    fStates += {lsUpdating, lsReading, lsUpdateMeasure};
    fOptions -= {loUndoRedo};
    BeginUpdate(true);
}

void TVGRBaseLabel::EndRead(bool units) {
    fStacks->LeaveGroup();
    if (!fStates.Has(lsPaste))
        NextID();
    fStates -= {lsPaste, lsUpdating, lsReading};
    const TFinally close{[this, units] {
        if (fUndoOpt)
            fOptions += {loUndoRedo};
        const TFinally finish{[this] { FinishUpdate(); }};
        if (units)
            ChangeValue(chUnits);
    }};
    AssignSymbolAndFlowLinks();
    CalcPending();
    SortItemsZLayer();
    CheckBackLayer();
    CheckIntersetions();
    fModified = false;
    if (fData->GetSaveJson() && !fData->GetJson().empty())
        fData->CheckJson();
}

void TVGRBaseLabel::AssignSymbolAndFlowLinks() {
    ForEachLiving(fItems, [](TVGRBaseItem& item) { item.ResolveReferences(); });
}

bool TVGRBaseLabel::CheckNeedDrawUnits() {
    bool any = false;
    ForEachLiving(fItems, [&any](TVGRBaseItem& item) {
        if (item.ShowsUnits()) {
            item.CalcValues(1);
            any = true;
        }
    });
    return any;
}

void TVGRBaseLabel::Clear(TKSLClearSet what, bool paint) {
    const bool all = what.Has(cleAll);
    auto holds = [&](TKSLClear part) { return all || what.Has(part); };
    const bool freesItems = holds(cleItems) && !fItems.empty();
    const bool unselects = (holds(cleItems) || what.Has(cleSelection)) && !fSelection.empty();

    if (holds(cleUndoRedo)) {
        DropLogs();
        ClearCommands();
    }
    if (holds(cleItems) || what.Has(cleSelection)) {
        ClearSelectionLists();
        ChangeValue(chClearSelect);
    }
    if (holds(cleSymbols)) {
        fSymbols.clear();
        fCurrentLibSym = nullptr;
    }
    if (holds(cleItems)) {
        fCrossings->Clear();
        fMaxID = 1;
        DropCalcs();
        FreeItems(fItems);
    }
    if (holds(clePreview))
        FreeItems(fPreview);
    if (all) {
        fData->Unlink();
        DropCalcs();
    }
    // A document that goes on is never without a layer and a dimension style: observers and items look at them at any
    // time. New ones stand in for the last ones.
    if (holds(cleLayers))
        while (fLayers.size() > 1)
            FreeLayer(fLayers.size() - 1);
    if (what.Has(cleBaseLayer)) {
        if (fLayers.size() == 1 && !fDestroying)
            AddBaseLayer();
        FreeLayer(0);
    }
    if (holds(cleLayers) || what.Has(cleBaseLayer))
        CheckBackLayer();
    if (holds(cleCounters))
        ShrinkParts(fCounters, 0);
    if (holds(cleDimStyles)) {
        ShrinkParts(fDimStyles, 1);
        fActiveDimStyle = 0;
    }
    if (what.Has(cleBaseStyle)) {
        if (fDimStyles.size() == 1 && !fDestroying)
            AddBaseStyle();
        TakeOutPart(fDimStyles, 0);
        fActiveDimStyle = std::max(fActiveDimStyle - 1, 0);
    }
    if (what.Has(cleValList))
        fData->ClearListVal();
    if (what.Has(cleAskList))
        fData->ClearAskList();

    fModified = false;
    if (paint && (unselects || freesItems))
        ChangeValue(chSelect);
}

void TVGRBaseLabel::ClearSelectionLists() {
    for (TVGRBaseItem* item : fSelection)
        item->SetState(isNormal);
    for (TVGRBaseItem* link : fLinks)
        link->SetState(isNormal);
    fSelPoint.clear();
    fSelection.clear();
    fLinks.clear();
}

void TVGRBaseLabel::AddToSelection(TVGRBaseItem& item, bool notify) {
    if (!TItemHandle(item))
        return; // it was deleted in a transaction
    item.SetState(isSelected);
    fSelection.push_back(&item);
    if (OnSelectItem)
        OnSelectItem(*this, item);
    if (notify)
        ChangeValue(chSelect);
}

void TVGRBaseLabel::ClearSelection(bool notify) {
    fGroupDrag->Reset();
    {
        const TFinally cleared{[this] { ClearSelectionLists(); }};
        TellUnselected();
    }
    if (notify)
        ChangeValue(chSelect);
}

void TVGRBaseLabel::TellUnselected() {
    ForEachLiving(fSelection, [this](TVGRBaseItem& item) {
        item.SetState(isNormal);
        if (OnUnSelectItem)
            OnUnSelectItem(*this, item);
    });
}

IKSLText* TVGRBaseLabel::GetTextObject() const {
    return !fSelection.empty() && fSelection[0]->HasTrait(trText) ? Query<IKSLText>(fSelection[0]) : nullptr;
}

bool TVGRBaseLabel::DoDblClick() {
    if (!GetEditable() || fSelection.size() != 1)
        return false;
    const TItemTypeRow& row = fSelection[0]->TypeRow();
    if (row.kind == 0)
        return false;
    fChangeVal.fInt1 = row.prop;
    fChangeVal.fInt2 = row.kind;
    fChangeVal.fBool = true;
    ChangeValue(chEditInspect);
    return true;
}

} // namespace vagrel
