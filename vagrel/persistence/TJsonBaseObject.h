// SPDX-License-Identifier: MIT
// The common base of JSON objects and arrays: storage, reading, writing, copying.
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <vagrel/persistence/TJsonDataValue.h>

namespace vagrel {

class TJsonName;
struct TJsonReaderProgressRec;

/// Encodings of a written file or stream.
enum TJsonEncoding : std::int32_t { jeUtf8, jeUtf8Bom, jeUtf16LE, jeUtf16BE };

/// A container of values. Not shared between threads, but for reading by `Clone` and the writing operations.
class TJsonBaseObject {
public:
    TJsonBaseObject(const TJsonBaseObject&) = delete;
    TJsonBaseObject& operator=(const TJsonBaseObject&) = delete;
    virtual ~TJsonBaseObject();
    static void operator delete(void* block) { ::operator delete(block); }

    /// The object or array of a text; null for a blank one. Throws EJsonParserException.
    static std::unique_ptr<TJsonBaseObject> FromJSON(std::u16string_view text,
                                                     const TJsonReaderProgressRec* progress = nullptr);
    static std::unique_ptr<TJsonBaseObject> FromUtf8JSON(std::string_view bytes,
                                                         const TJsonReaderProgressRec* progress = nullptr);
    /// The text of a file behind its byte order mark, by the encodings of ParseFromFile.
    static std::u16string DecodeBytes(std::string_view bytes);
    /// As FromUtf8JSON; a byte order mark of UTF-8 or UTF-16 tells the encoding, without one it is UTF-8. Throws
    /// EJsonException for the mark of another encoding, EStreamError for a file that cannot be read.
    static std::unique_ptr<TJsonBaseObject> ParseFromFile(const std::string& name,
                                                          const TJsonReaderProgressRec* progress = nullptr);
    static std::unique_ptr<TJsonBaseObject> ParseFromStream(std::istream& stream,
                                                            const TJsonReaderProgressRec* progress = nullptr);

    /// Replaces the content by that of a text of the same kind; a blank text leaves it empty. When the text is no JSON
    /// the old content stays. Throws EJsonParserException.
    void Parse(std::u16string_view text, const TJsonReaderProgressRec* progress = nullptr);
    void ParseUtf8(std::string_view bytes, const TJsonReaderProgressRec* progress = nullptr);
    /// As Parse, with encodings and exceptions of ParseFromFile: the bytes of a file, its stream or its name. In UTF-16
    /// half a surrogate pair is a fault, too.
    void ParseBytes(std::string_view bytes, const TJsonReaderProgressRec* progress = nullptr);
    void LoadFromFile(const std::string& name, const TJsonReaderProgressRec* progress = nullptr);
    void LoadFromStream(std::istream& stream, const TJsonReaderProgressRec* progress = nullptr);

    /// The text: without white space when compact, else one member a line. A float that is not finite is null.
    std::u16string ToJSON(bool compact = true) const;
    /// The same in UTF-8; a lone surrogate becomes U+FFFD.
    std::string ToUtf8JSON(bool compact = true) const;
    void SaveToFile(const std::string& name, bool compact = true, TJsonEncoding encoding = jeUtf8) const;
    /// Throws EStreamError when the stream fails.
    void SaveToStream(std::ostream& stream, bool compact = true, TJsonEncoding encoding = jeUtf8) const;
    /// The indented text by lines, without the line breaks.
    void SaveToLines(std::vector<std::u16string>& lines) const;

    /// A deep copy.
    std::unique_ptr<TJsonBaseObject> Clone() const;
    void Clear();
    std::int32_t Count() const { return std::int32_t(fCount); }
    bool IsObject() const { return fIsObject; }

    /// `value`, a local date time, in ISO 8601: as UTC with "Z", or as local time with its offset.
    static std::u16string DateTimeToJSON(double value, bool useUtcTime);
    /// `value`, a date time in UTC, in ISO 8601 with "Z".
    static std::u16string UtcDateTimeToJSON(double value);
    /// Reads ISO 8601 or /Date(milliseconds)/ and gives it in UTC or in local time; a text without a zone is local. Up
    /// to three digits behind the seconds are whole milliseconds. Empty text gives 0; throws EConvertError for others.
    static double JSONToDateTime(std::u16string_view text, bool asUtc);

    // For the reader, the writer and values: the storage as it stands.
    const TJsonDataValue& ItemAt(std::int32_t index) const { return fItems[index]; }
    const TJsonName* NameAt(std::int32_t index) const { return Names()[index]; }

protected:
    explicit TJsonBaseObject(bool isObject) : fIsObject(isObject) {}

    TJsonDataValue* Items() const { return fItems; }
    TJsonName** Names() const { return reinterpret_cast<TJsonName**>(fItems + fCapacity); }
    /// Makes room for one more value.
    void Grow();
    /// Puts a value at `index`, where room is; of an object `name` belongs to it then.
    TJsonDataValue& InsertItem(std::int32_t index, TJsonDataValue value, TJsonName* name);
    TJsonDataValue TakeItem(std::int32_t index);
    void Reserve(std::size_t capacity);
    void RequireIndex(std::int32_t index, std::int32_t limit) const;
    /// An empty container of this capacity, in one block with its storage.
    static std::unique_ptr<TJsonBaseObject> New(bool isObject, std::size_t capacity);

private:
    friend class TJsonTreeBuilder;
    template <class Container>
    static std::unique_ptr<TJsonBaseObject> NewInOneBlock(std::size_t capacity);
    std::size_t SlotSize() const { return sizeof(TJsonDataValue) + (fIsObject ? sizeof(TJsonName*) : 0); }
    virtual void ForgetSearch() {}
    void DropLast();
    void Adopt(std::unique_ptr<TJsonBaseObject> content);
    TJsonDataType Kind() const { return fIsObject ? jdtObject : jdtArray; }
    void WritePieces(bool compact, TJsonEncoding encoding, const std::function<void(std::string_view)>& put) const;

    TJsonDataValue* fItems = nullptr; // fCapacity values; behind them, of an object, fCapacity names
    std::uint32_t fCount = 0;
    std::uint32_t fCapacity : 30 = 0;
    std::uint32_t fIsObject : 1;
    std::uint32_t fInOneBlock : 1 = 0; // fItems stand behind the container in its own block
};

} // namespace vagrel
