// SPDX-License-Identifier: MIT
// Containers from and to texts, files and streams.
#include <vagrel/persistence/TJsonBaseObject.h>

#include "JsonTokens_p.h"
#include "JsonTree_p.h"

#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/JsonExceptions.h>
#include <vagrel/persistence/TJsonOutputWriter.h>
#include <vagrel/persistence/TJsonReader.h>
#include <vagrel/persistence/TJsonSerializationConfig.h>
#include <vagrel/platform/Files.h>

#include <istream>
#include <iterator>
#include <ostream>

namespace vagrel {

namespace {

constexpr std::string_view MarkUtf8 = "\xEF\xBB\xBF", MarkUtf16LE = "\xFF\xFE", MarkUtf16BE = "\xFE\xFF";

bool IsHighSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
bool IsLowSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

std::u16string FromUtf16Bytes(std::string_view bytes, bool bigEndian) {
    std::u16string text(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto first = static_cast<unsigned char>(bytes[2 * i]),
                   second = static_cast<unsigned char>(bytes[2 * i + 1]);
        text[i] = char16_t(bigEndian ? first << 8 | second : second << 8 | first);
    }
    const char16_t *const begin = text.data(), *const end = begin + text.size();
    for (const char16_t* at = begin; at != end; ++at) {
        const bool isPair = IsHighSurrogate(*at) && at + 1 != end && IsLowSurrogate(at[1]);
        if (!isPair && (IsHighSurrogate(*at) || IsLowSurrogate(*at)))
            throw FaultAt("Half a surrogate pair in UTF-16 text", begin, end, at);
        at += isPair;
    }
    if (bytes.size() % 2 != 0)
        throw FaultAt("UTF-16 text has an odd number of bytes", begin, end, end);
    return text;
}

std::string ToUtf16Bytes(std::u16string_view text, bool bigEndian) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (char16_t unit : text) {
        bytes += char(bigEndian ? unit >> 8 : unit & 0xFF);
        bytes += char(bigEndian ? unit & 0xFF : unit >> 8);
    }
    return bytes;
}

// Calls `read` with the text behind the byte order mark, in UTF-8 or UTF-16.
template <class Read>
auto WithEncoding(std::string_view bytes, Read read) {
    if (bytes.starts_with(MarkUtf8))
        return read(bytes.substr(MarkUtf8.size()));
    const bool utf32 = bytes.starts_with(std::string_view("\0\0\xFE\xFF", 4)) ||
                       bytes.starts_with(std::string_view("\xFF\xFE\0\0", 4));
    const bool utf7 = bytes.starts_with("+/v"), utfEbcdic = bytes.starts_with("\xDD\x73\x66\x73");
    if (utf32 || utf7 || utfEbcdic || bytes.starts_with("\x84\x31\x95\x33"))
        throw EJsonException("File encoding is not supported");
    const bool bigEndian = bytes.starts_with(MarkUtf16BE);
    if (bigEndian || bytes.starts_with(MarkUtf16LE)) {
        const std::u16string text = FromUtf16Bytes(bytes.substr(2), bigEndian);
        return read(std::u16string_view(text));
    }
    return read(bytes);
}

template <class Unit>
std::unique_ptr<TJsonBaseObject> ReadTree(std::basic_string_view<Unit> text, const TJsonReaderProgressRec* progress) {
    return TJsonReader<Unit>(text, progress).Read();
}

std::string AllOf(std::istream& stream) {
    std::string bytes;
    char buffer[65536];
    while (stream.read(buffer, sizeof buffer) || stream.gcount() > 0)
        bytes.append(buffer, std::size_t(stream.gcount()));
    if (stream.bad())
        throw EStreamError("Stream read error");
    return bytes;
}

std::unique_ptr<TJsonBaseObject> ReadEncoded(std::string_view bytes, const TJsonReaderProgressRec* progress) {
    return WithEncoding(bytes, [&](auto text) { return ReadTree(text, progress); });
}

} // namespace

std::unique_ptr<TJsonBaseObject> TJsonBaseObject::FromJSON(std::u16string_view text,
                                                           const TJsonReaderProgressRec* progress) {
    return ReadTree(text, progress);
}

