// SPDX-License-Identifier: MIT
// Sheets of labels: which cells a page uses, what stands in them, and the files that they become.
#include <tests/merge/MergeFixture.h>

#include <host/HostLabel.h>
#include <host/PageWriter.h>
#include <tests/support/StubItem.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/items/text/TVGRBaseText.h>

namespace vagrel::test {
namespace {

namespace fs = std::filesystem;

// Two rows and three columns of labels of 50 × 30 mm, four records.
struct SheetTest : testing::Test {
    const FixedTextMeasurer measurer;
    HostLabel label{nullptr, measurer};
    TempFile csv{"\xEF\xBB\xBFName;Price\nA;1\nB & Söhne;2\nC;3\nD;4\n"};
    fs::path folder = fs::temp_directory_path() / ("vagrel-sheet-" + std::to_string(getpid()));

    void SetUp() override {
        fs::create_directory(folder);
        TVGRMeasure& measure = label.GetMeasure();
        measure.SetLabelSizeMM(50, 30);
        measure.SetNuHor(2);
        measure.SetNuVer(3);
        measure.SetDiHor(4);
        measure.SetDiVer(2);
        measure.SetMarLeft(10);
        measure.SetMarTop(20);
        label.CreateRectangle(1000, 1000, 48000, 28000);
        dynamic_cast<TVGRBaseText&>(label.CreateText(5000, 5000)).SetData(ftCsv, u"Name", u"");
        label.GetData().SetCsvData(csv.Name(), true, scvSemicolon, scqDoubleQuotes);
        label.GetData().SetDataSel(label.GetData().GetDatasets().back().fCaption);
        label.GetData().SetLinkData(true);
        label.GetPrintInfo().SetFirstRow(2);
        label.GetPrintInfo().SetFirstCol(2);
    }
    void TearDown() override { fs::remove_all(folder); }

    std::u16string File(const char* name) const { return FromUtf8((folder / name).string()); }
    std::vector<std::string> Files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.push_back(entry.path().filename());
        std::ranges::sort(names);
        return names;
    }
};

int Count(const std::string& text, std::string_view part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

TEST_F(SheetTest, FillsTheCellsOfEachPage) {
    label.CheckPrintData();
    ASSERT_EQ(label.GetPrintInfo().GetPagesToPrint(), 2);
    label.MakePreview();
    EXPECT_EQ(label.Preview().size(), 6u);

    label.GoToPage(1, true, false);
    std::vector<TSheetCell> cells = label.GetPrintInfo().Cells();
    ASSERT_EQ(cells.size(), 2u);
    // One gap lies between rows, the other between columns.
    EXPECT_EQ(cells[0].x, 10000 + 52000);
    EXPECT_EQ(cells[0].y, 20000 + 34000);
    std::string svg = label.SheetSVG(svCurrentUnit, 1, false);
    EXPECT_EQ(Count(svg, "<g transform="), 2) << svg;
    EXPECT_EQ(Count(svg, "<rect"), 2);
    EXPECT_NE(svg.find("translate(62 54)"), svg.npos) << svg;
    EXPECT_LT(svg.find(">A<"), svg.find(">B &amp; Söhne<")) << svg;
    EXPECT_NE(svg.find("width=\"210mm\" height=\"297mm\""), svg.npos);

    label.GoToPage(2, true, false);
    cells = label.GetPrintInfo().Cells();
    ASSERT_EQ(cells.size(), 2u);
    EXPECT_EQ(cells[0].row, 1);
    EXPECT_EQ(cells[0].column, 1);
    svg = label.SheetSVG(svFactorPx, 2, true);
    EXPECT_NE(svg.find("translate(20 40)"), svg.npos) << svg;
    EXPECT_EQ(Count(svg, ">A<"), 0);
    EXPECT_EQ(Count(svg, ">D<"), 1);
}

TEST_F(SheetTest, ExportsPagesAsFiles) {
    label.ExportDoc(exPDF, File("all.pdf"), 0, 1, 90, true, false, false);
    label.ExportDoc(exPNG, File("all.png"), 0, 0.5f, 90, true, true, false);
    label.ExportDoc(exJPEG, File("two.jpg"), 2, 0.5f, 90, false, false, false);
    label.ExportDoc(exBMP, File("label.bmp"), 1, 0.5f, 90, false, false, true);
    EXPECT_EQ(Files(), (std::vector<std::string>{"all-0001.png", "all-0002.png", "all.pdf", "label.bmp", "two.jpg"}));
    EXPECT_TRUE(ReadFile((folder / "all.pdf").string()).starts_with("%PDF-"));
    EXPECT_TRUE(ReadFile((folder / "two.jpg").string()).starts_with("\xFF\xD8\xFF"));
    EXPECT_TRUE(ReadFile((folder / "label.bmp").string()).starts_with("BM"));
    EXPECT_NE(ReadFile((folder / "all-0001.png").string()), ReadFile((folder / "all-0002.png").string()));
}

TEST_F(SheetTest, LeavesNothingOfAnExportThatFails) {
    for (const TKSLExport type : {exXPS, exGIF})
        EXPECT_THROW(label.ExportDoc(type, File("x.x"), 1, 1, 90, true, false, false), ENotAvailable);
    EXPECT_THROW(label.ExportDoc(exPDF, File("x.pdf"), 3, 1, 90, true, false, false), EOutOfRange);
    EXPECT_THROW(label.ExportDoc(exPNG, File("x.png"), 0, 1000, 90, true, false, false), EOutOfRange);
    EXPECT_THROW(label.ExportDoc(exPDF, File("none/x.pdf"), 0, 1, 90, true, false, false), EStreamError);
    {
        const auto pages = OpenPages((folder / "half.pdf").string(), TPageKind::Pdf, {}, 2);
        pages->Add(label);
    }
    EXPECT_EQ(Files(), std::vector<std::string>{});
    label.GetMeasure().SetNuHor(2'000'000'000);
    EXPECT_THROW(label.ExportDoc(exPDF, File("x.pdf"), 1, 1, 90, true, false, false), EOutOfRange);
    EXPECT_EQ(Files(), std::vector<std::string>{});
    EXPECT_THROW(PageKindOf("label.gif"), EVagrel);
    EXPECT_EQ(PageKindOf("a.b/label"), TPageKind::Svg);
    EXPECT_EQ(PageKindOf("LABEL.JPEG"), TPageKind::Jpeg);
}

TEST_F(SheetTest, AnUnmergedSheetRepeatsTheLabel) {
    label.GetData().SetLinkData(false);
    label.GetPrintInfo().SetNumLabs(3);
    label.CheckPrintData();
    label.MakePreview();
    label.GoToPage(1, true, false);
    EXPECT_EQ(Count(label.SheetSVG(svCurrentUnit, 1, false), ">Name<"), 2);
    label.GoToPage(2, true, false);
    EXPECT_EQ(Count(label.SheetSVG(svCurrentUnit, 1, false), ">Name<"), 1);
}

} // namespace
} // namespace vagrel::test
