// SPDX-License-Identifier: MIT
// Makes a label to be filled from a product list: bound texts, a rotated one, a counter, an EAN-13, a QR Code with a
// link, a sheet of 3 by 8 labels on A4. Writes it as a JSON document and as a picture.
//
//     example_make_label FILE.json FILE.png
#include <host/HostLabel.h>
#include <host/PageWriter.h>
#include <vagrel/barcode/TVGRBaseBarcode.h>
#include <vagrel/barcode/TVGRBaseQRCode.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/figures/TVGRBaseRectangle.h>
#include <vagrel/items/text/TVGRBaseText.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>

#include <cmath>
#include <exception>
#include <iostream>

using namespace vagrel;

namespace {

constexpr TAlphaColor Ink = 0xFF22303C, Soft = 0xFF6B7885, Band = 0xFF2F6F5E, Rule = 0xFFB8C2CC, Paper = 0xFFFFFFFF;

std::int64_t Mm(double millimetres) { return std::llround(millimetres * 1000); }

// A sheet of 3 columns and 8 rows of labels of 70 × 37 mm.
void SetSheet(TVGRMeasure& measure) {
    measure.SetLabelSizeMM(70, 37);
    measure.SetNuHor(8);
    measure.SetNuVer(3);
    measure.SetDiHor(0);
    measure.SetDiVer(0);
    measure.SetMarLeft(0);
    measure.SetMarTop(0.5f);
    measure.SetLabelName(u"Price label");
}

void Box(HostLabel& label, double x, double y, double width, double height, double radius, TAlphaColor fill) {
    auto& box = dynamic_cast<TVGRBaseRectangle&>(label.CreateRectangle(Mm(x), Mm(y), Mm(width), Mm(height)));
    box.SetRadio(float(radius));
    box.SetColor(Rule);
    box.SetPenWidth(fill == Paper ? 0.2f : 0);
    box.SetBackColor(fill);
}

struct TLook {
    float height;
    TAlphaColor color = Ink;
    bool bold = false, italic = false;
    TKSLHorzAlign horz = haLeft;
    TKSLVertAlign vert = vaTop;
};

TVGRBaseText& Text(HostLabel& label, double x, double y, const TLook& look) {
    auto& text = dynamic_cast<TVGRBaseText&>(label.CreateText(Mm(x), Mm(y)));
    text.SetFontName(u"Liberation Sans");
    text.SetFontHeight(look.height);
    text.SetFontColor(look.color);
    text.SetBold(look.bold);
    text.SetItalic(look.italic);
    text.SetHorzAlign(look.horz);
    text.SetVertAlign(look.vert);
    return text;
}

// Both codes have the quiet zones that their readers ask for, 11 and 4 modules. Their own text is a sample, which the
// record's replaces.

void Ean(HostLabel& label, double x, double y) {
    auto& ean = dynamic_cast<TVGRBaseBarcode&>(label.CreateBarcode(Mm(x), Mm(y), u"4006381333931", btEAN13));
    ean.SetBarWidth(0.33f);
    ean.SetBarHeight(9);
    ean.SetPaddingX(11 * 0.33f);
    ean.SetFontName(u"Liberation Sans");
    ean.SetFontHeight(2.8f);
    ean.SetColor(Ink);
    ean.SetData(ftJson, u"EAN", u"");
}

void Link(HostLabel& label, double right, double bottom) {
    constexpr float module = 0.48f, quiet = 4 * module;
    auto& link = dynamic_cast<TVGRBaseQRCode&>(
        label.CreateQRCode(Mm(right + quiet), Mm(bottom + quiet), u"https://example.org/p/TEE-0001"));
    link.SetBarWidth(module);
    link.SetBarHeight(module);
    link.SetPaddingX(quiet);
    link.SetPaddingY(quiet);
    link.SetHorzAlign(haRight);
    link.SetVertAlign(vaBottom);
    link.SetFilled(false); // the quiet zone reaches into a round corner of the paper
    link.SetColor(Ink);
    link.SetData(ftJson, u"Link", u"");
}

void Draw(HostLabel& label) {
    SetSheet(label.GetMeasure());
    auto& number = *new TVGRCounter(label); // the document owns it
    number.SetName(u"Number");
    number.SetBefore(u"No. ");
    number.SetFormat(u"0000");
    number.SetNumTo(528); // the products of the list; a merge prints as many labels as its longest source asks for

    const UpdateScope drawing(label);
    Box(label, 1.5, 1.5, 67, 34, 2, Paper);
    Box(label, 1.5, 1.5, 6, 34, 2, Band);
    TVGRBaseText& kind = Text(label, 4.5, 18.5, {3, Paper, true, false, haCenter, vaCenter});
    kind.SetAngle(ag90);
    kind.SetData(ftJson, u"Kind", u"");
    Text(label, 9.5, 3.5, {3.6f, Ink, true}).SetData(ftJson, u"Name", u"");
    Text(label, 9.5, 8.5, {2.8f, Soft, false, true}).SetData(ftJson, u"Maker", u"");
    Text(label, 9.5, 13, {3.2f}).SetData(ftJson, u"Size", u"");
    Text(label, 66, 12, {7, Ink, true, false, haRight}).SetData(ftJson, u"Price", u"0.00 \"€\"");
    Text(label, 66, 8.7, {2.6f, Soft, false, false, haRight}).SetData(ftCounter, u"Number", u"");
    Ean(label, 8.4, 21);
    Link(label, 66, 33.3);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: " << argv[0] << " FILE.json FILE.png\n";
        return 2;
    }
    try {
        HostLabel label;
        Draw(label);
        label.SaveToFile(FromUtf8(argv[1]), lfJSON);
        const auto picture = OpenPages(argv[2], TPageKind::Png, {.dpi = 300}, 1);
        picture->Add(label);
        picture->Commit();
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
