// SPDX-License-Identifier: MIT
// Reading and writing a document of 10,000 items, beside RapidJSON over UTF-16, and the heap that its tree takes.
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <benchmark/benchmark.h>
#include <rapidjson/document.h>
#include <rapidjson/encodedstream.h>
#include <rapidjson/prettywriter.h>

#include <malloc.h>

namespace {

using namespace vagrel;
using TRapidDocument = rapidjson::GenericDocument<rapidjson::UTF16<char16_t>>;

std::u16string Numbered(const char16_t* prefix, int index) {
    const std::string digits = std::to_string(index);
    return prefix + std::u16string(digits.begin(), digits.end());
}

void AddColor(TJsonObject& item, std::u16string_view name, int seed) {
    TJsonObject& color = item.AddObject(name);
    color.SetInt(u"R", seed % 256);
    color.SetInt(u"G", 0);
    color.SetInt(u"B", seed % 7);
    color.SetInt(u"A", 255);
}

void AddItem(TJsonArray& items, int index) {
    TJsonObject& item = items.AddObject();
    const bool poly = index % 3 == 1;
    item.SetInt(u"Type", poly ? 4 : 2);
    item.SetString(u"TypeName", poly ? u"PolyLine" : u"Line");
    item.SetInt(u"InID", index);
    item.SetString(u"ID", Numbered(poly ? u"PolyLine" : u"Line", index));
    item.SetInt(u"Layer", index % 4);
    item.SetInt(u"Angle", 0);
    AddColor(item, u"Color", index);
    item.SetFloat(u"PenWidth", 0.1);
    TJsonObject& options = item.AddObject(u"Options");
    for (const char16_t* name : {u"Visible", u"Print", u"Selectable", u"Export"})
        options.SetBool(name, true);
    TJsonArray& points = item.AddArray(u"Points");
    for (int i = 0; i < (poly ? 8 : 2); ++i) {
        TJsonObject& point = points.AddObject();
        point.SetFloat(u"X", double((index * 7919 + i * 104729) % 400000) / 1000);
        point.SetFloat(u"Y", double((index * 104729 + i * 7919) % 400000) / (i % 2 == 0 ? 1000 : 8));
    }
    item.SetInt(u"LineType", 0);
    if (index % 3 == 2) {
        for (const char16_t* end : {u"From", u"To"}) {
            const std::u16string prefix = end;
            item.SetInt(prefix + u"Type", 3);
            item.SetFloat(u"Size" + prefix, 2.5);
            AddColor(item, prefix + u"Color", index);
        }
    }
}

std::string Document(bool compact, int count) {
    TJsonObject root;
    root.SetInt(u"Version", 3200);
    TJsonArray& items = root.AddArray(u"Items");
    for (int i = 0; i < count; ++i)
        AddItem(items, i);
    return root.ToUtf8JSON(compact);
}

const std::string& Indented() {
    static const std::string text = Document(false, 10000);
    return text;
}

TRapidDocument RapidTree(const std::string& text) {
    TRapidDocument document;
    rapidjson::MemoryStream bytes(text.data(), text.size());
    rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> stream(bytes);
    document.ParseStream<rapidjson::kParseDefaultFlags, rapidjson::UTF8<>>(stream);
    return document;
}

void SetBytes(benchmark::State& state) {
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(Indented().size()));
}

// Parsing alone: freeing the tree is not timed, in either library.
template <class Tree>
void TimeParsing(benchmark::State& state, Tree parse) {
    for (auto _ : state) {
        auto tree = parse();
        state.PauseTiming();
        { const auto dying = std::move(tree); }
        state.ResumeTiming();
    }
    SetBytes(state);
}

void ParseVagrel(benchmark::State& state) {
    TimeParsing(state, [] { return TJsonBaseObject::FromUtf8JSON(Indented()); });
}

void ParseRapid(benchmark::State& state) {
    TimeParsing(state, [] { return RapidTree(Indented()); });
}

void ParseAndFreeVagrel(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(TJsonBaseObject::FromUtf8JSON(Indented()));
    SetBytes(state);
}

void ParseAndFreeRapid(benchmark::State& state) {
    for (auto _ : state) {
        const TRapidDocument document = RapidTree(Indented());
        if (document.HasParseError())
            state.SkipWithError("parse error");
    }
    SetBytes(state);
}

void WriteVagrel(benchmark::State& state) {
    const auto tree = TJsonBaseObject::FromUtf8JSON(Indented());
    for (auto _ : state)
        benchmark::DoNotOptimize(tree->ToUtf8JSON(false));
    SetBytes(state);
}

void WriteRapid(benchmark::State& state) {
    const TRapidDocument document = RapidTree(Indented());
    for (auto _ : state) {
        rapidjson::StringBuffer buffer;
        rapidjson::PrettyWriter<rapidjson::StringBuffer, rapidjson::UTF16<char16_t>> writer(buffer);
        writer.SetIndent('\t', 1);
        document.Accept(writer);
        benchmark::DoNotOptimize(buffer.GetString());
    }
    SetBytes(state);
}

void CloneVagrel(benchmark::State& state) {
    const auto tree = TJsonBaseObject::FromUtf8JSON(Indented());
    for (auto _ : state)
        benchmark::DoNotOptimize(tree->Clone());
    SetBytes(state);
}

// The heap of the tree of about 5 MB of compact text, with the allocator's own share.
void HeapOfTree(benchmark::State& state) {
    const std::string text = Document(true, 12000);
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
        const auto tree = TJsonBaseObject::FromUtf8JSON(text);
        const std::size_t after = mallinfo2().uordblks + mallinfo2().hblkhd;
        state.counters["text_MB"] = double(text.size()) / 1e6;
        state.counters["heap_MB"] = double(after - before) / 1e6;
    }
}

BENCHMARK(ParseVagrel)->Name("Json parse/Vagrel")->Unit(benchmark::kMillisecond);
BENCHMARK(ParseRapid)->Name("Json parse/RapidJSON")->Unit(benchmark::kMillisecond);
BENCHMARK(ParseAndFreeVagrel)->Name("Json parse and free/Vagrel")->Unit(benchmark::kMillisecond);
BENCHMARK(ParseAndFreeRapid)->Name("Json parse and free/RapidJSON")->Unit(benchmark::kMillisecond);
BENCHMARK(WriteVagrel)->Name("Json write/Vagrel")->Unit(benchmark::kMillisecond);
BENCHMARK(WriteRapid)->Name("Json write/RapidJSON")->Unit(benchmark::kMillisecond);
BENCHMARK(CloneVagrel)->Name("Json clone/Vagrel")->Unit(benchmark::kMillisecond);
BENCHMARK(HeapOfTree)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
