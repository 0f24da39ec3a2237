// SPDX-License-Identifier: MIT
// The linear barcode that measures its digits.
#include <host/HostBarcode.h>

#include <host/HostLabel.h>
#include <host/TextMeasurer.h>
#include <vagrel/foundation/Rounding.h>

#include <algorithm>

namespace vagrel {

void HostBarcode::CalcValues(int kind) {
    if (GetShowNumber()) {
        const TTextSize size = static_cast<const HostLabel&>(fOwner).Measurer().Measure(
            u"0", {GetFontName(), double(BaseFontHeight()), false, false});
        const double below = size.descent + std::max(BaseDistance(), 0);
        StoreDigitMeasure({Round32(size.ascent), Round32(below), Round32(size.underline), 0, 1});
    }
    HostItem::CalcValues(kind);
}

} // namespace vagrel
