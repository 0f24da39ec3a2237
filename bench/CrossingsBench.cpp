// SPDX-License-Identifier: MIT
// All crossings of random segments, sorted, beside a join through an R-tree. The tree join tests and sorts the same
// way: what differs is how the pairs are found.
#include <vagrel/editor/AllCrossings.h>

#include <benchmark/benchmark.h>
#include <boost/geometry.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/iterator/function_output_iterator.hpp>

#include <algorithm>
#include <cmath>
#include <random>

namespace vagrel {
namespace {

namespace bg = boost::geometry;
namespace bgi = bg::index;

using TPoint = bg::model::d2::point_xy<double>;
using TBox = bg::model::box<TPoint>;
using TSegment = bg::model::segment<TPoint>;
using TValue = std::pair<TBox, std::uint32_t>;

// Segments of one length in all directions on a sheet of 1 m; about two of them cross for each segment.
std::vector<TFigure> Segments(int count) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> place(0, 1e6), turn(0, 6.283185307);
    const double length = 1e6 * std::sqrt(1.95 * 3.14159265 / count);
    std::vector<TFigure> figures;
    for (int i = 0; i < count; ++i) {
        const double x = place(random), y = place(random), angle = turn(random);
        const TKSLPto from{std::int64_t(x), std::int64_t(y)};
        const TKSLPto to{std::int64_t(x + length * std::cos(angle)), std::int64_t(y + length * std::sin(angle))};
        figures.push_back({i + 1, TKSLShape::Segments({from, to}, false)});
    }
    return figures;
}

void BM_AllCrossings(benchmark::State& state) {
    const auto figures = Segments(int(state.range(0)));
    const std::atomic<bool> stop = false;
    std::vector<TIntSecPoint> found;
    for (auto _ : state)
        benchmark::DoNotOptimize(AllCrossings(figures, stop, found));
    state.counters["hits"] = double(found.size());
}
BENCHMARK(BM_AllCrossings)->Arg(20000)->Arg(100000)->Unit(benchmark::kMillisecond);

TBox BoxOf(const TFigure& figure) {
    const TKSLRect box = BoundsOf(figure.shape);
    return {{double(box.Left), double(box.Top)}, {double(box.Right), double(box.Bottom)}};
}

// Bulk load, one query for each segment, then `test` on each pair; its points are sorted by pair.
template <class Test>
std::vector<std::pair<std::uint64_t, TKSLPto>> TreeJoin(const std::vector<TFigure>& figures, Test test) {
    std::vector<TValue> values;
    for (std::uint32_t i = 0; i < figures.size(); ++i)
        values.emplace_back(BoxOf(figures[i]), i);
    const bgi::rtree<TValue, bgi::rstar<16>> tree(values);
    std::vector<std::pair<std::uint64_t, TKSLPto>> hits;
    for (std::uint32_t i = 0; i < figures.size(); ++i)
        tree.query(bgi::intersects(values[i].first), boost::make_function_output_iterator([&](const TValue& value) {
                       if (value.second > i)
                           test(i, value.second, [&](TKSLPto point) {
                               hits.emplace_back(std::uint64_t(i) << 32 | value.second, point);
                           });
                   }));
    std::ranges::stable_sort(hits, {}, &std::pair<std::uint64_t, TKSLPto>::first);
    return hits;
}

// With our own exact test.
void BM_TreeJoin(benchmark::State& state) {
    const auto figures = Segments(int(state.range(0)));
    std::size_t hits = 0;
    for (auto _ : state) {
        TKSLPtoA found;
        hits = TreeJoin(figures, [&](std::uint32_t i, std::uint32_t j, auto add) {
                   CrossShapes(figures[i].shape, figures[j].shape, found);
                   for (const TKSLPto& point : found)
                       add(point);
               }).size();
    }
    state.counters["hits"] = double(hits);
}
BENCHMARK(BM_TreeJoin)->Arg(20000)->Arg(100000)->Unit(benchmark::kMillisecond);

// With the library's test of two segments.
void BM_TreeJoinItsOwnTest(benchmark::State& state) {
    const auto figures = Segments(int(state.range(0)));
    std::vector<TSegment> segments;
    for (const TFigure& figure : figures) {
        const TKSLPto a = figure.shape.points[0], b = figure.shape.points[1];
        segments.emplace_back(TPoint(double(a.bX), double(a.bY)), TPoint(double(b.bX), double(b.bY)));
    }
    std::size_t hits = 0;
    for (auto _ : state) {
        std::vector<TPoint> found;
        hits = TreeJoin(figures, [&](std::uint32_t i, std::uint32_t j, auto add) {
                   found.clear();
                   bg::intersection(segments[i], segments[j], found);
                   for (const TPoint& point : found)
                       add({std::int64_t(point.x()), std::int64_t(point.y())});
               }).size();
    }
    state.counters["hits"] = double(hits);
}
BENCHMARK(BM_TreeJoinItsOwnTest)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vagrel
