// SPDX-License-Identifier: MIT
// The sources: derived from JSON text and CSV files, selected by caption.
#include <vagrel/merge/MergeSources.h>

#include <vagrel/document/TMembers.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/TCsvReader.h>
#include <vagrel/messages/TVGRMsg.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/platform/Encoding.h>
#include <vagrel/platform/Files.h>

#include <algorithm>
#include <optional>

namespace vagrel {

namespace {

constexpr std::string_view Separators = ";;,\t ";
constexpr std::string_view Quotes{"\0'\"", 3};

// A value of a file that no enumeration has reads as the first one.
char CharOf(std::string_view table, std::int32_t value) {
    return table[value >= 0 && std::size_t(value) < table.size() ? std::size_t(value) : 0];
}

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

TVGRDetails DetailsOf(TJsonObject& record) {
    TVGRDetails details;
    for (auto [name, value] : record) {
        if (value.GetTyp() != jdtArray)
            continue;
        TJsonObject* first = Template(value.NeedArray());
        details.push_back({{std::u16string(name), dtyJson, first ? FieldsOf(*first) : TVGRFields()}});
    }
    return details;
}

template <class List>
auto Find(List& list, std::u16string_view caption) {
    const auto found =
        std::ranges::find_if(list, [&](const TVGRDataItem& item) { return SameText(item.fCaption, caption); });
    return found == list.end() ? nullptr : &*found;
}

} // namespace

void MergeSources::SetDatasets(TVGRDatasets value) {
    Changing();
    Close();
    fDatasets = std::move(value);
}

void MergeSources::SetJson(std::u16string_view value) {
    value = Trim(value);
    if (value == fJson)
        return;
    Changing();
    fJson = value;
    CheckJson();
}

void MergeSources::SetDataSel(std::u16string_view name) {
    if (name == fDataSel)
        return;
    Changing();
    Close();
    fDataSel = name;
    const TVGRDatasetItem* source = SelectedSource();
    fType = source ? source->fType : dtyNone;
}

void MergeSources::MigrateDataSel(std::u16string_view name) {
    if (name == fDataSel)
        return;
    Changing();
    Close();
    fDataSel = name;
    fType = dtyDataset;
}

void MergeSources::RemoveSources(TKSLDataType type) {
    std::erase_if(fDatasets, [type](const TVGRDataItem& source) { return source.fType == type; });
}

void MergeSources::CheckJson() {
    Changing();
    RemoveSources(dtyJson);
    if (!fJson.starts_with(u'{'))
        throw EVagrel(TVGRMsg::GetErrorValue(u"NoJson"));
    TJsonObject root;
    root.Parse(fJson);
    for (auto [name, value] : root) {
        if (value.GetTyp() != jdtArray)
            continue;
        TVGRDatasetItem source{{std::u16string(name), dtyJson, {}}, {}};
        if (TJsonObject* record = Template(value.NeedArray())) {
            source.fFields = FieldsOf(*record);
            source.fDetails = DetailsOf(*record);
        }
        fDatasets.push_back(std::move(source));
    }
}

template <class Value>
void MergeSources::StoreCsv(Value& field, const Value& value) {
    if (value == field)
        return;
    Put(field, value);
    CheckCsvFields();
}

void MergeSources::SetCsvFileName(std::u16string_view value) { StoreCsv(fCsvFileName, std::u16string(value)); }
void MergeSources::SetCsvHeader(bool value) { StoreCsv(fCsvHeader, value); }
void MergeSources::SetCsvSep(TKSLCsvSep value) { StoreCsv(fCsvSep, value); }
void MergeSources::SetCsvQuote(TKSLCsvQuote value) { StoreCsv(fCsvQuote, value); }

bool MergeSources::SetCsvData(std::u16string_view file, bool hasHeader, TKSLCsvSep separator, TKSLCsvQuote quote) {
    Changing();
    if (!FileExists(ToUtf8(file)))
        throw EVagrel(TVGRMsg::GetErrorValue(u"NoFile"));
    fCsvFileName = file, fCsvHeader = hasHeader, fCsvQuote = quote;
    if (separator == scvNone)
        throw EVagrel(TVGRMsg::GetErrorValue(u"NoSep"));
    fCsvSep = separator;
    return CheckCsvFields();
}

bool MergeSources::SetCsvField(int index, TKSLFieldType type) {
    Changing();
    const TVGRDatasetItem* source = CsvSource();
    if (index < 0 || !source)
        return false;
    TVGRFields& fields = fDatasets[std::size_t(source - fDatasets.data())].fFields;
    if (std::size_t(index) < fields.size())
        fields[std::size_t(index)].fFieldType = type;
    return true;
}

TCsvReader MergeSources::ReadCsv() const {
    const std::string name = ToUtf8(fCsvFileName);
    if (!FileExists(name))
        throw EVagrel(TVGRMsg::GetErrorValue(u"NoFile"));
    std::string text = ReadFile(name);
    if (text.starts_with("\xEF\xBB\xBF"))
        text.erase(0, 3);
    else
        text = DecodeToUtf8(text, AnsiCodePage());
    return TCsvReader(std::move(text), CharOf(Separators, fCsvSep), CharOf(Quotes, fCsvQuote));
}

bool MergeSources::CheckCsvFields() {
    Changing();
    const TCsvReader lines = ReadCsv();
    RemoveSources(dtyCsv);
    if (lines.Count() == 0)
        return true;
    TCsvReader::TCells cells;
    lines.Read(0, cells);
    TVGRDatasetItem source{{TVGRMsg::GetDialogsValue(u"CsvFile"), dtyCsv, {}}, {}};
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::u16string name =
            fCsvHeader ? cells[i] : TVGRMsg::GetPropValue(u"Field") + IntToStr(std::int64_t(i) + 1);
        source.fFields.emplace_back().SetName(name);
    }
    fDatasets.push_back(std::move(source));
    return true;
}

