// SPDX-License-Identifier: MIT
// The text of 100,000 line elements, built by SvgElement and by fmt.
#include <vagrel/svg/SvgElement.h>

#include <benchmark/benchmark.h>
#include <fmt/compile.h>
#include <fmt/format.h>

#include <iterator>
#include <random>

namespace vagrel {
namespace {

struct TLine {
    float x1, y1, x2, y2, pen;
    TAlphaColor color;
};

const std::vector<TLine>& Lines() {
    static const std::vector<TLine> lines = [] {
        std::mt19937 random(1);
        // Thousandths of a millimetre on A4, every fourth a whole millimetre.
        auto place = [&] {
            const std::uint32_t base = random() % 297000;
            return float(base % 4 == 0 ? base / 1000 * 1000 : base) / 1000;
        };
        std::vector<TLine> out(100000);
        for (TLine& line : out)
            line = {
                place(), place(), place(), place(), float(random() % 20 + 1) / 10, 0xFF000000 | TAlphaColor(random())};
        return out;
    }();
    return lines;
}

std::string BySvgElement(const TLine& line) {
    SvgElement element(svFactor, 1);
    (element << "<line x1=\"").Val(line.x1) << "\" y1=\"";
    element.Val(line.y1) << "\" x2=\"";
    element.Val(line.x2) << "\" y2=\"";
    (element.Val(line.y2) << "\" ").Stroke(line.color) << " stroke-width=\"";
    (element.Pen(line.pen) << "\"").Dash(iiSolid) << "/>";
    return element.Take();
}

int Decimals(float value, int fraction) { return value == float(int(value)) ? 0 : fraction; }

std::string ByFmt(const TLine& line) {
    std::string out;
    fmt::format_to(std::back_inserter(out),
                   FMT_COMPILE("<line x1=\"{:.{}f}\" y1=\"{:.{}f}\" x2=\"{:.{}f}\" y2=\"{:.{}f}\"  "
                               "stroke=\"#{:06X}\" stroke-width=\"{:.{}f}\"/>"),
                   double(line.x1), Decimals(line.x1, 2), double(line.y1), Decimals(line.y1, 2), double(line.x2),
                   Decimals(line.x2, 2), double(line.y2), Decimals(line.y2, 2), line.color & 0xFFFFFF, double(line.pen),
                   Decimals(line.pen, 1));
    return out;
}

template <class Build>
void Run(benchmark::State& state, Build build) {
    const std::vector<TLine>& lines = Lines();
    std::int64_t bytes = 0;
    for (auto _ : state) {
        std::vector<std::string> svg;
        for (const TLine& line : lines) {
            svg.push_back(build(line));
            bytes += std::int64_t(svg.back().size());
        }
        benchmark::DoNotOptimize(svg.data());
    }
    state.SetBytesProcessed(bytes);
}

BENCHMARK_CAPTURE(Run, SvgElement, BySvgElement)->Name("Svg lines/Vagrel")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Run, fmt, ByFmt)->Name("Svg lines/fmt")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vagrel
