// SPDX-License-Identifier: MIT
// Text compaction of PDF417: where characters stand, and how the sub-modes change.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace vagrel::detail {

/// Codewords that say what the ones behind them are.
inline constexpr int LatchText = 900;
inline constexpr int LatchNumeric = 902;
inline constexpr int EciUser = 925;         ///< and one word: an interpretation of the user's, from 810900 on
inline constexpr int EciGeneral = 926;      ///< and two words: one from 900 on
inline constexpr int EciCharacterSet = 927; ///< and one word: one below

/// Sub-modes of Text compaction.
enum TSubMode : std::uint8_t { Alpha, Lower, Mixed, Punctuation, SubModeCount };

/// The value of a character, and a bit for each sub-mode that holds it: none for those that Text compaction lacks.
struct TTextCode {
    std::uint8_t Value = 0;
    std::uint8_t SubModes = 0;

    bool IsIn(TSubMode mode) const { return SubModes >> mode & 1; }
};
extern const std::array<TTextCode, 256> TextCompactionTable;

/// The values that lead from one sub-mode to another: for good, and for one character only (-1 where there is no
/// shift).
struct TSubModeChange {
    std::string_view Latch;
    int Shift = -1;
};
/// By the sub-mode left and the one entered.
extern const std::array<std::array<TSubModeChange, SubModeCount>, SubModeCount> SubModeChanges;

/// What stands at one place of the text: a character, raw words, or nothing.
struct TTextToken {
    int Length = 1;
    TTextCode Code;
    int RawCount = 0;
    std::array<int, 3> Raw{};
};
/// Reads the front of `text`, which is not empty and begins with a backslash.
TTextToken ReadTextEscape(std::string_view text);

/// Reads the front of `text`, which is not empty, with its escapes.
inline TTextToken ReadTextToken(std::string_view text) {
    return text[0] == '\\' ? ReadTextEscape(text) : TTextToken{1, TextCompactionTable[std::uint8_t(text[0])], 0, {}};
}

} // namespace vagrel::detail
