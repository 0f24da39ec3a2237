// SPDX-License-Identifier: MIT
// Text: UTF-16 in memory, UTF-8 at the border. Positions and lengths are code units.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vagrel {

/// UTF-16 to UTF-8. A lone surrogate becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

/// Appends `text` to `out` as UTF-8. A lone surrogate becomes U+FFFD.
void AppendUtf8(std::string& out, std::u16string_view text);

/// UTF-8 to UTF-16. Every byte that is no part of a well-formed sequence becomes U+FFFD.
std::u16string FromUtf8(std::string_view bytes);

/// Appends `bytes` to `out` as `FromUtf8` gives them.
void AppendUtf16(std::u16string& out, std::string_view bytes);

/// True when `bytes` are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

/// Equality without regard to case: ASCII, Latin-1, Latin Extended-A, Greek and Cyrillic letters fold, all others
/// compare as they stand.
bool SameText(std::u16string_view a, std::u16string_view b);

/// The lower-case form of one code unit, by the letters that `SameText` folds.
char16_t ToLower(char16_t unit);
std::u16string ToLower(std::u16string_view text);

/// Without the control characters and blanks (up to U+0020) at both ends.
std::u16string_view Trim(std::u16string_view text);

/// Every occurrence of `from`, which is not empty, replaced by `to`.
std::u16string ReplaceAll(std::u16string_view text, std::u16string_view from, std::u16string_view to);

/// One line a text, each with a line feed behind it.
std::u16string JoinLines(const std::vector<std::u16string>& lines);

/// The lines of a text. They end in CR, LF or CR LF; the last one needs no end.
std::vector<std::u16string> SplitLines(std::u16string_view text);

/// Decimal text of an integer.
std::u16string IntToStr(std::int64_t value);

/// Decimal text with zeros in front up to `digits` digits; the sign does not count.
std::u16string IntToStr(std::int64_t value, int digits);

} // namespace vagrel
