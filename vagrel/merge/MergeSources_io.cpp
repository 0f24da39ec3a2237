// SPDX-License-Identifier: MIT
// The stored forms of the sources: the choice, the texts that they stem from, the fields of the CSV file.
#include <vagrel/merge/MergeSources.h>

#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

namespace vagrel {

const TVGRFields& MergeSources::CsvFields() const {
    static const TVGRFields none;
    const TVGRDatasetItem* csv = CsvSource();
    return csv ? csv->fFields : none;
}

void MergeSources::WriteSources(TJsonObject& json) const {
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
    for (const TVGRFieldItem& field : CsvFields()) {
        TJsonObject& item = fields.AddObject();
        item.SetString(u"Name", field.fName);
        item.SetString(u"Caption", field.fCaption);
        item.SetInt(u"FieldType", field.fFieldType);
    }
}

void MergeSources::ReadSources(TJsonObject& json) {
    RemoveTextSources();
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
    TVGRFields fields;
    TJsonArray& items = json.GetArray(u"CsvFields");
    for (int i = 0; i < items.Count(); ++i) {
        TJsonObject& item = items.GetObject(i);
        fields.push_back(
            {item.GetString(u"Name"), item.GetString(u"Caption"), TKSLFieldType(item.GetInt(u"FieldType"))});
    }
    AddCsvSource(std::move(fields));
}

void MergeSources::WriteSources(TBinaryWriter& writer) const {
    writer.Write(std::int16_t(fType));
    writer.Write(fLinkData);
    writer.Write(fDataSel);
    writer.Write(fFieldRepeat);
    writer.Write(fSaveJson);
    if (fSaveJson)
        writer.Write(fJson);
    writer.Write(std::int16_t(fCsvSep));
    writer.Write(std::int16_t(fCsvQuote));
    writer.Write(fCsvFileName);
    writer.Write(fCsvHeader);
    writer.Write(std::int32_t(CsvFields().size()));
    for (const TVGRFieldItem& field : CsvFields()) {
        writer.Write(field.fCaption);
        writer.Write(field.fName);
        writer.Write(std::int16_t(field.fFieldType));
    }
}

void MergeSources::ReadSources(TBinaryReader& reader) {
    RemoveTextSources();
    fType = TKSLDataType(reader.Read<std::int16_t>());
    fLinkData = reader.ReadBool();
    fDataSel = reader.ReadString();
    fFieldRepeat = reader.ReadString();
    fSaveJson = reader.ReadBool();
    fJson = fSaveJson ? reader.ReadString() : std::u16string();
    fCsvSep = TKSLCsvSep(reader.Read<std::int16_t>());
    fCsvQuote = TKSLCsvQuote(reader.Read<std::int16_t>());
    fCsvFileName = reader.ReadString();
    fCsvHeader = reader.ReadBool();
    TVGRFields fields;
    for (auto count = reader.Read<std::int32_t>(); count > 0; --count) {
        TVGRFieldItem& field = fields.emplace_back();
        field.fCaption = reader.ReadString();
        field.fName = reader.ReadString();
        field.fFieldType = TKSLFieldType(reader.Read<std::int16_t>());
    }
    AddCsvSource(std::move(fields));
}

void MergeSources::RemoveTextSources() {
    RemoveSources(dtyJson);
    RemoveSources(dtyCsv);
}

void MergeSources::AddCsvSource(TVGRFields fields) {
    if (!fields.empty())
        fDatasets.push_back({{TVGRMsg::GetDialogsValue(u"CsvFile"), dtyCsv, std::move(fields)}, {}});
}

} // namespace vagrel
