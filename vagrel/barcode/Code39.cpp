// SPDX-License-Identifier: MIT
// Code 39, its full ASCII form, and Codabar: characters parted by a narrow space.
#include <vagrel/barcode/PatternTable_p.h>
#include <vagrel/barcode/Symbology_p.h>

namespace vagrel::detail {

namespace {

constexpr std::size_t CheckValues = 43, StartStop = 43;
constexpr std::array<std::int8_t, 256> CodabarRows = RowsOf(CodabarCharacters);

int RowOf(const std::array<std::int8_t, 256>& rows, char character) {
    return rows[static_cast<unsigned char>(character)];
}

std::string CheckCharacter(std::string_view code) {
    std::size_t sum = 0;
    for (const char character : code)
        if (const int row = RowOf(Code39Rows, character); row >= 0)
            sum += static_cast<std::size_t>(row);
    return {Code39Characters[sum % CheckValues]};
}

/// Text in full ASCII by pairs of plain characters; codes from 128 up are left out.
std::string Expand(std::string_view code) {
    std::string expanded;
    expanded.reserve(2 * code.size());
    for (const char character : code) {
        if (!Is(character, Ascii))
            continue;
        const auto [shift, letter] = FullAscii39Table[static_cast<std::size_t>(character)];
        if (shift)
            expanded += shift;
        expanded += letter;
    }
    return expanded;
}

/// Start, the characters that the table has, stop, each parted from the next.
template <std::size_t Count, std::size_t Length>
std::string Spaced(const TPatternTable<Count, Length>& table, const std::array<std::int8_t, 256>& rows,
                   std::string_view code, std::size_t start, std::size_t stop) {
    TPatternWriter pattern((Length + 1) * (code.size() + 2));
    pattern.Add(table[start]);
    for (const char character : code) {
        const int row = RowOf(rows, character);
        if (row < 0)
            continue;
        pattern.Add('1');
        pattern.Add(table[static_cast<std::size_t>(row)]);
    }
    pattern.Add('1');
    pattern.Add(table[stop]);
    return pattern.Take();
}

} // namespace

TDigitControl PrepareCode39(const TSymbology&, std::string code, bool checkSum) {
    TBarcode::UpperCase(code);
    const std::string check = checkSum ? CheckCharacter(code) : std::string();
    return {code + check, check};
}

TDigitControl PrepareCode39Ex(const TSymbology&, std::string code, bool checkSum) {
    const std::string check = checkSum ? CheckCharacter(Expand(code)) : std::string();
    return {code + check, check};
}

std::string EncodeCode39(const TPatternRequest& request) {
    return Spaced(Code39Table, Code39Rows, request.Code, StartStop, StartStop);
}

std::string EncodeCode39Ex(const TPatternRequest& request) {
    return Spaced(Code39Table, Code39Rows, Expand(request.Code), StartStop, StartStop);
}

std::string EncodeCodabar(const TPatternRequest& request) {
    return Spaced(CodabarTable, CodabarRows, request.Code, CodabarCharacters.find('A'), CodabarCharacters.find('B'));
}

} // namespace vagrel::detail
