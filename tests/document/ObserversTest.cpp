// SPDX-License-Identifier: MIT
// The list of observers without a document.
#include <vagrel/document/Observers.h>

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <stdexcept>
#include <string>

namespace vagrel::test {
namespace {

struct ObserversTest : testing::Test {
    struct TObserver final : IKSObserver {
        explicit TObserver(TKSDestUpdate kind) : dest(kind) {}
        TKSDestUpdate GetDest() const override { return dest; }
        void Update(TKSChange, const TKSChangeValue&) override {
            ++told;
            if (act)
                act();
        }
        TKSDestUpdate dest;
        int told = 0;
        std::function<void()> act;
    };

    void Tell(TKSChange change) { observers.Tell(change, {}, true); }

    Observers observers;
    TObserver first{duEditor}, second{duEditor}, third{duInspector};
};

TEST_F(ObserversTest, AnUnknownChangeConcernsNobody) {
    for (TObserver* observer : {&first, &second, &third})
        EXPECT_TRUE(observers.Attach(*observer));
    EXPECT_FALSE(observers.Attach(first));
    for (const std::int32_t change : {-1, chSelSymbol + 1, std::numeric_limits<std::int32_t>::min(), 1 << 30})
        Tell(TKSChange(change));
    EXPECT_EQ(first.told + third.told, 0);
    Tell(chSelect);
    observers.Tell(chSelect, {}, false);
    EXPECT_EQ(first.told, 2);
    EXPECT_EQ(third.told, 1);
}

TEST_F(ObserversTest, OneThatThrowsSilencesNobody) {
    for (TObserver* observer : {&first, &second, &third})
        observers.Attach(*observer);
    first.act = [&] {
        observers.Detach(&first);
        throw std::runtime_error("first");
    };
    second.act = [] { throw std::logic_error("second"); };
    try {
        Tell(chSelect);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::exception& error) {
        EXPECT_EQ(std::string(error.what()), "first");
    }
    EXPECT_EQ(second.told, 1);
    EXPECT_EQ(third.told, 1);
    EXPECT_TRUE(observers.HasEditors());
    EXPECT_THROW(Tell(chSelect), std::logic_error);
    EXPECT_EQ(first.told, 1) << "it had gone";
    observers.Detach(&second);
    EXPECT_FALSE(observers.HasEditors());
}

} // namespace
} // namespace vagrel::test
