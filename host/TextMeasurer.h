// SPDX-License-Identifier: MIT
// How the host learns the size of a text.
#pragma once

#include <string_view>

namespace vagrel {

/// A font as items name it. The height is one em, in any unit.
struct TFontFace {
    std::u16string_view name;
    double height = 0;
    bool bold = false;
    bool italic = false;
};

/// The size of one line of text, in the unit of the font height.
struct TTextSize {
    double width = 0;
    double ascent = 0;
    double descent = 0;
    double underline = 0; ///< how far the underline lies below the baseline
};

/// Measures single lines of text.
class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;
    virtual TTextSize Measure(std::u16string_view text, const TFontFace& font) const = 0;
};

} // namespace vagrel
