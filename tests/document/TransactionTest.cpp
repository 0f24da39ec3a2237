// SPDX-License-Identifier: MIT
// Transactions: one step or none, back to the byte, whatever happens in between.
#include <tests/document/ProbeItem.h>
#include <tests/support/ItemSuite.h>

#include <vagrel/document/TVGRBackSurf.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/document/TVGRLayer.h>
#include <vagrel/document/TVGRMeasure.h>
#include <vagrel/document/TVGRSettings.h>
#include <vagrel/document/Transaction.h>
#include <vagrel/document/UpdateScope.h>
#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/items/lines/TVGRDimStyle.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <random>

namespace vagrel::test {
namespace {

using testing::ElementsAre;

// A document as it stands: its JSON, and every member of every item, which JSON rounds or leaves out.
class TStand {
public:
    explicit TStand(TVGRBaseLabel& label) : fJson(JsonOf(label)) {
        for (int i = 1; i <= label.ItemsCount(); ++i)
            fImages.emplace_back(TItemHandle(*label.GetItem(i)), ImageOf(*label.GetItem(i)));
    }
    ::testing::AssertionResult Equals(TVGRBaseLabel& label) const {
        if (const auto json = JsonOf(label); json != fJson)
            return ::testing::AssertionFailure() << "JSON:\n" << ToUtf8(fJson) << "\nis now\n" << ToUtf8(json);
        for (int i = 1; i <= label.ItemsCount(); ++i) {
            const auto& [handle, image] = fImages[std::size_t(i - 1)];
            if (handle.Get() != label.GetItem(i))
                return ::testing::AssertionFailure() << "another item at " << i;
            if (!SameAsImage(*handle, image))
                return ::testing::AssertionFailure() << "members of " << ToUtf8(handle->GetID());
        }
        return ::testing::AssertionSuccess();
    }

private:
    std::u16string fJson;
    std::vector<std::pair<TItemHandle, TImage>> fImages;
};

class Transactions : public testing::Test {
protected:
    Transactions() {
        label.Clear({cleUndoRedo}, false);
        label.OnUndoRedo = [this](auto&&...) { ++told; };
    }

