// SPDX-License-Identifier: MIT
// Transactions of a document: what changes is kept in a log, which is exchanged with what stands when a step is undone,
// redone or taken back.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TStateLog_p.h>
#include <vagrel/document/TUndoStacks_p.h>
#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/document/Transaction.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/items/lines/TVGRDimStyle.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>

namespace vagrel {

using detail::TStateLog;

// What says that it is about to change

void TVGRBaseLabel::Touch(TVGRBaseItem& item) {
    if (!fLogs.empty() && !item.FromPreview())
        fLogs.back()->items.Touch(item);
}
void TVGRBaseLabel::Touch(TVGRLayer& layer) {
    if (!fLogs.empty())
        fLogs.back()->layers.Touch(layer);
}
void TVGRBaseLabel::Touch(TVGRDimStyle& style) {
    if (!fLogs.empty())
        fLogs.back()->styles.Touch(style);
}
void TVGRBaseLabel::Touch(TVGRCounter& counter) {
    if (!fLogs.empty())
        fLogs.back()->counters.Touch(counter);
}
void TVGRBaseLabel::TouchData() {
    if (!fLogs.empty() && fLogs.back()->data.Empty())
        fLogs.back()->data = ImageOf(*fData);
}

void TVGRBaseLabel::PageMembers(TMembers& members) {
    members(fEditorMode, fUnits, fAngle, fLayerZOrder, fActiveLayer, fActiveDimStyle);
    fMeasure->Members(members);
    fBackSurf->Members(members);
    fSettings->Members(members);
    fPrintInfo->Members(members);
}

// Logs

TVGRBaseLabel::TLog TVGRBaseLabel::OpenLog() {
    auto log = std::make_shared<TStateLog>();
    TMembers page(log->page, TMembers::Take);
    PageMembers(page);
    log->maxID = fMaxID;
    log->modified = fModified;
    log->group = fStacks->Group();
    log->inGroup = fStacks->InGroup();
    fLogs.push_back(log);
    return log;
}

bool TVGRBaseLabel::HasLog(const TLog& log) const { return std::ranges::find(fLogs, log) != fLogs.end(); }

bool TVGRBaseLabel::CommitLog(const TLog& log, bool isTransaction) {
    if (!HasLog(log))
        return false;
    fLogs.pop_back();
    if (!fLogs.empty()) {
        TStateLog& outer = *fLogs.back();
        outer.items.Absorb(std::move(log->items));
        outer.layers.Absorb(std::move(log->layers));
        outer.styles.Absorb(std::move(log->styles));
        outer.counters.Absorb(std::move(log->counters));
        if (outer.data.Empty())
            outer.data = std::move(log->data);
        return true;
    }
    bool any = log->items.Settle(fItems);
    any |= log->layers.Settle(fLayers);
    any |= log->styles.Settle(fDimStyles);
    any |= log->counters.Settle(fCounters);
    TMembers page(log->page, TMembers::Compare);
    PageMembers(page);
    if (page.Same())
        log->page = {};
    if (!log->data.Empty() && SameAsImage(*fData, log->data))
        log->data = {};
    any |= !log->page.Empty() || !log->data.Empty();
    if (!any || !fOptions.Has(loUndoRedo)) {
        fStacks->Retire(log); // older steps may know the layers that went
        return false;
    }
    if (isTransaction)
        fStacks->redo.clear();
    fStacks->Push({ckState, isTransaction, UnReID(), nullptr, log});
    TellUndoRedo();
    return true;
}

void TVGRBaseLabel::RollBackLog() {
    const TLog log = fLogs.back();
    fLogs.pop_back();
    const bool opened = fStacks->InGroup() && !log->inGroup;
    const bool reading = fStates.Has(lsReading);
    log->items.Settle(fItems);
    log->layers.Settle(fLayers);
    log->styles.Settle(fDimStyles);
    log->counters.Settle(fCounters);
    const TReceivers receivers = ExchangeState(*log);
    fMaxID = log->maxID;
    fModified = log->modified;
    fStacks->RestoreGroup(log->group, log->inGroup);
    if (opened)
        fStates -= {lsUpdating, lsNoPaint};
    if (reading) {
        fStates -= {lsReading, lsPaste, lsUpdateMeasure};
        if (fUndoOpt)
            fOptions += {loUndoRedo};
    }
    const TFinally shown{[this] {
        FillSelPoints();
        Refresh();
    }};
    TellExchanged(*log, receivers);
}

void TVGRBaseLabel::RollBackLogs(const TLog& log, bool itself) {
    std::exception_ptr fault;
    while (HasLog(log) && (itself || fLogs.back() != log)) {
        try {
            RollBackLog();
        } catch (...) {
            if (!fault)
                fault = std::current_exception();
        }
    }
    if (fault)
        std::rethrow_exception(fault);
}

void TVGRBaseLabel::DropLogs() {
    // The elements that were parked end with the last one who holds a log.
    const std::vector<TLog> ends = std::exchange(fLogs, {});
}

TVGRBaseLabel::TReceivers TVGRBaseLabel::ExchangeState(TStateLog& log) {
    // What is kept of a change is not kept of going back.
    std::vector<TLog> open = std::exchange(fLogs, {});
    const TFinally reopen{[&] { fLogs = std::move(open); }};
    TReceivers receivers;
    if (log.items.ChangesList())
        receivers.reserve(fItems.size() + log.items.CountParked());
    log.items.Exchange(
        fItems,
        [&](TVGRBaseItem& item) {
            Unlist(item);
            item.fReceiver->item = nullptr;
            receivers.push_back(item.fReceiver);
        },
        [&](TVGRBaseItem& item) {
            item.fReceiver->item = &item;
            receivers.push_back(item.fReceiver);
            RaiseMaxID(std::max(item.GetInID(), item.GetInID() + (item.GetInID() < INT32_MAX)));
        });
    auto nothing = [](auto&) {};
    log.layers.Exchange(fLayers, nothing, nothing);
    log.styles.Exchange(fDimStyles, nothing, nothing);
    log.counters.Exchange(fCounters, nothing, nothing);
    if (!log.page.Empty()) {
        TMembers page(log.page, TMembers::Exchange);
        PageMembers(page);
    }
    if (!log.data.Empty()) {
        ExchangeImage(*fData, log.data);
        fData->Close();
    }
    // Layers may have gone since without a command.
    if (log.layers.ChangesList() || fStacks->HasRetired())
        for (const auto* items : {&fItems, &fPreview})
            for (const auto& item : *items)
                if (LayerIdx(item->GetLayer()) < 0)
                    item->fLayer = fLayers.front().get();
    fActiveLayer = std::clamp(fActiveLayer, 0, LayersCount() - 1);
    fActiveDimStyle = std::clamp(fActiveDimStyle, 0, DimStylesCount() - 1);
    fModified = true;
    CheckBackLayer();
    return receivers;
}

void TVGRBaseLabel::TellExchanged(const TStateLog& log, const TReceivers& receivers) {
    for (const auto& receiver : receivers)
        receiver->TellWatches();
    if (log.items.ChangesList())
        AssignSymbolAndFlowLinks();
    std::exception_ptr fault;
    auto tell = [&](TKSChange change) {
        try {
            ChangeValue(change);
        } catch (...) {
            if (!fault)
                fault = std::current_exception();
        }
    };
    if (!log.page.Empty()) {
        tell(chUnits);
        tell(chMeasure);
        tell(chBackSurf);
    }
    if (log.items.ChangesList())
        tell(chSelect);
    if (!fault)
        return;
    if (!fStepping)
        std::rethrow_exception(fault);
    // A step goes on to its end and then says so.
    if (!fStepFault)
        fStepFault = fault;
}

std::u16string TVGRBaseLabel::UndoName() const {
    const auto* log = fStacks->undo.empty() ? nullptr : std::get_if<TLog>(&fStacks->undo.back().fValue);
    return log ? (*log)->name : std::u16string();
}
std::u16string TVGRBaseLabel::RedoName() const {
    const auto* log = fStacks->redo.empty() ? nullptr : std::get_if<TLog>(&fStacks->redo.back().fValue);
    return log ? (*log)->name : std::u16string();
}
std::u16string TVGRBaseLabel::UndoAuthor() const {
    const auto* log = fStacks->undo.empty() ? nullptr : std::get_if<TLog>(&fStacks->undo.back().fValue);
    return log ? (*log)->author : std::u16string();
}
std::u16string TVGRBaseLabel::RedoAuthor() const {
    const auto* log = fStacks->redo.empty() ? nullptr : std::get_if<TLog>(&fStacks->redo.back().fValue);
    return log ? (*log)->author : std::u16string();
}

// The public face

Transaction::Transaction(TVGRBaseLabel& document, std::u16string name, std::u16string author) : fDocument(document) {
    if (document.HasAnyState({lsReading}) || document.IsReplaying())
        throw EInvalidOperation(u"No transaction begins while a document is read or a step replayed");
    const TVGRBaseLabel::TLog log = document.OpenLog();
    log->name = std::move(name);
    log->author = std::move(author);
    fLog = log;
}

Transaction::~Transaction() {
    try {
        Rollback();
    } catch (...) {
        // All is taken back; what observers throw has nowhere to go.
    }
}

bool Transaction::IsOpen() const {
    const auto log = fLog.lock();
    return log && fDocument.HasLog(log);
}

bool Transaction::Commit() {
    if (!IsOpen())
        return false;
    const auto log = fLog.lock();
    if (fDocument.fLogs.back() != log)
        throw EInvalidOperation(u"A transaction inside this one is open");
    return fDocument.CommitLog(log, true);
}

void Transaction::Rollback() {
    if (IsOpen())
        fDocument.RollBackLogs(fLog.lock(), true);
}

} // namespace vagrel
