// SPDX-License-Identifier: MIT
// QR, Data Matrix and PDF417 from the text to the modules, beside libqrencode, ZXing-C++ and zint.
#define ZX_USE_UTF8
#include <vagrel/barcode/CalcECC200.h>
#include <vagrel/barcode/Pdf417Modules.h>
#include <vagrel/barcode/TEncoder.h>
#include <vagrel/foundation/Text.h>

#include <ZXing/BitMatrix.h>
#include <ZXing/MultiFormatWriter.h>
#include <benchmark/benchmark.h>
#include <qrencode.h>
#include <zint.h>

#include <cstdlib>
#include <span>

namespace vagrel {
namespace {

// Bytes of a URL, repeated to the length.
std::string Url(std::int64_t length) {
    const std::string url = "https://example.org/labels/2024/warehouse/shelf-17/box?id=83921&";
    std::string text;
    while (std::int64_t(text.size()) < length)
        text += url[text.size() % url.size()];
    return text;
}

void QR(benchmark::State& state) {
    const std::u16string text = FromUtf8(Url(state.range(0)));
    TEncoder encoder;
    for (auto _ : state) {
        TQRCode code;
        encoder.Encode(text, Automatic, {}, code);
        benchmark::DoNotOptimize(code);
        if (!code.IsValid())
            state.SkipWithError("no symbol");
    }
}

void QR_libqrencode(benchmark::State& state) {
    const std::string text = Url(state.range(0));
    for (auto _ : state) {
        QRcode* code = QRcode_encodeString8bit(text.c_str(), 0, QR_ECLEVEL_L);
        if (!code)
            state.SkipWithError("no symbol");
        QRcode_free(code);
    }
}

void DataMatrix(benchmark::State& state) {
    const std::string text = Url(state.range(0));
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    for (auto _ : state) {
        std::vector<std::uint8_t> matrix;
        std::uint16_t cols = 0;
        std::uint16_t rows = 0;
        CalcECC200(bytes, ecc200_Autosize, ecc200_Square, matrix, cols, rows);
        benchmark::DoNotOptimize(matrix);
    }
}

void DataMatrix_ZXing(benchmark::State& state) {
    const std::string text = Url(state.range(0));
    for (auto _ : state) {
        auto matrix = ZXing::MultiFormatWriter(ZXing::BarcodeFormat::DataMatrix).setMargin(0).encode(text, 0, 0);
        benchmark::DoNotOptimize(matrix);
    }
}

void PDF417(benchmark::State& state) {
    const std::u16string text = FromUtf8(Url(state.range(0)));
    for (auto _ : state) {
        TCodeWords words;
        TPDF417 encoder;
        if (!encoder.Encode(words, text))
            state.SkipWithError("no symbol");
        const int level = encoder.GetCorrecLevel(Auto);
        int columns = 0;
        int rows = 0;
        TPDF417::AdjustSize(columns, rows, 2 << level, encoder.GetUsedCWords(), 0, 0);
        TPDF417::Complete(words, encoder.GetUsedCWords(), columns * rows - (2 << level), 2 << level);
        benchmark::DoNotOptimize(Pdf417Modules(words, columns, rows, level));
    }
}

void PDF417_zint(benchmark::State& state) {
    const std::string text = Url(state.range(0));
    for (auto _ : state) {
        zint_symbol* symbol = ZBarcode_Create();
        symbol->symbology = BARCODE_PDF417;
        if (ZBarcode_Encode(symbol, reinterpret_cast<const unsigned char*>(text.data()), int(text.size())) >= 5)
            state.SkipWithError(symbol->errtxt);
        ZBarcode_Delete(symbol);
    }
}

BENCHMARK(QR)->Name("QR/Vagrel")->Arg(64)->Arg(2900);
BENCHMARK(QR_libqrencode)->Name("QR/libqrencode")->Arg(64)->Arg(2900);
BENCHMARK(DataMatrix)->Name("DataMatrix/Vagrel")->Arg(64);
BENCHMARK(DataMatrix_ZXing)->Name("DataMatrix/ZXing")->Arg(64);
BENCHMARK(PDF417)->Name("PDF417/Vagrel")->Arg(200);
BENCHMARK(PDF417_zint)->Name("PDF417/zint")->Arg(200);

} // namespace
} // namespace vagrel