    TestHost label;
    TVGRBaseItem& line = label.CreateLine(1000, 1000, 9000, 5000);
    TVGRBaseItem& box = label.CreateRectangle(10000, 10000, 20000, 8000);
    int told = 0;
};

TEST_F(Transactions, AreOneStepWhateverTheyHold) {
    line.SetFixedID(u"another");
    const TStand before(label);
    Transaction change(label, u"a name", u"somebody");
    line.SetName(); // stored without a command
    line.SetColor(5);
    label.DeleteItem(box, true);
    label.CreateText(3000, 3000);
    label.GetMeasure().fTitle = u"title"; // a public field
    label.GetMeasure().SetWidth(70);
    label.AddLayer().SetName(u"layer");
    label.SetActiveLayer(2);
    (new TVGRCounter(label))->SetName(u"counter");
    label.GetData().AddListVal(u"list");
    label.GetSettings().SetLinkGap(3);
    label.GetPrintInfo().SetRepetition(3);
    EXPECT_EQ(told, 0);
    EXPECT_TRUE(label.IsUndoEmpty());
    EXPECT_TRUE(change.Commit());
    EXPECT_EQ(told, 1);
    EXPECT_EQ(label.UndoName(), u"a name");
    EXPECT_EQ(label.UndoAuthor(), u"somebody");
    const TStand after(label);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(UndoAll(label), 1);
        EXPECT_TRUE(before.Equals(label));
        EXPECT_EQ(label.RedoName(), u"a name");
        EXPECT_EQ(RedoAll(label), 1);
        EXPECT_TRUE(after.Equals(label));
    }
    EXPECT_FALSE(change.Commit());
}

TEST_F(Transactions, LeaveNothingWhereNothingChanged) {
    {
        Transaction idle(label);
        line.SetColor(5);
        line.SetColor(OpaqueBlack);
        label.DeleteItem(label.CreatePoint(1, 1), false);
        EXPECT_FALSE(idle.Commit());
    }
    EXPECT_TRUE(label.IsUndoEmpty());
    EXPECT_EQ(told, 0);
}

TEST_F(Transactions, WithoutCommitEverythingComesBack) {
    const TStand before(label);
    label.SetModified(false);
    label.SetSelection(&box, isSelected);
    RecordingObserver editor(duEditor);
    label.Attach(&editor);
    try {
        const Transaction lost(label);
        const UpdateScope bracket(label);
        label.BeginUpdate(true);
        label.DeleteSelection();
        line.SetPenWidth(4);
        editor.Take();
        throw std::runtime_error("no");
    } catch (const std::runtime_error&) {
    }
    EXPECT_TRUE(before.Equals(label));
    EXPECT_FALSE(label.GetModified());
    EXPECT_FALSE(label.HasAnyState({lsUpdating}));
    EXPECT_TRUE(label.IsUndoEmpty());
    EXPECT_EQ(label.SelectionCount(), 0);
    EXPECT_THAT(editor.Take(), testing::Contains(chPaint));
    EXPECT_EQ(label.CreatePoint(1, 1).GetInID(), 3);
}

TEST_F(Transactions, NestedOnesAreSavepoints) {
    const TStand before(label);
    Transaction outer(label);
    line.SetColor(5);
    {
        Transaction inner(label);
        line.SetColor(6);
        label.DeleteItem(box, true);
        EXPECT_THROW(outer.Commit(), EInvalidOperation);
        inner.Rollback();
        EXPECT_EQ(line.GetColor(), 5u);
        EXPECT_EQ(label.ItemsCount(), 2);
    }
    {
        Transaction inner(label);
        label.CreatePoint(4, 4);
        label.DeleteItem(line, true);
        EXPECT_TRUE(inner.Commit());
    }
    label.Undo(); // nothing while one is open
    EXPECT_TRUE(outer.Commit());
    const TStand after(label);
    EXPECT_EQ(UndoAll(label), 1);
    EXPECT_TRUE(before.Equals(label));
    EXPECT_EQ(RedoAll(label), 1);
    EXPECT_TRUE(after.Equals(label));
}

TEST_F(Transactions, EndWithTheDocumentThatTheyBelongTo) {
    const std::function<void()> ends[] = {[&] { label.New(); }, [&] { label.Clear({cleUndoRedo}, false); },
                                          [&] {
                                              label.BeginRead(false);
                                              label.EndRead(false);
                                          }};
    for (const auto& end : ends) {
        Transaction open(label);
        label.CreatePoint(1, 1);
        end();
        EXPECT_FALSE(open.IsOpen());
        EXPECT_FALSE(open.Commit());
        EXPECT_TRUE(label.IsUndoEmpty());
    }
    label.BeginRead(true);
    EXPECT_THROW(Transaction{label}, EInvalidOperation);
    label.EndRead(false);
}

TEST_F(Transactions, MeetTheOlderSteps) {
    const TStand before(label);
    // A recorded step in front, a bracket around, a deletion and its revival in between.
    line.SetColor(5);
    label.BeginUpdate(true);
    box.SetColor(7);
    {
        Transaction inner(label);
        box.SetPenWidth(2);
        label.BringToFront();
        label.SetSelection(&line, isSelected);
        label.BringToFront();
        EXPECT_TRUE(inner.Commit());
    }
    line.SetPenWidth(3);
    label.EndUpdate();
    label.DeleteItem(box, true);
    label.Undo();
    EXPECT_EQ(UndoAll(label), 2);
    EXPECT_EQ(label.GetItem(1)->GetColor(), OpaqueBlack);
    EXPECT_EQ(label.GetItem(2)->BasePenWidth(), 100);
    EXPECT_EQ(RedoAll(label), 3);
    // The redo of a transaction does not outlive the next recording.
    UndoAll(label);
    line.SetColor(9);
    EXPECT_TRUE(label.IsRedoEmpty());
}

TEST_F(Transactions, RedoneDeletionsKeepWhatIsStillToBeRedone) {
    label.DeleteItem(box, true);
    {
        Transaction change(label);
        line.SetColor(5);
        change.Commit();
    }
    const TStand after(label);
    EXPECT_EQ(UndoAll(label), 2);
    EXPECT_EQ(RedoAll(label), 2);
    EXPECT_TRUE(after.Equals(label));
}

TEST_F(Transactions, EndAllWhenObserversThrow) {
    const TStand before(label);
    RecordingObserver editor(duEditor);
    label.Attach(&editor);
    {
        Transaction outer(label);
        label.CreatePoint(1, 1);
        const Transaction inner(label);
        label.CreatePoint(2, 2);
        editor.onUpdate = [](TKSChange) { throw std::runtime_error("no"); };
        EXPECT_THROW(outer.Rollback(), std::runtime_error);
    }
    EXPECT_FALSE(label.InTransaction());
    EXPECT_TRUE(before.Equals(label));
    // A step is made whatever its notices do.
    editor.onUpdate = {};
    Transaction change(label);
    label.CreatePoint(1, 1);
    label.SetUnits(unCM);
    change.Commit();
    editor.onUpdate = [](TKSChange) { throw std::runtime_error("no"); };
    EXPECT_THROW(label.Undo(), std::runtime_error);
    EXPECT_TRUE(before.Equals(label));
    EXPECT_TRUE(label.IsUndoEmpty());
}

TEST_F(Transactions, BearItemsThatThrowWhenTheyResolve) {
    struct TRefusing : ProbeItem {
        using ProbeItem::ProbeItem;
        void ResolveReferences() override {
            if (refuses)
                throw std::runtime_error("no");
        }
        bool refuses = false;
    };
    auto& item = *new TRefusing(label, itLine, {{0, 0}, {9, 9}});
    const TStand before(label);
    Transaction change(label);
    label.CreatePoint(1, 1);
    line.SetColor(5);
    change.Commit();
    const TStand after(label);
    item.refuses = true;
    for (int i = 0; i < 2; ++i) {
        EXPECT_THROW(label.Undo(), std::runtime_error);
        EXPECT_TRUE(after.Equals(label));
    }
    item.refuses = false;
    label.Undo();
    EXPECT_TRUE(before.Equals(label));
    label.Redo();
    EXPECT_TRUE(after.Equals(label));
}

TEST_F(Transactions, CalculateNothingOnTheWayBack) {
    TVGRBaseItem& text = label.CreateText(3000, 3000);
    Query<IKSLText>(&text)->SetText(u"not measured yet");
    label.Clear({cleUndoRedo}, false);
    const TStand before(label);
    {
        Transaction change(label);
        Query<IKSLText>(&text)->SetText(u"longer than it was");
        change.Commit();
    }
    const TStand after(label);
    label.Undo();
    EXPECT_TRUE(before.Equals(label));
    label.Redo();
    EXPECT_TRUE(after.Equals(label));
}

TEST_F(Transactions, LayersOutliveWhatRefersToThem) {
    // Deleted while nothing is recorded, or behind a step that knows it: undo falls back to the base layer.
    for (const bool recorded : {true, false}) {
        TVGRLayer& doomed = label.AddLayer();
        line.StoreLayer(doomed);
        Transaction change(label);
        line.SetColor(TAlphaColor(recorded));
        change.Commit();
        if (!recorded)
            label.SetOptions({});
        if (recorded) {
            label.DeleteLayer(2);
        } else {
            Transaction deletes(label);
            label.DeleteLayer(2);
            deletes.Commit();
        }
        label.SetOptions({loUndoRedo});
        UndoAll(label);
        EXPECT_EQ(&line.GetLayer(), &label.GetLayer(1));
        RedoAll(label);
        EXPECT_EQ(&line.GetLayer(), &label.GetLayer(1));
        label.Clear({cleUndoRedo}, false);
    }
    // A preview copy of an item on a layer that is taken back.
    {
        const Transaction lost(label);
        label.AddLayer();
        label.SetActiveLayer(2);
        new ProbeItem(label, itLine, {{0, 0}, {9, 9}}, true);
        label.Preview().back()->StoreLayer(label.GetLayer(2));
    }
    EXPECT_EQ(label.Preview().back()->GetLayer().GetName(), label.GetLayer(1).GetName());
}

TEST_F(Transactions, ReturningItemsAreNotSelected) {
    for (const bool commits : {false, true}) {
        label.SetSelection(&box, isSelected);
        Transaction change(label);
        label.DeleteItem(box, true);
        if (commits) {
            change.Commit();
            label.Undo();
        } else {
            change.Rollback();
        }
        EXPECT_EQ(label.SelectionCount(), 0);
        EXPECT_EQ(box.GetState(), isNormal);
    }
}

TEST_F(Transactions, TurningBearsWhoEndsItInTheMiddle) {
    RecordingObserver editor(duEditor);
    label.Attach(&editor);
    std::unique_ptr<Transaction> left;
    const std::function<void()> acts[] = {[&] { label.Clear({cleAll}, true); },
                                          [&] { label.Clear({cleUndoRedo}, true); },
                                          [&] { left = std::make_unique<Transaction>(label); },
                                          [&] {
                                              label.BeginRead(false);
                                              label.EndRead(true);
                                          },
                                          [] { throw std::runtime_error("no"); }};
    for (const auto& act : acts) {
        label.CreateLine(1000, 1000, 9000, 5000);
        auto once = [&, done = false](TKSChange) mutable {
            if (!std::exchange(done, true))
                act();
        };
        editor.onUpdate = once;
        try {
            label.RotateLeft();
        } catch (const std::runtime_error&) {
        }
        editor.onUpdate = {};
        left.reset();
        EXPECT_FALSE(label.InTransaction());
        UndoAll(label);
    }
}

TEST_F(Transactions, WatchesMayChangeTheDocumentThatTellsThem) {
    const TStand before(label);
    Transaction change(label);
    label.DeleteItem(box, true);
    TVGRBaseItem& point = label.CreatePoint(1, 1);
    change.Commit();
    const TStand after(label);
    {
        int calls = 0;
        const TItemWatch watch(point, [&](TVGRBaseItem*) {
            ++calls;
            EXPECT_EQ(label.ItemsCount(), 2);
            label.SetSelection(label.GetItem(1), isSelected);
            label.DeleteItem(label.CreatePoint(5, 5), true);
        });
        label.Undo();
        EXPECT_EQ(calls, 1);
    }
    EXPECT_TRUE(before.Equals(label));
}

TEST_F(Transactions, OweWhatWasMadeByHandBefore) {
    MakeProbe(label, itLine);
    {
        const Transaction idle(label);
        const UpdateScope bracket(label);
    }
    EXPECT_EQ(told, 0);
    label.BeginUpdate(true);
    label.EndUpdate();
    EXPECT_EQ(told, 1);
}

TEST_F(Transactions, EndAReadingThatBeganInside) {
    const TStand before(label);
    {
        const Transaction lost(label);
        label.BeginRead(true);
    }
    EXPECT_FALSE(label.HasAnyState({lsReading, lsUpdating}));
    EXPECT_TRUE(label.GetOptions().Has(loUndoRedo));
    EXPECT_TRUE(before.Equals(label));
}

TEST_F(Transactions, OutliveTheObjectsThatAHostHandsIn) {
    struct TOwnParts : TestHost {
        using TestHost::TakeBackSurf;
        using TestHost::TakePrintInfo;
    } host;
    struct TOwnBack : TVGRBackSurf {
        using TVGRBackSurf::TVGRBackSurf;
        bool ReadFileImage() override { return true; }
    };
    host.GetBackSurf().SetColor(3);
    host.GetPrintInfo().SetRepetition(4);
    host.Clear({cleUndoRedo}, false);
    const TStand before(host);
    Transaction change(host);
    host.GetBackSurf().SetColor(5);
    host.TakeBackSurf(std::make_unique<TOwnBack>(host, true));
    host.TakePrintInfo(std::make_unique<TVGRBasePrintInfo>(host));
    host.TakePrintInfo(nullptr);
    EXPECT_EQ(host.GetBackSurf().GetColor(), 5u);
    EXPECT_TRUE(host.GetBackSurf().ReadFileImage()) << "the host's own";
    EXPECT_EQ(host.GetPrintInfo().GetRepetition(), 4);
    host.GetPrintInfo().SetRepetition(6);
    EXPECT_TRUE(change.Commit());
    host.TakePrintInfo(std::make_unique<TVGRBasePrintInfo>(host));
    host.Undo();
    EXPECT_TRUE(before.Equals(host));
    host.Redo();
    EXPECT_EQ(host.GetPrintInfo().GetRepetition(), 6);
    EXPECT_THROW(host.ComposeImage(u"0", u"0", 1, 1, 1), ENotAvailable);
}

TEST_F(Transactions, EverySetterOfEveryFamilyIsUndone) {
    label.SetOptions({loUndoRedo}); // all take the same identifier
    for (const TKSLItemType type : AvailableItemTypes()) {
        TVGRBaseItem& item = MakeSample(label, *SampleOf(type));
        for (const TSetter& set : SettersOf(item, false)) {
            const TStand before(label);
            Transaction change(label);
            {
                const UpdateScope bracket(label);
                set();
            }
            const bool changed = change.Commit();
            const TStand after(label);
            if (!changed) {
                EXPECT_TRUE(before.Equals(label)) << type;
                continue;
            }
            label.Undo();
            EXPECT_TRUE(before.Equals(label)) << type;
            label.Redo();
            EXPECT_TRUE(after.Equals(label)) << type;
        }
    }
}

// Programs of anything that a host may do, each in transactions, with handlers that throw from time to time.
class RandomTransactions : public testing::TestWithParam<unsigned> {
protected:
    struct TShaky : TestHost {
        using TestHost::TestHost;
        TVGRBaseItem& CreateElementFromStream(std::string_view snapshot) override {
            if (throwing && throwing())
                throw std::runtime_error("stream");
            return TestHost::CreateElementFromStream(snapshot);
        }
        std::function<bool()> throwing;
    };

