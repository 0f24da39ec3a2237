// SPDX-License-Identifier: MIT
// Look-ups by number, identifier and sheet cell: the answers of a walk, at any size and whatever happened before.
#include <tests/document/ProbeItem.h>

#include <vagrel/document/Transaction.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TJsonObject.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace vagrel::test {
namespace {

using testing::ElementsAre;

class Lookup : public testing::Test {
protected:
    Lookup() { label.SetOptions({loUndoRedo}); }

    int Below(int limit) { return int(random() % unsigned(limit)); }
    std::u16string AnyID() { return std::u16string(1, u"aAbBÄäж"[Below(7)]); }

    void Act() {
        TVGRBaseItem* item = label.GetItem(1 + Below(label.ItemsCount() + 1));
        switch (Below(14)) {
        case 0:
        case 1:
            return void(label.CreateLine(0, 0, 10, 10));
        case 2:
            return item ? label.DeleteItem(*item, false) : void();
        case 3:
        case 4:
            return item ? item->SetFixedID(AnyID()) : void();
        case 5:
            return item ? item->SetID(AnyID()) : void();
        case 6:
            return item ? item->SetInID(1 + Below(6)) : void();
        case 7:
            return item ? item->SetName() : void();
        case 8:
            if (item)
                item->ReadJson(3200, *label.GetItem(1)->WriteJson());
            return;
        case 9:
            label.SetSelection(item, isSelected);
            label.CopySelection();
            return label.PasteSelection();
        case 10:
            label.SetSelection(item, isSelected);
            return Below(2) ? label.BringToFront() : label.SendToBack();
        case 11:
            return Below(2) ? label.Undo() : label.Redo();
        case 12:
            return Below(9) == 0 ? label.Clear({cleItems}, false) : void();
        default: {
            if (label.InTransaction())
                return;
            Transaction change(label);
            for (int i = 0; i < 3; ++i) {
                Act();
                Check();
            }
            if (Below(2))
                change.Commit();
        }
        }
    }

    void Check() {
        auto first = [&](auto wanted) -> TVGRBaseItem* {
            for (int i = 1; i <= label.ItemsCount(); ++i)
                if (wanted(*label.GetItem(i)))
                    return label.GetItem(i);
            return nullptr;
        };
        for (int number = 0; number < 12; ++number)
            ASSERT_EQ(label.SearchItem(number, false), first([&](auto& item) { return item.GetInID() == number; }));
        for (const std::u16string id : {u"A", u"b", u"Ä", u"ж", u"Line001", u""}) {
            TVGRBaseItem* item = first([&](auto& each) { return SameText(each.GetID(), id); });
            ASSERT_EQ(label.SearchItem(id, false), item);
            ASSERT_EQ(label.RepeatID(id, nullptr), item != nullptr);
            ASSERT_EQ(label.RepeatID(id, item),
                      first([&](auto& each) { return &each != item && SameText(each.GetID(), id); }) != nullptr);
        }
    }

    std::mt19937 random;
    TestHost label;
};

TEST_F(Lookup, AnswersAsAWalkWouldWhateverHappened) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        random.seed(seed);
        label.New();
        for (int step = 0; step < 120 && !HasFatalFailure(); ++step) {
            SCOPED_TRACE("seed " + std::to_string(seed) + " step " + std::to_string(step));
            Act();
            Check();
        }
    }
}

TEST_F(Lookup, CopiesOfACellFollowTheirPlaceAndTheirEnd) {
    std::vector<TVGRBaseItem*> copies;
    for (int i = 0; i < 3; ++i) {
        copies.push_back(new ProbeItem(label, itLine, {{0, 0}, {1, 1}}, true));
        copies.back()->PreviewPos(2, 1); // column, row
    }
    EXPECT_THAT(label.PreviewOf(1, 2), ElementsAre(copies[0], copies[1], copies[2]));
    EXPECT_TRUE(label.PreviewOf(2, 1).empty());
    copies[1]->PreviewPos(-1, -1);
    delete copies[0];
    EXPECT_THAT(label.PreviewOf(1, 2), ElementsAre(copies[2]));
    EXPECT_THAT(label.PreviewOf(-1, -1), ElementsAre(copies[1]));
    label.Clear({clePreview}, false);
    EXPECT_TRUE(label.PreviewOf(1, 2).empty());
}

} // namespace
} // namespace vagrel::test
