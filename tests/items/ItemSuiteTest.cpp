// SPDX-License-Identifier: MIT
// What holds for every kind of item that the host can make. A kind without a sample fails all of it.
#include <tests/support/ItemSuite.h>

#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TBinaryWriter.h>
#include <vagrel/persistence/TJsonObject.h>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace vagrel::test {
namespace {

// A drawing in a unit and a scale that show where one of them is forgotten.
struct Drawing : TestHost {
    Drawing() : TestHost(emDrawing, unCM, 10) {
        GetMeasure().SetLabelSizeMM(1000, 800);
        AddLayer().SetName(u"Second");
    }
};

std::string Form(const TVGRBaseItem& item) { return item.WriteJson()->ToUtf8JSON(false); }

std::map<std::string, std::string> MembersOf(const TJsonObject& json) {
    std::map<std::string, std::string> members;
    for (auto [name, value] : json) {
        TJsonObject alone;
        alone.SetValue(u"value", value.Clone());
        members[ToUtf8(name)] = alone.ToUtf8JSON();
    }
    return members;
}

class EveryItem : public testing::TestWithParam<TKSLItemType> {
protected:
    void SetUp() override {
        sample = SampleOf(GetParam());
        ASSERT_TRUE(sample) << "no sample";
        item = &MakeSample(label, *sample);
    }

    const TItemSample* sample = nullptr;
    Drawing label;
    TVGRBaseItem* item = nullptr;
};

TEST_P(EveryItem, SurvivesJson) {
    SetEverything(*item);
    item->SetLayer(label.GetLayer(2));
    const std::string form = label.GetJson()->ToUtf8JSON(false);
    TJsonObject root;
    root.ParseUtf8(form);
    TestHost copy;
    copy.ReadDocument(root);
    EXPECT_EQ(copy.GetJson()->ToUtf8JSON(false), form);
    ASSERT_EQ(copy.ItemsCount(), 1);
    EXPECT_EQ(copy.GetItem(1)->Points(), item->Points());
    EXPECT_EQ(copy.GetItem(1)->BoundsRect(), item->BoundsRect());
    EXPECT_EQ(copy.SVG(svCurrentUnit, 1, true), label.SVG(svCurrentUnit, 1, true));
}

TEST_P(EveryItem, SurvivesTheBinaryForm) {
    SetEverything(*item);
    item->SetLayer(label.GetLayer(2));
    TBinaryWriter writer;
    writer.Write(std::int32_t(0));
    item->Write(writer);
    const std::string& bytes = writer.Bytes();
    Drawing other;
    const TVGRBaseItem& copy = [&]() -> TVGRBaseItem& {
        const UpdateScope measuring(other);
        return other.CreateElementFromStream(bytes);
    }();
    EXPECT_EQ(Form(copy), Form(*item));
    EXPECT_EQ(copy.BoundsRect(), item->BoundsRect());
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_THROW(other.CreateElementFromStream(std::string_view(bytes).substr(0, size)), EStreamError) << size;
}

TEST_P(EveryItem, AddsItsOwnToTheFilesOfAll) {
    const auto json = item->WriteJson();
    std::string keys;
    for (const auto& member : *json)
        keys = member.Name == u"Points" ? "" : keys + ToUtf8(member.Name) + ' ';
    EXPECT_EQ(keys, sample->keys);
    TBinaryWriter writer;
    item->Write(writer);
    EXPECT_EQ(writer.Bytes().size(), 29 + item->GetID().size() + 16 * item->Points().size() + sample->bytes);
}

TEST_P(EveryItem, WritesSvgInEveryMode) {
    SetEverything(*item);
    TestHost empty(emDrawing, unCM, 10);
    empty.GetMeasure().SetLabelSizeMM(1000, 800);
    for (const TKSLExportSVG mode : {svCurrentUnit, svCurUnitNoMed, svFactor, svFactorPx}) {
        item->SetOptions({lopVisible, lopExport});
        const std::string plain = label.SVG(mode, 2, false), named = label.SVG(mode, 2, true);
        EXPECT_TRUE(IsWellFormed(plain)) << plain;
        EXPECT_TRUE(IsWellFormed(named)) << named;
        EXPECT_EQ(plain.find(" id="), std::string::npos);
        EXPECT_EQ(named.find(" id=\"MyItemñ1\" ") != std::string::npos, sample->type != itPoint) << named;
        for (const TKSLayerOpts hidden : {TKSLayerOpts{lopVisible}, TKSLayerOpts{lopExport}}) {
            item->SetOptions(hidden);
            EXPECT_EQ(label.SVG(mode, 2, true), empty.SVG(mode, 2, true));
        }
    }
}

TEST_P(EveryItem, IsPickedWhereItIs) {
    EXPECT_TRUE(item->Pick(sample->on.bX, sample->on.bY, 300, true));
    EXPECT_FALSE(item->Pick(sample->on.bX + 600000, sample->on.bY, 300, true));
    EXPECT_FALSE(item->Pick(sample->on.bX, sample->on.bY - 300000, 300, true));
    const TKSLRect around{50000, 50000, 700000, 300000}, away{800000, 500000, 900000, 600000};
    for (const bool intersects : {false, true}) {
        EXPECT_TRUE(item->SearchRect(around, intersects));
        EXPECT_FALSE(item->SearchRect(away, intersects));
    }
}

TEST_P(EveryItem, SnapsToItsReferencePoints) {
    TKSLRef ref;
    for (int i = 1; sample->snap && i <= item->GetNumRefPoints(); ++i) {
        const TKSLPto point = item->GetRefPoint(i);
        ref.lbX = ref.lbY = -1;
        EXPECT_TRUE(item->CheckPoint(point.bX, point.bY, 300, *sample->snap, ref)) << i;
        EXPECT_EQ((TKSLPto{ref.bX, ref.bY}), point) << i;
    }
    for (int snap = snPoint; snap <= snPerpendicular; ++snap)
        EXPECT_FALSE(item->CheckPoint(900000, 900000, 300, TKSLSnap(snap), ref)) << snap;
}

TEST_P(EveryItem, TurnsRoundInFourSteps) {
    SetEverything(*item);
    const std::string before = Form(*item);
    const TKSLRect bounds = item->BoundsRect();
    for (int i = 0; i < 4; ++i) {
        item->RotateLeft();
        EXPECT_EQ(Form(*item) == before, i == 3) << i;
    }
    EXPECT_EQ(item->BoundsRect(), bounds);
}

TEST_P(EveryItem, UndoesAndRedoesEverySetter) {
    std::set<std::string> unrecorded;
    for (const TSetter& set : SettersOf(*item)) {
        label.Clear({cleUndoRedo}, false);
        const auto before = item->WriteJson();
        {
            const UpdateScope measuring(label);
            set();
        }
        const auto after = item->WriteJson();
        if (label.IsUndoEmpty()) {
            const auto from = MembersOf(*before);
            for (const auto& [name, value] : MembersOf(*after))
                if (from.at(name) != value)
                    unrecorded.insert(name);
            continue;
        }
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(UndoAll(label), 1);
            EXPECT_EQ(Form(*item), before->ToUtf8JSON(false));
            EXPECT_EQ(RedoAll(label), 1);
            EXPECT_EQ(Form(*item), after->ToUtf8JSON(false));
        }
    }
    std::string keys;
    const auto form = item->WriteJson();
    for (const auto& member : *form)
        if (unrecorded.contains(ToUtf8(member.Name)))
            keys += ToUtf8(member.Name) + ' ';
    EXPECT_EQ(keys, sample->unrecorded);
}

