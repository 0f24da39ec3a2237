// SPDX-License-Identifier: MIT
// Sources, the walk over their records, and the values of a record.
#include "MergeFixture.h"

#include <vagrel/foundation/Exceptions.h>
#include <vagrel/platform/Encoding.h>

namespace vagrel::test {
namespace {

constexpr std::u16string_view Values = u"{\"rows\":[{\"s\":\"a b\",\"i\":7,\"l\":12345678901,\"f\":0.25,\"b\":true,"
                                       u"\"n\":null,\"o\":{},\"d\":[{\"x\":1,\"t\":\"q\"},{\"x\":2.5},{\"x\":3}]}]}";

std::string Thrown(auto&& action) {
    try {
        action();
    } catch (const EVagrel& error) {
        return error.what();
    }
    return "nothing";
}

TEST(TVGRData, DerivesSourcesFromArrays) {
    TestHost label;
    TVGRData& data = label.GetData();
    data.SetJson(
        u"  {\"a\":[],\"n\":[1,2],\"k\":5,\"rows\":[{\"s\":\"\",\"l\":12345678901,\"o\":{},\"d\":[{\"x\":1}]}]} ");
    ASSERT_EQ(data.GetDatasets().size(), 3u);
    EXPECT_TRUE(data.GetDataset(u"a")->fFields.empty());
    EXPECT_TRUE(data.GetDataset(u"n")->fFields.empty());
    const TVGRDatasetItem& rows = *data.GetDataset(u"ROWS");
    ASSERT_EQ(rows.fFields.size(), 2u) << "objects and arrays are no fields";
    EXPECT_EQ(rows.fFields[1].fFieldType, ftInt64);
    EXPECT_EQ(rows.fDetails[0].fFields[0].fCaption, u"x");

    EXPECT_EQ(Thrown([&] { data.SetJson(u"[1]"); }), "Not a valid JSON");
    EXPECT_TRUE(data.GetDatasets().empty());
}

TEST(TVGRData, SelectsByCaption) {
    TestHost label;
    TVGRData& data = label.GetData();
    data.SetJson(Values);
    data.SetDataSel(u"Rows");
    EXPECT_EQ(data.GetType(), dtyJson);
    data.SetLinkData(true);
    data.Reset();
    EXPECT_EQ(data.DataValue(u"i", u""), u"7") << "also in another case";
    data.SetDataSel(u"none");
    EXPECT_EQ(data.GetType(), dtyNone);
    data.MigrateDataSel(u"later");
    EXPECT_EQ(data.GetType(), dtyDataset);
    data.Reset();
    EXPECT_FALSE(data.GetHasData());
    EXPECT_EQ(data.GetNumlabels(), 0);
}

TEST(TVGRData, JsonValues) {
    TestHost label;
    TVGRData& data = label.GetData();
    UseJson(label, Values);
    data.Reset();
    const struct {
        std::u16string_view name, format, text;
    } rows[] = {
        {u"s", u"", u"a b"},
        {u"s", u"000", u"a b"},
        {u"i", u"", u"7"},
        {u"i", u"000", u"007"},
        {u"l", u"", u"12345678901"},
        {u"l", u"#,##0", u"12,345,678,901"},
        {u"f", u"", u"0.25"},
        {u"f", u"0.0", u"0.3"},
        {u"b", u"", u"1"},
        {u"b", u"0", u"true"},
        {u"n", u"", u""},
        {u"o", u"", u""},
        {u"unknown", u"0", u""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(data.DataValue(row.name, row.format), row.text) << ToUtf8(row.name) << " by " << ToUtf8(row.format);
    EXPECT_EQ(label.DataIntValue(u"i", ftJson), 7);
    EXPECT_EQ(label.DataIntValue(u"f", ftJson), 0) << "0.25 is no integer";
    EXPECT_EQ(label.DataIntValue(u"l", ftJson), 0) << "more than 32 bits";
    EXPECT_EQ(label.DataNumValue(u"f", ftCsv), 0.25f);

    data.SetLinkData(false);
    EXPECT_EQ(data.DataValue(u"s", u""), u"s") << "an unmerged label shows names";
}

TEST(TVGRData, DetailsAndTheirCalculations) {
    TestHost label;
    TVGRData& data = label.GetData();
    UseJson(label, Values);
    data.Reset();
    EXPECT_EQ(data.FirstDetail(u"none"), 0);
    EXPECT_EQ(data.DataDetailValue(u"none", u"x", u""), u"");
    EXPECT_EQ(data.FirstDetail(u"D"), 3);
    EXPECT_EQ(data.DataDetailValue(u"d", u"t", u""), u"q");
    data.NextDetail(u"d");
    EXPECT_EQ(data.DataDetailValue(u"d", u"x", u"0.00"), u"2.50");
    for (int i = 0; i < 5; ++i)
        data.NextDetail(u"d");
    EXPECT_EQ(Thrown([&] { data.DataDetailValue(u"d", u"x", u""); }), "List index out of bounds (3)");

    const struct {
        TKSLFooter calculation;
        std::u16string_view text;
    } rows[] = {{foNone, u"0"},     {foCount, u"3"},    {foMin, u"1"},          {foMax, u"3"},       {foSum, u"6.5"},
                {foMean, u"2.167"}, {foMedian, u"2.5"}, {foVariance, u"1.083"}, {foStdDev, u"1.041"}};
    for (const auto& row : rows)
        EXPECT_EQ(data.GetDetailCalc(u"d", u"x", u"0.###", row.calculation), row.text) << int(row.calculation);
    EXPECT_EQ(data.GetDetailCalc(u"d", u"t", u"", foMax), u"0") << "texts count as 0";
    UseJson(label, u"{\"rows\":[{\"d\":[{\"x\":4}]},{\"d\":[]}]}");
    data.Reset();
    EXPECT_EQ(data.GetDetailCalc(u"d", u"x", u"", foStdDev), u"0") << "a single value";
    data.Next();
    EXPECT_EQ(data.GetDetailCalc(u"d", u"x", u"", foMedian), u"0") << "no values";
}

// The records and copies of a walk to its end and two steps on.
std::string Walk(TVGRData& data) {
    std::string steps;
    for (int i = 0; i < data.GetNumlabels() + 2; ++i, data.Next())
        steps += std::to_string(data.GetPos()) + "." + std::to_string(data.GetPosRepeat()) + " ";
    return steps;
}

TEST(TVGRData, WalksRecordsAndCopies) {
    const struct {
        const char* text;
        std::string csv; // empty for a JSON source of three records
        bool header;
        std::u16string_view repeat;
        int repetition, labels;
        const char* walk;
    } rows[] = {
        {"repeat field 2, 0, 1: a copy of the second record is walked over", "", false, u"copies", 1, 3,
         "1.1 1.2 2.1 3.1 3.1 "},
        {"a fixed repetition", "", false, u"", 2, 6, "1.1 1.2 2.1 2.2 3.1 3.2 3.1 3.2 "},
        {"a repeat field that the records do not have", "", false, u"none", 2, 6, "1.1 1.2 2.1 2.2 3.1 3.2 3.1 3.2 "},
        {"CSV with a header", "n;c\na;1\nb;1\n", true, u"", 3, 6, "2.1 2.2 2.3 3.1 3.2 3.3 3.1 3.2 "},
        {"CSV without one", "a;1\nb;1", false, u"", 1, 2, "1.1 2.1 2.1 2.1 "},
        {"a repeat cell that is no number or missing counts 1", "n;c\na;x\nb\nd;2", true, u"c", 5, 4,
         "2.1 3.1 4.1 4.2 4.1 4.2 "},
        {"nothing but a header", "n;c\n", true, u"", 1, 0, "2.1 2.1 "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        TestHost label;
        const TempFile file(row.csv);
        if (row.csv.empty())
            UseJson(label, Numbered(3), row.repeat);
        else
            UseCsv(label, file, row.header, row.repeat);
        label.GetPrintInfo().SetRepetition(row.repetition);
        TVGRData& data = label.GetData();
        data.Reset();
        EXPECT_EQ(data.GetNumlabels(), row.labels);
        EXPECT_EQ(data.GetHasData(), row.labels > 0);
        EXPECT_EQ(Walk(data), row.walk);
        data.First();
        EXPECT_EQ(Walk(data), row.walk) << "once more";
    }
}

TEST(TVGRData, MovesToARecord) {
    TestHost label;
    TVGRData& data = label.GetData();
    const TempFile file("n;p\na;1\nb;2\n\nc");
    UseCsv(label, file, true);
    data.Reset();
    const struct {
        const char* text;
        int record, pos;
        std::u16string_view n, p;
    } rows[] = {
        {"the second", 2, 3, u"b", u"2"},          {"an empty line", 3, 4, u"", u""},
        {"a short line", 4, 5, u"c", u""},         {"beyond the last one", 5, 5, u"c", u""},
        {"before the first one", 0, 5, u"c", u""},
    };
    for (const auto& row : rows) {
        data.SetPos(row.record);
        EXPECT_EQ(data.GetPos(), row.pos) << row.text;
        EXPECT_EQ(data.DataValue(u"n", u""), row.n) << row.text;
        EXPECT_EQ(data.DataValue(u"p", u""), row.p) << row.text;
    }
}

TEST(TVGRData, CsvValues) {
    TestHost label;
    TVGRData& data = label.GetData();
    {
        const TempFile marked("\xEF\xBB\xBFname;price\n\"Caf\xC3\xA9; 5\"\"\";3.5\n");
        UseCsv(label, marked, true);
        data.Reset();
        EXPECT_EQ(data.DataValue(u"name", u"0.00"), u"Café; 5\"") << "a text has no number format";
        EXPECT_EQ(data.DataValue(u"price", u"0.00"), u"3.50");
        EXPECT_EQ(data.DataValue(u"Price", u"0.00"), u"Price") << "names of columns count exactly";
        EXPECT_EQ(label.DataValue(u"price", u"", ftJson), u"3.5");
        data.SetCsvHeader(false);
        data.Reset();
        EXPECT_EQ(data.DataValue(u"Field2", u""), u"price");
        EXPECT_TRUE(data.SetCsvField(9, ftInt));
        EXPECT_FALSE(data.SetCsvField(-1, ftInt));
        EXPECT_TRUE(data.SetCsvField(1, ftFloat));
        EXPECT_EQ(data.GetDataset(u"CsvFile")->fFields[1].fFieldType, ftFloat);
    }
    EXPECT_EQ(Thrown([&] { data.Reset(); }), "File does not exist");
    EXPECT_FALSE(data.GetValidCsv() || data.GetHasData());
    EXPECT_EQ(data.DataValue(u"Field2", u""), u"Field2") << "the file is gone, its cells too";
    EXPECT_EQ(Thrown([&] { data.SetCsvData(u"/nowhere.csv", true, scvComma, scqNone); }), "File does not exist");
    const TempFile plain("n\n\x80 5\n");
    EXPECT_EQ(Thrown([&] { data.SetCsvData(plain.Name(), true, scvNone, scqNone); }),
              "Need to assign the csv separator");
    EXPECT_EQ(data.GetCsvFileName(), plain.Name());
    UseCsv(label, plain, true);
    data.Reset();
    EXPECT_EQ(data.DataValue(u"n", u""), u"€ 5") << "without a mark in the ANSI code page";
}

TEST(TVGRData, FieldLists) {
    TestHost label;
    UseJson(label, Values);
    (new TVGRCounter(label))->SetName(u"no");
    TVGRData& data = label.GetData();
    data.AddListVal(u"size");
    data.AddAskVal(u"who");
    data.AddAskVal(u"how many");
    data.GetAskField(2)->fAskType = atInteger;
    EXPECT_EQ(label.GetDataFields(u"now", true), (TTexts{u"-Unassign-", u"{s", u"{i", u"{l", u"{f", u"{b", u"{n",
                                                         u"@no", u"=size", u"?who", u"?how many"}));
    EXPECT_EQ(label.GetIntFields(u"", true, true), (TTexts{u"{i", u"{l", u"@no", u"?how many"}));
    EXPECT_EQ(label.GetNumFields(u"", false, false), (TTexts{u"i", u"l", u"f", u"how many"}));
    EXPECT_EQ(label.GetTxtFields(u"", true), (TTexts{u"{s", u"{n", u"?who", u"?how many"}));
    EXPECT_EQ(label.GetDetails(true), (TTexts{u"{d"}));
    EXPECT_EQ(label.GetDetailFields(u"", u"d"), (TTexts{u"x", u"t"}));
    EXPECT_EQ(label.GetDataDetails(u"", true), (TTexts{u"¬rows", u":d"}));
    EXPECT_EQ(label.GetMasterDetailFields(u":d", true, true), (TTexts{u"{x", u"{t"}));
    EXPECT_EQ(label.GetMasterDetailFields(u"¬rows", false, false), (TTexts{u"s", u"i", u"l", u"f", u"b", u"n"}));
    data.GetDatasets()[0].fFields[0].fFieldType = ftBase64;
    data.GetDatasets()[0].fFields[1].fFieldType = ftBlobImg;
    EXPECT_EQ(label.GetImgFields(u"", true), (TTexts{u"6s", u"[i"}));
    EXPECT_EQ(label.GetMasterDetailFields(u"¬rows", false, true), (TTexts{u"l", u"f", u"b", u"n"}));
}

} // namespace
} // namespace vagrel::test
