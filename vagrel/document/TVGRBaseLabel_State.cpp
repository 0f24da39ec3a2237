// SPDX-License-Identifier: MIT
// Transactions of a document: what changes is kept in a log, which is exchanged with what stands when a step is undone,
// redone or taken back.
#include <vagrel/document/TVGRBaseLabel.h>

#include <vagrel/document/TItemIndex_p.h>
#include <vagrel/document/TStateLog_p.h>
#include <vagrel/document/TUndoStacks_p.h>
#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/document/Transaction.h>
#include <vagrel/foundation/Exceptions.h>
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

bool TVGRBaseLabel::CommitLog(bool isTransaction) {
    const TLog log = std::move(fLogs.back());
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
    if (!any || !fOptions.Has(loUndoRedo))
        return false;
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
    log->items.Settle(fItems);
    log->layers.Settle(fLayers);
    log->styles.Settle(fDimStyles);
    log->counters.Settle(fCounters);
    ExchangeState(*log);
    fMaxID = log->maxID;
    fModified = log->modified;
    fStacks->RestoreGroup(log->group, log->inGroup);
    if (opened)
        fStates -= {lsUpdating, lsNoPaint};
    const TFinally shown{[this] { ShowStep(); }};
    TellExchanged(*log);
}

void TVGRBaseLabel::DropLogs() {
    // The elements that were parked end with the last one who holds a log.
    const std::vector<TLog> ends = std::exchange(fLogs, {});
}

void TVGRBaseLabel::ExchangeState(TStateLog& log) {
    // What is kept of a change is not kept of going back.
    const std::vector<TLog> open = std::exchange(fLogs, {});
    const TFinally reopen{[&] { fLogs = open; }};
    log.items.Exchange(
        fItems,
        [this](TVGRBaseItem& item) {
            Unlist(item);
            item.fReceiver->SetItem(nullptr);
        },
        [this](TVGRBaseItem& item) {
            item.fReceiver->SetItem(&item);
            RaiseMaxID(std::max(item.GetInID(), item.GetInID() + (item.GetInID() < INT32_MAX)));
        });
    fIndex->Drop(); // names are exchanged, too
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
        for (const auto& item : fItems)
            if (LayerIdx(item->GetLayer()) < 0)
                item->fLayer = fLayers.front().get();
    fActiveLayer = std::clamp(fActiveLayer, 0, LayersCount() - 1);
    fActiveDimStyle = std::clamp(fActiveDimStyle, 0, DimStylesCount() - 1);
    fModified = true;
    CheckBackLayer();
    if (log.items.ChangesList())
        AssignSymbolAndFlowLinks();
}

void TVGRBaseLabel::TellExchanged(const TStateLog& log) {
    if (!log.page.Empty()) {
        ChangeValue(chUnits);
        ChangeValue(chMeasure);
        ChangeValue(chBackSurf);
    }
    if (log.items.ChangesList())
        ChangeValue(chSelect);
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
    return log && std::ranges::find(fDocument.fLogs, log) != fDocument.fLogs.end();
}

bool Transaction::Commit() {
    if (!IsOpen())
        return false;
    if (fDocument.fLogs.back() != fLog.lock())
        throw EInvalidOperation(u"A transaction inside this one is open");
    fLog.reset();
    return fDocument.CommitLog(true);
}

void Transaction::Rollback() {
    while (IsOpen())
        fDocument.RollBackLog();
}

} // namespace vagrel
