// SPDX-License-Identifier: MIT
// Tables and queries of SQLite as sources of data.
#pragma once

#include <vagrel/merge/IKSLDataset.h>

#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace vagrel {

/// The records of a table, a view or a query of an SQLite file, which is only read. One record is in memory at a time:
/// a step back reads from the start again.
///
/// The kind of a field follows from its declared type, without one from its value in the first record. Dates are texts
/// as 2024-01-31 and 2024-01-31 18:00:00, seconds since 1970 or Julian days.
class SqliteDataset final : public IKSLDataset {
public:
    /// `name` is that of the table, or of the source when there is a query. Throws EVagrel with the reason.
    SqliteDataset(const std::string& file, const std::string& name, std::string query = {});
    ~SqliteDataset() override;

    std::u16string GetName() const override { return fName; }
    void First() override;
    void Next() override;
    bool Eof() const override { return fEof; }
    std::int32_t RecordCount() const override { return fRecordCount; }
    std::int32_t RecNo() const override { return fRecNo; }
    void MoveTo(std::int32_t record) override;

    int FieldCount() const override { return int(fFields.size()); }
    std::u16string FieldName(int field) const override { return fFields[std::size_t(field)].name; }
    int FindField(std::u16string_view name) const override;
    TKSLFieldKind FieldKind(int field) const override { return fFields[std::size_t(field)].kind; }
    std::u16string AsText(int field) const override;
    std::int64_t AsInteger(int field) const override;
    double AsFloat(int field) const override;
    double AsDateTime(int field) const override;
    std::string AsBlob(int field) const override;

private:
    struct TField {
        std::u16string name;
        TKSLFieldKind kind;
    };
    struct TClose {
        void operator()(sqlite3* database) const;
        void operator()(sqlite3_stmt* statement) const;
    };
    using TStatement = std::unique_ptr<sqlite3_stmt, TClose>;

    TStatement Prepare(const std::string& query) const;
    bool Step(sqlite3_stmt* statement) const;
    TKSLFieldKind KindOf(int field) const;
    [[noreturn]] void Fail() const;

    std::string fFile;
    std::u16string fName;
    std::unique_ptr<sqlite3, TClose> fDatabase;
    TStatement fRecords;
    std::vector<TField> fFields;
    std::int32_t fRecordCount = 0;
    std::int32_t fRecNo = 0;
    bool fEof = true;
};

} // namespace vagrel
