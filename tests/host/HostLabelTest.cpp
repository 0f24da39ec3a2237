// SPDX-License-Identifier: MIT
// The reference host: what its factories make, and files that are good, bad or out of reach.
#include <tests/support/TestHost.h>

#include <host/ItemRegistry.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/platform/Files.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

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

TEST_F(HostLabelTest, FactoriesPlaceItemsOnTheActiveLayer) {
    struct TCase {
        TKSLItemType type;
        std::function<TVGRBaseItem&(TestHost&)> make;
        TKSLPtoA points;
    };
    const TCase cases[] = {{itPoint, [](TestHost & h) -> auto& {return h.CreatePoint(1, 2);
}
, {
    { 1, 2 }
}
} // namespace
, {itLine, [](TestHost& h) -> auto& {return h.CreateLine(1, 2, 3, 4);
} // namespace vagrel::test
, {
    {1, 2}, { 3, 4 }
}
}
, {itPolyLine, [](TestHost& h) -> auto& {return h.CreatePolyLine({{1, 2}, {3, 4}, {5, 6}});
}
, {
    {1, 2}, {3, 4}, { 5, 6 }
}
}
, {itPolygon, [](TestHost& h) -> auto& {return h.CreatePolygon({{0, 0}, {9, 0}, {9, 9}});
}
, {
    {0, 0}, {9, 0}, { 9, 9 }
}
}
, {itRectangle, [](TestHost& h) -> auto& {return h.CreateRectangle(1, 2, 10, 20);
}
, {
    {1, 2}, { 11, 22 }
}
}
, {itCircle, [](TestHost& h) -> auto& {return h.CreateCircle({100, 200}, 50);
}
, {
    {50, 150}, { 150, 250 }
}
}
, {itCircle, [](TestHost& h) -> auto& {return h.CreateCircle2P({0, 0}, {100, 0});
}
, {
    {0, -50}, { 100, 50 }
}
}
, {itCircle, [](TestHost& h) -> auto& {return h.CreateCircle3P({0, 0}, {50, 50}, {100, 0});
}
, {
    {0, -50}, { 100, 50 }
}
}
, {itEllipse, [](TestHost& h) -> auto& {return h.CreateEllipse({0, 0}, 30, 20);
}
, {
    {-30, -20}, { 30, 20 }
}
}
, {itSector, [](TestHost& h) -> auto& {return h.CreateSector({0, 0}, 40, 0, 90);
}
, {
    {-40, -40}, { 40, 40 }
}
}
,
}
;
for (const TCase& test : cases) {
    TestHost label;
    label.AddLayer();
    label.SetActiveLayer(2);
    const TVGRBaseItem& item = test.make(label);
    SCOPED_TRACE(testing::Message() << "type " << test.type);
    EXPECT_EQ(item.GetItemType(), test.type);
    EXPECT_EQ(&item.GetLayer(), &label.GetLayer(2));
    ASSERT_EQ(std::size_t(item.NumPoints()), test.points.size());
    for (int i = 1; i <= item.NumPoints(); ++i)
        EXPECT_EQ(item.GetPoint(i), test.points[std::size_t(i - 1)]) << i;
}
}

TEST_F(HostLabelTest, AFactoryThatThrowsLeavesNoItem) {
    TestHost label;
    EXPECT_THROW(label.CreateCircle3P({0, 0}, {1, 1}, {2, 2}), EInvalidOperation);
    EXPECT_THROW(label.CreatePolygon({{0, 0}, {1, 1}}), EVagrel);
    EXPECT_THROW(MakeItem(label, label.GetLayer(1), TKSLItemType(30), 0), EVagrel);
    EXPECT_EQ(label.ItemsCount(), 0);

    TBinaryWriter snapshot;
    snapshot.Write(std::int32_t(3200));
    label.CreateLine(1, 2, 3, 4).WriteData(snapshot);
    const std::string bytes = snapshot.Take();
    EXPECT_EQ(label.CreateElementFromStream(bytes).GetPoint(2), (TKSLPto{3, 4}));
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_THROW(label.CreateElementFromStream(std::string_view(bytes).substr(0, length)), EStreamError) << length;
    EXPECT_EQ(label.ItemsCount(), 2);
}

