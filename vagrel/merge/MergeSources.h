// SPDX-License-Identifier: MIT
// The sources of a merge: derived from JSON text and CSV files, or the host's own.
#pragma once

#include <vagrel/merge/DataSources.h>

#include <cstdint>

namespace vagrel {

class TBinaryReader;
class TBinaryWriter;
class TCsvReader;
class TMembers;
class TJsonObject;

/// Which sources there are, and which of them fills the document. Names of sources and details count without regard to
/// case, those of fields exactly.
class MergeSources {
public:
    const TVGRDatasets& GetDatasets() const { return fDatasets; }
    /// To add datasets of the host.
    TVGRDatasets& GetDatasets() {
        Changing();
        return fDatasets;
    }
    void SetDatasets(TVGRDatasets value);
    const std::u16string& GetJson() const { return fJson; }
    /// Stores the trimmed text and derives the JSON sources from it. Throws what `CheckJson` throws.
    void SetJson(std::u16string_view value);
    bool GetSaveJson() const { return fSaveJson; }
    void SetSaveJson(bool value) { Put(fSaveJson, value); }
    bool GetLinkData() const { return fLinkData; }
    void SetLinkData(bool value) { Put(fLinkData, value); }
    TKSLDataType GetType() const { return fType; }
    const std::u16string& GetDataSel() const { return fDataSel; }
    /// Selects a source by its caption; the type is dtyNone when there is none.
    void SetDataSel(std::u16string_view name);
    /// Selects a dataset that the host adds later.
    void MigrateDataSel(std::u16string_view name);
    const std::u16string& GetFieldRepeat() const { return fFieldRepeat; }
    void SetFieldRepeat(std::u16string_view value) { Put(fFieldRepeat, value); }

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
    /// What a document forgets when everything is cleared: the link, the JSON text, the name of the CSV file.
    void Unlink();

protected:
    MergeSources() = default;
    MergeSources(const MergeSources&) = delete;
    MergeSources& operator=(const MergeSources&) = default;
    virtual ~MergeSources() = default;

    /// What was open is no longer what is selected. Told before the change.
    virtual void Close() {}
    /// Told before any definition changes.
    virtual void Changing() {}
    /// All definitions but the host's own sources.
    void Members(TMembers& members);
    // The forms hold the fields of the CSV source alone. What is read takes the place of the sources that stem from
    // texts of the document that stood here before.
    void WriteSources(TJsonObject& json) const;
    void ReadSources(TJsonObject& json);
    void WriteSources(TBinaryWriter& writer) const;
    void ReadSources(TBinaryReader& reader);

private:
    const TVGRDatasetItem* CsvSource() const;
    /// Empty without such a source.
    const TVGRFields& CsvFields() const;
    void RemoveSources(TKSLDataType type);
    void RemoveTextSources();
    void AddCsvSource(TVGRFields fields);
    template <class T, class Value>
    void Put(T& field, const Value& value) {
        Changing();
        field = value;
    }
    template <class Value>
    void StoreCsv(Value& field, const Value& value);

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
};

} // namespace vagrel
