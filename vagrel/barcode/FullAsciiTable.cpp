// SPDX-License-Identifier: MIT
// Full ASCII in Code 39 and Code 93: the characters that the code lacks are a shift and a letter.
#include <vagrel/barcode/PatternTable_p.h>

namespace vagrel::detail {

namespace {

/// A run of codes that one shift reaches; `shift` is a position in "$%/+".
struct TShiftRun {
    int first, last, shift;
    char letter;
};

constexpr std::array<TShiftRun, 11> ShiftRuns{{{0, 0, 1, 'U'},
                                               {1, 26, 0, 'A'},
                                               {27, 31, 1, 'A'},
                                               {33, 47, 2, 'A'},
                                               {58, 58, 2, 'Z'},
                                               {59, 63, 1, 'F'},
                                               {64, 64, 1, 'V'},
                                               {91, 95, 1, 'K'},
                                               {96, 96, 1, 'W'},
                                               {97, 122, 3, 'A'},
                                               {123, 127, 1, 'P'}}};

consteval std::array<TShifted, 128> FullAscii(std::string_view shifts, std::string_view plain) {
    std::array<TShifted, 128> table{};
    for (const TShiftRun& run : ShiftRuns)
        for (int code = run.first; code <= run.last; ++code)
            table[static_cast<std::size_t>(code)] = {shifts[static_cast<std::size_t>(run.shift)],
                                                     static_cast<char>(run.letter + code - run.first)};
    for (const char character : plain)
        table[static_cast<std::size_t>(character)] = {0, character};
    for (const TShifted& entry : table)
        if (!entry.Character)
            throw "a code has no entry";
    return table;
}

} // namespace

constexpr std::array<TShifted, 128> FullAscii39Table = FullAscii("$%/+", Code39Characters.substr(0, 39));
constexpr std::array<TShifted, 128> FullAscii93Table = FullAscii("abcd", Code93Characters.substr(0, 43));

} // namespace vagrel::detail
