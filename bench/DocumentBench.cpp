// SPDX-License-Identifier: MIT
// A document of 100,000 mixed lines and figures: made, saved and loaded in both forms, exported. Figures, with the peak
// memory of the process.
#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/text/TVGRBaseText.h>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include <sys/resource.h>

namespace vagrel {
namespace {

constexpr int Count = 100'000;
constexpr const char16_t* FileName = u"/tmp/vagrel-bench-document";

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024;
}

void Fill(HostLabel& label, int count) {
    std::mt19937 random(7);
    auto place = [&] { return std::int64_t(random() % 400'000); };
    const UpdateScope bracket(label);
    for (int i = 0; i < count; ++i) {
        const TKSLPto at{place(), place()};
        switch (i % 8) {
        case 0:
        case 1:
        case 2:
            label.CreateLine(at.bX, at.bY, place(), place());
            break;
        case 3:
            label.CreatePolyLine({at, {place(), place()}, {place(), place()}, {place(), place()}});
            break;
        case 4:
            label.CreateRectangle(at.bX, at.bY, 5000, 3000);
            break;
        case 5:
            label.CreateCircle(at, 2500);
            break;
        case 6:
            label.CreatePolygon({at, {place(), place()}, {place(), place()}});
            break;
        default:
            label.CreateBezier({at, {place(), place()}, {place(), place()}, {place(), place()}});
        }
    }
}

void Make(benchmark::State& state) {
    for (auto _ : state) {
        HostLabel label;
        Fill(label, Count);
        benchmark::DoNotOptimize(label.ItemsCount());
    }
    state.counters["peak MB"] = PeakMegabytes();
}

template <TKSLExt Format>
void Save(benchmark::State& state) {
    HostLabel label;
    Fill(label, Count);
    for (auto _ : state)
        label.SaveToFile(FileName, Format);
    state.counters["file MB"] = double(std::filesystem::file_size(FileName)) / 1e6;
    state.counters["peak MB"] = PeakMegabytes();
}

// Loads what the row before has saved.
void Load(benchmark::State& state) {
    for (auto _ : state) {
        HostLabel label;
        label.LoadFromFile(FileName);
        benchmark::DoNotOptimize(label.ItemsCount());
    }
    state.counters["peak MB"] = PeakMegabytes();
    std::filesystem::remove(FileName);
}

void ExportSvg(benchmark::State& state) {
    HostLabel label;
    Fill(label, Count);
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::string svg = label.SVG(svCurrentUnit, 1, false);
        bytes += svg.size();
    }
    state.SetBytesProcessed(std::int64_t(bytes));
    state.counters["peak MB"] = PeakMegabytes();
}

// Linear when the figure of an item stays the same at any number.
void Names(benchmark::State& state) {
    const int count = int(state.range(0));
    for (auto _ : state) {
        HostLabel label;
        for (int i = 0; i < count; ++i)
            label.CreatePoint(i, 0).SetID(u"name " + FromUtf8(std::to_string(i)));
        for (int i = 0; i < count; ++i) {
            benchmark::DoNotOptimize(label.SearchItem(u"name " + FromUtf8(std::to_string(i)), false));
            benchmark::DoNotOptimize(label.SearchItem(i + 1, false));
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

// The preview copies of a sheet, made and found by their cell.
void Cells(benchmark::State& state) {
    const auto side = std::int32_t(state.range(0));
    HostLabel label;
    dynamic_cast<TVGRBaseText&>(label.CreateText(0, 0)).SetData(ftCsv, u"Name", u"");
    label.GetMeasure().SetNuHor(side);
    label.GetMeasure().SetNuVer(side);
    for (auto _ : state) {
        label.MakePreview();
        std::size_t found = 0;
        for (std::int32_t i = 0; i < side * side; ++i)
            found += label.PreviewOf(1 + i / side, 1 + i % side).size();
        benchmark::DoNotOptimize(found);
        state.counters["copies"] = double(found);
    }
    state.SetItemsProcessed(state.iterations() * side * side);
}

BENCHMARK(Names)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Cells)->Arg(25)->Arg(50)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(Make)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(Save<lfJSON>)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(Load)->Name("Load<lfJSON>")->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(Save<lfBin>)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(Load)->Name("Load<lfBin>")->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(ExportSvg)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
} // namespace vagrel
