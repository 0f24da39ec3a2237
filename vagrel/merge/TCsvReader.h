// SPDX-License-Identifier: MIT
// Records and cells of a CSV text (RFC 4180, with any separator and quote).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

/// The records of a CSV text. The text stays as it is, in UTF-8; cells are decoded when they are read. A cell that
/// begins with the quote runs to the closing one, over line breaks too, and a doubled quote in it stands for one;
/// elsewhere a quote is data. An empty line is a record of one empty cell; a line break at the end adds none.
class TCsvReader {
public:
    using TCells = std::vector<std::u16string>;

    TCsvReader() = default;
    /// `quote` is 0 for none. Throws EVagrel with the line, counted from 1, of a quote that is not closed.
    TCsvReader(std::string text, char separator, char quote);

    int Count() const { return int(fRecords.size()); }
    /// The cells of a record counted from 0; the strings in `cells` are used again.
    void Read(int index, TCells& cells) const;
    /// A record counted from 0 as it stands, without its line break.
    std::string_view Text(int index) const;

private:
    struct TRecord {
        std::size_t begin, size;
    };
    std::size_t EndOfRecord(std::size_t begin) const;
    std::size_t BehindQuoted(std::size_t opening) const;
    std::size_t AppendQuoted(std::u16string& cell, std::string_view record, std::size_t at) const;

    std::string fText;
    char fSeparator = ';';
    char fQuote = 0;
    std::vector<TRecord> fRecords;
};

} // namespace vagrel
