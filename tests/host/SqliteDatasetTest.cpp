// SPDX-License-Identifier: MIT
// Tables and queries of SQLite, alone and as the source of a merge.
#include <host/SqliteDataset.h>
#include <tests/merge/MergeFixture.h>

#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Exceptions.h>

#include <sqlite3.h>

namespace vagrel::test {
namespace {

constexpr const char* Products =
    "CREATE TABLE \"pro\"\"ducts\" (id INTEGER, name VARCHAR(20), price DECIMAL(8,2), sold BOOLEAN, day DATE,"
    " photo BLOB, copies INT);"
    "INSERT INTO \"pro\"\"ducts\" VALUES (1, 'Crème', 3.5, 1, '2024-02-29 18:30', x'00FF', 2),"
    " (2, NULL, 1234.5, 0, 0, NULL, 0), (3, 'c', NULL, 1, 2460000.5, x'', 1);";

class SqliteDatasetTest : public testing::Test {
protected:
    SqliteDatasetTest() {
        sqlite3* database = nullptr;
        sqlite3_open(File().c_str(), &database);
        EXPECT_EQ(sqlite3_exec(database, Products, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
        sqlite3_close(database);
    }
    std::string File() const { return ToUtf8(fFile.Name()); }

    TempFile fFile{""};
};

TEST_F(SqliteDatasetTest, MergesATable) {
    SqliteDataset table(File(), "pro\"ducts");
    TestHost label;
    TVGRData& data = label.GetData();
    data.GetDatasets().emplace_back().SetDataset(&table);
    const TKSLFieldType types[] = {ftInt, ftString, ftFloat, ftBool, ftDateTimeFloat, ftBlobImg, ftInt};
    for (std::size_t i = 0; i < std::size(types); ++i)
        EXPECT_EQ(data.GetDatasets()[0].fFields[i].fFieldType, types[i]) << i;
    data.SetDataSel(u"Pro\"Ducts");
    data.SetFieldRepeat(u"copies");
    data.SetLinkData(true);
    label.GetMeasure().SetNuHor(1);
    label.GetMeasure().SetNuVer(2);
    label.CheckPrintData();
    EXPECT_EQ(label.GetPrintInfo().GetFillType(), ftField);
    EXPECT_EQ(data.GetNumlabels(), 3);

    const struct {
        int page;
        std::u16string_view name, format, text;
    } rows[] = {
        {1, u"name", u"", u"Crème"},
        {1, u"PRICE", u"0.00", u"3.50"},
        {1, u"sold", u"", u"1"},
        {1, u"day", u"dd.mm.yyyy hh:nn", u"29.02.2024 18:30"},
        {1, u"day", u"", u"2024-02-29 18:30"},
        {1, u"none", u"", u"none"},
        {2, u"name", u"", u""},
        {2, u"price", u"", u"1234.5"},
        {2, u"day", u"yyyy", u"1970"},
    };
    for (const auto& row : rows) {
        label.GoToPage(row.page, false, false);
        EXPECT_EQ(label.DataValue(row.name, row.format, ftField), row.text) << row.page << ToUtf8(row.name);
    }
    label.NextData();
    EXPECT_EQ(data.DataValue(u"day", u"yyyy-mm-dd"), u"2023-02-25") << "a Julian day";
    std::string picture;
    EXPECT_FALSE(label.DataGraphic(u"photo", picture)) << "no bytes";
    label.GoToPage(1, false, false);
    EXPECT_TRUE(label.DataGraphic(u"photo", picture));
    EXPECT_EQ(picture, std::string("\0\xFF", 2));
    EXPECT_FALSE(label.DataGraphic(u"name", picture)) << "no picture field";
}

TEST_F(SqliteDatasetTest, CalculatesOverADetail) {
    SqliteDataset master(File(), "one", "SELECT 1 AS n;"), rows(File(), "pro\"ducts");
    TestHost label;
    TVGRData& data = label.GetData();
    TVGRDatasetItem& source = data.GetDatasets().emplace_back();
    source.SetDataset(&master);
    source.fDetails.emplace_back().SetDataset(&rows);
    data.SetDataSel(u"one");
    data.SetLinkData(true);
    data.Reset();
    EXPECT_EQ(data.DataValue(u"n", u"000"), u"001") << "the kind of an expression is that of its value";
    EXPECT_EQ(data.GetDetailCalc(u"pro\"ducts", u"price", u"", foSum), u"1238");
    EXPECT_EQ(data.FirstDetail(u"pro\"ducts"), 3);
    data.NextDetail(u"pro\"ducts");
    EXPECT_EQ(data.DataDetailValue(u"pro\"ducts", u"id", u""), u"2");
    data.NextDetail(u"pro\"ducts");
    data.NextDetail(u"pro\"ducts");
    EXPECT_EQ(data.DataDetailValue(u"pro\"ducts", u"id", u""), u"") << "behind the last record";
}

TEST_F(SqliteDatasetTest, TellsWhatIsWrong) {
    EXPECT_THROW(SqliteDataset("/nowhere.db", "t"), EVagrel);
    EXPECT_THROW(SqliteDataset(File(), "none"), EVagrel);
    EXPECT_THROW(SqliteDataset(File(), "q", "SELECT"), EVagrel);
    EXPECT_THROW(SqliteDataset(File(), "q", "DELETE FROM t"), EVagrel);
}

} // namespace
} // namespace vagrel::test
