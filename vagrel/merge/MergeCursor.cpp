// SPDX-License-Identifier: MIT
// The walk over the records of the selected source, and the values of the current one.
#include <vagrel/merge/MergeCursor.h>

#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/merge/DataRecords_p.h>
#include <vagrel/merge/IKSLDataset.h>
#include <vagrel/merge/MergeSources.h>
#include <vagrel/merge/Merge_p.h>

#include <algorithm>

namespace vagrel {

MergeCursor::MergeCursor(TVGRBaseLabel& owner, MergeSources& sources) : fOwner(owner), fSources(sources) {}
MergeCursor::~MergeCursor() = default;

void MergeCursor::CloseRecords() {
    fRecords.reset();
    fHasData = false;
}

// False where the selected source does not exist.
bool MergeCursor::OpenRecords() {
    const TVGRDatasetItem* source = fSources.SelectedSource();
    switch (fSources.GetType()) {
    case dtyDataset:
        if (IKSLDataset* dataset = fSources.CurrentDataset())
            fRecords = detail::OpenDataset(*dataset);
        break;
    case dtyJson:
        // Captions count without regard to case, keys exactly.
        fRecords = detail::OpenJson(fSources.GetJson(), source ? source->fCaption : fSources.GetDataSel());
        break;
    case dtyCsv:
        fValidCsv = false;
        fRecords = detail::OpenCsv(fSources);
        fValidCsv = true;
        break;
    default:
        break;
    }
    return fRecords != nullptr;
}

// The record at the cursor.
void MergeCursor::Load() {
    const std::int32_t record = fPos - fRecords->HeaderLines();
    if (record <= fRecords->Count())
        fRecords->MoveTo(record);
}

// Copies of the current record. A negative count gives none.
std::int32_t MergeCursor::Repeat() const {
    if (!fSources.GetFieldRepeat().empty() && RecordCount() > 0)
        if (const auto repeat = fRecords->Repeat(fSources.GetFieldRepeat()))
            return std::max(*repeat, 0);
    return fOwner.GetPrintInfo().GetRepetition();
}

std::int32_t MergeCursor::CountLabels() {
    const std::int32_t count = fRecords->Count();
    if (fSources.GetFieldRepeat().empty())
        return ToInt32(std::int64_t(count) * fOwner.GetPrintInfo().GetRepetition());
    const detail::TStillControls still(fRecords->Dataset());
    std::int64_t labels = 0;
    for (std::int32_t record = 1; record <= count; ++record) {
        fRecords->MoveTo(record);
        labels += Repeat();
    }
    return ToInt32(labels);
}

void MergeCursor::Reset() {
    CloseRecords();
    fPos = fPosRepeat = fRecordRepeat = 1;
    fNumlabels = 0;
    fHasData = true;
    if (!fSources.GetLinkData() || fSources.GetType() == dtyNone) {
        fNumlabels = fOwner.GetPrintInfo().GetNumLabs();
        return;
    }
    if (fSources.GetType() == dtyCustom)
        return;
    fHasData = false;
    if (!OpenRecords())
        return;
    fNumlabels = CountLabels();
    fHasData = fSources.GetType() == dtyCsv ? fNumlabels > 0 : fRecords->Count() > 0;
    fPos = 1 + fRecords->HeaderLines();
    Load();
    fRecordRepeat = Repeat();
}

void MergeCursor::First() {
    fPos = fPosRepeat = fRecordRepeat = 1;
    if (fSources.GetLinkData()) {
        if (fRecords) {
            fPos = 1 + fRecords->HeaderLines();
            Load();
        }
        fRecordRepeat = Repeat();
    }
    if (detail::RunsOnCounters(fOwner.GetPrintInfo().GetFillType()))
        detail::ForActiveCounters(fOwner, [](TVGRCounter& counter) { counter.Reset(); });
}

void MergeCursor::Next() {
    if (!fSources.GetLinkData() || !fRecords)
        return;
    if (fPosRepeat < fRecordRepeat) {
        ++fPosRepeat;
        return;
    }
    if (fPos - fRecords->HeaderLines() < fRecords->Count()) {
        ++fPos;
        Load();
    }
    fRecordRepeat = Repeat();
    fPosRepeat = 1;
}

std::int32_t MergeCursor::RecordCount() const { return fRecords ? fRecords->Count() : 0; }

void MergeCursor::SetPos(std::int32_t record) {
    if (!fSources.GetLinkData() || record < 1 || record > RecordCount())
        return;
    fPos = record + fRecords->HeaderLines();
    fPosRepeat = 1;
    Load();
}

std::u16string MergeCursor::DataValue(std::u16string_view name, std::u16string_view format) const {
    return fSources.GetLinkData() && fRecords ? fRecords->Value(name, format) : std::u16string(name);
}

bool MergeCursor::DataGraphic(std::u16string_view name, std::string& stream) const {
    const IKSLDataset* dataset = fSources.GetLinkData() && fRecords ? fRecords->Dataset() : nullptr;
    const int field = dataset ? dataset->FindField(name) : -1;
    if (field < 0 || dataset->FieldKind(field) != fkBlob)
        return false;
    stream = dataset->AsBlob(field);
    return !stream.empty();
}

} // namespace vagrel