    int Below(int limit) { return int(random() % unsigned(limit)); }
    TVGRBaseItem* Any() { return label.ItemsCount() == 0 ? nullptr : label.GetItem(1 + Below(label.ItemsCount())); }
    void Choose() {
        label.ClearSelection(false);
        for (int i = Below(4); i >= 0; --i)
            if (TVGRBaseItem* item = Any(); item && !label.Selected(*item))
                label.AddToSelection(*item, false);
    }

    void Act() {
        TVGRBaseItem* item = Any();
        switch (Below(22)) {
        case 0:
        case 1: {
            const auto types = AvailableItemTypes();
            MakeSample(label, *SampleOf(types[std::size_t(Below(int(types.size())))]));
            return;
        }
        case 2:
        case 3:
        case 4:
        case 5:
            if (item) {
                const auto setters = SettersOf(*item, false);
                setters[std::size_t(Below(int(setters.size())))]();
            }
            return;
        case 6:
            return item ? item->BaseMove(Below(900) - 450, Below(900) - 450, 0, 0, moAll, true) : void();
        case 7:
            return item ? label.DeleteItem(*item, true) : void();
        case 8:
            Choose();
            return label.DeleteSelection();
        case 9:
            Choose();
            label.CopySelection();
            return label.PasteSelection();
        case 10:
            Choose();
            return Below(2) ? label.AlignObjects(TKSLObjectAlign(Below(4))) : label.SpaceHorizontal(-1);
        case 11:
            Choose();
            return Below(2) ? label.BringToFront() : label.SendToBack();
        case 12:
            label.AddLayer().SetZPos(std::uint16_t(Below(9)));
            return label.SetLayerZOrder(Below(2));
        case 13:
            return void(label.DeleteLayer(1 + Below(label.LayersCount() + 1)));
        case 14:
            label.GetLayer(1 + Below(label.LayersCount())).SetColor(TAlphaColor(Below(5)), Below(2));
            return void(label.ExchangeLayers(1 + Below(4), 1 + Below(4)));
        case 15:
            return item ? item->SetLayer(label.GetLayer(1 + Below(label.LayersCount()))) : void();
        case 16:
            label.GetMeasure().SetNuHor(1 + Below(9));
            label.GetMeasure().fAuthor = std::u16string(std::size_t(Below(9)), u'x');
            return label.GetBackSurf().SetColor(TAlphaColor(Below(4)));
        case 17:
            if (Below(2) && label.CounterCount() > 0)
                return void(label.RemoveCounter(label.GetCounter(1)));
            return (new TVGRCounter(label))->SetNumTo(Below(1000));
        case 18:
            label.GetData().AddListVal(std::u16string(1, char16_t(u'a' + Below(20))));
            return Below(2) ? void(label.GetData().DeleteList(1)) : label.GetData().SetJson(u"{\"a\":[{\"b\":1}]}");
        case 19:
            return Below(2) ? label.RotateLeft() : label.SetUnits(TKSLUnits(Below(3)));
        case 20:
            return void(label.DeletePoint(1 + Below(3)));
        default:
            if (item)
                item->CalcValues(2);
            label.SameWidth();
            return;
        }
    }