std::unique_ptr<TJsonBaseObject> TJsonBaseObject::FromUtf8JSON(std::string_view bytes,
                                                               const TJsonReaderProgressRec* progress) {
    return ReadTree(bytes, progress);
}

std::u16string TJsonBaseObject::DecodeBytes(std::string_view bytes) {
    return WithEncoding(bytes, [](auto text) {
        if constexpr (std::is_same_v<decltype(text), std::string_view>)
            return FromUtf8(text);
        else
            return std::u16string(text);
    });
}

std::unique_ptr<TJsonBaseObject> TJsonBaseObject::ParseFromFile(const std::string& name,
                                                                const TJsonReaderProgressRec* progress) {
    return ReadEncoded(ReadFile(name), progress);
}

std::unique_ptr<TJsonBaseObject> TJsonBaseObject::ParseFromStream(std::istream& stream,
                                                                  const TJsonReaderProgressRec* progress) {
    return ReadEncoded(AllOf(stream), progress);
}

void TJsonBaseObject::Parse(std::u16string_view text, const TJsonReaderProgressRec* progress) {
    Adopt(TJsonReader<char16_t>(text, progress).Read(Kind()));
}

void TJsonBaseObject::ParseUtf8(std::string_view bytes, const TJsonReaderProgressRec* progress) {
    Adopt(TJsonReader<char>(bytes, progress).Read(Kind()));
}

void TJsonBaseObject::ParseBytes(std::string_view bytes, const TJsonReaderProgressRec* progress) {
    WithEncoding(bytes, [&](auto text) { Adopt(TJsonReader(text, progress).Read(Kind())); });
}

void TJsonBaseObject::LoadFromFile(const std::string& name, const TJsonReaderProgressRec* progress) {
    ParseBytes(ReadFile(name), progress);
}

void TJsonBaseObject::LoadFromStream(std::istream& stream, const TJsonReaderProgressRec* progress) {
    ParseBytes(AllOf(stream), progress);
}

std::u16string TJsonBaseObject::ToJSON(bool compact) const {
    TJsonOutputWriter<char16_t> writer(compact);
    writer.Write(*this);
    return writer.Finish();
}

std::string TJsonBaseObject::ToUtf8JSON(bool compact) const {
    TJsonOutputWriter<char> writer(compact);
    writer.Write(*this);
    return writer.Finish();
}

void TJsonBaseObject::WritePieces(bool compact, TJsonEncoding encoding,
                                  const std::function<void(std::string_view)>& put) const {
    if (encoding == jeUtf8 || encoding == jeUtf8Bom) {
        if (encoding == jeUtf8Bom)
            put(MarkUtf8);
        TJsonOutputWriter<char> writer(compact, put);
        writer.Write(*this);
        writer.Finish();
        return;
    }
    const bool bigEndian = encoding == jeUtf16BE;
    put(bigEndian ? MarkUtf16BE : MarkUtf16LE);
    // By way of UTF-8, where a lone surrogate becomes U+FFFD: as it is nobody would read the file back.
    put(ToUtf16Bytes(FromUtf8(ToUtf8JSON(compact)), bigEndian));
}

void TJsonBaseObject::SaveToFile(const std::string& name, bool compact, TJsonEncoding encoding) const {
    std::string bytes;
    WritePieces(compact, encoding, [&](std::string_view piece) { bytes += piece; });
    WriteFile(name, bytes);
}

void TJsonBaseObject::SaveToStream(std::ostream& stream, bool compact, TJsonEncoding encoding) const {
    WritePieces(compact, encoding,
                [&](std::string_view piece) { stream.write(piece.data(), std::streamsize(piece.size())); });
    if (!stream)
        throw EStreamError("Stream write error");
}

void TJsonBaseObject::SaveToLines(std::vector<std::u16string>& lines) const {
    lines.clear();
    const std::u16string& lineBreak = TJsonSerializationConfig::Instance().LineBreak;
    const std::u16string text = ToJSON(false);
    for (std::size_t start = 0;;) {
        const std::size_t end = lineBreak.empty() ? text.npos : text.find(lineBreak, start);
        lines.push_back(text.substr(start, end - start));
        if (end == text.npos)
            return;
        start = end + lineBreak.size();
    }
}

} // namespace vagrel
