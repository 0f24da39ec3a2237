// SPDX-License-Identifier: MIT
// The font fields that layers, dimension styles and texts share, with their JSON form.
#pragma once

#include <vagrel/foundation/Colors.h>

#include <cstdint>
#include <string>

namespace vagrel {

class TJsonFields;

/// A font. The height is base units on paper.
struct TFont {
    std::u16string name = u"Arial";
    std::int32_t height = 10000;
    TAlphaColor color = OpaqueBlack;
    bool bold = false, italic = false, underline = false, strikeout = false;

    /// The object "Font"; the height as it stands there, in millimetres.
    void Keys(TJsonFields& keys);

    friend bool operator==(const TFont&, const TFont&) = default;
};

} // namespace vagrel
