// SPDX-License-Identifier: MIT
// The walk over the records of the selected source, and the values of the current one.
#include <vagrel/merge/TVGRData.h>

#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/merge/DataRecords_p.h>
#include <vagrel/merge/IKSLDataset.h>
#include <vagrel/merge/Merge_p.h>

#include <algorithm>

namespace vagrel {

// False where the selected source does not exist.
bool TVGRData::OpenRecords() {
    const TVGRDatasetItem* source = SelectedSource();
    switch (fType) {
    case dtyDataset:
        if (IKSLDataset* dataset = CurrentDataset())
            fRecords = detail::OpenDataset(*dataset);
        break;
    case dtyJson:
        // Captions count without regard to case, keys exactly.
        fRecords = detail::OpenJson(fJson, source ? source->fCaption : fDataSel);
        break;
    case dtyCsv:
        fValidCsv = false;
        fRecords = detail::OpenCsv(*this);
        fValidCsv = true;
        break;
    default:
        break;
    }
    return fRecords != nullptr;
}

// The record at the cursor.
void TVGRData::Load() {
    const std::int32_t record = fPos - fRecords->HeaderLines();
    if (record <= fRecords->Count())
        fRecords->MoveTo(record);
}

// Copies of the current record. A negative count gives none.
std::int32_t TVGRData::Repeat() const {
    if (!fFieldRepeat.empty() && RecordCount() > 0)
        if (const auto repeat = fRecords->Repeat(fFieldRepeat))
            return std::max(*repeat, 0);
    return fOwner.GetPrintInfo().GetRepetition();
}

std::int32_t TVGRData::CountLabels() {
    const std::int32_t count = fRecords->Count();
    if (fFieldRepeat.empty())
        return ToInt32(std::int64_t(count) * fOwner.GetPrintInfo().GetRepetition());
    const detail::TStillControls still(fRecords->Dataset());
    std::int64_t labels = 0;
    for (std::int32_t record = 1; record <= count; ++record) {
        fRecords->MoveTo(record);
        labels += Repeat();
    }
    return ToInt32(labels);
}

void TVGRData::Reset() {
    Close();
    fPos = fPosRepeat = fRecordRepeat = 1;
    fNumlabels = 0;
    fHasData = true;
    if (!fLinkData || fType == dtyNone) {
        fNumlabels = fOwner.GetPrintInfo().GetNumLabs();
        return;
    }
    if (fType == dtyCustom)
        return;
    fHasData = false;
    if (!OpenRecords())
        return;
    fNumlabels = CountLabels();
    fHasData = fType == dtyCsv ? fNumlabels > 0 : fRecords->Count() > 0;
    fPos = 1 + fRecords->HeaderLines();
    Load();
    fRecordRepeat = Repeat();
}

void TVGRData::First() {
    fPos = fPosRepeat = fRecordRepeat = 1;
    if (fLinkData) {
        if (fRecords) {
            fPos = 1 + fRecords->HeaderLines();
            Load();
        }
        fRecordRepeat = Repeat();
    }
    if (detail::RunsOnCounters(fOwner.GetPrintInfo().GetFillType()))
        detail::ForActiveCounters(fOwner, [](TVGRCounter& counter) { counter.Reset(); });
}

void TVGRData::Next() {
    if (!fLinkData || !fRecords)
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

std::int32_t TVGRData::RecordCount() const { return fRecords ? fRecords->Count() : 0; }

void TVGRData::SetPos(std::int32_t record) {
    if (!fLinkData || record < 1 || record > RecordCount())
        return;
    fPos = record + fRecords->HeaderLines();
    fPosRepeat = 1;
    Load();
}

bool TVGRData::IsValidData(TKSLFillType fill, std::u16string_view name) const {
    switch (fill) {
    case ftField:
    case ftJson:
    case ftCsv:
    case ftImg64:
        return fHasData;
    case ftCounter:
        return detail::RunsOnCounters(fOwner.GetPrintInfo().GetFillType());
    case ftAsk:
        return NameAskExists(name);
    case ftList:
        return NameListExists(name);
    default:
        return false;
    }
}

std::u16string TVGRData::DataValue(std::u16string_view name, std::u16string_view format) const {
    return fLinkData && fRecords ? fRecords->Value(name, format) : std::u16string(name);
}

bool TVGRData::DataGraphic(std::u16string_view name, std::string& stream) const {
    const IKSLDataset* dataset = fLinkData && fRecords ? fRecords->Dataset() : nullptr;
    const int field = dataset ? dataset->FindField(name) : -1;
    if (field < 0 || dataset->FieldKind(field) != fkBlob)
        return false;
    stream = dataset->AsBlob(field);
    return !stream.empty();
}

} // namespace vagrel
