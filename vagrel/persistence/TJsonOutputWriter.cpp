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
TJsonOutputWriter<Unit>::TJsonOutputWriter(bool compact, TFlush flush)
    : fCompact(compact), fFlush(std::move(flush)), fLineBreak(As<Unit>(TJsonSerializationConfig::Instance().LineBreak)),
      fIndent(As<Unit>(TJsonSerializationConfig::Instance().IndentChar)), fMargin(fLineBreak) {}

template <class Unit>
void TJsonOutputWriter<Unit>::FlushPiece() {
    fFlush({fText.data(), std::size_t(fAt - fText.data())});
    fAt = fText.data();
}

template <class Unit>
void TJsonOutputWriter<Unit>::MakeRoom(std::size_t units) {
    if (fFlush && fAt)
        FlushPiece();
    const std::size_t used = fAt ? std::size_t(fAt - fText.data()) : 0;
    if (fText.size() - used < units)
        fText.resize(std::max({fText.size() * 2, used + units, PieceSize}));
    fAt = fText.data() + used;
    fLimit = fText.data() + fText.size();
}

template <class Unit>
std::basic_string<Unit> TJsonOutputWriter<Unit>::Finish() {
    if (fFlush)
        FlushPiece();
    fText.resize(std::size_t(fAt - fText.data()));
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
            WriteOne(container.IsObject() ? '{' : '[');
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
            WriteOne(container.IsObject() ? '}' : ']');
            continue;
        }
        if (index > 0)
            WriteOne(',');
        Break(open.size());
        if (container.IsObject())
            WriteName(*container.NameAt(index));
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
    depth = std::min(depth, DeepestIndent);
    const std::size_t length = fLineBreak.size() + fIndent.size() * depth;
    while (fMargin.size() < length)
        fMargin += fIndent;
    std::copy_n(fMargin.data(), length, Room(length));
    fAt += length;
}

template <class Unit>
void TJsonOutputWriter<Unit>::WriteOne(char ascii) {
    *Room(1) = Unit(ascii);
    ++fAt;
}

template <class Unit>
void TJsonOutputWriter<Unit>::WriteAscii(std::string_view ascii) {
    std::copy(ascii.begin(), ascii.end(), Room(ascii.size()));
    fAt += ascii.size();
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
void TJsonOutputWriter<Unit>::WriteName(const TJsonName& name) {
    const std::u16string_view text = name.Text();
    if (!name.IsPlain()) {
        WriteText(text);
        WriteAscii(fCompact ? ":" : ": ");
        return;
    }
    Unit* at = Room(text.size() + 4);
    *at++ = '"';
    at = std::copy(text.begin(), text.end(), at);
    *at++ = '"';
    *at++ = ':';
    if (!fCompact)
        *at++ = ' ';
    fAt = at;
}

template <class Unit>
void TJsonOutputWriter<Unit>::WriteText(std::u16string_view text) {
    constexpr std::ptrdiff_t stretch = 64, longest = 6; // a unit gives six at most
    constexpr std::size_t room = (stretch + 1) * longest;
    const char16_t* from = text.data();
    const char16_t* const end = from + text.size();
    Unit* at = Room(room);
    *at++ = '"';
    while (from != end) {
        const char16_t* const stop = from + std::min(stretch, end - from);
        while (from < stop) {
            if (*from >= 0x80 || Escape[*from] != 0)
                at = WriteUnit(at, from, end);
            else
                *at++ = Unit(*from++);
        }
        fAt = at;
        at = Room(room);
    }
    *at++ = '"';
    fAt = at;
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
