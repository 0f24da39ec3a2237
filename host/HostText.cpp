// SPDX-License-Identifier: MIT
// The text item that measures itself.
#include <host/HostText.h>

#include <host/HostLabel.h>
#include <host/TextMeasurer.h>
#include <vagrel/foundation/Rounding.h>

namespace vagrel {

void HostText::CalcValues(int kind) {
    HostItem::CalcValues(kind);
    const TFont& font = Font();
    const TTextSize size = static_cast<const HostLabel&>(fOwner).Measurer().Measure(
        GetDText(), {font.name, double(font.height), font.bold, font.italic});
    const std::int32_t ascent = Round32(size.ascent), descent = Round32(size.descent);
    StoreMeasure(
        {Round32(size.width * double(GetScaleX())), ascent + descent, ascent, descent, Round32(size.underline), 1});
}

} // namespace vagrel
