// SPDX-License-Identifier: MIT
// Labels on pages: counting them, going to a page, filling the preview copies.
#include "MergeFixture.h"

#include <vagrel/document/TVGRMeasure.h>

namespace vagrel::test {
namespace {

struct TSheet {
    int rows, columns, firstRow, firstCol;
};

void Use(TVGRBaseLabel& label, const TSheet& sheet) {
    label.GetMeasure().SetNuHor(sheet.rows);
    label.GetMeasure().SetNuVer(sheet.columns);
    label.GetPrintInfo().SetFirstRow(sheet.firstRow);
    label.GetPrintInfo().SetFirstCol(sheet.firstCol);
}

TEST(PageFill, CountsPages) {
    const struct {
        const char* text;
        TSheet sheet;
        int labels, first, pages;
    } rows[] = {
        {"13 labels", {3, 2, 1, 1}, 13, 6, 3},         {"one sheet is full", {3, 2, 1, 1}, 6, 6, 1},
        {"two are", {3, 2, 1, 1}, 12, 6, 2},           {"from the middle", {3, 2, 2, 2}, 9, 3, 2},
        {"from the last cell", {3, 2, 3, 2}, 2, 1, 2}, {"a cell outside the sheet", {3, 2, 9, 0}, 3, 2, 2},
        {"single cells", {1, 1, 5, 5}, 4, 1, 4},
    };
    for (const auto& row : rows) {
        TestHost label;
        TVGRBasePrintInfo& info = label.GetPrintInfo();
        Use(label, row.sheet);
        info.SetNumLabs(row.labels);
        label.CheckPrintData();
        EXPECT_EQ(info.FirstPageLabels(), row.first) << row.text;
        EXPECT_EQ(info.GetPagesToPrint(), row.pages) << row.text;
        EXPECT_EQ(info.GetPage(), 0) << row.text;
    }
}

TEST(PageFill, FindsWhatDrivesTheMerge) {
    TestHost label;
    TVGRBasePrintInfo& info = label.GetPrintInfo();
    TVGRData& data = label.GetData();
    UseJson(label, Numbered(5));
    TVGRCounter& counter = *new TVGRCounter(label);
    counter.SetName(u"no");
    data.AddListVal(u"size");
    data.AddAskVal(u"who");
    BoundItem& number = Bind(label, ftCounter, u"NO");
    BoundItem& hidden = Bind(label, ftList, u"size");
    hidden.SetOptions({lopVisible});
    Bind(label, ftAsk, u"WHO");
    Bind(label, ftJson, u"id");

    label.CheckPrintData();
    EXPECT_EQ(info.GetFillType(), ftJsonCount);
    EXPECT_EQ(info.GetLabelsToPrint(), 100) << "the counter gives more than the source";
    EXPECT_EQ(counter.GetValue(), u"1");
    EXPECT_TRUE(data.GetHasQuest() && data.IsValidData(ftAsk, u"who") && data.IsValidData(ftCounter, u"no"));
    EXPECT_FALSE(data.GetHasList()) << "an item that is not printed asks nothing";

    number.SetData(ftNone, u"", u"");
    label.CheckPrintData();
    EXPECT_EQ(info.GetFillType(), ftJson);
    EXPECT_EQ(info.GetLabelsToPrint(), 5);
    EXPECT_FALSE(counter.GetActive() || data.IsValidData(ftCounter, u"no"));
    EXPECT_EQ(info.GetPage(), 1);

    UseJson(label, u"{\"rows\":[]}");
    label.CheckPrintData();
    EXPECT_EQ(info.GetFillType(), ftNone);
    EXPECT_EQ(info.GetPage(), 0);

    data.SetDataSel(u"");
    number.SetData(ftCounter, u"no", u"");
    label.CheckPrintData();
    EXPECT_EQ(info.GetFillType(), ftCounter) << "without a source";
}

// Both roads to a page come to the label that a walk from page 1 comes to, with its counter.
TEST(PageFill, GoesWhereAWalkGoes) {
    const struct {
        const char* text;
        std::u16string_view repeat;
        int repetition;
        bool csv;
    } rows[] = {{"repeat field", u"copies", 1, false},
                {"single copies", u"", 1, false},
                {"three copies", u"", 3, false},
                {"CSV with a header, two copies", u"", 2, true}};
    const TSheet sheets[] = {{3, 2, 1, 1}, {3, 2, 2, 2}, {1, 1, 1, 1}};
    const TempFile file("id\n1\n2\n3\n4\n5\n6\n7\n");
    for (const auto& row : rows) {
        for (const TSheet& sheet : sheets) {
            SCOPED_TRACE(std::string(row.text) + ", from row " + std::to_string(sheet.firstRow));
            TestHost label;
            TVGRBasePrintInfo& info = label.GetPrintInfo();
            if (row.csv)
                UseCsv(label, file, true);
            else
                UseJson(label, Numbered(7), row.repeat);
            TVGRCounter& counter = *new TVGRCounter(label);
            counter.SetName(u"no");
            counter.SetNumTo(6);
            counter.SetRepeat(2);
            Bind(label, ftCounter, u"no");
            info.SetRepetition(row.repetition);
            Use(label, sheet);
            label.CheckPrintData();
            ASSERT_GT(info.GetPagesToPrint(), 1);
            auto standing = [&] {
                const TVGRData& data = label.GetData();
                return std::tuple(data.GetPos(), data.GetPosRepeat(), data.DataValue(u"id", u""), counter.GetValue());
            };
            std::vector<decltype(standing())> walked;
            label.GoToPage(1, false, false);
            for (int i = 1; i <= info.GetLabelsToPrint(); ++i, label.NextData())
                walked.push_back(standing());
            for (int page = info.GetPagesToPrint(); page >= 1; --page) {
                label.GoToPage(1, false, true);
                label.GoToPage(page, false, true);
                const std::size_t first = std::size_t(info.GetCurrentLabel() - 1);
                ASSERT_LT(first, walked.size());
                EXPECT_EQ(int(first), page == 1 ? 0 : info.FirstPageLabels() + (page - 2) * info.LabelsPerPage());
                for (std::size_t i = first; i < walked.size(); ++i, label.NextData())
                    ASSERT_EQ(standing(), walked[i]) << "page " << page << ", label " << i + 1;
            }
        }
    }
}

TEST(PageFill, StaysOnThePageWhenAsked) {
    TestHost label;
    UseJson(label, Numbered(9));
    Use(label, {1, 2, 1, 1});
    label.CheckPrintData();
    label.GoToPage(2, false, true);
    label.NextData();
    label.GoToPage(2, false, true);
    EXPECT_EQ(label.GetData().GetPos(), 4) << "nothing moves";
    label.GoToPage(2, false, false);
    EXPECT_EQ(label.GetData().GetPos(), 3);
    label.NextData();
    label.GoToPage(1, false, true);
    EXPECT_EQ(label.GetData().GetPos(), 1) << "page 1 always starts anew";
}

TEST(PageFill, FillsTheCopiesOfEachCell) {
    TestHost label;
    UseJson(label, Numbered(5));
    Use(label, {2, 2, 2, 1});
    std::vector<BoundItem*> cells;
    for (std::int16_t row = 1; row <= 2; ++row) {
        for (std::int16_t column = 1; column <= 2; ++column) {
            cells.push_back(new BoundItem(label, ftJson, u"id", true));
            cells.back()->PreviewPos(column, row);
        }
    }
    auto taken = [&] {
        TTexts texts;
        for (BoundItem* cell : cells) {
            texts.push_back(cell->texts.empty() ? u"-" : cell->texts.back());
            EXPECT_LE(cell->texts.size(), 1u);
            cell->texts.clear();
        }
        return texts;
    };
    label.CheckPrintData();
    label.GoToPage(1, true, true);
    EXPECT_EQ(taken(), (TTexts{u"-", u"-", u"1", u"2"}));
    label.GoToPage(2, true, true);
    EXPECT_EQ(taken(), (TTexts{u"3", u"4", u"5", u"-"}));
    label.GoToPage(2, true, true);
    EXPECT_EQ(taken(), (TTexts{u"-", u"-", u"-", u"-"})) << "the same page is filled once";
    label.CheckPrintData();
    label.GoToPage(2, true, false);
    EXPECT_EQ(taken(), (TTexts{u"3", u"4", u"5", u"-"})) << "a new merge fills again";
}

} // namespace
} // namespace vagrel::test
