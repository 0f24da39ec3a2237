// SPDX-License-Identifier: MIT
// Splitting CSV. Line breaks are CR, LF or CR LF.
#include <vagrel/merge/TCsvReader.h>

#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <bit>
#include <cstring>

namespace vagrel {

namespace {

constexpr std::uint64_t Ones = 0x0101010101010101;

// The top bit of the lowest byte that is 0, and perhaps of bytes above it.
constexpr std::uint64_t ZeroBytes(std::uint64_t word) { return (word - Ones) & ~word & (Ones << 7); }

// The place of the first of three characters, or the end. Looks at eight bytes at once.
std::size_t FindAny(std::string_view text, std::size_t at, char a, char b, char c) {
    static_assert(std::endian::native == std::endian::little);
    const std::uint64_t as = Ones * static_cast<unsigned char>(a), bs = Ones * static_cast<unsigned char>(b),
                        cs = Ones * static_cast<unsigned char>(c);
    for (std::uint64_t word = 0; text.size() - at >= sizeof word; at += sizeof word) {
        std::memcpy(&word, text.data() + at, sizeof word);
        if (const std::uint64_t hits = ZeroBytes(word ^ as) | ZeroBytes(word ^ bs) | ZeroBytes(word ^ cs))
            return at + std::size_t(std::countr_zero(hits)) / 8;
    }
    while (at < text.size() && text[at] != a && text[at] != b && text[at] != c)
        ++at;
    return at;
}

// The length of the line break that stands at a place, 0 for none.
std::size_t LineBreak(std::string_view text, std::size_t at) {
    if (at == text.size() || (text[at] != '\r' && text[at] != '\n'))
        return 0;
    return text.substr(at).starts_with("\r\n") ? 2 : 1;
}

std::size_t CountLineBreaks(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = FindAny(text, at, '\r', '\n', '\n')) < text.size(); at += LineBreak(text, at))
        ++count;
    return count;
}

} // namespace

TCsvReader::TCsvReader(std::string text, char separator, char quote)
    : fText(std::move(text)), fSeparator(separator), fQuote(quote) {
    for (std::size_t at = 0; at < fText.size(); at += LineBreak(fText, at)) {
        const std::size_t begin = at;
        at = EndOfRecord(begin);
        fRecords.push_back({begin, at - begin});
    }
}

std::size_t TCsvReader::EndOfRecord(std::size_t begin) const {
    const char quote = fQuote != 0 ? fQuote : '\n';
    for (std::size_t at = begin;;) {
        at = FindAny(fText, at, '\n', '\r', quote);
        if (at == fText.size() || fText[at] == '\n' || fText[at] == '\r')
            return at;
        // A quote opens a cell only at its begin.
        at = at == begin || fText[at - 1] == fSeparator ? BehindQuoted(at) : at + 1;
    }
}

// The place behind the closing quote of the cell that opens at `opening`.
std::size_t TCsvReader::BehindQuoted(std::size_t opening) const {
    for (std::size_t at = opening + 1;; at += 2) {
        at = fText.find(fQuote, at);
        if (at == std::string::npos) {
            const std::size_t line = 1 + CountLineBreaks(std::string_view(fText).substr(0, opening));
            throw EVagrel("The quote that opens in line " + std::to_string(line) + " is not closed");
        }
        if (at + 1 == fText.size() || fText[at + 1] != fQuote)
            return at + 1;
    }
}

// Takes the inside of the quoted cell that opens at `at`, doubled quotes made single; the place behind it.
std::size_t TCsvReader::AppendQuoted(std::u16string& cell, std::string_view record, std::size_t at) const {
    for (++at;;) {
        const std::size_t hit = record.find(fQuote, at);
        const bool doubled = hit + 1 < record.size() && record[hit + 1] == fQuote;
        AppendUtf16(cell, record.substr(at, hit - at + doubled));
        at = hit + 1 + doubled;
        if (!doubled)
            return at;
    }
}

std::string_view TCsvReader::Text(int index) const {
    const auto [begin, size] = fRecords[std::size_t(index)];
    return std::string_view(fText).substr(begin, size);
}

void TCsvReader::Read(int index, TCells& cells) const {
    const auto [begin, size] = fRecords[std::size_t(index)];
    const std::string_view record = std::string_view(fText).substr(begin, size);
    std::size_t count = 0;
    for (std::size_t at = 0, end = 0; end < record.size() || count == 0; at = end + 1) {
        if (count == cells.size())
            cells.emplace_back();
        std::u16string& cell = cells[count++];
        cell.clear();
        if (fQuote != 0 && at < record.size() && record[at] == fQuote)
            at = AppendQuoted(cell, record, at);
        // What stands behind a closing quote is data.
        end = std::min(record.find(fSeparator, at), record.size());
        AppendUtf16(cell, record.substr(at, end - at));
    }
    cells.resize(count);
}

} // namespace vagrel