    void Program() {
        for (int i = Below(6); i >= 0; --i) {
            throws = Below(8) == 0 ? 1 + Below(6) : 0;
            try {
                if (Below(5) == 0 && depth < 3) {
                    ++depth;
                    const TFinally up{[this] { --depth; }};
                    Transaction inner(label);
                    Program();
                    if (Below(2))
                        inner.Commit();
                } else if (Below(3) == 0) {
                    const UpdateScope bracket(label);
                    Act();
                    Act();
                } else {
                    Act();
                }
            } catch (const std::exception&) {
            }
            throws = 0;
        }
    }

    bool Throws() { return throws > 0 && --throws == 0; }

    // What handlers do: they throw, change the document, and open and end transactions of their own.
    void Mischief() {
        if (Throws())
            throw std::runtime_error("handler");
        if (!mischief || busy || Below(5) != 0)
            return;
        // The host that is under test frees an item twice when a handler ends the one that is read, and then throws.
        if (label.HasAnyState({lsReading}))
            return label.CopySelection();
        busy = true;
        const TFinally idle{[this] { busy = false; }};
        switch (Below(8)) {
        case 0:
            label.CreatePoint(Below(900), Below(900));
            return;
        case 1:
        case 2:
            return label.ItemsCount() > 0 ? label.DeleteItem(*Any(), Below(2)) : void();
        case 3:
            return label.Clear({cleItems}, Below(2));
        case 4:
            return label.Undo();
        case 5: {
            Transaction own(label);
            Act();
            return void(Below(2) && own.Commit());
        }
        case 6:
            return label.PaintEditor();
        default:
            return Act();
        }
    }

