// SPDX-License-Identifier: MIT
// The walk over the items that every search by place takes.
#pragma once

#include <vagrel/document/TVGRBaseItem.h>
#include <vagrel/document/TVGRBaseLabel.h>

namespace vagrel {

template <class Wanted>
TVGRBaseItem* TVGRBaseLabel::TopItem(Wanted wanted) const {
    // By position: what `wanted` does to an item may take items out of the document.
    for (std::size_t i = fItems.size(); i-- > 0;) {
        if (i >= fItems.size())
            continue;
        TVGRBaseItem& item = *fItems[i];
        if (item.Shows({lopVisible, lopSelectable}) && wanted(item))
            return &item;
    }
    return nullptr;
}

} // namespace vagrel
