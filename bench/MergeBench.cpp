// SPDX-License-Identifier: MIT
// The everyday job: 10,000 records of a CSV file into A4 sheets of 24 labels with three texts and a counter. Time a
// label and the peak memory of the process, for SVG text in memory and for a PDF file.
#include <host/HostLabel.h>
#include <host/PageWriter.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/text/TVGRBaseText.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/platform/Files.h>

#include <benchmark/benchmark.h>

#include <cstdio>

#include <sys/resource.h>

namespace vagrel {
namespace {

constexpr const char* CsvName = "/tmp/vagrel-bench-merge.csv";

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024;
}

void Bind(HostLabel& label, std::int64_t y, TKSLFillType type, std::u16string_view name) {
    auto& text = dynamic_cast<TVGRBaseText&>(label.CreateText(3000, y));
    text.SetFontName(u"Liberation Sans");
    text.SetFontHeight(4);
    text.SetData(type, name, u"");
}

// A label of 70 × 37 mm, 3 by 8 on A4, filled from `records` records.
void Prepare(HostLabel& label, int records) {
    TOutputFile csv(CsvName);
    csv.Write("\xEF\xBB\xBFName;Maker;Price\n");
    for (int i = 0; i < records; ++i)
        csv.Write("Product " + std::to_string(i) + ";\"Maker, " + std::to_string(i % 97) + "\";" +
                  std::to_string(i % 1000) + ".95\n");
    csv.Commit();

    TVGRMeasure& measure = label.GetMeasure();
    measure.SetLabelSizeMM(70, 37);
    measure.SetNuHor(8);
    measure.SetNuVer(3);
    auto& number = *new TVGRCounter(label); // the document owns it
    number.SetName(u"Number");
    {
        const UpdateScope measuring(label);
        Bind(label, 5000, ftCsv, u"Name");
        Bind(label, 12000, ftCsv, u"Maker");
        Bind(label, 19000, ftCsv, u"Price");
        Bind(label, 26000, ftCounter, u"Number");
    }
    TVGRData& data = label.GetData();
    data.SetCsvData(FromUtf8(CsvName), true, scvSemicolon, scqDoubleQuotes);
    data.SetDataSel(data.GetDatasets().back().fCaption);
    data.SetLinkData(true);
    label.CheckPrintData();
    label.MakePreview();
}

template <class Page>
void Merge(benchmark::State& state, Page page) {
    const int records = int(state.range(0));
    HostLabel label;
    Prepare(label, records);
    for (auto _ : state) {
        for (int i = 1; i <= label.GetPrintInfo().GetPagesToPrint(); ++i) {
            label.GoToPage(i, true, false);
            page(label);
        }
    }
    state.SetItemsProcessed(state.iterations() * records);
    state.counters["peak MB"] = PeakMegabytes();
    std::remove(CsvName);
}

void ToSvg(benchmark::State& state) {
    Merge(state, [](const HostLabel& label) {
        const std::string svg = label.SheetSVG(svCurrentUnit, 1, false);
        benchmark::DoNotOptimize(svg.data());
    });
}

void ToPdf(benchmark::State& state) {
    const auto pages = OpenPages("/tmp/vagrel-bench-merge.pdf", TPageKind::Pdf, {.view = TPageView::Sheet}, 1);
    Merge(state, [&](const HostLabel& label) { pages->Add(label); });
}

BENCHMARK(ToSvg)->Arg(10'000)->Arg(40'000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(ToPdf)->Arg(10'000)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
} // namespace vagrel
