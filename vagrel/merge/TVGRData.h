// SPDX-License-Identifier: MIT
// The data sources of a document, its value lists and its questions.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

class TBinaryReader;
class TBinaryWriter;
class TJsonObject;
class TVGRBaseLabel;

/// A field of a source.
struct TVGRFieldItem {
    std::u16string fName;
    std::u16string fCaption;
    TKSLFieldType fFieldType = ftString;
    bool fFloatAsDateTime = false;
};
using TVGRFields = std::vector<TVGRFieldItem>;

/// A list inside the records of a source.
struct TVGRDetailItem {
    std::u16string fCaption;
    TVGRFields fFields;
    std::int32_t fPos = 0;
};

/// One source: its caption, by which it is selected, its fields and its details.
struct TVGRDataItem {
    std::u16string fCaption;
    TKSLDataType fType = dtyNone;
    TVGRFields fFields;
    std::vector<TVGRDetailItem> fDetails;
};

/// A list from which the user picks one value.
struct TKSValList {
    std::u16string fName;
    std::u16string fAnsText;
    bool fActive = false;
    std::vector<std::u16string> fValues;
};

/// A question put to the user before printing.
struct TKSAskField {
    std::u16string fName;
    std::u16string fQuestion;
    TKSLAskType fAskType = atText;
    std::u16string fAnsText;
    std::int32_t fAnsInt = 0;
    double fAnsDT = 0;
    double fAnsNumber = 0;
    bool fActive = false;
};

/// Which source fills the document. The cursor over its records joins with the data merge.
class TVGRData {
public:
    explicit TVGRData(TVGRBaseLabel& owner);
    TVGRData(const TVGRData&) = delete;
    TVGRData& operator=(const TVGRData&) = delete;
    ~TVGRData();

    const std::vector<TVGRDataItem>& GetDatasets() const { return fDatasets; }
    const std::u16string& GetJson() const { return fJson; }
    /// Stores the trimmed text and derives the JSON sources from it.
    void SetJson(std::u16string_view value);
    bool GetSaveJson() const { return fSaveJson; }
    void SetSaveJson(bool value) { fSaveJson = value; }
    bool GetLinkData() const { return fLinkData; }
    void SetLinkData(bool value) { fLinkData = value; }
    TKSLDataType GetType() const { return fType; }
    const std::u16string& GetDataSel() const { return fDataSel; }
    const std::u16string& GetFieldRepeat() const { return fFieldRepeat; }
    void SetFieldRepeat(std::u16string_view value) { fFieldRepeat = value; }

    /// Derives one source for each array of the JSON text, its fields from the array's first object. Throws EVagrel
    /// when the text does not begin with "{", and what the parser throws.
    void CheckJson();

    /// What a document forgets when everything is cleared: the link, the JSON text, the name of the CSV file.
    void Unlink();
    void ClearListVal() { fListVal.clear(); }
    void ClearAskList() { fListAsk.clear(); }

    void Assign(const TVGRData& source);

    void WriteJson(TJsonObject& parent) const;
    void ReadJson(std::int32_t version, TJsonObject& json);
    void WriteData(TBinaryWriter& writer) const;
    void ReadData(std::int32_t version, TBinaryReader& reader);

private:
    const TVGRDataItem* CsvSource() const;

    TVGRBaseLabel& fOwner;
    std::vector<TVGRDataItem> fDatasets;
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
};

} // namespace vagrel
