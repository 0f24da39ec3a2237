// SPDX-License-Identifier: MIT
// Records of datasets, JSON arrays and CSV files.
#include <vagrel/merge/DataRecords_p.h>

#include <vagrel/foundation/Dates.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/IKSLDataset.h>
#include <vagrel/merge/MergeSources.h>
#include <vagrel/merge/TCsvReader.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

namespace vagrel::detail {

namespace {

class TDatasetRecords final : public TDataRecords {
public:
    explicit TDatasetRecords(IKSLDataset& dataset) : fDataset(dataset) {}

    std::int32_t Count() const override { return fDataset.RecordCount(); }
    void MoveTo(std::int32_t record) override {
        if (record == 1)
            fDataset.First();
        else if (record == fDataset.RecNo() + 1)
            fDataset.Next();
        else
            fDataset.MoveTo(record);
    }
    std::optional<std::int32_t> Repeat(std::u16string_view name) const override {
        const int field = fDataset.FindField(name);
        if (field < 0)
            return std::nullopt;
        const TKSLFieldKind kind = fDataset.FieldKind(field);
        if (kind == fkText && !TryStrToInt64(fDataset.AsText(field)))
            return 1;
        return ToInt32(fDataset.AsInteger(field));
    }
    std::u16string Value(std::u16string_view name, std::u16string_view format) const override {
        return DatasetText(fDataset, name, format);
    }
    IKSLDataset* Dataset() const override { return &fDataset; }

private:
    IKSLDataset& fDataset;
};

class TJsonRecords final : public TDataRecords {
public:
    TJsonRecords(std::u16string_view text, std::u16string_view name) {
        fRoot.Parse(text);
        fRecords = fRoot.FindArray(name);
    }

    std::int32_t Count() const override { return fRecords ? fRecords->Count() : 0; }
    void MoveTo(std::int32_t record) override { fRecord = record; }
    std::optional<std::int32_t> Repeat(std::u16string_view name) const override {
        const TJsonObject* record = Json();
        if (!record || !record->Contains(name))
            return std::nullopt;
        const TJsonDataType type = record->GetType(name);
        if (type >= jdtArray || (type == jdtString && !TryStrToInt64(record->GetString(name))))
            return 1;
        return ToInt32(record->GetLong(name));
    }
    std::u16string Value(std::u16string_view name, std::u16string_view format) const override {
        return JsonText(Json(), name, format);
    }
    TJsonObject* Json() const override { return fRecords ? JsonRecord(*fRecords, fRecord - 1) : nullptr; }

private:
    TJsonObject fRoot;
    TJsonArray* fRecords = nullptr;
    std::int32_t fRecord = 1;
};

// The columns are those of the selected source, which may differ from the file's first line.
class TCsvRecords final : public TDataRecords {
public:
    explicit TCsvRecords(const MergeSources& data)
        : fData(data), fReader(data.ReadCsv()), fHeaderLines(data.GetCsvHeader() ? 1 : 0) {}

    std::int32_t Count() const override { return std::max(fReader.Count() - fHeaderLines, 0); }
    void MoveTo(std::int32_t record) override { fReader.Read(record - 1 + fHeaderLines, fCells); }
    std::optional<std::int32_t> Repeat(std::u16string_view name) const override {
        const std::int32_t column = fData.GetCsvPos(name);
        if (column < 0)
            return std::nullopt;
        const auto number = TryStrToInt64(Cell(column));
        return number ? ToInt32(*number) : 1;
    }
    std::u16string Value(std::u16string_view name, std::u16string_view format) const override {
        const std::int32_t column = fData.GetCsvPos(name);
        if (column < 0)
            return std::u16string(name);
        const std::u16string_view cell = Cell(column);
        if (!format.empty())
            if (const auto number = TryStrToFloat(cell))
                return FormatFloat(format, *number);
        return std::u16string(cell);
    }
    std::int32_t HeaderLines() const override { return fHeaderLines; }

private:
    // Empty in a line that is too short.
    std::u16string_view Cell(std::int32_t column) const {
        return std::size_t(column) < fCells.size() ? fCells[std::size_t(column)] : std::u16string_view();
    }

    const MergeSources& fData;
    TCsvReader fReader;
    TCsvReader::TCells fCells;
    std::int32_t fHeaderLines;
};

} // namespace

std::unique_ptr<TDataRecords> OpenDataset(IKSLDataset& dataset) { return std::make_unique<TDatasetRecords>(dataset); }
std::unique_ptr<TDataRecords> OpenJson(std::u16string_view text, std::u16string_view name) {
    return std::make_unique<TJsonRecords>(text, name);
}
std::unique_ptr<TDataRecords> OpenCsv(const MergeSources& data) { return std::make_unique<TCsvRecords>(data); }

std::u16string DatasetText(const IKSLDataset& dataset, std::u16string_view name, std::u16string_view format) {
    const int field = dataset.FindField(name);
    if (field < 0)
        return std::u16string(name);
    const TKSLFieldKind kind = dataset.FieldKind(field);
    if (!format.empty() && kind == fkDateTime)
        return FormatDateTime(format, dataset.AsDateTime(field));
    if (!format.empty() && kind == fkInteger)
        return FormatInt(format, dataset.AsInteger(field));
    if (!format.empty() && kind == fkFloat)
        return FormatFloat(format, dataset.AsFloat(field));
    return dataset.AsText(field);
}

std::u16string JsonText(const TJsonObject* record, std::u16string_view name, std::u16string_view format) {
    const TJsonDataType type = record ? record->GetType(name) : jdtNone;
    switch (type) {
    case jdtInt:
    case jdtLong:
        return FormatInt(format, record->GetLong(name));
    case jdtULong:
        return format.empty() ? record->GetString(name) : FormatFloat(format, record->GetFloat(name));
    case jdtFloat:
        return FormatFloat(format, record->GetFloat(name));
    case jdtDateTime:
    case jdtUtcDateTime:
        return FormatDateTime(format.empty() ? u"dd-mm-yyyy hh:nn" : format, record->GetDateTime(name));
    case jdtBool:
        if (format.empty())
            return record->GetBool(name) ? u"1" : u"0";
        return record->GetString(name);
    case jdtString:
        return record->GetString(name);
    default:
        return {};
    }
}

TJsonObject* JsonRecord(const TJsonArray& records, std::int32_t index) {
    if (index < 0 || index >= records.Count())
        throw EOutOfRange("List index out of bounds (" + std::to_string(index) + ")");
    return records.FindObject(index);
}

TStillControls::TStillControls(IKSLDataset* dataset) : fDataset(dataset) {
    if (fDataset)
        fDataset->DisableControls();
}

TStillControls::~TStillControls() {
    if (fDataset)
        fDataset->EnableControls();
}

} // namespace vagrel::detail
