// SPDX-License-Identifier: MIT
// The calendar, and dates by pattern.
#include <vagrel/foundation/Dates.h>

#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>

#include <array>
#include <chrono>
#include <cmath>
#include <ctime>

namespace vagrel {

namespace {

using namespace std::chrono;

constexpr sys_days Epoch = sys_days{year{1899} / December / 30};
constexpr std::int64_t DayMilliseconds = 86'400'000;

constexpr std::array<std::u16string_view, 12> Months{u"January",   u"February", u"March",    u"April",
                                                     u"May",       u"June",     u"July",     u"August",
                                                     u"September", u"October",  u"November", u"December"};
constexpr std::array<std::u16string_view, 7> Weekdays{u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                                      u"Thursday", u"Friday", u"Saturday"};

// The days and milliseconds of a date time. The time of day counts forward on both sides of the epoch.
std::pair<std::int64_t, std::int64_t> Split(double dateTime) {
    const double day = std::trunc(dateTime);
    std::int64_t whole = Trunc(day);
    std::int64_t ms = Round(std::fabs(dateTime - day) * double(DayMilliseconds));
    if (ms == DayMilliseconds) {
        ms = 0;
        ++whole;
    }
    // Beyond these days the calendar of std::chrono ends.
    constexpr std::int64_t most = 11'000'000;
    return {std::clamp<std::int64_t>(whole, -most, most), ms};
}

// One run of a pattern letter.
struct TRun {
    char16_t letter;
    std::size_t length;
};

std::u16string Pad(int value, std::size_t digits) { return IntToStr(value, int(digits)); }

std::u16string Named(std::u16string_view name, std::size_t length) {
    return std::u16string(length == 3 ? name.substr(0, 3) : name);
}

class TDateWriter {
public:
    explicit TDateWriter(double dateTime, bool halfDay) : fParts(DateParts(dateTime)), fHalfDay(halfDay) {
        fWeekday = weekday{Epoch + days{Split(dateTime).first}}.c_encoding();
    }

    void Write(TRun run) {
        const std::size_t two = std::min<std::size_t>(run.length, 2);
        switch (run.letter) {
        case u'd':
            fOut += run.length <= 2 ? Pad(fParts.day, two) : Named(Weekdays[fWeekday], run.length);
            break;
        case u'm':
            if (fAfterHour)
                fOut += Pad(fParts.minute, two);
            else
                fOut +=
                    run.length <= 2 ? Pad(fParts.month, two) : Named(Months[std::size_t(fParts.month - 1)], run.length);
            break;
        case u'y':
            fOut += run.length <= 2 ? Pad(fParts.year % 100, 2) : Pad(fParts.year, 4);
            break;
        case u'h':
            fOut += Pad(fHalfDay ? (fParts.hour + 11) % 12 + 1 : fParts.hour, two);
            break;
        case u'n':
            fOut += Pad(fParts.minute, two);
            break;
        case u's':
            fOut += Pad(fParts.second, two);
            break;
        default:
            fOut += Pad(fParts.millisecond, run.length == 3 ? 3 : 1);
        }
        fAfterHour = run.letter == u'h';
    }
    void Text(std::u16string_view text) { fOut += text; }
    void HalfDay(bool capitals) { fOut += fParts.hour < 12 ? (capitals ? u"AM" : u"am") : (capitals ? u"PM" : u"pm"); }
    std::u16string Take() { return std::move(fOut); }

private:
    TDateParts fParts;
    bool fHalfDay;
    bool fAfterHour = false;
    unsigned fWeekday = 0;
    std::u16string fOut;
};

constexpr std::u16string_view HalfDayMark = u"am/pm";

} // namespace

TDateParts DateParts(double dateTime) {
    const auto [day, ms] = Split(dateTime);
    const year_month_day date{Epoch + days{day}};
    const int time = int(ms);
    return {int(date.year()), int(unsigned(date.month())), int(unsigned(date.day())),
            time / 3'600'000, time / 60'000 % 60,          time / 1000 % 60,
            time % 1000};
}

double DateTimeOf(const TDateParts& parts) {
    const sys_days date = sys_days{year{parts.year} / month{unsigned(parts.month)} / day{unsigned(parts.day)}};
    const auto whole = double((date - Epoch).count());
    const double fraction =
        (((parts.hour * 60.0 + parts.minute) * 60 + parts.second) * 1000 + parts.millisecond) / double(DayMilliseconds);
    return whole < 0 ? whole - fraction : whole + fraction;
}

double Now() {
    const auto now = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&seconds, &local);
    const auto ms = duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
    return DateTimeOf({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                       std::min(local.tm_sec, 59), int(ms)});
}

TDateFormat& DateFormat() {
    static TDateFormat format;
    return format;
}

std::u16string FormatDateTime(std::u16string_view pattern, double dateTime) {
    if (pattern.empty())
        pattern = DateFormat().shortDate;
    const std::u16string lower = ToLower(pattern);
    TDateWriter out(dateTime, lower.find(HalfDayMark) != std::u16string::npos);
    for (std::size_t i = 0; i < pattern.size();) {
        const char16_t unit = lower[i];
        if (std::u16string_view(lower).substr(i).starts_with(HalfDayMark)) {
            out.HalfDay(pattern[i] == u'A');
            i += HalfDayMark.size();
        } else if (std::u16string_view(u"dmyhnsz").find(unit) != std::u16string_view::npos) {
            const std::size_t end = std::min(lower.find_first_not_of(unit, i), lower.size());
            out.Write({unit, end - i});
            i = end;
        } else if (unit == u'"' || unit == u'\'') {
            const std::size_t end = std::min(lower.find(unit, i + 1), lower.size());
            out.Text(pattern.substr(i + 1, end - i - 1));
            i = std::min(end + 1, lower.size());
        } else {
            const char16_t written = unit == u'/'   ? DateFormat().dateSeparator
                                     : unit == u':' ? DateFormat().timeSeparator
                                                    : pattern[i];
            out.Text(std::u16string_view(&written, 1));
            ++i;
        }
    }
    return out.Take();
}

} // namespace vagrel
