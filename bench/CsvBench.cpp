// SPDX-License-Identifier: MIT
// 100,000 rows of CSV split and decoded, beside libcsv in the same process.
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/TCsvReader.h>

#include <benchmark/benchmark.h>
#include <csv.h>

#include <cstdlib>
#include <random>

namespace vagrel {
namespace {

std::string Rows() {
    std::mt19937 random(3);
    std::string text = "code;name;price;note\n";
    for (int i = 0; i < 100'000; ++i) {
        text +=
            std::to_string(8'400'000'000'000 + random() % 1'000'000) + ";Jamón ibérico de bellota " +
            std::to_string(i) + ";" + std::to_string(random() % 100) + "," + std::to_string(10 + random() % 90) +
            (i % 4 == 0 ? ";\"cut; \"\"thin\"\" slices, keep between 2 and 8 degrees\"\n" : ";keep in a dry place\n");
    }
    return text;
}

void SplitVagrel(benchmark::State& state) {
    const std::string text = Rows();
    for (auto _ : state) {
        const TCsvReader reader(text, ';', '"');
        TCsvReader::TCells cells;
        for (int i = 0; i < reader.Count(); ++i)
            reader.Read(i, cells);
        benchmark::DoNotOptimize(cells);
    }
    state.SetBytesProcessed(std::int64_t(text.size()) * std::int64_t(state.iterations()));
}

void SplitLibcsv(benchmark::State& state) {
    const std::string text = Rows();
    for (auto _ : state) {
        std::vector<std::u16string> cells;
        csv_parser parser;
        csv_init(&parser, CSV_STRICT);
        csv_set_delim(&parser, ';');
        csv_parse(
            &parser, text.data(), text.size(),
            [](void* cell, std::size_t size, void* data) {
                static_cast<std::vector<std::u16string>*>(data)->push_back(
                    FromUtf8({static_cast<const char*>(cell), size}));
            },
            [](int, void* data) { static_cast<std::vector<std::u16string>*>(data)->clear(); }, &cells);
        csv_free(&parser);
        benchmark::DoNotOptimize(cells);
    }
    state.SetBytesProcessed(std::int64_t(text.size()) * std::int64_t(state.iterations()));
}

BENCHMARK(SplitVagrel)->Name("Csv/Vagrel")->Unit(benchmark::kMillisecond);
BENCHMARK(SplitLibcsv)->Name("Csv/libcsv")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vagrel
