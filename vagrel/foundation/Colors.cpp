// SPDX-License-Identifier: MIT
// Colour texts. Three hexadecimal forms exist, which differ in where alpha stands.
#include <vagrel/foundation/Colors.h>

#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

#include <array>

namespace vagrel {

namespace {

std::optional<std::uint32_t> ParseHex(std::u16string_view digits) {
    std::uint32_t value = 0;
    for (char16_t digit : digits) {
        const char16_t lower = ToLower(digit);
        if (digit >= u'0' && digit <= u'9')
            value = value << 4 | std::uint32_t(digit - u'0');
        else if (lower >= u'a' && lower <= u'f')
            value = value << 4 | std::uint32_t(lower - u'a' + 10);
        else
            return std::nullopt;
    }
    return value;
}

std::optional<TAlphaColor> ParseHexColor(std::u16string_view digits, bool alphaFirst) {
    if (digits.size() != 6 && digits.size() != 8)
        return std::nullopt;
    const auto value = ParseHex(digits);
    if (!value)
        return std::nullopt;
    if (digits.size() == 6)
        return OpaqueBlack | *value;
    return alphaFirst ? *value : *value >> 8 | *value << 24;
}

// Window, text and button roles of a usual light desktop, by the low byte of the system colour.
constexpr std::array<TColor, 31> SystemColors{
    0xD3D3D3, 0x000000, 0x808080, 0xC0C0C0, 0xD3D3D3, 0xFFFFFF, 0x000000, 0x000000, 0x000000, 0xFFFFFF, 0xC0C0C0,
    0xC0C0C0, 0xA9A9A9, 0x0000FF, 0xFFFFFF, 0xC0C0C0, 0x808080, 0x808080, 0x000000, 0x000000, 0xFFFFFF, 0x808080,
    0xD3D3D3, 0x000000, 0xFFFFFF, 0xC0C0C0, 0x0000FF, 0xD3D3D3, 0xD3D3D3, 0x0000FF, 0xC0C0C0};

constexpr std::uint32_t SwapRedBlue(std::uint32_t color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

} // namespace

std::u16string AlphaColorToHex(TAlphaColor color) {
    constexpr std::u16string_view hex = u"0123456789ABCDEF";
    const std::uint32_t value = color << 8 | color >> 24;
    std::u16string text = u"#";
    for (int shift = 28; shift >= 0; shift -= 4)
        text += hex[value >> shift & 15];
    return text;
}

bool TryParseColor(std::u16string_view text, TAlphaColor& color) {
    text = Trim(text);
    const auto found = !text.empty() && text[0] == u'#' ? ParseHexColor(text.substr(1), false) : NamedColor(text);
    color = found.value_or(0);
    return found.has_value();
}

TAlphaColor ParseColor(std::u16string_view text) {
    TAlphaColor color;
    return TryParseColor(text, color) ? color : OpaqueWhite;
}

TAlphaColor HexToTAlphaColor(std::u16string_view text) {
    if (!text.empty() && text[0] == u'#')
        text.remove_prefix(1);
    if (const auto color = ParseHexColor(text, true))
        return *color;
    throw EConvertError(u"Formato de color inválido. Use #RRGGBB o #AARRGGBB");
}

TAlphaColor ColorToAlphaColor(TColor color) { return OpaqueBlack | SwapRedBlue(std::uint32_t(color)); }

TColor AlphaColorToColor(TAlphaColor color) { return TColor(SwapRedBlue(color)); }

TAlphaColor ColorToTAlphaColor(TColor color, std::uint8_t alpha) {
    if (color < 0) {
        const auto role = std::uint32_t(color) & 0xFF;
        color = role < SystemColors.size() ? SystemColors[role] : 0;
    }
    return (std::uint32_t(color) & 0xFFFFFF) | std::uint32_t(alpha) << 24;
}

} // namespace vagrel
