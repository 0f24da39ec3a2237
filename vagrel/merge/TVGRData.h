// SPDX-License-Identifier: MIT
// The data sources of a document, the cursor over the selected one, the value lists and the questions.
//
// The body of this class is spread by topic: TVGRData.cpp (sources), _Cursor, _Details, _io (JSON), AskLists.cpp.
#pragma once

#include <vagrel/merge/DataSources.h>
#include <vagrel/merge/ValueLists.h>

#include <cstdint>
#include <memory>

namespace vagrel {

class TBinaryReader;
class TBinaryWriter;
class TCsvReader;
class TJsonArray;
class TJsonObject;
class TVGRBaseLabel;
namespace detail {
class TDataRecords;
}

/// Which source fills the document, and the record that fills the current label. Names of sources, details, lists and
/// questions count without regard to case, those of fields exactly.
///
/// A merge runs while `LinkData` is set: `Reset` opens the selected source, counts its labels and stands on the first
/// record; selecting another source closes it. Unmerged, a field's value is its name.
class TVGRData {
public:
    explicit TVGRData(TVGRBaseLabel& owner);
    TVGRData(const TVGRData&) = delete;
    TVGRData& operator=(const TVGRData&) = delete;
    ~TVGRData();

    // Sources

    const TVGRDatasets& GetDatasets() const { return fDatasets; }
    /// To add datasets of the host.
    TVGRDatasets& GetDatasets() { return fDatasets; }
    void SetDatasets(TVGRDatasets value);
    const std::u16string& GetJson() const { return fJson; }
    /// Stores the trimmed text and derives the JSON sources from it. Throws what `CheckJson` throws.
    void SetJson(std::u16string_view value);
    bool GetSaveJson() const { return fSaveJson; }
    void SetSaveJson(bool value) { fSaveJson = value; }
    bool GetLinkData() const { return fLinkData; }
    void SetLinkData(bool value) { fLinkData = value; }
    TKSLDataType GetType() const { return fType; }
    const std::u16string& GetDataSel() const { return fDataSel; }
    /// Selects a source by its caption; the type is dtyNone when there is none.
    void SetDataSel(std::u16string_view name);
    /// Selects a dataset that the host adds later.
    void MigrateDataSel(std::u16string_view name);
    const std::u16string& GetFieldRepeat() const { return fFieldRepeat; }
    void SetFieldRepeat(std::u16string_view value) { fFieldRepeat = value; }

    const std::u16string& GetCsvFileName() const { return fCsvFileName; }
    bool GetCsvHeader() const { return fCsvHeader; }
    TKSLCsvSep GetCsvSep() const { return fCsvSep; }
    TKSLCsvQuote GetCsvQuote() const { return fCsvQuote; }
    /// Derive the CSV source anew on a change. Throw what `CheckCsvFields` throws.
    void SetCsvFileName(std::u16string_view value);
    void SetCsvHeader(bool value);
    void SetCsvSep(TKSLCsvSep value);
    void SetCsvQuote(TKSLCsvQuote value);
    /// All four at once. Throws EVagrel for a missing file and for scvNone.
    bool SetCsvData(std::u16string_view file, bool hasHeader, TKSLCsvSep separator, TKSLCsvQuote quote);
    /// Sets the type of a field, counted from 0, of the CSV source. False without such a source and below 0.
    bool SetCsvField(int index, TKSLFieldType type);

    /// Derives one source for each array of the JSON text, its fields from the array's first object. Throws EVagrel
    /// when the text does not begin with "{", and what the parser throws.
    void CheckJson();
    /// Derives the source of the CSV file from its first line. Throws EVagrel when the file is missing or ends inside a
    /// quote.
    bool CheckCsvFields();
    /// The records of the CSV file, header line and all. A file without a mark is in `AnsiCodePage`. Throws as
    /// `CheckCsvFields`.
    TCsvReader ReadCsv() const;

    const TVGRDatasetItem* GetDataset(std::u16string_view name) const;
    /// The source that `DataSel` names; null without one.
    const TVGRDatasetItem* SelectedSource() const { return GetDataset(fDataSel); }
    /// A detail of the selected source.
    const TVGRDetailItem* GetDetail(std::u16string_view name) const;
    TVGRDetailItem* GetDetail(std::u16string_view name);
    /// The host's dataset that is selected, else null.
    IKSLDataset* CurrentDataset() const;
    /// The position from 0 of the selected source's field with this caption, -1 when absent.
    std::int32_t GetCsvPos(std::u16string_view name) const;

