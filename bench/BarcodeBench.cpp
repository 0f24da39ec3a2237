// SPDX-License-Identifier: MIT
// Linear barcodes from text to pattern and width, beside zint in the same process. The counter "ratio" is our time by
// zint's, measured in turns; zint keeps one symbol and clears it, which spares it the making of one.
#include <vagrel/barcode/TBarcode.h>

#include <benchmark/benchmark.h>
#include <zint.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <numeric>

namespace {

using namespace vagrel;

struct TKind {
    const char* name;
    TKSLBarType type;
    std::string text;
    bool check;
    int zint;
    std::string zintText;
    int option = 0;
};

/// The same content for both; zint wants application identifiers in brackets.
const TKind Kinds[] = {
    {"EAN13", btEAN13, "400638133393", true, BARCODE_EANX, "400638133393"},
    {"EAN8", btEAN8, "9638507", true, BARCODE_EANX, "9638507"},
    {"UPCA", btUPCA, "03600029145", true, BARCODE_UPCA, "03600029145"},
    {"UPCE0", btUPCE0, "0123456", true, BARCODE_UPCE, "0123456"},
    {"CODE39", btCODE39, "VAGREL 1234-56", true, BARCODE_CODE39, "VAGREL 1234-56", 1},
    {"CODE39EX", btCODE39EX, "Vagrel 1234-56", true, BARCODE_EXCODE39, "Vagrel 1234-56", 1},
    {"CODE93", btCODE93, "VAGREL 1234-56", false, BARCODE_CODE93, "VAGREL 1234-56"},
    {"CODE93EX", btCODE93EX, "Vagrel 1234-56", false, BARCODE_CODE93, "Vagrel 1234-56"},
    {"CODABAR", btCODABAR, "1234-5678$90", false, BARCODE_CODABAR, "A1234-5678$90B"},
    {"EAN128A", btEAN128A, "10VAGREL123456", false, BARCODE_GS1_128, "[10]VAGREL123456"},
    {"EAN128B", btEAN128B, "10Vagrel123456", false, BARCODE_GS1_128, "[10]Vagrel123456"},
    {"EAN128C", btEAN128C, "0104006381333931", false, BARCODE_GS1_128, "[01]04006381333931"},
    {"EAN128AUTO", btEAN128AUTO, "10Vagrel123456", false, BARCODE_GS1_128, "[10]Vagrel123456"},
    {"CODE128A", btCODE128A, "VAGREL 1234-56", false, BARCODE_CODE128, "VAGREL 1234-56"},
    {"CODE128B", btCODE128B, "Vagrel 1234-56", false, BARCODE_CODE128B, "Vagrel 1234-56"},
    {"CODE128C", btCODE128C, "12345678901234567890", false, BARCODE_CODE128, "12345678901234567890"},
    {"CODE128AUTO", btCODE128AUTO, "Vagrel 123456-56", false, BARCODE_CODE128, "Vagrel 123456-56"},
    {"INTER_25", btINTER_25, "12345678901234", false, BARCODE_C25INTER, "12345678901234"},
    {"INDUS_25", btINDUS_25, "12345678901234", true, BARCODE_C25IND, "12345678901234", 1},
    {"MATRIX_25", btMATRIX_25, "12345678901234", true, BARCODE_C25STANDARD, "12345678901234", 1},
    {"CODE11", btCODE11, "123-45678901", true, BARCODE_CODE11, "123-45678901"},
    {"MSI", btMSI, "12345678901234", true, BARCODE_MSI_PLESSEY, "12345678901234", 1},
    {"POSTNET", btPOSTNET, "12345678901", false, BARCODE_POSTNET, "12345678901"},
};
constexpr std::size_t KindCount = std::size(Kinds);

void ByVagrel(const TKind& kind) {
    if (!TBarcode::IsValidCode(kind.text, kind.type, kind.check, false))
        std::abort();
    std::string digits;
    TKSL128AutoType mode;
    const std::string code = TBarcode::PrepareBarcode(kind.text, kind.type, kind.check, false, digits, mode);
    const std::string pattern = TBarcode::FillBarPattern(code, kind.type, mode, true);
    std::int32_t width = TBarcode::BarCodeWidth(pattern, 300, 3, true);
    benchmark::DoNotOptimize(width);
}

void ByZint(zint_symbol* symbol, const TKind& kind) {
    symbol->symbology = kind.zint;
    symbol->option_2 = kind.option;
    const auto* text = reinterpret_cast<const unsigned char*>(kind.zintText.data());
    if (ZBarcode_Encode(symbol, text, static_cast<int>(kind.zintText.size())) >= ZINT_ERROR)
        std::abort();
    benchmark::DoNotOptimize(symbol->width);
    ZBarcode_Clear(symbol);
}

template <class Action>
double Nanoseconds(Action&& action) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 200; ++i)
        action();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() / 200;
}

/// Mean over the kinds first to last; of each the quickest turn, for the machine may be busy with other things.
void Beside(benchmark::State& state, std::size_t first, std::size_t last) {
    const std::unique_ptr<zint_symbol, void (*)(zint_symbol*)> symbol(ZBarcode_Create(), ZBarcode_Delete);
    std::array<double, KindCount> vagrel, zint;
    vagrel.fill(1e9);
    zint.fill(1e9);
    for (auto _ : state)
        for (std::size_t i = first; i <= last; ++i) {
            vagrel[i] = std::min(vagrel[i], Nanoseconds([&] { ByVagrel(Kinds[i]); }));
            zint[i] = std::min(zint[i], Nanoseconds([&] { ByZint(symbol.get(), Kinds[i]); }));
        }
    const auto mean = [=](const std::array<double, KindCount>& times) {
        return std::accumulate(&times[first], &times[last] + 1, 0.0) / static_cast<double>(last - first + 1);
    };
    state.counters["vagrel_ns"] = mean(vagrel);
    state.counters["zint_ns"] = mean(zint);
    state.counters["ratio"] = mean(vagrel) / mean(zint);
}

const bool Registered = [] {
    const auto add = [](const std::string& name, std::size_t first, std::size_t last) {
        benchmark::RegisterBenchmark(name.c_str(), Beside, first, last)->Iterations(50);
    };
    add("Linear/all", 0, KindCount - 1);
    for (std::size_t i = 0; i < KindCount; ++i)
        add(std::string("Linear/") + Kinds[i].name, i, i);
    return true;
}();

} // namespace
