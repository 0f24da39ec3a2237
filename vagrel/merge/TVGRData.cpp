// SPDX-License-Identifier: MIT
// The description of data sources: derived from JSON text, stored with the document.
#include <vagrel/merge/TVGRData.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <algorithm>
#include <optional>

namespace vagrel {

namespace {

// The type of a field by the value that a template record has for it; nothing for an object.
std::optional<TKSLFieldType> FieldTypeOf(TJsonDataType type) {
    switch (type) {
    case jdtInt:
        return ftInt;
    case jdtLong:
    case jdtULong:
        return ftInt64;
    case jdtFloat:
        return ftFloat;
    case jdtBool:
        return ftBool;
    case jdtArray:
    case jdtObject:
        return std::nullopt;
    default:
        return ftString;
    }
}

// The first record of a list; null when it is not an object.
TJsonObject* Template(TJsonArray& list) {
    return list.Count() > 0 && list.GetType(0) == jdtObject ? &list.GetObject(0) : nullptr;
}

TVGRFields FieldsOf(TJsonObject& record) {
    TVGRFields fields;
    for (auto [name, value] : record)
        if (const auto type = FieldTypeOf(value.GetTyp()))
            fields.push_back({std::u16string(name), std::u16string(name), *type});
    return fields;
}

std::vector<TVGRDetailItem> DetailsOf(TJsonObject& record) {
    std::vector<TVGRDetailItem> details;
    for (auto [name, value] : record) {
        if (value.GetTyp() != jdtArray)
            continue;
        TJsonObject* first = Template(value.NeedArray());
        details.push_back({std::u16string(name), first ? FieldsOf(*first) : TVGRFields()});
    }
    return details;
}

} // namespace

TVGRData::TVGRData(TVGRBaseLabel& owner) : fOwner(owner) {}
TVGRData::~TVGRData() = default;

void TVGRData::SetJson(std::u16string_view value) {
    value = Trim(value);
    if (value == fJson)
        return;
    fJson = value;
    CheckJson();
}

void TVGRData::CheckJson() {
    std::erase_if(fDatasets, [](const TVGRDataItem& source) { return source.fType == dtyJson; });
    if (!fJson.starts_with(u'{'))
        throw EVagrel(TVGRMsg::GetErrorValue(u"NoJson"));
    TJsonObject root;
    root.Parse(fJson);
    for (auto [name, value] : root) {
        if (value.GetTyp() != jdtArray)
            continue;
        TVGRDataItem source{std::u16string(name), dtyJson, {}, {}};
        if (TJsonObject* record = Template(value.NeedArray())) {
            source.fFields = FieldsOf(*record);
            source.fDetails = DetailsOf(*record);
        }
        fDatasets.push_back(std::move(source));
    }
}

void TVGRData::Unlink() {
    fLinkData = false;
    fJson.clear();
    fCsvFileName.clear();
}

void TVGRData::Assign(const TVGRData& s) {
    fDatasets = s.fDatasets, fJson = s.fJson, fType = s.fType, fLinkData = s.fLinkData, fSaveJson = s.fSaveJson;
    fDataSel = s.fDataSel, fFieldRepeat = s.fFieldRepeat, fCsvFileName = s.fCsvFileName, fCsvSep = s.fCsvSep;
    fCsvHeader = s.fCsvHeader, fCsvQuote = s.fCsvQuote, fListVal = s.fListVal, fListAsk = s.fListAsk;
}

const TVGRDataItem* TVGRData::CsvSource() const {
    const auto last = std::find_if(fDatasets.rbegin(), fDatasets.rend(),
                                   [](const TVGRDataItem& source) { return source.fType == dtyCsv; });
    return last == fDatasets.rend() ? nullptr : &*last;
}

void TVGRData::WriteJson(TJsonObject& parent) const {
    TJsonObject& json = parent.AddObject(u"Data");
    json.SetInt(u"DataType", fType);
    json.SetBool(u"LinkData", fLinkData);
    json.SetString(u"DataSource", fDataSel);
    json.SetString(u"FieldRepeat", fFieldRepeat);
    json.SetBool(u"SaveJson", fSaveJson);
    if (fSaveJson)
        json.SetString(u"DataJson", fJson);
    json.SetString(u"CsvFileName", fCsvFileName);
    json.SetBool(u"CsvHeader", fCsvHeader);
    json.SetInt(u"CsvSeparator", fCsvSep);
    json.SetInt(u"CsvQuote", fCsvQuote);
    TJsonArray& fields = json.AddArray(u"CsvFields");
    if (const TVGRDataItem* csv = CsvSource()) {
        for (const TVGRFieldItem& field : csv->fFields) {
            TJsonObject& item = fields.AddObject();
            item.SetString(u"Name", field.fName);
            item.SetString(u"Caption", field.fCaption);
            item.SetInt(u"FieldType", field.fFieldType);
        }
    }
    if (fOwner.GetEditorMode() != emLabelling)
        return;
    TJsonArray& lists = json.AddArray(u"ValList");
    for (const TKSValList& list : fListVal) {
        TJsonObject& item = lists.AddObject();
        item.SetString(u"Name", list.fName);
        item.SetString(u"Values", JoinLines(list.fValues));
    }
    TJsonArray& questions = json.AddArray(u"ListAsk");
    for (const TKSAskField& question : fListAsk) {
        TJsonObject& item = questions.AddObject();
        item.SetInt(u"AskType", question.fAskType);
        item.SetString(u"Name", question.fName);
        item.SetString(u"Question", question.fQuestion);
    }
}

void TVGRData::ReadJson(std::int32_t, TJsonObject& json) {
    fType = TKSLDataType(json.GetInt(u"DataType"));
    fLinkData = json.GetBool(u"LinkData");
    fDataSel = json.GetString(u"DataSource");
    fFieldRepeat = json.GetString(u"FieldRepeat");
    fSaveJson = json.GetBool(u"SaveJson");
    fJson = fSaveJson ? json.GetString(u"DataJson") : std::u16string();
    fCsvFileName = json.GetString(u"CsvFileName");
    fCsvHeader = json.GetBool(u"CsvHeader");
    fCsvSep = TKSLCsvSep(json.GetInt(u"CsvSeparator"));
    fCsvQuote = TKSLCsvQuote(json.GetInt(u"CsvQuote"));
    // Sources that stem from the texts of the document that stood here before go with it.
    std::erase_if(fDatasets,
                  [](const TVGRDataItem& source) { return source.fType == dtyJson || source.fType == dtyCsv; });
    fListVal.clear();
    fListAsk.clear();
    TVGRFields fields;
    TJsonArray& items = json.GetArray(u"CsvFields");
    for (int i = 0; i < items.Count(); ++i) {
        TJsonObject& item = items.GetObject(i);
        fields.push_back(
            {item.GetString(u"Name"), item.GetString(u"Caption"), TKSLFieldType(item.GetInt(u"FieldType"))});
    }
    if (!fields.empty())
        fDatasets.push_back({TVGRMsg::GetDialogsValue(u"CsvFile"), dtyCsv, std::move(fields), {}});
    if (fOwner.GetEditorMode() != emLabelling)
        return;
    TJsonArray& lists = json.GetArray(u"ValList");
    for (int i = 0; i < lists.Count(); ++i) {
        TJsonObject& item = lists.GetObject(i);
        fListVal.push_back({item.GetString(u"Name"), {}, false, SplitLines(item.GetString(u"Values"))});
    }
    TJsonArray& questions = json.GetArray(u"ListAsk");
    for (int i = 0; i < questions.Count(); ++i) {
        TJsonObject& item = questions.GetObject(i);
        TKSAskField question;
        question.fAskType = TKSLAskType(item.GetInt(u"AskType"));
        question.fName = item.GetString(u"Name");
        question.fQuestion = item.GetString(u"Question");
        fListAsk.push_back(std::move(question));
    }
}

} // namespace vagrel
