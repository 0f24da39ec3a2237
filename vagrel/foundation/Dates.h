// SPDX-License-Identifier: MIT
// Date times as numbers and as text. A date time is a number of days since 1899-12-30; its fraction is the time of day.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vagrel {

/// Year, month and day of the proleptic Gregorian calendar and the time of day, to milliseconds.
struct TDateParts {
    int year = 1899, month = 12, day = 30;
    int hour = 0, minute = 0, second = 0, millisecond = 0;
};

TDateParts DateParts(double dateTime);
double DateTimeOf(const TDateParts& parts);

/// The local date time now.
double Now();

/// How dates are written where no pattern tells it. A setting of the process.
struct TDateFormat {
    std::u16string shortDate = u"dd/mm/yyyy";
    char16_t dateSeparator = u'/';
    char16_t timeSeparator = u':';
};
TDateFormat& DateFormat();

/// `dateTime` by a pattern: "d", "dd", "m", "mm", "mmm", "mmmm", "ddd", "dddd", "yy", "yyyy", "h", "hh", "n", "nn",
/// "s", "ss", "z", "zzz", "am/pm"; "/" and ":" are the separators of `DateFormat`; texts in quotes and all other
/// characters stand for themselves. "m" behind an hour means minutes. Letters count without regard to case. An empty
/// pattern gives the short date. English names.
std::u16string FormatDateTime(std::u16string_view pattern, double dateTime);

} // namespace vagrel