    // The same, and what ends transactions of others or outlives them.
    void Havoc() {
        if (busy || Below(5) != 0 || label.HasAnyState({lsReading}))
            return Mischief();
        busy = true;
        const TFinally idle{[this] { busy = false; }};
        switch (Below(11)) {
        case 0:
            return label.New();
        case 1:
            return label.Clear(Below(2) ? TKSLClearSet{cleUndoRedo} : TKSLClearSet{cleItems, cleLayers}, true);
        case 2:
            return label.Redo();
        case 3:
        case 4:
            if (!label.HasAnyState({lsReading}) && !label.IsReplaying())
                open.push_back(std::make_unique<Transaction>(Below(3) ? label : other));
            return;
        case 5:
        case 6:
            if (!open.empty() && !label.HasAnyState({lsReading})) {
                const auto ended = std::move(open[std::size_t(Below(int(open.size())))]);
                std::erase(open, nullptr);
                Below(2) ? void(ended->Commit()) : ended->Rollback();
            }
            return;
        case 7:
            return Below(2) ? label.BeginUpdate(true) : label.EndUpdate();
        case 8:
            label.SetOptions(Below(2) ? TVagrelOptions{loUndoRedo} : TVagrelOptions{});
            return;
        case 9:
            if (label.HasAnyState({lsReading}))
                return;
            label.BeginRead(Below(2));
            return label.EndRead(true);
        default:
            return other.ItemsCount() > 9 ? other.New() : void(other.CreatePoint(1, 1));
        }
    }

