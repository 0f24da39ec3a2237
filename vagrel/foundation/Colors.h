// SPDX-License-Identifier: MIT
// Alpha colours and their text forms.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vagrel {

/// A colour 0xAARRGGBB; alpha 255 is opaque.
using TAlphaColor = std::uint32_t;

/// A colour of the platform's 24-bit form, red in the low byte; a negative value names a system colour.
using TColor = std::int32_t;

inline constexpr TAlphaColor OpaqueBlack = 0xFF000000;
inline constexpr TAlphaColor OpaqueWhite = 0xFFFFFFFF;

constexpr TAlphaColor AlphaColor(std::uint8_t r, std::uint8_t g, std::uint8_t b, std::uint8_t a) {
    return std::uint32_t(a) << 24 | std::uint32_t(r) << 16 | std::uint32_t(g) << 8 | b;
}
constexpr std::uint8_t AlphaOf(TAlphaColor color) { return std::uint8_t(color >> 24); }
constexpr std::uint8_t RedOf(TAlphaColor color) { return std::uint8_t(color >> 16); }
constexpr std::uint8_t GreenOf(TAlphaColor color) { return std::uint8_t(color >> 8); }
constexpr std::uint8_t BlueOf(TAlphaColor color) { return std::uint8_t(color); }

/// "#RRGGBBAA", upper case, alpha last.
std::u16string AlphaColorToHex(TAlphaColor color);

/// Reads "#RRGGBB" (opaque), "#RRGGBBAA" (alpha last) or a CSS colour name, without regard to case and to blanks at the
/// ends. On failure answers false and `color` is 0.
bool TryParseColor(std::u16string_view text, TAlphaColor& color);

/// `TryParseColor`, with opaque white where that fails.
TAlphaColor ParseColor(std::u16string_view text);

/// Reads "RRGGBB" (opaque) or "AARRGGBB" (alpha first), with or without "#". Throws EConvertError for anything else.
TAlphaColor HexToTAlphaColor(std::u16string_view text);

/// The CSS colour of this name (CSS Color Module Level 4, plus "transparent"), without regard to case.
std::optional<TAlphaColor> NamedColor(std::u16string_view name);

/// Swaps red and blue; the result is opaque.
TAlphaColor ColorToAlphaColor(TColor color);

/// Swaps red and blue and drops alpha.
TColor AlphaColorToColor(TAlphaColor color);

/// Keeps the 24 bits as they stand and puts `alpha` on top. A system colour is first resolved to black, white, red
/// or one of four greys.
TAlphaColor ColorToTAlphaColor(TColor color, std::uint8_t alpha);

} // namespace vagrel
