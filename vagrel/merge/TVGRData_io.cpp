// SPDX-License-Identifier: MIT
// The JSON form of data sources, value lists and questions.
#include <vagrel/merge/TVGRData.h>

#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

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
    if (const TVGRDatasetItem* csv = CsvSource()) {
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
    Close();
    // Sources that stem from the texts of the document that stood here before go with it.
    RemoveSources(dtyJson);
    RemoveSources(dtyCsv);
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
        fDatasets.push_back({{TVGRMsg::GetDialogsValue(u"CsvFile"), dtyCsv, std::move(fields)}, {}});
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