TEST_P(EveryItem, ComesBackFromDeletion) {
    SetEverything(*item);
    label.Clear({cleUndoRedo}, false);
    const std::string form = Form(*item);
    label.DeleteItem(*item, false);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(label.ItemsCount(), 0);
        EXPECT_EQ(UndoAll(label), 1);
        ASSERT_EQ(label.ItemsCount(), 1);
        EXPECT_EQ(Form(*label.GetItem(1)), form);
        EXPECT_EQ(RedoAll(label), 1);
    }
}

TEST_P(EveryItem, PreviewCopiesAreNoItems) {
    const std::string form = label.GetJson()->ToUtf8JSON(false), svg = label.SVG(svCurrentUnit, 1, true);
    label.Clear({cleUndoRedo}, false);
    TVGRBaseItem& copy = sample->preview(label);
    copy.SetColor(0x12345678);
    EXPECT_TRUE(label.IsUndoEmpty());
    EXPECT_EQ(copy.GetItemType(), sample->type);
    EXPECT_TRUE(copy.FromPreview());
    EXPECT_EQ(label.Preview().size(), 1u);
    EXPECT_EQ(label.GetJson()->ToUtf8JSON(false), form);
    EXPECT_EQ(label.SVG(svCurrentUnit, 1, true), svg);
}

INSTANTIATE_TEST_SUITE_P(Items, EveryItem, testing::ValuesIn(AvailableItemTypes()),
                         [](const auto& row) { return ToUtf8(NameItem(row.param)); });

} // namespace
} // namespace vagrel::test
