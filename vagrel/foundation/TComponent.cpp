// SPDX-License-Identifier: MIT
// Mutual removal notices between components.
#include <vagrel/foundation/TComponent.h>

#include <algorithm>

namespace vagrel {

TComponent::TComponent(TComponent* owner) : fOwner(owner) {
    if (fOwner)
        FreeNotification(*fOwner);
}

TComponent::~TComponent() {
    // A notice may take further peers out of the list.
    while (!fPeers.empty()) {
        TComponent* peer = fPeers.back();
        Forget(*peer);
        peer->Notification(this, opRemove);
    }
}

void TComponent::FreeNotification(TComponent& other) {
    if (&other == this || std::ranges::find(fPeers, &other) != fPeers.end())
        return;
    fPeers.push_back(&other);
    other.fPeers.push_back(this);
}

void TComponent::Forget(TComponent& other) {
    std::erase(fPeers, &other);
    std::erase(other.fPeers, this);
}

void TComponent::Notification(TComponent* component, TOperation operation) {
    if (operation == opRemove && component == fOwner)
        fOwner = nullptr;
}

} // namespace vagrel
