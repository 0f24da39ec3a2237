// SPDX-License-Identifier: MIT
// Numbers as text. The decimal separator is always "."; no locale is asked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vagrel {

/// `value` by a number pattern: "0" a digit that always shows, "#" one that shows when it is needed, "." the decimal
/// point, "," groups of thousands, texts in single or double quotes as they are, up to three sections for positive,
/// negative and zero numbers separated by ";", "E+0" or "E-0" an exponent. All other characters stand for themselves.
///
/// Rounds the exact decimal value of `value`, and a tie goes away from zero: 0.125 with "0.00" is 0.13, while 2.675,
/// whose exact value lies below the tie, is 2.67. Where all digits are zero no minus is written. An empty pattern gives
/// the general form.
std::u16string FormatFloat(std::u16string_view pattern, double value);

/// A whole number by a pattern, every digit exact; in decimal for an empty pattern.
std::u16string FormatInt(std::u16string_view pattern, std::int64_t value);

/// Appends `value` with exactly `decimals` decimals (0 to 9), rounded as `FormatFloat` does. The fast road of SVG.
void AppendFixed(std::string& out, double value, int decimals);

/// Appends `value` in general form with 15 significant digits: the shortest of plain and exponent notation, no trailing
/// zeros, as 0.1, 1E20, 1E-7.
void AppendGeneral(std::string& out, double value);

/// The general form as UTF-16: the shortest decimal text of the library.
std::u16string FloatToStr(double value);

/// Reads a whole text as a decimal number: optional sign, digits, fraction, exponent; blanks at both ends are skipped.
/// Nothing when the text is anything else.
std::optional<double> TryStrToFloat(std::u16string_view text);

/// Reads a whole text as a signed integer in decimal; nothing when it is anything else or does not fit.
std::optional<std::int64_t> TryStrToInt64(std::u16string_view text);

} // namespace vagrel
