// SPDX-License-Identifier: MIT
// Conversions between UTF-16 and UTF-8, and the few text operations that the library needs.
#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace vagrel {

namespace {

constexpr char32_t Replacement = 0xFFFD;

constexpr bool IsHigh(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLow(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void AppendCode(std::string& out, char32_t code) {
    if (code < 0x80) {
        out += char(code);
    } else if (code < 0x800) {
        out += char(0xC0 | (code >> 6));
        out += char(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        out += char(0xE0 | (code >> 12));
        out += char(0x80 | ((code >> 6) & 0x3F));
        out += char(0x80 | (code & 0x3F));
    } else {
        out += char(0xF0 | (code >> 18));
        out += char(0x80 | ((code >> 12) & 0x3F));
        out += char(0x80 | ((code >> 6) & 0x3F));
        out += char(0x80 | (code & 0x3F));
    }
}

// The code point that starts at `pos`, or -1 where no well-formed sequence starts; `length` is what was consumed.
std::int32_t Decode(std::string_view bytes, std::size_t pos, std::size_t& length) {
    auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = at(pos);
    length = 1;
    if (lead < 0x80)
        return lead;
    const int more = lead >= 0xC2 && lead <= 0xDF   ? 1
                     : (lead & 0xF0) == 0xE0        ? 2
                     : lead >= 0xF0 && lead <= 0xF4 ? 3
                                                    : 0;
    if (more == 0 || pos + std::size_t(more) >= bytes.size())
        return -1;
    std::int32_t code = lead & (0x3F >> more);
    for (int i = 1; i <= more; ++i) {
        const unsigned char next = at(pos + std::size_t(i));
        if ((next & 0xC0) != 0x80)
            return -1;
        code = (code << 6) | (next & 0x3F);
    }
    const bool overlong = (more == 2 && code < 0x800) || (more == 3 && code < 0x10000);
    if (overlong || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        return -1;
    length = std::size_t(more) + 1;
    return code;
}

constexpr std::size_t Group = sizeof(std::uint64_t);

// Four bytes as four units.
constexpr std::uint64_t Spread(std::uint64_t bytes) {
    bytes = (bytes | bytes << 16) & 0x0000FFFF0000FFFF;
    return (bytes | bytes << 8) & 0x00FF00FF00FF00FF;
}

// Widens a group of bytes; how many of them lead it in ASCII and so are decoded.
std::size_t WidenGroup(const char* from, char16_t* to) {
    static_assert(std::endian::native == std::endian::little);
    std::uint64_t bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    const std::uint64_t units[] = {Spread(bytes & 0xFFFFFFFF), Spread(bytes >> 32)};
    std::memcpy(to, units, sizeof units);
    return std::size_t(std::countr_zero(bytes & 0x8080808080808080)) / 8;
}

} // namespace

void AppendUtf8(std::string& out, std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (unit < 0x80) {
            out += char(unit);
        } else if (IsHigh(unit) && i + 1 < text.size() && IsLow(text[i + 1])) {
            AppendCode(out, 0x10000 + ((char32_t(unit) - 0xD800) << 10) + (char32_t(text[i + 1]) - 0xDC00));
            ++i;
        } else {
            AppendCode(out, IsHigh(unit) || IsLow(unit) ? Replacement : unit);
        }
    }
}

std::string ToUtf8(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    AppendUtf8(out, text);
    return out;
}

void AppendUtf16(std::u16string& out, std::string_view bytes) {
    const std::size_t before = out.size();
    out.resize(before + bytes.size()); // a text has no more units than bytes
    char16_t* to = out.data() + before;
    for (std::size_t pos = 0, length = 0; pos < bytes.size(); pos += length) {
        if (bytes.size() - pos >= Group) {
            length = WidenGroup(bytes.data() + pos, to);
            to += length;
            if (length > 0)
                continue;
        }
        const std::int32_t code = Decode(bytes, pos, length);
        if (code < 0) {
            *to++ = char16_t(Replacement);
        } else if (code < 0x10000) {
            *to++ = char16_t(code);
        } else {
            *to++ = char16_t(0xD800 + ((code - 0x10000) >> 10));
            *to++ = char16_t(0xDC00 + ((code - 0x10000) & 0x3FF));
        }
    }
    out.resize(std::size_t(to - out.data()));
}

std::u16string FromUtf8(std::string_view bytes) {
    std::u16string out;
    AppendUtf16(out, bytes);
    return out;
}

bool IsUtf8(std::string_view bytes) {
    for (std::size_t pos = 0, length = 0; pos < bytes.size(); pos += length)
        if (Decode(bytes, pos, length) < 0)
            return false;
    return true;
}

char16_t ToLower(char16_t unit) {
    if (unit < 0x80)
        return unit >= u'A' && unit <= u'Z' ? char16_t(unit + 32) : unit;
    if (unit >= 0xC0 && unit <= 0xDE && unit != 0xD7)
        return char16_t(unit + 32);
    // Latin Extended-A: pairs of an even capital and its odd small letter, or the reverse in two stretches.
    if ((unit >= 0x100 && unit <= 0x12F) || (unit >= 0x132 && unit <= 0x137) || (unit >= 0x14A && unit <= 0x177))
        return char16_t(unit | 1);
    if ((unit >= 0x139 && unit <= 0x148) || (unit >= 0x179 && unit <= 0x17E))
        return unit % 2 == 1 ? char16_t(unit + 1) : unit;
    if (unit == 0x178)
        return 0xFF;
    if (unit >= 0x391 && unit <= 0x3A9 && unit != 0x3A2)
        return char16_t(unit + 32);
    if (unit >= 0x410 && unit <= 0x42F)
        return char16_t(unit + 32);
    if (unit >= 0x400 && unit <= 0x40F)
        return char16_t(unit + 80);
    return unit;
}

std::u16string ToLower(std::u16string_view text) {
    std::u16string out(text);
    for (char16_t& unit : out)
        unit = ToLower(unit);
    return out;
}

bool SameText(std::u16string_view a, std::u16string_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && ToLower(a[i]) != ToLower(b[i]))
            return false;
    return true;
}

std::u16string_view Trim(std::u16string_view text) {
    while (!text.empty() && text.front() <= u' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() <= u' ')
        text.remove_suffix(1);
    return text;
}

std::u16string ReplaceAll(std::u16string_view text, std::u16string_view from, std::u16string_view to) {
    std::u16string out;
    for (std::size_t pos = 0;;) {
        const std::size_t hit = text.find(from, pos);
        out += text.substr(pos, hit - pos);
        if (hit == std::u16string_view::npos)
            return out;
        out += to;
        pos = hit + from.size();
    }
}

std::u16string JoinLines(const std::vector<std::u16string>& lines) {
    std::u16string text;
    for (const std::u16string& line : lines)
        (text += line) += u'\n';
    return text;
}

std::vector<std::u16string> SplitLines(std::u16string_view text) {
    std::vector<std::u16string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n"), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
        if (text.starts_with(u"\r\n"))
            text.remove_prefix(2);
        else if (!text.empty())
            text.remove_prefix(1);
    }
    return lines;
}

std::u16string IntToStr(std::int64_t value) { return IntToStr(value, 1); }

std::u16string IntToStr(std::int64_t value, int digits) {
    std::u16string out;
    std::uint64_t rest = value < 0 ? 0 - std::uint64_t(value) : std::uint64_t(value);
    for (; rest > 0 || digits > 0; rest /= 10, --digits)
        out.insert(out.begin(), char16_t(u'0' + rest % 10));
    if (value < 0)
        out.insert(out.begin(), u'-');
    return out;
}

} // namespace vagrel
