// SPDX-License-Identifier: MIT
// The records behind the cursor of a data merge.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vagrel {

class IKSLDataset;
class TJsonArray;
class TJsonDataValue;
class TJsonObject;
class MergeSources;

namespace detail {

/// The records of one source, from 1; one of them is current. Names are those of fields.
class TDataRecords {
public:
    virtual ~TDataRecords() = default;

    virtual std::int32_t Count() const = 0;
    virtual void MoveTo(std::int32_t record) = 0;
    /// The copies that a field of the current record tells: 1 where it holds no number. Nothing without such a field.
    virtual std::optional<std::int32_t> Repeat(std::u16string_view name) const = 0;
    virtual std::u16string Value(std::u16string_view name, std::u16string_view format) const = 0;
    /// Lines in front of the first record.
    virtual std::int32_t HeaderLines() const { return 0; }
    /// The current record of a JSON source, when it is an object.
    virtual TJsonObject* Json() const { return nullptr; }
    virtual IKSLDataset* Dataset() const { return nullptr; }
};

std::unique_ptr<TDataRecords> OpenDataset(IKSLDataset& dataset);
/// The records of the array under a name; none without such an array. Throws what the parser throws.
std::unique_ptr<TDataRecords> OpenJson(std::u16string_view text, std::u16string_view name);
/// Throws EVagrel for a file that is missing or ends inside a quote.
std::unique_ptr<TDataRecords> OpenCsv(const MergeSources& data);

/// A field of the dataset's current record as text; `format` counts for numbers and dates.
std::u16string DatasetText(const IKSLDataset& dataset, std::u16string_view name, std::u16string_view format);
/// The same of a JSON record, which is null when it is no object.
std::u16string JsonText(const TJsonObject* record, std::u16string_view name, std::u16string_view format);
/// Throws EOutOfRange for an index from 0 that is outside.
TJsonObject* JsonRecord(const TJsonArray& records, std::int32_t index);

/// Keeps the controls of a dataset, if there is one, still for a scan.
class TStillControls {
public:
    explicit TStillControls(IKSLDataset* dataset);
    TStillControls(const TStillControls&) = delete;
    TStillControls& operator=(const TStillControls&) = delete;
    ~TStillControls();

private:
    IKSLDataset* fDataset;
};

} // namespace detail
} // namespace vagrel
