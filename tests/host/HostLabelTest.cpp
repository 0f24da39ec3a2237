// SPDX-License-Identifier: MIT
// The reference host: what its factories make, and files that are good, bad or out of reach.
#include <tests/support/TestHost.h>

#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/foundation/Units.h>
#include <vagrel/persistence/TJsonObject.h>
#include <vagrel/platform/Files.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

namespace vagrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class HostLabelTest : public testing::Test {
protected:
    HostLabelTest() { fs::create_directory(fFolder); }
    ~HostLabelTest() override { fs::remove_all(fFolder); }

    // What a load says that must fail.
    std::string Refusal(TestHost& label, const std::string& text) {
        WriteFile(Path("bad.json"), text);
        try {
            label.LoadFromFile(FromUtf8(Path("bad.json")));
        } catch (const EVagrel& error) {
            return error.what();
        }
        return "taken";
    }
    std::string Path(const std::string& name) const { return (fFolder / name).string(); }

    const fs::path fFolder =
        fs::path(testing::TempDir()) / testing::UnitTest::GetInstance()->current_test_info()->name();
};

TEST_F(HostLabelTest, BadFilesAreRefusedWithTheirPlace) {
    struct TCase {
        const char* what;
        const char* text;
        const char* told;
    };
    const TCase cases[] = {
        {"empty", "", "empty"},
        {"array", "[]", "Not a document"},
        {"truncated", "{\"Version\": 3200, \"Items\": [", "(1, 29)"},
        {"text for an object", "{\"Measures\": \"wide\"}", "Measures: Cannot cast String into Object"},
        {"word for a number", "{\"Measures\": {\"Rows\": \"many\"}}", "Measures: 'many'"},
        {"object for a list", "{\"Layers\": {}}", "Layers: Cannot cast Object into Array"},
        {"number for a layer", "{\"Layers\": [{}, 5]}", "Layers[1]: Cannot cast"},
        {"no Base64",
         "{\"Layers\": [{\"Options\": {\"Map\": true}, \"Mapping\": {\"Embeded\": true, \"Img\": \"*\"}}]}",
         "Layers[0]: Not Base64"},
        {"unknown type", "{\"Items\": [{\"Type\": 1}, {\"Type\": -7}]}", "Items[1]: Unknown item type -7"},
        {"type to come", "{\"Items\": [{\"Type\": 24}]}", "Items[0]: Items of type 24 (Symbol) are not available yet"},
        {"huge coordinate", "{\"Items\": [{\"Type\": 1, \"Points\": [{\"X\": 1e308}]}]}", "Items[0].Points[0].X: "},
        {"2^63", "{\"Measures\": {\"LabelWidth\": 9223372036854775808}}",
         "Measures.LabelWidth: 9223372036854775808 is not allowed, only numbers below 9.3E15"},
        {"huge number of an item", "{\"Items\": [{\"Type\": 1, \"InID\": 2147483647}]}",
         "Items[0]: InID: 2147483647 is not allowed, only numbers up to 1073741824"},
        {"negative scale", "{\"EditorMode\": 2, \"Measures\": {\"DrawScale\": -1}}", "Measures: Drawing scale"},
        {"bad data", "{\"Data\": {\"SaveJson\": true, \"DataJson\": \"{\\\"a\\\": [}\"}}", "Data: DataJson: "},
        {"bad data and bad item", "{\"Data\": {\"SaveJson\": true, \"DataJson\": \"none\"}, \"Items\": [5]}",
         "Items[0]: Cannot cast"},
    };
    TestHost blank, empty(emDrawing, unM, 50), full(emDrawing, unINCH, 20);
    empty.SetModified(false); // has settings to lose all the same
    const std::u16string emptyBefore = JsonOf(empty);
    full.AddLayer();
    TVGRBaseItem& line = full.CreateLine(1, 2, 3, 4);
    full.AddToSelection(line, false);
    const std::u16string before = JsonOf(full);
    for (const TCase& test : cases) {
        SCOPED_TRACE(test.what);
        for (TestHost* label : {&blank, &empty, &full}) {
            const std::string told = Refusal(*label, test.text);
            EXPECT_TRUE(told.starts_with(Path("bad.json") + ": ")) << told;
            EXPECT_THAT(told, HasSubstr(test.told));
            EXPECT_EQ(told.find('\n'), std::string::npos);
            EXPECT_FALSE(label->HasAnyState({lsReading, lsUpdating}));
        }
        EXPECT_EQ(JsonOf(blank), JsonOf(TestHost()));
        EXPECT_EQ(JsonOf(empty), emptyBefore);
        ASSERT_EQ(JsonOf(full), before);
        ASSERT_EQ(full.GetSelection(1), &line) << "not one that looks the same";
    }
    EXPECT_TRUE(full.GetModified());
}

