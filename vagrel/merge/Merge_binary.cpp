// SPDX-License-Identifier: MIT
// Data sources, lists, questions and counters in the binary document.
#include <vagrel/document/TVGRBaseLabel.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TBinaryWriter.h>

namespace vagrel {

void TVGRCounter::WriteData(TBinaryWriter& writer) const {
    writer.Write(fName);
    writer.Write(fNumFrom);
    writer.Write(fNumTo);
    writer.Write(fStep);
    writer.Write(fRepeat);
    for (const std::u16string* text : {&fFormat, &fBefore, &fAfter})
        writer.Write(*text);
}

void TVGRCounter::ReadData(std::int32_t, TBinaryReader& reader) {
    fName = reader.ReadString();
    // Within their limits: step and repeat divide, and a range that is turned round has no values.
    SetNumFrom(reader.Read<std::int64_t>());
    SetNumTo(reader.Read<std::int64_t>());
    SetStep(reader.Read<std::int32_t>());
    SetRepeat(reader.Read<std::int16_t>());
    for (std::u16string* text : {&fFormat, &fBefore, &fAfter})
        *text = reader.ReadString();
}

void TVGRData::WriteData(TBinaryWriter& writer) const {
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
    const TVGRDatasetItem* csv = CsvSource();
    const TVGRFields none;
    const TVGRFields& fields = csv ? csv->fFields : none;
    writer.Write(std::int32_t(fields.size()));
    for (const TVGRFieldItem& field : fields) {
        writer.Write(field.fCaption);
        writer.Write(field.fName);
        writer.Write(std::int16_t(field.fFieldType));
    }
    if (fOwner.GetEditorMode() != emLabelling)
        return;
    writer.Write(std::int32_t(fListVal.size()));
    for (const TKSValList& list : fListVal) {
        writer.Write(list.fName);
        writer.Write(JoinLines(list.fValues));
    }
    writer.Write(std::int32_t(fListAsk.size()));
    for (const TKSAskField& question : fListAsk) {
        writer.Write(std::int16_t(question.fAskType));
        writer.Write(question.fName);
        writer.Write(question.fQuestion);
    }
}

void TVGRData::ReadData(std::int32_t, TBinaryReader& reader) {
    Close();
    RemoveSources(dtyJson);
    RemoveSources(dtyCsv);
    fListVal.clear();
    fListAsk.clear();
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
    if (!fields.empty())
        fDatasets.push_back({{TVGRMsg::GetDialogsValue(u"CsvFile"), dtyCsv, std::move(fields)}, {}});
    if (fOwner.GetEditorMode() != emLabelling)
        return;
    for (auto count = reader.Read<std::int32_t>(); count > 0; --count) {
        TKSValList& list = fListVal.emplace_back();
        list.fName = reader.ReadString();
        list.fValues = SplitLines(reader.ReadString());
    }
    for (auto count = reader.Read<std::int32_t>(); count > 0; --count) {
        TKSAskField& question = fListAsk.emplace_back();
        question.fAskType = TKSLAskType(reader.Read<std::int16_t>());
        question.fName = reader.ReadString();
        question.fQuestion = reader.ReadString();
    }
}

} // namespace vagrel
