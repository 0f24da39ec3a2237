// SPDX-License-Identifier: MIT
// What is told of the changes of a document.
#pragma once

#include <vagrel/foundation/Records.h>

namespace vagrel {

/// An editor, inspector, preview or symbol view attached to a document. The document does not own it; an observer that
/// is a TComponent too is detached when it is destroyed.
class IKSObserver {
public:
    virtual TKSDestUpdate GetDest() const = 0;
    /// `value` is the payload that belongs to the change. May attach, detach and change the document.
    virtual void Update(TKSChange change, const TKSChangeValue& value) = 0;

protected:
    ~IKSObserver() = default;
};

} // namespace vagrel
