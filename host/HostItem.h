// SPDX-License-Identifier: MIT
// Makes any family of items concrete.
#pragma once

#include <host/CairoDraw.h>
#include <host/Paint.h>

namespace vagrel {

/// An item of this host. It is painted on a CairoDraw, on screen as on paper.
template <class Family>
class HostItem : public Family {
public:
    using Family::Family;

    void DrawItem(const TVGRBaseDraw& draw) override {
        Paint(static_cast<const Family&>(*this), static_cast<const CairoDraw&>(draw));
    }
    void PrintItem(const TVGRBaseDraw& draw) override { DrawItem(draw); }
};

} // namespace vagrel
