// SPDX-License-Identifier: MIT
// Base64.
#include <vagrel/foundation/Base64.h>

#include <vagrel/foundation/Exceptions.h>

#include <algorithm>
#include <cstdint>

namespace vagrel {

namespace {

constexpr std::u16string_view Alphabet = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

} // namespace

std::u16string EncodeBase64(std::string_view bytes) {
    std::u16string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t group = 0;
        for (std::size_t k = 0; k < 3; ++k)
            group = group << 8 | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0u);
        for (std::size_t k = 0; k < 4; ++k)
            text += k <= count ? Alphabet[group >> (18 - 6 * k) & 63] : u'=';
    }
    return text;
}

std::string DecodeBase64(std::u16string_view text) {
    std::string bytes;
    std::uint32_t group = 0;
    int bits = 0;
    for (char16_t unit : text) {
        if (unit <= u' ')
            continue;
        if (unit == u'=')
            break;
        const std::size_t value = Alphabet.find(unit);
        if (value == std::u16string_view::npos)
            throw EConvertError(u"Not Base64: \"" + std::u16string(1, unit) + u"\"");
        group = group << 6 | std::uint32_t(value);
        bits += 6;
        if (bits >= 8) {
            bits -= 8;
            bytes += char(group >> bits & 0xFF);
        }
    }
    return bytes;
}

} // namespace vagrel
