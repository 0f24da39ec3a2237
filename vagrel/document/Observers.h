// SPDX-License-Identifier: MIT
// Who is told of the changes of a document.
#pragma once

#include <vagrel/document/IKSObserver.h>

#include <vector>

namespace vagrel {

class TComponent;

/// The attached observers, in the order in which they came.
class Observers {
public:
    /// False for one that is attached already.
    bool Attach(IKSObserver& observer);
    void Detach(const IKSObserver* observer);
    /// The observer is half destroyed: its address is compared, nothing of it is called.
    void Forget(const TComponent* component);
    void Clear() { fObservers.clear(); }
    bool HasEditors() const;
    /// Tells those whom the change concerns, a value outside the enumeration nobody. They may attach and detach
    /// observers: who is gone is not called any more, who came waits for the next change. One that throws keeps no
    /// other from being told; the first exception goes on behind the last of them.
    void Tell(TKSChange change, const TKSChangeValue& value, bool tellInspectors);

private:
    struct TAttached {
        IKSObserver* observer;
        const TComponent* component;
        TKSDestUpdate dest;
    };

    bool Has(const IKSObserver* observer) const;

    std::vector<TAttached> fObservers;
};

} // namespace vagrel
