// SPDX-License-Identifier: MIT
// One step of undo and one of redo over a group of many commands. The time for one command must not grow with their
// number.
#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/UpdateScope.h>

#include <benchmark/benchmark.h>

namespace vagrel {
namespace {

struct TDocument : HostLabel {
    // The computation of crossings that a step asks for is not what is measured.
    TDocument() { SetFreshCrossings(false); }
};

void Fill(HostLabel& label, std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i)
        label.CreateLine(i, 2 * i, i + 5000, 2 * i + 3000);
}

// Undo and redo of what `change` did in one bracket.
template <class Change>
void Replay(benchmark::State& state, HostLabel& label, Change change) {
    {
        const UpdateScope bracket(label);
        change();
    }
    for (auto _ : state) {
        label.Undo();
        while (!label.IsRedoEmpty())
            label.Redo();
        // A redone deletion is a step of its own: a group again for the next turn.
        state.PauseTiming();
        if (label.ItemsCount() == 0) {
            label.Clear({cleUndoRedo}, false);
            Fill(label, state.range(0));
            label.Clear({cleUndoRedo}, false);
            const UpdateScope bracket(label);
            change();
        }
        state.ResumeTiming();
    }
    state.counters["per command"] = benchmark::Counter(double(state.range(0)) * double(state.iterations()),
                                                       benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Colours(benchmark::State& state) {
    TDocument label;
    Fill(label, state.range(0));
    label.Clear({cleUndoRedo}, false);
    Replay(state, label, [&] {
        for (int i = 1; i <= label.ItemsCount(); ++i)
            label.GetItem(i)->SetColor(5);
    });
}

void Moves(benchmark::State& state) {
    TDocument label;
    Fill(label, state.range(0));
    label.Clear({cleUndoRedo}, false);
    Replay(state, label, [&] {
        for (int i = 1; i <= label.ItemsCount(); ++i)
            label.GetItem(i)->BaseMove(100, 100, 0, 0, moAll, true);
    });
}

void Creations(benchmark::State& state) {
    TDocument label;
    Replay(state, label, [&] { Fill(label, state.range(0)); });
}

void Deletions(benchmark::State& state) {
    TDocument label;
    Fill(label, state.range(0));
    label.Clear({cleUndoRedo}, false);
    Replay(state, label, [&] {
        while (label.ItemsCount() > 0)
            label.DeleteItem(*label.GetItem(label.ItemsCount()), false);
    });
}

BENCHMARK(Colours)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(Moves)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(Creations)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(Deletions)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace
} // namespace vagrel
