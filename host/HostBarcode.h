// SPDX-License-Identifier: MIT
// The linear barcode that measures its digits.
#pragma once

#include <host/HostItem.h>
#include <vagrel/barcode/TVGRBaseBarcode.h>

namespace vagrel {

/// A linear barcode, whose digits are measured by its document's measurer.
class HostBarcode final : public HostItem<TVGRBaseBarcode> {
public:
    using HostItem::HostItem;

    void CalcValues(int kind) override;
};

} // namespace vagrel
