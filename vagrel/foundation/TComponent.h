// SPDX-License-Identifier: MIT
// The little of a component model that documents need: a name, an owner, the loading state and word of removals.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

enum TOperation : std::int32_t { opInsert, opRemove };

/// A named object that is told when another one that it knows goes away. Owners do not delete: C++ scopes do.
class TComponent {
public:
    explicit TComponent(TComponent* owner = nullptr);
    TComponent(const TComponent&) = delete;
    TComponent& operator=(const TComponent&) = delete;
    virtual ~TComponent();

    TComponent* GetOwner() const { return fOwner; }
    const std::u16string& GetName() const { return fName; }
    void SetName(std::u16string_view value) { fName = value; }

    /// True while a host streams the properties of this component: from `BeginLoading` to `Loaded`.
    bool IsLoading() const { return fLoading; }
    void BeginLoading() { fLoading = true; }
    /// Ends the loading state.
    virtual void Loaded() { fLoading = false; }

    /// From now on each of the two is told when the other is destroyed.
    void FreeNotification(TComponent& other);

protected:
    /// `component` is being destroyed (`opRemove`); only its address may be used.
    virtual void Notification(TComponent* component, TOperation operation);

private:
    void Forget(TComponent& other);

    TComponent* fOwner;
    std::u16string fName;
    bool fLoading = false;
    std::vector<TComponent*> fPeers;
};

} // namespace vagrel
