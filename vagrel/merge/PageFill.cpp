// SPDX-License-Identifier: MIT
// The walk over the labels of a merge: which label lies on which page, and the filling of the preview copies.
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/merge/Merge_p.h>
#include <vagrel/merge/TVGRData.h>

#include <algorithm>

namespace vagrel {

namespace {

// How a merge runs on a source, without counters and with them.
struct TSourceFill {
    TKSLDataType type;
    TKSLFillType plain, counting;
};
constexpr TSourceFill SourceFills[] = {
    {dtyDataset, ftField, ftFieldCount}, {dtyJson, ftJson, ftJsonCount}, {dtyCsv, ftCsv, ftCsvCount}};

} // namespace

// What the items to be printed use.
void TVGRBaseLabel::ActivateBindings() {
    TVGRBasePrintInfo& info = *fPrintInfo;
    fData->ResetListAsk();
    for (const auto& counter : fCounters)
        counter->SetActive(false);
    for (const auto& item : fItems) {
        const auto* data = Query<IKSLData>(item.get());
        if (!data || !item->IsBound() || !item->GetOptions().HasAll({lopVisible, lopPrint}))
            continue;
        const TKSLFillType type = data->FillType();
        if (type == ftList) {
            fData->ActivateList(data->FillName());
        } else if (type == ftAsk) {
            fData->ActivateAsk(data->FillName());
        } else if (type == ftCounter) {
            TVGRCounter* counter = FindCounter(data->FillName());
            if (!counter || counter->GetActive())
                continue;
            info.fFillType = ftCounter;
            counter->SetActive(true);
            counter->Reset();
            info.fLabelsToPrint = std::max(info.fLabelsToPrint, counter->GetNumLabs());
        }
    }
}

void TVGRBaseLabel::CheckPrintData() {
    TVGRBasePrintInfo& info = *fPrintInfo;
    info.fCurrentLabel = info.fCurrentPage = info.fPagesToPrint = 1;
    info.fLabelsToPrint = ToInt32(std::int64_t(info.fLabs) * info.fRepetition);
    info.fLastPageFill = -1;
    info.fFilledTo = {};
    info.fFillType = ftNone;
    ActivateBindings();
    fData->Reset();
    if (fData->GetNumlabels() == 0)
        info.fFillType = ftNone;
    else
        for (const TSourceFill& fill : SourceFills)
            if (fill.type == fData->GetType())
                info.fFillType = info.fFillType == ftCounter ? fill.counting : fill.plain;
    info.fLabelsToPrint = std::max(info.fLabelsToPrint, fData->GetNumlabels());
    const std::int64_t behindFirst = info.fLabelsToPrint - std::int64_t(info.FirstPageLabels());
    const std::int64_t perPage = info.LabelsPerPage();
    if (behindFirst > 0)
        info.fPagesToPrint = ToInt32((behindFirst + perPage - 1) / perPage + 1);
}

void TVGRBaseLabel::NextData() {
    const TKSLFillType type = fPrintInfo->fFillType;
    if (type != ftNone && type != ftCounter)
        fData->Next();
    if (detail::RunsOnCounters(type))
        detail::ForActiveCounters(*this, [](TVGRCounter& counter) { counter.Next(); });
}

void TVGRBaseLabel::GoToPage(std::int32_t page, bool fillData, bool check) {
    TVGRBasePrintInfo& info = *fPrintInfo;
    if (page <= 1) {
        fData->First();
        info.fCurrentLabel = info.fCurrentPage = page = 1;
    } else if (page != info.fCurrentPage || !check) {
        const std::int64_t before = info.FirstPageLabels() + std::int64_t(page - 2) * info.LabelsPerPage();
        if (fData->GetFieldRepeat().empty())
            GoToLabel(before + 1);
        else
            WalkToLabel(std::min<std::int64_t>(before, info.fLabelsToPrint) + 1);
        info.fCurrentPage = page;
    }
    if (fillData)
        FillDataPage(page);
}

// With one number of copies for all records, the record is computed. Where counters give more labels than the source,
// the last record stays, as in a walk.
void TVGRBaseLabel::GoToLabel(std::int64_t label) {
    const std::int64_t copies = fPrintInfo->GetRepetition();
    const std::int64_t before = (label - 1) / copies;
    fData->SetPos(ToInt32(std::min<std::int64_t>(before + 1, fData->RecordCount())));
    fData->SetPosRepeat(ToInt32(label - copies * before));
    if (detail::RunsOnCounters(fPrintInfo->fFillType))
        detail::ForActiveCounters(*this, [label](TVGRCounter& counter) { counter.MoveTo(label); });
    fPrintInfo->fCurrentLabel = ToInt32(label);
}

// Where each record tells its copies, only a walk finds the record. The filling of the page before has done it already.
void TVGRBaseLabel::WalkToLabel(std::int64_t label) {
    if (fPrintInfo->fFilledTo != TDataPlace{label, fData->GetPos(), fData->GetPosRepeat()}) {
        fData->First();
        for (std::int64_t passed = 1; passed < label; ++passed)
            NextData();
    }
    fPrintInfo->fCurrentLabel = ToInt32(label);
}

void TVGRBaseLabel::FillDataPage(std::int32_t page) {
    TVGRBasePrintInfo& info = *fPrintInfo;
    if (page == info.fLastPageFill)
        return;
    const std::int32_t rows = fMeasure->GetNuHor(), columns = fMeasure->GetNuVer();
    std::int64_t label = info.fCurrentLabel;
    std::int32_t column = page == 1 ? info.GetFirstCol() : 1;
    for (std::int32_t row = page == 1 ? info.GetFirstRow() : 1; row <= rows && label <= info.fLabelsToPrint;
         ++row, column = 1) {
        for (; column <= columns && label <= info.fLabelsToPrint; ++column, ++label) {
            ForEachLiving(PreviewOf(row, column), [](TVGRBaseItem& copy) { copy.FillData(true); });
            NextData();
        }
    }
    info.fLastPageFill = page;
    info.fFilledTo = {label, fData->GetPos(), fData->GetPosRepeat()};
}

} // namespace vagrel
