// SPDX-License-Identifier: MIT
// Date times as JSON text, ISO 8601, and back.
#include "JsonDateTime_p.h"

#include <vagrel/foundation/Exceptions.h>
#include <vagrel/foundation/Rounding.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/persistence/TJsonBaseObject.h>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <optional>

namespace vagrel {

namespace {

using TDays = std::chrono::sys_days;

constexpr std::int64_t SecondMs = 1000, MinuteMs = 60 * SecondMs, DayMs = 24 * 60 * MinuteMs;
constexpr std::int64_t UnixEpochDay = 25569; // 1970-01-01 in days since 1899-12-30

// Milliseconds since 1970-01-01, kept within the years that std::chrono counts.
std::int64_t ToUnixMs(double value) {
    constexpr double limit = 10000000;
    return MathRound((std::clamp(value, -limit, limit) - double(UnixEpochDay)) * double(DayMs));
}

double FromUnixMs(std::int64_t ms) { return double(ms) / double(DayMs) + double(UnixEpochDay); }

std::int64_t FloorDiv(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

// What local time is ahead of UTC at a moment.
std::int64_t OffsetOfUtc(std::int64_t utcMs) {
    const std::time_t seconds = FloorDiv(utcMs, SecondMs);
    std::tm local{};
    localtime_r(&seconds, &local);
    return std::int64_t(local.tm_gmtoff) * SecondMs;
}

// What a local time is ahead of UTC. In the hour that a change to winter time repeats, mktime chooses.
std::int64_t OffsetOfLocal(std::int64_t localMs) {
    const std::chrono::year_month_day date(TDays(std::chrono::days(FloorDiv(localMs, DayMs))));
    const std::int64_t seconds = (localMs - FloorDiv(localMs, DayMs) * DayMs) / SecondMs;
    std::tm local{};
    local.tm_year = int(date.year()) - 1900;
    local.tm_mon = int(unsigned(date.month())) - 1;
    local.tm_mday = int(unsigned(date.day()));
    local.tm_hour = int(seconds / 3600);
    local.tm_min = int(seconds / 60 % 60);
    local.tm_sec = int(seconds % 60);
    local.tm_isdst = -1;
    std::mktime(&local);
    return std::int64_t(local.tm_gmtoff) * SecondMs;
}

// Date and time without a zone; the milliseconds stand unpadded.
std::string Stamp(std::int64_t ms) {
    const std::chrono::year_month_day date(TDays(std::chrono::days(FloorDiv(ms, DayMs))));
    const int time = int(ms - FloorDiv(ms, DayMs) * DayMs);
    char text[64];
    std::snprintf(text, sizeof text, "%.4d-%.2u-%.2uT%.2d:%.2d:%.2d.%d", int(date.year()), unsigned(date.month()),
                  unsigned(date.day()), time / 3600000, time / 60000 % 60, time / 1000 % 60, time % 1000);
    return text;
}

// Reads the parts of a text from left to right; what does not fit leaves nothing.
class TScanner {
public:
    explicit TScanner(std::u16string_view text) : fRest(text) {}

    bool AtEnd() const { return fRest.empty(); }
    bool Take(char16_t unit) {
        if (fRest.empty() || fRest[0] != unit)
            return false;
        fRest.remove_prefix(1);
        return true;
    }
    bool Take(std::u16string_view word) {
        if (!fRest.starts_with(word))
            return false;
        fRest.remove_prefix(word.size());
        return true;
    }
    // The digits that stand here, `least` to `most` of them.
    std::optional<std::int64_t> Digits(std::size_t least, std::size_t most) {
        std::int64_t value = 0;
        std::size_t count = 0;
        for (; count < most && count < fRest.size() && fRest[count] >= u'0' && fRest[count] <= u'9'; ++count)
            value = value * 10 + (fRest[count] - u'0');
        if (count < least)
            return std::nullopt;
        fRest.remove_prefix(count);
        return value;
    }
    // Two digits up to `limit`.
    std::optional<std::int64_t> Two(std::int64_t limit) {
        const auto value = Digits(2, 2);
        return value && *value <= limit ? value : std::nullopt;
    }

private:
    std::u16string_view fRest;
};

struct TMoment {
    std::int64_t ms;
    bool isUtc;
};

std::optional<TMoment> ScanUnixDate(TScanner& scan) {
    const bool negative = scan.Take(u'-');
    const auto ms = scan.Digits(1, 17);
    if (!ms || !scan.Take(u")/"))
        return std::nullopt;
    return TMoment{negative ? -*ms : *ms, true};
}

std::optional<std::int64_t> ScanDate(TScanner& scan) {
    using namespace std::chrono;
    const auto y = scan.Digits(4, 4);
    const auto m = y && scan.Take(u'-') ? scan.Two(12) : std::nullopt;
    const auto d = m && scan.Take(u'-') ? scan.Two(31) : std::nullopt;
    if (!d)
        return std::nullopt;
    const year_month_day date{year(int(*y)), month(unsigned(*m)), day(unsigned(*d))};
    if (!date.ok())
        return std::nullopt;
    return TDays(date).time_since_epoch().count() * DayMs;
}

std::optional<std::int64_t> ScanTime(TScanner& scan) {
    const auto h = scan.Two(24);
    const auto m = h && scan.Take(u':') ? scan.Two(59) : std::nullopt;
    if (!m)
        return std::nullopt;
    std::int64_t ms = *h * 60 * MinuteMs + *m * MinuteMs;
    if (scan.Take(u':')) {
        const auto s = scan.Two(60);
        if (!s)
            return std::nullopt;
        ms += *s * SecondMs;
        if (scan.Take(u'.')) {
            const auto fraction = scan.Digits(1, 3);
            if (!fraction)
                return std::nullopt;
            ms += *fraction;
            scan.Digits(0, 15);
        }
    }
    return ms;
}

std::optional<TMoment> ScanIso(TScanner& scan) {
    auto ms = ScanDate(scan);
    if (!ms || scan.AtEnd())
        return ms ? std::optional<TMoment>({*ms, false}) : std::nullopt;
    const auto time = scan.Take(u'T') ? ScanTime(scan) : std::nullopt;
    if (!time)
        return std::nullopt;
    *ms += *time;
    if (scan.Take(u'Z'))
        return TMoment{*ms, true};
    const bool ahead = scan.Take(u'+');
    if (!ahead && !scan.Take(u'-'))
        return TMoment{*ms, false};
    const auto hours = scan.Two(23);
    scan.Take(u':');
    const auto minutes = hours ? scan.Two(59) : std::nullopt;
    if (!minutes)
        return std::nullopt;
    const std::int64_t offset = (*hours * 60 + *minutes) * MinuteMs;
    return TMoment{*ms - (ahead ? offset : -offset), true};
}

} // namespace

double LocalToUtc(double value) {
    const std::int64_t ms = ToUnixMs(value);
    return FromUnixMs(ms - OffsetOfLocal(ms));
}

double UtcToLocal(double value) {
    const std::int64_t ms = ToUnixMs(value);
    return FromUnixMs(ms + OffsetOfUtc(ms));
}

std::u16string TJsonBaseObject::UtcDateTimeToJSON(double value) { return FromUtf8(Stamp(ToUnixMs(value)) + "Z"); }

std::u16string TJsonBaseObject::DateTimeToJSON(double value, bool useUtcTime) {
    const std::int64_t ms = ToUnixMs(value);
    const std::int64_t offset = OffsetOfLocal(ms);
    if (useUtcTime)
        return FromUtf8(Stamp(ms - offset) + "Z");
    const int minutes = int(std::abs(offset) / MinuteMs);
    if (minutes == 0)
        return FromUtf8(Stamp(ms) + "Z");
    char text[32];
    std::snprintf(text, sizeof text, "%c%.2d:%.2d", offset < 0 ? '-' : '+', minutes / 60, minutes % 60);
    return FromUtf8(Stamp(ms) + text);
}

double TJsonBaseObject::JSONToDateTime(std::u16string_view text, bool asUtc) {
    if (text.empty())
        return 0;
    TScanner scan(text);
    const auto moment = scan.Take(u"/Date(") ? ScanUnixDate(scan) : ScanIso(scan);
    if (!moment || !scan.AtEnd())
        throw EConvertError("'" + ToUtf8(text) + "' is not a valid date and time");
    if (moment->isUtc == asUtc)
        return FromUnixMs(moment->ms);
    return asUtc ? LocalToUtc(FromUnixMs(moment->ms)) : UtcToLocal(FromUnixMs(moment->ms));
}

} // namespace vagrel
