// SPDX-License-Identifier: MIT
// The binary document, read with nothing but the tables of its layout, and there and back with JSON.
#include <tests/support/TestHost.h>

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/persistence/TBinaryWriter.h>

#include <gtest/gtest.h>

#include <cstring>

namespace vagrel::test {
namespace {

// Reads fields by their widths: 1, 2, 4, 8 bytes, or s for a text.
class TFields {
public:
    explicit TFields(std::string_view bytes) : fBytes(bytes) {}

    std::int64_t Int(std::size_t width) {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < width; ++i)
            value |= std::uint64_t(std::uint8_t(fBytes.at(fAt + i))) << (8 * i);
        fAt += width;
        const unsigned unused = unsigned(64 - 8 * width);
        return std::int64_t(value << unused) >> unused;
    }
    std::string Text() {
        const auto size = std::size_t(Int(1));
        fAt += size;
        return std::string(fBytes.substr(fAt - size, size));
    }
    void Expect(const char* what, std::vector<std::pair<std::size_t, std::int64_t>> fields) {
        for (std::size_t i = 0; i < fields.size(); ++i)
            EXPECT_EQ(Int(fields[i].first), fields[i].second) << what << " field " << i;
    }
    std::size_t Left() const { return fBytes.size() - fAt; }

private:
    std::string_view fBytes;
    std::size_t fAt = 0;
};

TEST(BinaryForm, AFreshDocumentFollowsTheTables) {
    TestHost label;
    label.CreateLine(1000, -2, 3000, 4000).SetID(u"é");
    const std::string bytes = label.ToBinary();
    TFields fields(bytes);
    fields.Expect("frame", {{4, 3200}, {2, emLabelling}, {2, unMM}, {4, ag0}});
    EXPECT_EQ(fields.Text(), "My label");
    EXPECT_EQ(fields.Text() + fields.Text(), "");
    fields.Expect("measure", {{4, 60000},
                              {4, 35000},
                              {4, 5000},
                              {4, 10000},
                              {4, 7},
                              {4, 3},
                              {4, 4000},
                              {4, 4000},
                              {4, 210000},
                              {4, 297000},
                              {2, 9}});
    EXPECT_EQ(fields.Text(), "A4");
    fields.Expect("scale, paper, type, circle", {{8, 1}, {1, 0}, {1, ltRect}, {4, 0}});
    EXPECT_EQ(fields.Text(), "");
    fields.Expect("unit", {{1, 1}});
    EXPECT_EQ(fields.Text(), "");
    fields.Expect("background", {{4, -1}, {4, -1}, {4, biNone}, {1, 0}});
    fields.Expect("settings", {{4, std::int32_t(OpaqueBlack)}, {4, -1}, {4, 2500}, {4, 5000}});
    fields.Expect("print info", {{4, 1}, {1, 0}, {4, 1}});
    fields.Expect("data", {{2, dtyNone}, {1, 0}});
    EXPECT_EQ(fields.Text() + fields.Text(), "");
    fields.Expect("data", {{1, 0}, {2, scvNone}, {2, scqDoubleQuotes}});
    EXPECT_EQ(fields.Text(), "");
    fields.Expect("csv header, fields, lists, questions, layers", {{1, 1}, {4, 0}, {4, 0}, {4, 0}, {4, 1}});
    EXPECT_EQ(fields.Text(), "Default");
    fields.Expect("layer", {{4, std::int32_t(OpaqueBlack)}, {4, -1}, {1, 0}, {1, 0}, {1, 0}, {1, 0}, {4, 10000}});
    EXPECT_EQ(fields.Text(), "Arial");
    fields.Expect("layer", {{4, std::int32_t(OpaqueBlack)}, {4, 15}, {2, 0}, {4, 100}, {4, iiSolid}, {1, 1}});
    fields.Expect("styles, counters, symbols, items", {{4, 0}, {4, 0}, {4, 0}, {4, 1}});
    fields.Expect("item", {{4, itLine}, {4, 1}});
    EXPECT_EQ(fields.Text(), "é");
    fields.Expect("item", {{2, 0}, {4, std::int32_t(OpaqueBlack)}, {4, 100}, {4, ag0}, {4, 15}, {2, 2}});
    fields.Expect("points", {{8, 1000}, {8, -2}, {8, 3000}, {8, 4000}, {4, iiSolid}});
    EXPECT_EQ(fields.Left(), 0u);
}

// A drawing with styles, layers with a picture, a counter and items.
void Fill(TestHost& label) {
    TVGRLayer& layer = label.AddLayer();
    layer.SetOptions({lopVisible, lopImage});
    layer.ImageBytes() = std::string("\0\1picture", 9);
    label.GetMeasure().fTitle = u"Plan";
    label.SetActiveLayer(2);
    label.CreatePolyLine({{1, 2}, {30000, 40000}, {5, 60000}});
    label.CreateSector({50000, 50000}, 20000, 10, 100);
}

TEST(BinaryForm, ThereAndBackIsTheSameJson) {
    for (TKSLEditorMode mode : {emLabelling, emFlowChart, emDrawing, emInteractive}) {
        TestHost label(mode, unMM, mode == emDrawing ? 50 : 1);
        Fill(label);
        TestHost copy;
        copy.ReadDocument(std::string_view(label.ToBinary()));
        EXPECT_EQ(JsonOf(copy), JsonOf(label)) << mode;
        EXPECT_EQ(copy.ToBinary(), label.ToBinary()) << mode;
    }
}

TEST(BinaryForm, EveryTruncationIsToldAndLeavesTheBracketClosed) {
    TestHost label(emDrawing);
    Fill(label);
    const std::string bytes = label.ToBinary();
    TestHost copy;
    for (std::size_t size = 1; size < bytes.size(); ++size) {
        EXPECT_THROW(copy.ReadDocument(std::string_view(bytes).substr(0, size)), EVagrel) << size;
        EXPECT_FALSE(copy.HasAnyState({lsReading, lsUpdating})) << size;
    }
}

TEST(BinaryForm, OldVersionsHaveNarrowerFields) {
    const std::string bytes = TestHost().ToBinary();
    const std::size_t scale = bytes.find("A4") + 2;
    auto withVersion = [](std::string old, std::int32_t version) {
        std::memcpy(old.data(), &version, sizeof version);
        return old;
    };
    std::string narrow = withVersion(bytes, 3100);
    narrow.erase(scale + 4, 4);
    TestHost label;
    label.ReadDocument(std::string_view(narrow));
    EXPECT_EQ(label.GetReadedVersion(), 3100);
    EXPECT_EQ(label.ToBinary(), bytes);
    std::string noAngle = withVersion(narrow, 3000);
    noAngle.erase(8, 4);
    label.ReadDocument(std::string_view(noAngle));
    EXPECT_EQ(label.ToBinary(), bytes);
}

TEST(BinaryForm, TextsCountTheirBytes) {
    TBinaryWriter writer;
    writer.Write(std::u16string(200, u'é'));
    EXPECT_EQ(writer.Bytes().substr(0, 2), "\x90\x03"); // 400 bytes in groups of seven bits
    TBinaryReader reader(writer.Bytes());
    EXPECT_EQ(reader.ReadString(), std::u16string(200, u'é'));
    EXPECT_THROW(TBinaryReader("\xFF\xFF\xFF\xFF\xFF\xFF").ReadString(), EStreamError);
    EXPECT_THROW(TBinaryReader("\x05"
                               "ab")
                     .ReadString(),
                 EStreamError);
}

} // namespace
} // namespace vagrel::test