    // The cursor

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

    // Values of the current record

    /// Whether a binding of this kind has a value now.
    bool IsValidData(TKSLFillType fill, std::u16string_view name) const;
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

    // Value lists and questions. Indexes count from 1; a pointer is good until its list changes.

    int GetNumListVal() const { return int(fListVal.size()); }
    int GetNumQuestions() const { return int(fListAsk.size()); }
    TKSValList* GetListVal(int index);
    TKSAskField* GetAskField(int index);
    const TKSValList* GetListVal(std::u16string_view name) const;
    const TKSAskField* GetAskField(std::u16string_view name) const;
    TKSValList* GetListVal(std::u16string_view name);
    TKSAskField* GetAskField(std::u16string_view name);
    const std::vector<TKSValList>& ListVal() const { return fListVal; }
    const std::vector<TKSAskField>& ListAsk() const { return fListAsk; }
    /// False when the name exists.
    bool AddListVal(std::u16string_view name);
    bool AddAskVal(std::u16string_view name);
    /// Nothing out of range. Throw EVagrel for an empty name and for one that another entry has.
    void SetListName(int index, std::u16string_view name);
    void SetAskName(int index, std::u16string_view name);
    /// Also unbind the items; false out of range.
    bool DeleteList(int index);
    bool DeleteAsk(int index);
    void ClearListVal() { fListVal.clear(); }
    void ClearAskList() { fListAsk.clear(); }

    /// True for an entry that an item to be printed uses.
    bool NameListExists(std::u16string_view name) const;
    bool NameAskExists(std::u16string_view name) const;
    bool GetHasList() const { return fHasList; }
    bool GetHasQuest() const { return fHasQuest; }
    /// No entry is in use.
    void ResetListAsk();
    /// The entry of this name is in use.
    void ActivateList(std::u16string_view name);
    void ActivateAsk(std::u16string_view name);
    /// The value that was picked; the name when it is unknown.
    std::u16string DataList(std::u16string_view name, std::u16string_view format) const;
    /// The answer; the name, or 0, when it is unknown.
    std::u16string DataAsk(std::u16string_view name, std::u16string_view format) const;
    std::int32_t DataAskInt(std::u16string_view name) const;
    float DataAskNum(std::u16string_view name) const;

    /// What a document forgets when everything is cleared: the link, the JSON text, the name of the CSV file.
    void Unlink();
    void Assign(const TVGRData& source);

    void WriteJson(TJsonObject& parent) const;
    void ReadJson(std::int32_t version, TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

private:
    const TVGRDatasetItem* CsvSource() const;
    void RemoveSources(TKSLDataType type);
    template <class Value>
    void StoreCsv(Value& field, const Value& value);
    bool OpenRecords();
    void Close();
    void Load();
    std::int32_t Repeat() const;
    std::int32_t CountLabels();
    TJsonArray* Rows(const TVGRDetailItem& detail) const;
    std::vector<double> DetailNumbers(const TVGRDetailItem& detail, std::u16string_view name) const;

    TVGRBaseLabel& fOwner;
    TVGRDatasets fDatasets;
    std::u16string fJson;
    TKSLDataType fType = dtyNone;
    bool fLinkData = false;
    bool fSaveJson = false;
    std::u16string fDataSel;
    std::u16string fFieldRepeat;
    std::u16string fCsvFileName;
    TKSLCsvSep fCsvSep = scvNone;
    bool fCsvHeader = true;
    TKSLCsvQuote fCsvQuote = scqDoubleQuotes;
    std::vector<TKSValList> fListVal;
    std::vector<TKSAskField> fListAsk;
    std::int32_t fPos = 1, fPosRepeat = 1, fRecordRepeat = 1;
    std::int32_t fNumlabels = 0;
    bool fValidCsv = false, fHasList = false, fHasQuest = false, fHasData = false;
    std::unique_ptr<detail::TDataRecords> fRecords; // of a merge that runs
};

} // namespace vagrel
