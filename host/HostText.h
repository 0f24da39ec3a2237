// SPDX-License-Identifier: MIT
// The text item that measures itself.
#pragma once

#include <host/HostItem.h>
#include <vagrel/items/text/TVGRBaseText.h>

namespace vagrel {

/// A single-line text, measured by its document's measurer.
class HostText final : public HostItem<TVGRBaseText> {
public:
    using HostItem::HostItem;

    void CalcValues(int kind) override;
};

} // namespace vagrel
