// SPDX-License-Identifier: MIT
// Layers: their order, their items, their background.
#include <tests/document/ProbeItem.h>

#include <vagrel/document/TVGRLayer.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace vagrel::test {
namespace {

using testing::ElementsAre;

TEST(Layers, TheBaseLayerStaysAndTheActiveOneIsKept) {
    TestHost label;
    for (const char16_t* name : {u"B", u"C", u"D"})
        label.AddLayer().SetName(name);
    ProbeItem& onC = MakeProbe(label, itLine);
    auto& preview = *new ProbeItem(label, itLine, {{0, 0}, {1, 1}}, true);
    onC.SetLayer(label.GetLayer(3)), preview.SetLayer(label.GetLayer(3));
    EXPECT_TRUE(label.SetActiveLayer(4));
    for (int index : {0, 1, 5}) {
        EXPECT_FALSE(label.DeleteLayer(index));
        EXPECT_FALSE(label.ExchangeLayers(2, index));
    }
    EXPECT_TRUE(label.ExchangeLayers(2, 3));
    EXPECT_THAT(label.GetLayersNames(), ElementsAre(u"Default", u"C", u"B", u"D"));
    EXPECT_TRUE(label.DeleteLayer(2));
    EXPECT_EQ(&onC.GetLayer(), &label.GetLayer(1));
    EXPECT_EQ(&preview.GetLayer(), &label.GetLayer(1));
    EXPECT_EQ(label.ActiveLayer().GetName(), u"D");
    EXPECT_TRUE(label.DeleteLayer(3));
    EXPECT_EQ(&label.ActiveLayer(), &label.GetLayer(0)); // the first one, out of range
}

TEST(Layers, MarginsAreClampedAndTheBackgroundIsTheTopmostVisible) {
    TestHost label; // 60 mm by 35 mm
    TVGRLayer& layer = label.AddLayer();
    layer.SetImgMarLeft(-3);
    EXPECT_EQ(layer.GetImgMarLeft(), 0);
    layer.SetImgMarRight(60), layer.SetImgMarLeft(60.001f), layer.SetImgMarTop(36);
    EXPECT_EQ(layer.GetImgMarRight(), 60);
    EXPECT_EQ(layer.GetImgMarLeft(), 30);
    EXPECT_EQ(layer.GetImgMarTop(), 17.5f);
    EXPECT_FALSE(label.HasBackMargins());
    layer.SetOptions({lopVisible, lopImage});
    EXPECT_EQ(label.GetIdxLayerBack(), 2);
    EXPECT_TRUE(label.HasBackMargins());
    EXPECT_THROW(layer.SetOptions({lopImage, lopMap}), EInvalidOperation);
    EXPECT_TRUE(layer.GetOptions().Has(lopVisible));
    label.Clear({cleLayers}, false);
    EXPECT_EQ(label.GetIdxLayerBack(), -1);
}

TEST(Layers, StyleAndPaintOrderAreGivenToTheItems) {
    TestHost label;
    TVGRLayer& layer = label.AddLayer();
    auto& on = *new ProbeBox(label, itRectangle, {{0, 0}, {1, 1}});
    TVGRBaseItem& first = MakeProbe(label, itLine);
    on.SetLayer(layer);
    RecordingObserver editor(duEditor);
    label.Attach(&editor);
    editor.Take();
    layer.SetColor(0xFF0000FF, true), layer.SetBackColor(0xFF00FF00, false);
    EXPECT_THAT(editor.Take(), ElementsAre(chPaint));
    EXPECT_EQ(on.GetColor(), 0xFF0000FF);
    EXPECT_EQ(first.GetColor(), OpaqueBlack);
    EXPECT_EQ(on.GetBackColor(), OpaqueWhite);
    layer.SetPenWidth(2);
    layer.SetValues();
    EXPECT_EQ(on.GetBackColor(), 0xFF00FF00);
    EXPECT_EQ(on.GetPenWidth(), 2);
    EXPECT_THROW(layer.SetName(u""), EVagrel);
    EXPECT_EQ(label.GetItem(1), &on);
    label.SetLayerZOrder(true);
    EXPECT_EQ(label.GetItem(1), &first);
}

TEST(Layers, APictureIsCopiedIntoTheImageFolderOnce) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(testing::TempDir()) / "vagrel_layers";
    fs::remove_all(folder);
    fs::create_directories(folder / "images");
    for (const char* name : {"a.png", "b.PNG"})
        std::ofstream(folder / name) << name;
    TestHost label;
    label.SetImageFolder(FromUtf8((folder / "images").string()));
    TVGRLayer& layer = label.GetLayer(1);
    layer.SetFileImgSize(3);
    layer.SetFileImg(FromUtf8((folder / "a.png").string()));
    EXPECT_TRUE(fs::exists(folder / "images" / "a.png"));
    EXPECT_EQ(layer.GetFileImg(), u"a.png");
    EXPECT_EQ(layer.GetImageType(), itPng);
    EXPECT_TRUE(layer.ImageBytes().empty());
    layer.SetFileImg(FromUtf8((folder / "b.PNG").string()));
    EXPECT_EQ(layer.GetImageType(), itJpeg); // compared exactly
    EXPECT_THROW(layer.SetFileImg(FromUtf8((folder / "none.gif").string())), EStreamError);
    EXPECT_EQ(layer.GetFileImg(), u"b.PNG");
    fs::remove_all(folder);
}

} // namespace
} // namespace vagrel::test