    void Handle(std::function<void()> handler) {
        if (!handler)
            handler = [] {};
        editor.onUpdate = [handler](TKSChange) { handler(); };
        label.OnSelectItem = label.OnUnSelectItem = [handler](auto&&...) { handler(); };
        label.OnLabelRotate = [handler](auto&&...) { handler(); };
    }

    static unsigned Rounds(unsigned usual) {
        const char* seeds = std::getenv("VAGREL_SEEDS");
        return seeds ? unsigned(std::atoi(seeds)) : usual;
    }

    std::mt19937 random;
    int depth = 0, throws = 0;
    bool mischief = false, busy = false;
    TShaky label{emLabelling};
    TestHost other;
    RecordingObserver editor{duEditor};
    std::vector<std::unique_ptr<Transaction>> open;
};

TEST_P(RandomTransactions, GoBackAndForthToTheByte) {
    label.Attach(&editor);
    for (unsigned round = 0; round < Rounds(12); ++round) {
        const unsigned seed = GetParam() * 1000003 + round;
        random.seed(seed);
        label.New();
        label.Clear({cleAskList, cleValList}, false);
        for (int i = 0; i < 6; ++i)
            Act();
        label.Clear({cleUndoRedo}, false);
        Handle([this] { Mischief(); });
        label.throwing = [this] { return Throws(); };

        std::vector<TStand> stands;
        stands.emplace_back(label);
        for (int step = 0; step < 5; ++step) {
            Transaction change(label);
            mischief = true;
            Program();
            mischief = false;
            throws = 0;
            if (Below(4) == 0) {
                change.Rollback();
                ASSERT_TRUE(stands.back().Equals(label)) << "seed " << seed;
            } else if (change.Commit()) {
                stands.emplace_back(label);
            } else {
                ASSERT_TRUE(stands.back().Equals(label)) << "seed " << seed;
            }
        }
        for (int i = 0; i < 2; ++i) {
            for (std::size_t at = stands.size(); at-- > 0; label.Undo())
                ASSERT_TRUE(stands[at].Equals(label)) << "seed " << seed << " back at " << at;
            EXPECT_TRUE(label.IsUndoEmpty());
            for (std::size_t at = 0; at < stands.size(); ++at, label.Redo())
                ASSERT_TRUE(stands[at].Equals(label)) << "seed " << seed << " forth at " << at;
        }
        Handle({});
    }
}

// Nothing is promised of such sessions but that the document stays one that can be written and undone.
TEST_P(RandomTransactions, LeaveAWholeDocumentWhateverHandlersDo) {
    for (unsigned round = 0; round < Rounds(12); ++round) {
        random.seed(GetParam() * 2000003 + round);
        SCOPED_TRACE(round);
        label.Attach(&editor);
        Handle([this] { Havoc(); });
        label.OnUndoRedo = [this](auto&&...) { Havoc(); };
        mischief = true;
        for (int step = 0; step < 12; ++step) {
            try {
                Program();
                Below(2) ? label.Undo() : label.Redo();
            } catch (const std::exception&) {
            }
            for (int i = 1; i <= label.SelectionCount(); ++i)
                ASSERT_EQ(label.SearchItem(label.GetSelection(i)->GetInID(), false) != nullptr, true);
            for (int i = 1; i <= label.ItemsCount(); ++i)
                ASSERT_GE(label.LayerIdx(label.GetItem(i)->GetLayer()), 0);
        }
        mischief = false;
        Handle({});
        label.OnUndoRedo = {};
        open.clear();
        EXPECT_FALSE(label.InTransaction());
        label.SetOptions({loUndoRedo});
        UndoAll(label);
        const auto json = JsonOf(label);
        RedoAll(label);
        UndoAll(label);
        label.New();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTransactions, testing::Range(1u, 5u));

} // namespace
} // namespace vagrel::test
