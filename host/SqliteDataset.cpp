// SPDX-License-Identifier: MIT
// Reading SQLite. Column values are asked for only while the statement stands on a record.
#include <host/SqliteDataset.h>

#include <vagrel/foundation/Dates.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

#include <sqlite3.h>

namespace vagrel {

namespace {

std::string QuotedName(const std::string& name) {
    std::string quoted = "\"";
    for (const char c : name)
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + "\"";
}

struct TDeclared {
    std::u16string_view part; // of the declared type, in lower case
    TKSLFieldKind kind;
};
constexpr TDeclared DeclaredKinds[] = {{u"bool", fkBoolean},  {u"int", fkInteger}, {u"date", fkDateTime},
                                       {u"time", fkDateTime}, {u"blob", fkBlob},   {u"real", fkFloat},
                                       {u"floa", fkFloat},    {u"doub", fkFloat},  {u"num", fkFloat},
                                       {u"dec", fkFloat},     {u"money", fkFloat}};

TKSLFieldKind KindOfStorage(int type) {
    switch (type) {
    case SQLITE_INTEGER:
        return fkInteger;
    case SQLITE_FLOAT:
        return fkFloat;
    case SQLITE_BLOB:
        return fkBlob;
    default:
        return fkText;
    }
}

// A date, a date and a time, or a time; 0 for other texts.
double ParseDateTime(const std::string& text) {
    TDateParts parts;
    const char* at = text.c_str();
    int read = 0, year = 0;
    unsigned month = 0, day = 0;
    if (std::sscanf(at, "%4d-%2u-%2u%n", &year, &month, &day, &read) == 3) {
        if (!(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day)).ok())
            return 0;
        parts = {year, int(month), int(day)};
        at += read + (at[read] != 0);
    }
    std::sscanf(at, "%2d:%2d:%2d", &parts.hour, &parts.minute, &parts.second);
    return DateTimeOf(parts);
}

constexpr double JulianOfDayZero = 2415018.5; // 1899-12-30
constexpr double DayOf1970 = 25569;
constexpr double SecondsOfDay = 86400;

} // namespace

void SqliteDataset::TClose::operator()(sqlite3* database) const { sqlite3_close(database); }
void SqliteDataset::TClose::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

SqliteDataset::SqliteDataset(const std::string& file, const std::string& name, std::string query)
    : fFile(file), fName(FromUtf8(name)) {
    sqlite3* database = nullptr;
    const int opened = sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READONLY, nullptr);
    fDatabase.reset(database);
    if (opened != SQLITE_OK)
        Fail();
    query.erase(query.find_last_not_of("; \t\r\n") + 1);
    if (query.empty())
        query = "SELECT * FROM " + QuotedName(name);
    fRecords = Prepare(query);
    const TStatement count = Prepare("SELECT count(*) FROM (" + query + "\n)");
    if (Step(count.get()))
        fRecordCount = ToInt32(sqlite3_column_int64(count.get(), 0));
    First();
    for (int i = 0; i < sqlite3_column_count(fRecords.get()); ++i)
        fFields.push_back({FromUtf8(sqlite3_column_name(fRecords.get(), i)), KindOf(i)});
}

SqliteDataset::~SqliteDataset() = default;

void SqliteDataset::Fail() const {
    throw EVagrel(fFile + ": " + (fDatabase ? sqlite3_errmsg(fDatabase.get()) : "out of memory"));
}

SqliteDataset::TStatement SqliteDataset::Prepare(const std::string& query) const {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(fDatabase.get(), query.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        Fail();
    return TStatement(statement);
}

// False behind the last record.
bool SqliteDataset::Step(sqlite3_stmt* statement) const {
    const int result = sqlite3_step(statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        Fail();
    return result == SQLITE_ROW;
}

TKSLFieldKind SqliteDataset::KindOf(int field) const {
    if (const char* declared = sqlite3_column_decltype(fRecords.get(), field)) {
        const std::u16string type = ToLower(FromUtf8(declared));
        const auto found = std::ranges::find_if(
            DeclaredKinds, [&](const TDeclared& row) { return type.find(row.part) != std::u16string::npos; });
        return found == std::end(DeclaredKinds) ? fkText : found->kind;
    }
    return fEof ? fkText : KindOfStorage(sqlite3_column_type(fRecords.get(), field));
}

void SqliteDataset::First() {
    sqlite3_reset(fRecords.get());
    fEof = !Step(fRecords.get());
    fRecNo = 1;
}

void SqliteDataset::Next() {
    if (fEof)
        return;
    fEof = !Step(fRecords.get());
    ++fRecNo;
}

void SqliteDataset::MoveTo(std::int32_t record) {
    if (record < fRecNo)
        First();
    while (fRecNo < record && !fEof)
        Next();
}

int SqliteDataset::FindField(std::u16string_view name) const {
    const auto found = std::ranges::find_if(fFields, [&](const TField& field) { return SameText(field.name, name); });
    return found == fFields.end() ? -1 : int(found - fFields.begin());
}

std::u16string SqliteDataset::AsText(int field) const {
    if (fEof)
        return {};
    if (sqlite3_column_type(fRecords.get(), field) == SQLITE_FLOAT)
        return FloatToStr(sqlite3_column_double(fRecords.get(), field));
    const auto* text = static_cast<const char16_t*>(sqlite3_column_text16(fRecords.get(), field));
    return text ? std::u16string(text, std::size_t(sqlite3_column_bytes16(fRecords.get(), field)) / 2)
                : std::u16string();
}

std::int64_t SqliteDataset::AsInteger(int field) const {
    return fEof ? 0 : sqlite3_column_int64(fRecords.get(), field);
}

double SqliteDataset::AsFloat(int field) const { return fEof ? 0 : sqlite3_column_double(fRecords.get(), field); }

double SqliteDataset::AsDateTime(int field) const {
    switch (fEof ? SQLITE_NULL : sqlite3_column_type(fRecords.get(), field)) {
    case SQLITE_INTEGER:
        return AsFloat(field) / SecondsOfDay + DayOf1970;
    case SQLITE_FLOAT:
        return AsFloat(field) - JulianOfDayZero;
    case SQLITE_TEXT:
        return ParseDateTime(ToUtf8(AsText(field)));
    default:
        return 0;
    }
}

std::string SqliteDataset::AsBlob(int field) const {
    if (fEof)
        return {};
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(fRecords.get(), field));
    return bytes ? std::string(bytes, std::size_t(sqlite3_column_bytes(fRecords.get(), field))) : std::string();
}

} // namespace vagrel
