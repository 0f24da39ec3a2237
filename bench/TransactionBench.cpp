// SPDX-License-Identifier: MIT
// What a transaction costs: one that changes nothing, one item, all items, and going back and forth. The first two must
// not grow with the document.
#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/Transaction.h>

#include <benchmark/benchmark.h>

namespace vagrel {
namespace {

struct TDocument : HostLabel {
    explicit TDocument(std::int64_t count) {
        SetFreshCrossings(false);
        for (std::int64_t i = 0; i < count; ++i)
            CreateLine(i % 50'000, i % 30'000, i % 50'000 + 5000, i % 30'000 + 3000);
        Clear({cleUndoRedo}, false);
    }
    void Forget(benchmark::State& state) {
        state.PauseTiming();
        Clear({cleUndoRedo}, false);
        state.ResumeTiming();
    }
};

void OpenTransaction(benchmark::State& state) {
    TDocument label(state.range(0));
    for (auto _ : state)
        Transaction(label).Commit();
}

void ChangeOneItem(benchmark::State& state) {
    TDocument label(state.range(0));
    TVGRBaseItem& item = *label.GetItem(int(state.range(0) / 2));
    TAlphaColor color = 0;
    for (auto _ : state) {
        Transaction change(label);
        item.SetColor(++color);
        change.Commit();
    }
}

void ChangeAllItems(benchmark::State& state) {
    TDocument label(state.range(0));
    TAlphaColor color = 0;
    for (auto _ : state) {
        Transaction change(label);
        ++color;
        for (int i = 1; i <= label.ItemsCount(); ++i)
            label.GetItem(i)->SetColor(color);
        change.Commit();
        label.Forget(state);
    }
}

void UndoAndRedoAllItems(benchmark::State& state) {
    TDocument label(state.range(0));
    {
        Transaction change(label);
        for (int i = 1; i <= label.ItemsCount(); ++i)
            label.GetItem(i)->SetColor(7);
        change.Commit();
    }
    for (auto _ : state) {
        label.Undo();
        label.Redo();
    }
}

void DeleteAllItems(benchmark::State& state) {
    TDocument label(state.range(0));
    for (auto _ : state) {
        Transaction change(label);
        while (label.ItemsCount() > 0)
            label.DeleteItem(*label.GetItem(label.ItemsCount()), false);
        change.Rollback();
    }
}

void Sizes(benchmark::internal::Benchmark* rows) { rows->Arg(1'000)->Arg(100'000)->Arg(1'000'000); }

BENCHMARK(OpenTransaction)->Apply(Sizes);
BENCHMARK(ChangeOneItem)->Apply(Sizes)->Iterations(10'000);
BENCHMARK(ChangeAllItems)->Apply(Sizes)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(UndoAndRedoAllItems)->Apply(Sizes)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(DeleteAllItems)->Apply(Sizes)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
} // namespace vagrel