TEST_F(HostLabelTest, EveryEncodingOfJsonOpens) {
    TestHost label(emDrawing, unM, 50);
    label.CreateLine(1, 2, 3, 4).SetID(u"é😀");
    for (const TJsonEncoding encoding : {jeUtf8, jeUtf8Bom, jeUtf16LE, jeUtf16BE}) {
        label.GetJson()->SaveToFile(Path("in.json"), false, encoding);
        TestHost other;
        other.LoadFromFile(FromUtf8(Path("in.json")));
        EXPECT_EQ(JsonOf(other), JsonOf(label)) << encoding;
    }
    TestHost other;
    using namespace std::string_literals;
    EXPECT_THAT(Refusal(other, "\xFF\xFE{\0\0\xD8"s), HasSubstr("in UTF-16 text (1, 2)"));
    EXPECT_THAT(Refusal(other, "\xFE\xFF\0[\0]"s), HasSubstr("Not a document"));
    EXPECT_THAT(Refusal(other, "\xFF\xFE"s), HasSubstr("empty"));
}

TEST_F(HostLabelTest, ANumberAtTheEndIsRefusedInFilesAndSurvivesUndo) {
    TestHost label, other;
    TVGRBaseItem& line = label.CreateLine(1, 2, 3, 4);
    line.SetInID(std::numeric_limits<std::int32_t>::max());
    const std::string bytes = label.ToBinary();
    EXPECT_THAT(Refusal(other, bytes), HasSubstr("Items[0]: InID: 2147483647"));
    label.AddToSelection(line, true);
    label.DeleteSelection();
    ASSERT_EQ(label.ItemsCount(), 0);
    label.Undo();
    ASSERT_EQ(label.ItemsCount(), 1);
    EXPECT_EQ(label.ToBinary(), bytes);
}

TEST_F(HostLabelTest, PointsFarOutStayInJsonWhereItIsAsked) {
    // 2^14 mm is where single precision leaves the third decimal.
    for (const std::int64_t x : std::initializer_list<std::int64_t>{16383999, 16384001, -20000123, 2147483647123}) {
        for (const bool exact : {true, false}) {
            TestHost label, other;
            label.SetExactJson(exact), other.SetExactJson(exact);
            label.CreateLine(0, 0, x, -x);
            other.ReadDocument(*label.GetJson());
            const TKSLPto read = other.GetItem(1)->GetPoint(2), through{SetValue(GetValue(x, unMM), unMM), 0};
            EXPECT_EQ(read.bX, exact ? x : through.bX) << x;
            EXPECT_EQ(read.bY, exact ? -x : -through.bX) << x;
        }
    }
    EXPECT_TRUE(HostLabel().GetExactJson());
}

TEST_F(HostLabelTest, FilesOutOfReach) {
    TestHost label;
    WriteFile(Path("file"), "keep");
    fs::create_directory(Path("folder"));
    fs::create_symlink("file", Path("link"));
    for (const std::string& name : {Path("none.json"), Path("folder"), std::string()})
        EXPECT_THROW(label.LoadFromFile(FromUtf8(name)), EStreamError) << name;
    label.SetModified(true);
    for (const std::string& name :
         {Path("folder"), Path("none/out.json"), Path("file/out.json"), std::string("/dev/full"), std::string()})
        EXPECT_THROW(label.SaveToFile(FromUtf8(name), lfJSON), EStreamError) << name;
    EXPECT_TRUE(label.GetModified());
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_EQ(ReadFile(Path("file")), "keep");
    EXPECT_EQ(std::distance(fs::directory_iterator(fFolder), {}), 3) << "a temporary file stayed";

    label.SaveToFile(FromUtf8(Path("link")), lfJSON);
    EXPECT_TRUE(fs::is_symlink(Path("link"))) << "what it points to is replaced";
    EXPECT_EQ(ReadFile(Path("file")), ToUtf8(JsonOf(label)));
    EXPECT_FALSE(label.GetModified());
}

} // namespace
} // namespace vagrel::test
