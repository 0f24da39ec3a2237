// SPDX-License-Identifier: MIT
// The price labels of the examples, merged and painted as a printer would get them: every code holds what stands in the
// record of its label.
#define ZX_USE_UTF8
#include <host/HostLabel.h>
#include <host/PageWriter.h>
#include <host/Picture.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/TVGRData.h>

#include <ZXing/ReadBarcode.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace vagrel::test {
namespace {

constexpr double Dpi = 300, LabelWidth = 70, LabelHeight = 37;

int Pixels(double millimetres) { return int(std::lround(millimetres * Dpi / 25.4)); }

// What a scanner finds in a part of the picture.
std::vector<std::string> Read(cairo_surface_t* picture, int left, int top) {
    const ZXing::ImageView all(cairo_image_surface_get_data(picture), cairo_image_surface_get_width(picture),
                               cairo_image_surface_get_height(picture), ZXing::ImageFormat::BGRX,
                               cairo_image_surface_get_stride(picture));
    const auto hints =
        ZXing::DecodeHints().setFormats(ZXing::BarcodeFormat::EAN13 | ZXing::BarcodeFormat::QRCode).setTryRotate(false);
    std::vector<std::string> texts;
    for (const auto& found :
         ZXing::ReadBarcodes(all.cropped(left, top, Pixels(LabelWidth), Pixels(LabelHeight)), hints))
        texts.push_back(found.text());
    std::ranges::sort(texts);
    return texts;
}

TEST(MergedSheetTest, EveryCodeHoldsWhatItsRecordTells) {
    const std::string data = VAGREL_EXAMPLE_DATA;
    HostLabel label;
    label.LoadFromFile(FromUtf8(data + "/price_label.json"));
    label.GetData().SetCsvData(FromUtf8(data + "/products.csv"), true, scvSemicolon, scqDoubleQuotes);
    label.GetData().SetDataSel(label.GetData().GetDatasets().back().fCaption);
    label.GetData().SetLinkData(true);
    label.CheckPrintData();
    label.MakePreview();
    label.GoToPage(1, true, false);

    const std::string file = testing::TempDir() + "labels-" + std::to_string(getpid()) + ".png";
    const auto pages = OpenPages(file, TPageKind::Png, {.view = TPageView::Sheet, .dpi = Dpi}, 1);
    pages->Add(label);
    pages->Commit();
    const std::unique_ptr<cairo_surface_t, Picture::TSurfaceEnd> sheet(
        cairo_image_surface_create_from_png(file.c_str()));
    std::filesystem::remove(file);
    ASSERT_EQ(cairo_image_surface_get_width(sheet.get()), Pixels(210));

    std::ifstream records(data + "/products.csv");
    std::string record;
    std::getline(records, record);
    const std::vector<TSheetCell> cells = label.GetPrintInfo().Cells();
    ASSERT_EQ(cells.size(), 24u);
    for (const TSheetCell& cell : cells) {
        ASSERT_TRUE(std::getline(records, record));
        // The last columns: EAN;Stock;Link.
        const std::size_t link = record.rfind(';') + 1;
        const std::size_t ean = record.rfind(';', record.rfind(';', link - 2) - 1) + 1;
        const std::vector<std::string> expected{record.substr(ean, 13), record.substr(link)};
        EXPECT_EQ(Read(sheet.get(), Pixels(double(cell.x) / 1000), Pixels(double(cell.y) / 1000)), expected) << record;
    }
}

} // namespace
} // namespace vagrel::test