const TVGRDatasetItem* MergeSources::GetDataset(std::u16string_view name) const { return Find(fDatasets, name); }

const TVGRDetailItem* MergeSources::GetDetail(std::u16string_view name) const {
    const TVGRDatasetItem* source = SelectedSource();
    return source ? Find(source->fDetails, name) : nullptr;
}

TVGRDetailItem* MergeSources::GetDetail(std::u16string_view name) {
    Changing();
    TVGRDatasetItem* source = Find(fDatasets, fDataSel);
    return source ? Find(source->fDetails, name) : nullptr;
}

IKSLDataset* MergeSources::CurrentDataset() const {
    const TVGRDatasetItem* source = fType == dtyDataset ? SelectedSource() : nullptr;
    return source ? source->fDataset : nullptr;
}

std::int32_t MergeSources::GetCsvPos(std::u16string_view name) const {
    const TVGRDatasetItem* source = SelectedSource();
    if (!source)
        return -1;
    const auto field = std::ranges::find(source->fFields, name, &TVGRFieldItem::fCaption);
    return field == source->fFields.end() ? -1 : std::int32_t(field - source->fFields.begin());
}

const TVGRDatasetItem* MergeSources::CsvSource() const {
    const auto last = std::find_if(fDatasets.rbegin(), fDatasets.rend(),
                                   [](const TVGRDataItem& source) { return source.fType == dtyCsv; });
    return last == fDatasets.rend() ? nullptr : &*last;
}

void MergeSources::Unlink() {
    Changing();
    Close();
    fLinkData = false;
    fJson.clear();
    fCsvFileName.clear();
}

void MergeSources::Members(TMembers& members) {
    auto isHosts = [](const TVGRDataItem& source) { return source.fType == dtyDataset; };
    TVGRDatasets own;
    std::ranges::remove_copy_if(fDatasets, std::back_inserter(own), isHosts);
    members(own, fJson, fType, fLinkData, fSaveJson, fDataSel, fFieldRepeat, fCsvFileName, fCsvSep, fCsvHeader,
            fCsvQuote);
    if (!members.Exchanges())
        return;
    std::ranges::copy_if(fDatasets, std::back_inserter(own), isHosts);
    fDatasets = std::move(own);
}

} // namespace vagrel
