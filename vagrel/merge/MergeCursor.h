// SPDX-License-Identifier: MIT
// The walk over the records of the selected source, and the values of the current one.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

class MergeSources;
class TJsonArray;
class TVGRBaseLabel;
struct TVGRDetailItem;
namespace detail {
class TDataRecords;
}

/// Stands on the record that fills the current label. It is open from `Reset` until another source is selected.
class MergeCursor {
public:
    /// Opens the selected source and counts the labels that it gives. Throws EVagrel for a missing CSV file, and what
    /// the parser throws.
    void Reset();
    /// Back to the first record; restarts the active counters when the merge runs on counters.
    void First();
    /// The next copy of the record, or the next record. At the last one it stays.
    void Next();
    /// Moves to a record, from 1, without a scan; nothing beyond the last one.
    void SetPos(std::int32_t record);
    /// The current record, from 1; with a header line in the CSV file, from 2.
    std::int32_t GetPos() const { return fPos; }
    /// The copy of the current record, from 1, and how many there are.
    std::int32_t GetPosRepeat() const { return fPosRepeat; }
    void SetPosRepeat(std::int32_t value) { fPosRepeat = value; }
    std::int32_t GetRecordRepeat() const { return fRecordRepeat; }
    /// Records of the source that is open, else 0.
    std::int32_t RecordCount() const;
    /// Labels that the source gives in all.
    std::int32_t GetNumlabels() const { return fNumlabels; }
    bool GetHasData() const { return fHasData; }
    bool GetValidCsv() const { return fValidCsv; }

    /// `format` is a number or date pattern and may be empty. A name that a dataset or CSV file does not have gives
    /// itself, one that a JSON record does not have is empty. Throws EOutOfRange where a JSON array has no record.
    std::u16string DataValue(std::u16string_view name, std::u16string_view format) const;
    /// Stores the bytes of a blob field of the selected dataset; false when there are none.
    bool DataGraphic(std::u16string_view name, std::string& stream) const;
    /// Moves a detail to its first row; the number of rows, 0 without such a detail.
    std::int32_t FirstDetail(std::u16string_view detail);
    void NextDetail(std::u16string_view detail);
    /// A field of the detail's current row; empty without such a detail. Throws EOutOfRange behind the last row.
    std::u16string DataDetailValue(std::u16string_view detail, std::u16string_view name,
                                   std::u16string_view format) const;
    /// A calculation over a field of all rows of a detail. Moves a dataset to its end.
    std::u16string GetDetailCalc(std::u16string_view detail, std::u16string_view name, std::u16string_view format,
                                 TKSLFooter calculation) const;

protected:
    /// Both outlive it; `owner` tells the print parameters and has the counters.
    MergeCursor(TVGRBaseLabel& owner, MergeSources& sources);
    MergeCursor(const MergeCursor&) = delete;
    MergeCursor& operator=(const MergeCursor&) = delete;
    ~MergeCursor();

    /// Until the next `Reset` there are no values.
    void CloseRecords();

private:
    bool OpenRecords();
    void Load();
    std::int32_t Repeat() const;
    std::int32_t CountLabels();
    TJsonArray* Rows(const TVGRDetailItem& detail) const;
    std::vector<double> DetailNumbers(const TVGRDetailItem& detail, std::u16string_view name) const;

    TVGRBaseLabel& fOwner;
    MergeSources& fSources;
    std::int32_t fPos = 1, fPosRepeat = 1, fRecordRepeat = 1;
    std::int32_t fNumlabels = 0;
    bool fValidCsv = false, fHasData = false;
    std::unique_ptr<detail::TDataRecords> fRecords; // of a merge that runs
};

} // namespace vagrel
