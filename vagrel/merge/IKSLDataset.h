// SPDX-License-Identifier: MIT
// A table or query of the host as a source of data.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vagrel {

/// What a field of a dataset holds. Dates, times and date times are one kind.
enum TKSLFieldKind : std::int32_t { fkText, fkInteger, fkBoolean, fkFloat, fkDateTime, fkBlob };

/// Records with a cursor over them. Records count from 1, fields from 0. Behind the last record all values are empty.
class IKSLDataset {
public:
    virtual ~IKSLDataset() = default;

    virtual std::u16string GetName() const = 0;
    virtual void First() = 0;
    /// Behind the last record it does nothing.
    virtual void Next() = 0;
    /// True behind the last record.
    virtual bool Eof() const = 0;
    virtual std::int32_t RecordCount() const = 0;
    virtual std::int32_t RecNo() const = 0;
    virtual void MoveTo(std::int32_t record) = 0;

    virtual int FieldCount() const = 0;
    virtual std::u16string FieldName(int field) const = 0;
    /// Without regard to case; -1 when absent.
    virtual int FindField(std::u16string_view name) const = 0;
    virtual TKSLFieldKind FieldKind(int field) const = 0;
    virtual std::u16string AsText(int field) const = 0;
    virtual std::int64_t AsInteger(int field) const = 0;
    virtual double AsFloat(int field) const = 0;
    /// Days since 1899-12-30.
    virtual double AsDateTime(int field) const = 0;
    virtual std::string AsBlob(int field) const = 0;

    /// Around a scan: what shows the records does not follow.
    virtual void DisableControls() {}
    virtual void EnableControls() {}
};

} // namespace vagrel
