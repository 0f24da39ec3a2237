// SPDX-License-Identifier: MIT
// Code 93 and its full ASCII form.
#include <vagrel/barcode/PatternTable_p.h>
#include <vagrel/barcode/Symbology_p.h>

#include <vector>

namespace vagrel::detail {

namespace {

constexpr std::array<std::int8_t, 256> Code93Rows = RowsOf(Code93Characters);

/// Values weighed from the right with 1, 2, ... `period`, then from 1 again; modulo 47.
std::uint8_t Check(const std::vector<std::uint8_t>& values, std::size_t period) {
    std::size_t sum = 0, weight = 0;
    for (auto it = values.rbegin(); it != values.rend(); ++it) {
        weight = weight == period ? 1 : weight + 1;
        sum += *it * weight;
    }
    return static_cast<std::uint8_t>(sum % Code93Table.size());
}

/// Appends the checks C and K and sets the characters between start and stop.
std::string Encode(std::vector<std::uint8_t> values) {
    values.push_back(Check(values, 20));
    values.push_back(Check(values, 15));
    TPatternWriter pattern(6 * values.size() + 13);
    pattern.Add("N1N1W1");
    for (const std::uint8_t value : values)
        pattern.Add(Code93Table[value]);
    pattern.Add("N1N1W1N");
    return pattern.Take();
}

void Add(std::vector<std::uint8_t>& values, char character) {
    const int row = Code93Rows[static_cast<unsigned char>(character)];
    if (row >= 0)
        values.push_back(static_cast<std::uint8_t>(row));
}

} // namespace

std::string EncodeCode93(const TPatternRequest& request) {
    std::vector<std::uint8_t> values;
    values.reserve(request.Code.size() + 2);
    for (const char character : request.Code)
        if (Is(character, Characters93))
            Add(values, character);
    return Encode(std::move(values));
}

std::string EncodeCode93Ex(const TPatternRequest& request) {
    std::vector<std::uint8_t> values;
    values.reserve(2 * request.Code.size() + 2);
    for (const char character : request.Code) {
        if (!Is(character, Ascii))
            continue;
        const auto [shift, letter] = FullAscii93Table[static_cast<std::size_t>(character)];
        if (shift)
            Add(values, shift);
        Add(values, letter);
    }
    return Encode(std::move(values));
}

} // namespace vagrel::detail
