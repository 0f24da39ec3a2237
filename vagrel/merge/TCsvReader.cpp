// SPDX-License-Identifier: MIT
// Splitting CSV. Line breaks are CR, LF or CR LF.
#include <vagrel/merge/TCsvReader.h>

#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Text.h>

#include <algorithm>
#include <cstring>

namespace vagrel {

namespace {

constexpr std::string_view LineBreaks = "\r\n";

// The place of the first of three characters, or the end.
std::size_t FindAny(std::string_view text, std::size_t at, char a, char b, char c) {
    const char* p = text.data() + at;
    const char* end = text.data() + text.size();
    while (p != end && *p != a && *p != b && *p != c)
        ++p;
    return std::size_t(p - text.data());
}

// ASCII needs no decoding.
void Assign(std::u16string& cell, std::string_view bytes) {
    cell.resize(bytes.size());
    unsigned char all = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        cell[i] = byte;
        all |= byte;
    }
    if (all >= 0x80)
        cell = FromUtf8(bytes);
}

} // namespace

TCsvReader::TCsvReader(std::string text, char separator, char quote)
    : fText(std::move(text)), fSeparator(separator), fQuote(quote) {
    for (std::size_t at = 0; at < fText.size();) {
        fStarts.push_back(at);
        at = EndOfRecord(at);
        if (at < fText.size())
            at += std::string_view(fText).substr(at).starts_with("\r\n") ? 2 : 1;
    }
}

// The place behind the closing quote of the cell that opens at `at`.
std::size_t TCsvReader::BehindQuoted(std::size_t at) const {
    const std::size_t opening = at++;
    for (;;) {
        const void* hit = at < fText.size() ? std::memchr(fText.data() + at, fQuote, fText.size() - at) : nullptr;
        if (!hit) {
            const auto line = 1 + std::count(fText.begin(), fText.begin() + std::ptrdiff_t(opening), '\n');
            throw EVagrel("The quote that opens in line " + std::to_string(line) + " is not closed");
        }
        at = std::size_t(static_cast<const char*>(hit) - fText.data()) + 1;
        if (at == fText.size() || fText[at] != fQuote)
            return at;
        ++at;
    }
}

std::size_t TCsvReader::EndOfRecord(std::size_t at) const {
    if (fQuote == 0)
        return std::min(fText.find_first_of(LineBreaks, at), fText.size());
    for (;;) {
        if (at < fText.size() && fText[at] == fQuote)
            at = BehindQuoted(at);
        at = FindAny(fText, at, fSeparator, '\n', '\r');
        if (at == fText.size() || fText[at] != fSeparator)
            return at;
        ++at;
    }
}

// The inside of a quoted cell, doubled quotes made single.
void TCsvReader::AppendQuoted(std::u16string& cell, std::size_t from, std::size_t to) const {
    std::string bytes;
    for (std::size_t i = from; i < to; ++i) {
        bytes += fText[i];
        if (fText[i] == fQuote)
            ++i;
    }
    Assign(cell, bytes);
}

std::string_view TCsvReader::Text(int index) const {
    const std::size_t start = fStarts[std::size_t(index)];
    return std::string_view(fText).substr(start, EndOfRecord(start) - start);
}

void TCsvReader::Read(int index, TCells& cells) const {
    std::size_t count = 0;
    for (std::size_t at = fStarts[std::size_t(index)];; ++at) {
        if (count == cells.size())
            cells.emplace_back();
        std::u16string& cell = cells[count++];
        const std::size_t begin = at;
        const bool quoted = fQuote != 0 && at < fText.size() && fText[at] == fQuote;
        if (quoted)
            at = BehindQuoted(at);
        const std::size_t closing = at;
        at = FindAny(fText, at, fSeparator, '\n', '\r');
        if (!quoted) {
            Assign(cell, std::string_view(fText).substr(begin, at - begin));
        } else {
            const std::string_view inside = std::string_view(fText).substr(begin + 1, closing - begin - 2);
            if (inside.find(fQuote) == std::string_view::npos)
                Assign(cell, inside);
            else
                AppendQuoted(cell, begin + 1, closing - 1);
            // What stands behind the closing quote is data.
            if (at > closing)
                cell += FromUtf8(std::string_view(fText).substr(closing, at - closing));
        }
        if (at == fText.size() || fText[at] != fSeparator)
            break;
    }
    cells.resize(count);
}

} // namespace vagrel