TEST_F(HostLabelTest, BadFilesAreRefusedWithTheirPlace) {
    struct TCase {
        const char* what;
        const char* text;
        const char* told;
    };
    const TCase cases[] = {
        {"empty", "", "empty"},
        {"blank", " \r\n\t", "empty"},
        {"binary", "VGR\x01", "Not a JSON document"},
        {"array", "[]", "Not a JSON document"},
        {"truncated", "{\"Version\": 3200, \"Items\": [", "(1, 29)"},
        {"trailing text", "{}\n{}", "(2, 1)"},
        {"text for an object", "{\"Measures\": \"wide\"}", "Measures: Cannot cast String into Object"},
        {"object for a number", "{\"Measures\": {\"Rows\": {}}}", "Measures: Cannot cast"},
        {"word for a number", "{\"Measures\": {\"Rows\": \"many\"}}", "Measures: 'many'"},
        {"object for a list", "{\"Layers\": {}}", "Layers: Cannot cast Object into Array"},
        {"number for a layer", "{\"Layers\": [{}, 5]}", "Layers[1]: Cannot cast"},
        {"no Base64",
         "{\"Layers\": [{\"Options\": {\"Map\": true}, \"Mapping\": {\"Embeded\": true, \"Img\": \"*\"}}]}",
         "Layers[0]: Not Base64"},
        {"no type", "{\"Items\": [{}]}", "Items[0]: Unknown item type 0"},
        {"unknown type", "{\"Items\": [{\"Type\": 1}, {\"Type\": -7}]}", "Items[1]: Unknown item type -7"},
        {"type to come", "{\"Items\": [{\"Type\": 24}]}", "Items[0]: Items of type 24 (Symbol) are not available yet"},
        {"bad point", "{\"Items\": [{\"Type\": 1, \"Points\": [3]}]}", "Items[0]: Cannot cast"},
        {"huge coordinate", "{\"Items\": [{\"Type\": 1, \"Points\": [{\"X\": 1e308}]}]}", "Items[0].Points[0].X: "},
        {"2^63", "{\"Measures\": {\"LabelWidth\": 9223372036854775808}}", "Measures.LabelWidth: "},
        {"beyond double", "{\"Measures\": {\"LabelWidth\": -1e999}}", ""},
        {"huge number of an item", "{\"Items\": [{\"Type\": 1, \"InID\": 2147483647}]}", "Items[0]: InID"},
        {"negative scale", "{\"EditorMode\": 2, \"Measures\": {\"DrawScale\": -1}}", "Measures: Drawing scale"},
        {"bad data", "{\"Data\": {\"SaveJson\": true, \"DataJson\": \"{\\\"a\\\": [}\"}}", "Data: DataJson: "},
        {"bad data and bad item", "{\"Data\": {\"SaveJson\": true, \"DataJson\": \"none\"}, \"Items\": [5]}",
         "Items[0]: Cannot cast"},
    };
    TestHost empty, full(emDrawing, unINCH, 20);
    const TestHost blank;
    full.AddLayer();
    TVGRBaseItem& line = full.CreateLine(1, 2, 3, 4);
    full.AddToSelection(line, false);
    const std::u16string before = JsonOf(full);
    for (const TCase& test : cases) {
        SCOPED_TRACE(test.what);
        for (TestHost* label : {&empty, &full}) {
            const std::string told = Refusal(*label, test.text);
            EXPECT_TRUE(told.starts_with(Path("bad.json") + ": ")) << told;
            EXPECT_THAT(told, HasSubstr(test.told));
            EXPECT_EQ(told.find('\n'), std::string::npos);
            EXPECT_FALSE(label->HasAnyState({lsReading, lsUpdating}));
        }
        EXPECT_EQ(JsonOf(empty), JsonOf(blank));
        ASSERT_EQ(JsonOf(full), before);
        ASSERT_EQ(full.GetSelection(1), &line) << "not one that looks the same";
    }
    EXPECT_TRUE(full.GetModified());
}

TEST_F(HostLabelTest, UnsavedSettingsOutliveABadFile) {
    TestHost label(emDrawing, unM, 50); // no items, and not marked as modified
    label.SetModified(false);
    const std::u16string before = JsonOf(label);
    EXPECT_THAT(Refusal(label, "{\"Units\": 1, \"Layers\": [3]}"), HasSubstr("Layers[0]"));
    EXPECT_EQ(JsonOf(label), before);
}

TEST_F(HostLabelTest, FilesOutOfReach) {
    TestHost label;
    WriteFile(Path("file"), "keep");
    fs::create_directory(Path("folder"));
    fs::create_symlink("file", Path("link"));
    for (const std::string& name : {Path("none.json"), Path("folder"), Path("file/in.json"), std::string()})
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
    TestHost other(emDrawing);
    other.LoadFromFile(FromUtf8(Path("file")));
    EXPECT_EQ(JsonOf(other), JsonOf(label));
}

} // namespace
} // namespace vagrel::test
