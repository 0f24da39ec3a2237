// SPDX-License-Identifier: MIT
// Removal notices between components.
#include <vagrel/foundation/TComponent.h>

#include <gtest/gtest.h>

#include <memory>

namespace vagrel {
namespace {

std::uintptr_t AddressOf(const TComponent* component) { return reinterpret_cast<std::uintptr_t>(component); }

class TListener : public TComponent {
public:
    using TComponent::TComponent;
    std::vector<std::uintptr_t> fGone;   // addresses: the components are gone when they are compared
    std::unique_ptr<TComponent> fVictim; // deleted with the first notice

protected:
    void Notification(TComponent* component, TOperation operation) override {
        TComponent::Notification(component, operation);
        if (operation == opRemove)
            fGone.push_back(AddressOf(component));
        fVictim.reset();
    }
};

TEST(TComponent, TellsBothSidesOnce) {
    TListener left;
    auto right = std::make_unique<TListener>(), other = std::make_unique<TListener>();
    const std::vector<std::uintptr_t> both{AddressOf(right.get()), AddressOf(other.get())};
    left.FreeNotification(*right);
    right->FreeNotification(left); // the same tie
    left.FreeNotification(left);
    other->FreeNotification(left);
    right.reset(), other.reset();
    EXPECT_EQ(left.fGone, both);
}

TEST(TComponent, ForgetsItsOwner) {
    auto owner = std::make_unique<TListener>();
    TListener owned(owner.get());
    { TComponent early(owner.get()); }
    EXPECT_EQ(owner->fGone.size(), 1u);
    EXPECT_EQ(owned.GetOwner(), owner.get());
    owner.reset();
    EXPECT_EQ(owned.GetOwner(), nullptr);
}

TEST(TComponent, NoticesMayDestroyOtherPeers) {
    TListener killer, witness;
    auto hub = std::make_unique<TListener>();
    killer.fVictim = std::make_unique<TComponent>();
    hub->FreeNotification(witness);
    hub->FreeNotification(*killer.fVictim);
    hub->FreeNotification(killer);
    hub.reset();
    EXPECT_EQ(killer.fVictim, nullptr);
    EXPECT_EQ(killer.fGone.size(), 1u);
    EXPECT_EQ(witness.fGone.size(), 1u);
}

} // namespace
} // namespace vagrel
