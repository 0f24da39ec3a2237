// SPDX-License-Identifier: MIT
// What a pointer costs in a document of 100,000 lines.
#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRMeasure.h>

#include <benchmark/benchmark.h>

#include <random>

namespace vagrel {
namespace {

class EditorBench : public benchmark::Fixture {
public:
    void SetUp(benchmark::State&) override {
        label = std::make_unique<HostLabel>();
        label->SetEditorMode(emDrawing);
        label->GetMeasure().SetLabelSizeMM(1000, 1000);
        std::mt19937 random(5);
        std::uniform_int_distribution<std::int64_t> place(0, 990000), extent(1000, 9000);
        for (int i = 0; i < 100000; ++i) {
            const std::int64_t x = place(random), y = place(random);
            label->CreateLine(x, y, x + extent(random), y + extent(random));
        }
    }
    void TearDown(benchmark::State&) override { label.reset(); }

    std::unique_ptr<HostLabel> label;
};

BENCHMARK_F(EditorBench, SearchSelection)(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(label->SearchSelection(999000, 500, 300, {}, false));
}

BENCHMARK_F(EditorBench, SearchPointEnd)(benchmark::State& state) {
    TKSLRef ref;
    for (auto _ : state)
        benchmark::DoNotOptimize(label->SearchPoint(999000, 500, 300, snEnd, ref, false));
}

BENCHMARK_F(EditorBench, SearchRectangleAll)(benchmark::State& state) {
    for (auto _ : state) {
        label->SearchRectangle({0, 0, 1000000, 1000000}, false);
        label->ClearSelection(false);
    }
}

// A step of a drag of everything, and the copies that the search for crossings begins with.
BENCHMARK_F(EditorBench, DragAll)(benchmark::State& state) {
    label->SearchRectangle({0, 0, 1000000, 1000000}, false);
    std::int64_t step = 1;
    for (auto _ : state)
        label->MoveBaseSelection(step = -step, 0, false, true);
}

BENCHMARK_F(EditorBench, CheckIntersections)(benchmark::State& state) {
    for (auto _ : state) {
        label->CheckIntersetions();
        state.PauseTiming();
        label->New(); // gives the computation up
        SetUp(state);
        state.ResumeTiming();
    }
}

} // namespace
} // namespace vagrel
