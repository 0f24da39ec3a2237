// SPDX-License-Identifier: MIT
// The JSON parser. One grammar reads UTF-8 bytes and UTF-16 code units.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <vagrel/persistence/TJsonBaseObject.h>

namespace vagrel {

/// Tells how far a long reading has come.
struct TJsonReaderProgressRec {
    /// Handed to the callback as it is.
    void* Data = nullptr;
    /// Bytes between two calls; 0 calls at each whole percent.
    std::size_t Threshold = 0;
    /// Gets `Data`, the percentage, the bytes read and the bytes in all. The last call tells 100 percent.
    std::function<void(void* data, int percentage, std::size_t position, std::size_t size)> Progress;
};

class TJsonName;
class TJsonNameIndex;

/// Builds the tree of a text. Standard JSON, and beyond it bare words and all scalars as names of members: a bare word
/// is an ASCII letter, `_` or `$`, then letters, digits and `_`. A repeated name replaces the value in its first place.
/// Integers become jdtInt, jdtLong, jdtULong or, beyond 64 bits, jdtFloat; a number beyond double is a fault.
template <class Unit>
class TJsonReader {
public:
    explicit TJsonReader(std::basic_string_view<Unit> text, const TJsonReaderProgressRec* progress = nullptr);
    ~TJsonReader();
    TJsonReader(const TJsonReader&) = delete;
    TJsonReader& operator=(const TJsonReader&) = delete;

    /// The object or array of the text, or only the one that is wanted; null when the text is blank. Call once. Throws
    /// EJsonParserException.
    std::unique_ptr<TJsonBaseObject> Read(TJsonDataType wanted = jdtNone);

private:
    struct TFrame;
    // The known names that came last as the next one in the object and as the first one in the value.
    struct TFollow {
        std::uint32_t next = 0, first = 0;
    };

    // Grammar
    bool Open();
    bool Next();
    void Close();
    void ReadKey();
    void NewSlot();
    // Tokens
    std::u16string_view ReadName();
    void ReadScalar(TJsonDataValue& slot);
    TJsonDataValue ReadNumber();
    TJsonDataValue ReadLongInteger(const Unit* begin);
    TJsonDataValue ReadFloat(const Unit* begin, std::uint64_t mantissa, bool isExact, std::int64_t exponent);
    void ReadString(TJsonDataValue& slot);
    std::u16string_view ReadText();
    void DecodeText(const Unit* opening);
    void ReadEscape();
    void AppendRun(const Unit* begin, const Unit* end);
    bool TakeWord(const char* word);
    std::uint32_t ReadKnownName(std::uint32_t expected, bool& isPlain);
    std::size_t Position(TFrame& frame, TJsonName* name);
    std::uint32_t Intern(std::u16string_view name);
    // Faults and progress
    std::string Found() const;
    [[noreturn]] void Fail(const std::string& message, const Unit* at) const;
    [[noreturn]] void FailExpected(const char* expected) const;
    void Report();

    const Unit* fBegin;
    const Unit* fAt;
    const Unit* fEnd;
    const TJsonReaderProgressRec* fProgress;
    const Unit* fNextReport;
    std::size_t fMaxDepth;
    std::vector<TFrame> fFrames;
    // Values and names of the open containers, one container behind the other.
    std::vector<TJsonDataValue> fValues;
    std::vector<TJsonName*> fNames;
    // Every name of the text, the empty one first, and what to expect behind each.
    std::vector<TJsonName*> fKnownNames;
    std::vector<TFollow> fFollow;
    std::unique_ptr<TJsonNameIndex> fKnownIndex;
    std::u16string fScratch;
    std::unique_ptr<TJsonBaseObject> fRoot;
};

using TUtf8JsonReader = TJsonReader<char>;
using TStringJsonReader = TJsonReader<char16_t>;

extern template class TJsonReader<char>;
extern template class TJsonReader<char16_t>;

} // namespace vagrel
