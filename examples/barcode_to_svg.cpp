// SPDX-License-Identifier: MIT
// Encodes an article number as EAN-13 and an address as QR Code, and draws both into one SVG by hand. No document takes
// part: the encoders are a library of their own.
//
//     example_barcode_to_svg FILE.svg
#include <vagrel/barcode/BarLayout.h>
#include <vagrel/barcode/TEncoder.h>

#include <fstream>
#include <iostream>

using namespace vagrel;

namespace {

// An EAN-13 symbol in modules, with its digits; `number` has 12 digits.
void WriteEan(std::ostream& out, const std::string& number) {
    std::string checkDigit;
    TKSL128AutoType mode;
    const std::string code = TBarcode::PrepareBarcode(number, btEAN13, true, false, checkDigit, mode);
    const std::string pattern = TBarcode::FillBarPattern(code, btEAN13, mode, true);
    const TBarSizes sizes{.width = 1, .height = 60, .factor = 2, .fontHeight = 10};
    for (const TKSLRect& bar : BarRects(pattern, sizes))
        out << "<rect x=\"" << bar.Left << "\" y=\"" << bar.Top << "\" width=\"" << bar.Right - bar.Left
            << "\" height=\"" << bar.Bottom - bar.Top << "\"/>\n";
    for (const TDigitGroup& group : DigitGroups(code, btEAN13, pattern, sizes)) {
        const char* anchor = group.align == haLeft ? "start" : group.align == haRight ? "end" : "middle";
        out << "<text x=\"" << group.x << "\" y=\"70\" text-anchor=\"" << anchor << "\">" << group.text << "</text>\n";
    }
}

// A QR Code in modules: one path with a square for each dark one.
void WriteQr(std::ostream& out, std::u16string_view text) {
    TQRCode symbol;
    TEncoder().Encode(text, Automatic, {}, symbol);
    out << "<path d=\"";
    for (int y = 0; y < symbol.FMatrix.GetHeight(); ++y)
        for (int x = 0; x < symbol.FMatrix.GetWidth(); ++x)
            if (symbol.FMatrix.Get(x, y))
                out << 'M' << x << ' ' << y << "h1v1h-1z";
    out << "\"/>\n";
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " FILE.svg\n";
        return 2;
    }
    std::ofstream out(argv[1]);
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"440\" height=\"160\" viewBox=\"0 0 220 80\" "
           "font-family=\"sans-serif\" font-size=\"9\">\n<rect width=\"220\" height=\"80\" fill=\"#fff\"/>\n"
           "<g transform=\"translate(16 5)\">\n";
    WriteEan(out, "590123412345");
    out << "</g>\n<g transform=\"translate(140 8) scale(2.2)\">\n";
    WriteQr(out, u"https://example.com/590123412345");
    out << "</g>\n</svg>\n";
    out.close();
    if (!out) {
        std::cerr << "cannot write " << argv[1] << '\n';
        return 1;
    }
}
