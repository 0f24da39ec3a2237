// SPDX-License-Identifier: MIT
// JSON text from a tree.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <vagrel/persistence/TJsonBaseObject.h>

namespace vagrel {

/// Appends JSON to a growing buffer of UTF-8 bytes (`char`) or UTF-16 code units (`char16_t`), or hands the buffer on
/// piece by piece.
template <class Unit>
class TJsonOutputWriter {
public:
    /// Takes a full piece of the text.
    using TFlush = std::function<void(std::basic_string_view<Unit>)>;

    explicit TJsonOutputWriter(bool compact, TFlush flush = nullptr);

    void Write(const TJsonBaseObject& root);
    /// The text, where nothing takes the pieces; else the last piece goes out.
    std::basic_string<Unit> Finish();

private:
    void WriteScalar(const TJsonDataValue& value);
    void WriteName(const TJsonName& name);
    void WriteText(std::u16string_view text);
    Unit* WriteUnit(Unit* at, const char16_t*& from, const char16_t* end);
    void WriteAscii(std::string_view ascii);
    void WriteOne(char ascii);
    void Break(std::size_t depth);
    /// Room for so many units more; the caller advances fAt.
    Unit* Room(std::size_t units) {
        if (std::size_t(fLimit - fAt) < units)
            MakeRoom(units);
        return fAt;
    }
    void MakeRoom(std::size_t units);
    void FlushPiece();

    bool fCompact;
    TFlush fFlush;
    std::basic_string<Unit> fLineBreak, fIndent;
    std::basic_string<Unit> fMargin; // the line break with the deepest indentation so far
    std::string fNumber;
    std::basic_string<Unit> fText;
    Unit* fAt = nullptr;
    Unit* fLimit = nullptr;
};

extern template class TJsonOutputWriter<char>;
extern template class TJsonOutputWriter<char16_t>;

} // namespace vagrel
