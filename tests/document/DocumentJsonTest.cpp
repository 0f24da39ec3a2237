// SPDX-License-Identifier: MIT
// The JSON document: the order of its keys, what comes back from it, what other versions and other programs leave out.
#include <tests/support/TestHost.h>

#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/lines/TVGRDimStyle.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/persistence/TJsonArray.h>
#include <vagrel/persistence/TJsonObject.h>

#include <gtest/gtest.h>

namespace vagrel::test {
namespace {

void Read(TestHost& label, std::u16string_view text) {
    TJsonObject root;
    root.Parse(text);
    label.ReadDocument(root);
}

std::string KeysOf(const TJsonObject& json) {
    std::string keys;
    for (auto [name, value] : json)
        (keys += keys.empty() ? "" : " ") += ToUtf8(name);
    return keys;
}

// A document in which little stands at its default.
void Fill(TestHost& label) {
    TVGRMeasure& measure = label.GetMeasure();
    measure.SetPaperSizeMM(297, 210); // A4 turned to landscape
    measure.SetLabelType(ltCircle);
    measure.SetMarTop(0.25f);
    measure.SetNuHor(4);
    measure.SetInnerCircle(0.5f);
    measure.fTitle = u"Título";
    label.GetBackSurf().SetFileName(u"none.png");
    label.GetBackSurf().SetColor(0x80102030);
    label.GetPrintInfo().SetRepetition(3);
    label.GetData().SetJson(u"{\"rows\": [{\"a\": 1}]}");
    label.GetData().SetSaveJson(true);
    label.AddLayer().SetOptions({lopVisible, lopImage});
    label.GetLayer(2).ImageBytes() = std::string("\0\xFF\x7F\x80", 4);
    label.GetLayer(2).SetImgMarRight(0.125f);
    label.AddLayer().SetOptions({lopMap, lopPrintBack});
    label.GetLayer(3).SetMapLatitude(40.41677512);
    label.GetLayer(3).SetMapZoom(-3);
    auto& counter = *new TVGRCounter(label);
    counter.SetNumTo(std::numeric_limits<std::int64_t>::max());
    counter.SetNumFrom(-5);
    (new TVGRDimStyle(label, u"Thin", 0, 0, true, false))->SetExtSize(25);
    label.CreatePolyLine({{0, 0}, {1234, -5678}, {99000000, 5}}).SetLayer(label.GetLayer(3));
    label.CreateSector({50000, 50000}, 20000, 30, 120);
}

TEST(DocumentJson, KeysStandInTheirOrder) {
    for (TKSLEditorMode mode : {emLabelling, emFlowChart, emDrawing, emInteractive}) {
        TestHost label(mode);
        label.CreateLine(0, 0, 1000, 1000);
        const bool drawing = label.HasDrawScale(), paper = mode == emLabelling;
        const std::unique_ptr<TJsonObject> json = label.GetJson();
        EXPECT_EQ(KeysOf(*json),
                  std::string("Version EditorMode Units Angle Measures BackSurface Settings PrintInfo Data Symbols "
                              "Layers ") +
                      (drawing ? "DimStyles " : "") + "Counters Items");
        EXPECT_EQ(json->GetInt(u"Version"), 3200);
        EXPECT_EQ(KeysOf(json->GetObject(u"Measures")),
                  std::string("LabelName Author Note LabelWidth LabelHeight MarginLeft MarginTop Rows Columns RowGap "
                              "ColumnGap PaperWidth PaperHeight PaperSize PaperName ") +
                      (drawing ? "DrawScale " : "") + "ContinousPaper LabelType InnerCircle Format IncludeUnit" +
                      (paper ? "" : " Promoter Project Title Date PlanNumber"));
        EXPECT_EQ(KeysOf(json->GetObject(u"Data")),
                  std::string("DataType LinkData DataSource FieldRepeat SaveJson CsvFileName CsvHeader CsvSeparator "
                              "CsvQuote CsvFields") +
                      (paper ? " ValList ListAsk" : ""));
        EXPECT_EQ(KeysOf(json->GetArray(u"Layers").GetObject(0)),
                  "Name Color BackColor Fill ZPos Options Font LineType PenWidth");
        EXPECT_TRUE(KeysOf(json->GetArray(u"Items").GetObject(0))
                        .starts_with("Type TypeName InID ID Layer Angle Color PenWidth Options Points"));
    }
}

TEST(DocumentJson, PicturesAndMapsOfLayers) {
    TestHost label;
    Fill(label);
    const std::unique_ptr<TJsonObject> json = label.GetJson();
    TJsonArray& layers = json->GetArray(u"Layers");
    const std::string margins = "ImgMarLeft ImgMarTop ImgMarBottom ImgMarRight Img";
    EXPECT_EQ(KeysOf(layers.GetObject(1).GetObject(u"Image")), "File ImageType PrintImage Embeded " + margins);
    EXPECT_EQ(layers.GetObject(1).GetObject(u"Image").GetString(u"Img"), u"AP9/gA==");
    TJsonObject& map = layers.GetObject(2).GetObject(u"Mapping");
    EXPECT_EQ(KeysOf(map),
              "File ImageType PrintImage Embeded Provider Zoom Latitude Longitude ShowMapCenter " + margins);
    EXPECT_EQ(map.GetString(u"Latitude"), u"40.41677512");
}

TEST(DocumentJson, ComesBackByteForByteInEveryModeAndUnit) {
    for (int mode = emLabelling; mode <= emInteractive; ++mode) {
        for (int unit = unMM; unit <= unYd; ++unit) {
            SCOPED_TRACE(testing::Message() << "mode " << mode << ", unit " << unit);
            for (bool filled : {false, true}) {
                TestHost label{TKSLEditorMode(mode), TKSLUnits(unit), 25};
                if (filled)
                    Fill(label);
                TestHost used(emDrawing, unFt, 1000);
                Fill(used);
                Read(used, JsonOf(label));
                EXPECT_EQ(ToUtf8(JsonOf(used)), ToUtf8(JsonOf(label)));
            }
        }
    }
}

TEST(DocumentJson, NothingOfTheDocumentBeforeIsLeft) {
    TestHost label;
    Read(label, u"{\"Version\": 3200, \"Data\": {\"CsvFields\": [{\"Name\": \"a\", \"Caption\": \"b\"}], "
                u"\"ValList\": [{\"Name\": \"v\", \"Values\": \"x\\ny\"}], \"ListAsk\": [{\"Name\": \"q\"}]}}");
    EXPECT_EQ(label.GetData().GetDatasets().size(), 1u);
    const TestHost blank(emFlowChart);
    Read(label, JsonOf(blank));
    EXPECT_EQ(JsonOf(label), JsonOf(blank));
    EXPECT_TRUE(label.GetData().GetDatasets().empty());
}

TEST(DocumentJson, MissingKeysReadAsZeroWithinTheRules) {
    TestHost label;
    Fill(label);
    Read(label, u"{\"Version\": 3100, \"Angle\": 2}");
    EXPECT_EQ(label.GetAngle(), ag180);
    Read(label, u"{\"Version\": 3099, \"Angle\": 2}");
    EXPECT_EQ(label.GetAngle(), ag0) << "older documents have no angle";
    EXPECT_EQ(label.ItemsCount(), 0);
    EXPECT_EQ(label.LayersCount(), 1) << "never without a layer";
    EXPECT_EQ(label.DimStylesCount(), 1);
    EXPECT_EQ(label.GetMeasure().GetSize(mtPaperWidth, false), 5000);
    EXPECT_EQ(label.GetSettings().BaseTermSize(), 500);
    EXPECT_EQ(label.GetPrintInfo().GetRepetition(), 1);
    EXPECT_THROW(Read(label, u"{\"EditorMode\": 2}"), EOutOfRange) << "a drawing needs its scale";
    EXPECT_EQ(label.LayersCount(), 1) << "also after a read that failed";
    EXPECT_FALSE(label.HasAnyState({lsReading, lsUpdating}));
}

TEST(DocumentJson, DimensionStylesBelongToDrawings) {
    TestHost label;
    const std::u16string styles =
        u"\"Measures\": {\"DrawScale\": 1}, \"DimStyles\": [{\"Name\": \"A\", \"ExtSize\": 3, "
        u"\"ExtGap\": 15, \"ArrowOpen\": 90}, {\"Name\": \"B\"}]}";
    Read(label, u"{\"EditorMode\": 1, " + styles);
    EXPECT_EQ(label.DimStylesCount(), 1);
    Read(label, u"{\"EditorMode\": 2, " + styles);
    ASSERT_EQ(label.DimStylesCount(), 2);
    EXPECT_EQ(label.GetActiveDimStyle().GetName(), u"A");
    const std::unique_ptr<TJsonObject> json = label.GetJson();
    TJsonObject& style = json->GetArray(u"DimStyles").GetObject(0);
    EXPECT_EQ(style.GetFloat(u"ExtGap"), 2);
    EXPECT_EQ(style.GetInt(u"ArrowOpen"), 22);
}

TEST(DocumentJson, ItemsMendTheirFrame) {
    TestHost label;
    Read(label,
         u"{\"Layers\": [{\"Name\": \"a\"}, {\"Name\": \"b\"}], \"Items\": ["
         u"{\"Type\": 2, \"InID\": 41, \"ID\": \"same\", \"Layer\": 99, \"Options\": {\"Print\": true, \"Box\": true},"
         u" \"Points\": [{\"X\": 10.12345}, {\"Y\": 2}, {\"X\": 3}]},"
         u"{\"Type\": 4, \"InID\": 7, \"ID\": \"same\", \"Layer\": 1, \"Points\": [{}, {}, {}]},"
         u"{\"Type\": 6, \"Layer\": 2147483647}, {\"Type\": 6, \"Layer\": -1}]}");
    ASSERT_EQ(label.ItemsCount(), 4);
    const TVGRBaseItem& line = *label.GetItem(1);
    EXPECT_EQ(line.GetLayer().GetName(), u"a");
    EXPECT_EQ(line.NumPoints(), 2);
    EXPECT_EQ(line.GetPoint(1).bX, 10123);
    EXPECT_EQ(line.GetOptions(), TKSLayerOpts{lopPrint});
    EXPECT_EQ(label.GetItem(2)->GetID(), u"same");
    EXPECT_EQ(label.GetItem(2)->GetLayer().GetName(), u"b");
    EXPECT_EQ(label.GetItem(2)->NumPoints(), 3);
    EXPECT_EQ(label.CreateLine(0, 0, 1, 1).GetInID(), 42);
}

} // namespace
} // namespace vagrel::test
