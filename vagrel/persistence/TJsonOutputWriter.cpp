// SPDX-License-Identifier: MIT
// Writing without recursion: trees built by hand may be of any depth.
#include <vagrel/persistence/TJsonOutputWriter.h>

#include "JsonName_p.h"

#include <vagrel/foundation/Numbers.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TJsonSerializationConfig.h>

#include <charconv>
#include <cstring>

namespace vagrel {

namespace {

// What escapes an ASCII unit: 0 nothing, 'u' the hexadecimal form, else the letter.
constexpr auto Escape = [] {
    std::array<char, 128> table{};
    for (std::size_t i = 0; i < 0x20; ++i)
        table[i] = 'u';
    table['"'] = '"';
    table['\\'] = '\\';
    table['\b'] = 'b';
    table['\f'] = 'f';
    table['\n'] = 'n';
    table['\r'] = 'r';
    table['\t'] = 't';
    return table;
}();

constexpr std::size_t PieceSize = 1 << 16;

// Deeper levels stand no further to the right, or the indentation of a deep tree would be all of its text.
constexpr std::size_t DeepestIndent = 512;

template <class Unit>
std::basic_string<Unit> As(std::u16string_view text) {
    if constexpr (sizeof(Unit) == 1)
        return ToUtf8(text);
    else
        return std::u16string(text);
}

template <class Unit>
Unit* PutUtf8(Unit* at, char32_t code) {
    if (code < 0x800) {
        *at++ = Unit(0xC0 | (code >> 6));
    } else {
        if (code < 0x10000) {
            *at++ = Unit(0xE0 | (code >> 12));
        } else {
            *at++ = Unit(0xF0 | (code >> 18));
            *at++ = Unit(0x80 | ((code >> 12) & 0x3F));
        }
        *at++ = Unit(0x80 | ((code >> 6) & 0x3F));
    }
    *at++ = Unit(0x80 | (code & 0x3F));
    return at;
}

} // namespace

template <class Unit>
TJsonOutputWriter<Unit>::TJsonOutputWriter(bool compact, TFlush flush) : fCompact(compact), fFlush(std::move(flush)) {
    fLineBreak = As<Unit>(TJsonSerializationConfig::Instance().LineBreak);
}

// Room for so many units more; the caller advances fUsed.
template <class Unit>
Unit* TJsonOutputWriter<Unit>::Room(std::size_t units) {
    if (fFlush && fUsed >= PieceSize)
        fFlush({fText.data(), std::exchange(fUsed, 0)});
    if (fText.size() - fUsed < units)
        fText.resize(std::max(fText.size() * 2, fUsed + units + 1024));
    return fText.data() + fUsed;
}

template <class Unit>
std::basic_string<Unit> TJsonOutputWriter<Unit>::Finish() {
    if (fFlush)
        fFlush({fText.data(), std::exchange(fUsed, 0)});
    fText.resize(fUsed);
    return std::move(fText);
}

template <class Unit>
void TJsonOutputWriter<Unit>::Write(const TJsonBaseObject& root) {
    struct TStep {
        const TJsonBaseObject* container;
        std::int32_t next;
    };
    std::vector<TStep> open;
    auto enter = [&](const TJsonBaseObject& container) {
        if (container.Count() == 0)
            WriteAscii(container.IsObject() ? "{}" : "[]");
        else {
            WriteAscii(container.IsObject() ? "{" : "[");
            open.push_back({&container, 0});
        }
    };
    enter(root);
    while (!open.empty()) {
        const TJsonBaseObject& container = *open.back().container;
        const std::int32_t index = open.back().next++;
        if (index == container.Count()) {
            open.pop_back();
            Break(open.size());
            WriteAscii(container.IsObject() ? "}" : "]");
            continue;
        }
        if (index > 0)
            WriteAscii(",");
        Break(open.size());
        if (container.IsObject()) {
            WriteText(container.NameAt(index)->Text());
            WriteAscii(fCompact ? ":" : ": ");
        }
        const TJsonDataValue& value = container.ItemAt(index);
        if (const TJsonBaseObject* child = value.Container())
            enter(*child);
        else
            WriteScalar(value);
    }
}

template <class Unit>
void TJsonOutputWriter<Unit>::Break(std::size_t depth) {
    if (fCompact)
        return;
    const std::basic_string<Unit> indent = As<Unit>(TJsonSerializationConfig::Instance().IndentChar);
    const std::size_t length = fLineBreak.size() + indent.size() * std::min(depth, DeepestIndent);
    if (fIndent.empty())
        fIndent = fLineBreak;
    while (fIndent.size() < length)
        fIndent += indent;
    std::copy_n(fIndent.data(), length, Room(length));
    fUsed += length;
}

template <class Unit>
void TJsonOutputWriter<Unit>::WriteAscii(std::string_view ascii) {
    std::copy(ascii.begin(), ascii.end(), Room(ascii.size()));
    fUsed += ascii.size();
}

template <class Unit>
void TJsonOutputWriter<Unit>::WriteScalar(const TJsonDataValue& value) {
    char digits[32];
    switch (value.GetTyp()) {
    case jdtString:
        return WriteText(value.Text());
    case jdtInt:
    case jdtLong:
        return WriteAscii({digits, std::to_chars(digits, digits + sizeof digits, value.Integer()).ptr});
    case jdtULong:
        return WriteAscii({digits, std::to_chars(digits, digits + sizeof digits, std::uint64_t(value.Integer())).ptr});
    case jdtFloat:
        if (!std::isfinite(value.Real()))
            return WriteAscii("null");
        fNumber.clear();
        AppendGeneral(fNumber, value.Real());
        return WriteAscii(fNumber);
    case jdtDateTime:
    case jdtUtcDateTime:
        return WriteText(value.GetStringValue());
    case jdtBool:
        return WriteAscii(value.Integer() ? "true" : "false");
    default:
        return WriteAscii("null");
    }
}

template <class Unit>
void TJsonOutputWriter<Unit>::WriteText(std::u16string_view text) {
    constexpr std::ptrdiff_t stretch = 64, longest = 6; // a unit gives six at most
    WriteAscii("\"");
    const char16_t* from = text.data();
    const char16_t* const end = from + text.size();
    while (from != end) {
        Unit* at = Room(std::size_t((stretch + 1) * longest));
        const char16_t* const stop = from + std::min(stretch, end - from);
        while (from < stop) {
            if (*from >= 0x80 || Escape[*from] != 0)
                at = WriteUnit(at, from, end);
            else
                *at++ = Unit(*from++);
        }
        fUsed = std::size_t(at - fText.data());
    }
    WriteAscii("\"");
}

// Writes a unit that does not stand for itself, or a pair of surrogates.
template <class Unit>
Unit* TJsonOutputWriter<Unit>::WriteUnit(Unit* at, const char16_t*& from, const char16_t* end) {
    static constexpr char hex[] = "0123456789ABCDEF";
    const char16_t unit = *from++;
    if (unit < 0x80) {
        *at++ = '\\';
        *at++ = Unit(Escape[unit]);
        if (Escape[unit] == 'u') {
            *at++ = '0';
            *at++ = '0';
            *at++ = Unit(hex[unit >> 4]);
            *at++ = Unit(hex[unit & 15]);
        }
        return at;
    }
    if constexpr (sizeof(Unit) > 1) {
        *at++ = unit;
        return at;
    }
    if ((unit & 0xF800) != 0xD800)
        return PutUtf8(at, unit);
    if (unit >= 0xDC00 || from == end || (*from & 0xFC00) != 0xDC00)
        return PutUtf8(at, 0xFFFD);
    const char32_t code = 0x10000 + ((char32_t(unit) - 0xD800) << 10) + (char32_t(*from++) - 0xDC00);
    return PutUtf8(at, code);
}

template class TJsonOutputWriter<char>;
template class TJsonOutputWriter<char16_t>;

} // namespace vagrel
