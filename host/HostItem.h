// SPDX-License-Identifier: MIT
// Makes any family of items concrete.
#pragma once

#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/TVGRBaseDraw.h>

namespace vagrel {

/// An item of this host. Painting is not available yet; the SVG of an item is its picture.
template <class Family>
class HostItem final : public Family {
public:
    using Family::Family;

    void DrawItem(const TVGRBaseDraw&) override { throw ENotAvailable(u"Painting is not available yet"); }
    void PrintItem(const TVGRBaseDraw&) override { throw ENotAvailable(u"Painting is not available yet"); }
};

} // namespace vagrel
