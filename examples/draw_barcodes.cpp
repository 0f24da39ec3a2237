// SPDX-License-Identifier: MIT
// Puts a symbol of every kind on a sheet, with its name, turned ones and filled ones among them. Writes it as a JSON
// document and as SVG.
//
//     example_draw_barcodes FILE.json FILE.svg
#include <host/HostLabel.h>
#include <vagrel/barcode/TVGRBaseBarcode.h>
#include <vagrel/barcode/TVGRBaseMatrixCode.h>
#include <vagrel/barcode/TVGRBasePDF417.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/messages/ListNames.h>

#include <exception>
#include <iostream>

using namespace vagrel;

namespace {

constexpr TAlphaColor Cream = 0xFFFFF6E0, Sky = 0xFFE3F1FA, Navy = 0xFF14324F;

// Millimetres to base coordinates.
std::int64_t MM(double mm) { return std::int64_t(mm * 1000); }

struct TSample {
    TKSLBarType type;
    const char16_t* text;
    bool check;
    float factor;
};

// A factor of 0 leaves that of a new item.
constexpr TSample Samples[] = {
    {btEAN13, u"590123412345", true, 0},     {btEAN8, u"9638507", true, 0},
    {btUPCA, u"03600029145", true, 0},       {btUPCE0, u"04252614", false, 0},
    {btCODE39, u"CODE 39", false, 0},        {btCODE39EX, u"Code39+", false, 2.5f},
    {btCODE93, u"CODE 93", false, 0},        {btCODE93EX, u"Code93+", false, 0},
    {btCODABAR, u"31117-0132", false, 0},    {btEAN128A, u"37001234", false, 0},
    {btEAN128B, u"21AB-34c", false, 0},      {btEAN128C, u"0195012345678903", false, 0},
    {btEAN128AUTO, u"10LOT42a", false, 0},   {btCODE128A, u"SET A", false, 0},
    {btCODE128B, u"Set b", false, 0},        {btCODE128C, u"0123456789", false, 0},
    {btCODE128AUTO, u"Café-2024", false, 0}, {btINTER_25, u"1234567", true, 0},
    {btINDUS_25, u"12345", false, 0},        {btMATRIX_25, u"12345", false, 2.25f},
    {btCODE11, u"123-45", true, 2},          {btMSI, u"1234567", true, 1},
    {btPOSTNET, u"801221905", false, 1.3f},
};

void Print(HostLabel& label) {
    constexpr int columns = 4;
    constexpr double pitchX = 70, pitchY = 27;
    int at = 0;
    for (const TSample& sample : Samples) {
        const double x = 4 + at % columns * pitchX, y = 4 + at / columns * pitchY;
        auto& code = dynamic_cast<TVGRBaseBarcode&>(label.CreateBarcode(MM(x), MM(y), sample.text, sample.type));
        code.SetID(ItemList(lpBarcode, sample.type));
        code.SetCheckSum(sample.check);
        if (sample.factor > 0)
            code.SetFactor(sample.factor);
        if (sample.type == btPOSTNET) {
            code.SetBarWidth(0.5f);
            code.SetBarHeight(3.2f);
        }
        ++at;
    }
    auto& qr =
        dynamic_cast<TVGRBaseMatrixCode&>(label.CreateQRCode(MM(6), MM(168), u"https://example.org/vagrel?n=42"));
    qr.SetBarWidth(0.5f);
    qr.SetBarHeight(0.5f);
    qr.SetBackColor(Sky);
    qr.SetColor(Navy);
    dynamic_cast<TVGRBaseMatrixCode&>(label.CreateQRCode(MM(34), MM(168), u"0123456789")).SetBarHeight(0.6f);
    label.CreateDataMatrix(MM(54), MM(184), u"Data Matrix ECC 200").SetAngle(ag90);
    auto& matrix = dynamic_cast<TVGRBaseMatrixCode&>(label.CreateDataMatrix(MM(88), MM(180), u"centred"));
    matrix.SetBarWidth(0.6f);
    matrix.SetBarHeight(0.6f);
    matrix.SetHorzAlign(haCenter);
    matrix.SetVertAlign(vaCenter);
    matrix.SetBackColor(Cream);
    label.CreatePDF417(MM(100), MM(168), u"PDF417 holds a line of text, and digits 123456789012345678");
    auto& narrow = dynamic_cast<TVGRBasePDF417&>(label.CreatePDF417(MM(168), MM(168), u"truncated"));
    narrow.SetTruncated(true);
    narrow.SetCols(2);
    // Turned ones: the text runs up the page, on its head, and down.
    label.CreateBarcode(MM(236), MM(200), u"UP", btCODE39).SetAngle(ag90);
    label.CreateBarcode(MM(290), MM(200), u"2468", btCODE128C).SetAngle(ag180);
    auto& down = dynamic_cast<TVGRBaseBarcode&>(label.CreateBarcode(MM(290), MM(146), u"9638507", btEAN8));
    down.SetCheckSum(true);
    down.SetBackColor(Cream);
    down.SetAngle(ag270);
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 3) {
        std::cerr << "usage: example_draw_barcodes FILE.json FILE.svg\n";
        return 2;
    }
    HostLabel label;
    label.GetMeasure().SetLabelSizeMM(297, 210);
    {
        const UpdateScope bracket(label);
        Print(label);
    }
    label.SaveToFile(FromUtf8(argv[1]), lfJSON);
    label.SaveSVG(FromUtf8(argv[2]), svCurrentUnit, 1, false, true);
    return 0;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
