#include "services/modLocalTimeAndGMT.h"

#include "services/Funciones_III.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace gfc::services {
namespace {

namespace chrono = std::chrono;

constexpr chrono::sys_days Epoch = chrono::year{1899} / 12 / 30;
constexpr double MinutesPerDay = 1440;
constexpr std::int64_t SecondsPerDay = 86400;
// The dates that the platform's date type holds: years 100 to 9999.
constexpr Date Earliest = -657434;
constexpr Date Latest = 2958465;

struct Moment {
    chrono::sys_days Day;
    std::int64_t Second = 0; // of the day
};

// The fraction is the time of day on both sides of day 0; a time that rounds up to midnight is the next
// day's.
Moment MomentOf(Date date) {
    const Date bounded = std::isnan(date) ? 0 : std::clamp(date, Earliest, Latest + 1 - 1.0 / SecondsPerDay);
    const double whole = std::trunc(bounded);
    const auto second = std::llround(std::abs(bounded - whole) * SecondsPerDay);
    const auto day = static_cast<int>(whole) + static_cast<int>(second / SecondsPerDay);
    return {Epoch + chrono::days{day}, second % SecondsPerDay};
}

chrono::year_month_day CalendarOf(Date date) {
    return chrono::year_month_day{MomentOf(date).Day};
}

int YearOf(Date date) {
    return static_cast<int>(CalendarOf(date).year());
}

int MonthOf(Date date) {
    return static_cast<int>(static_cast<unsigned>(CalendarOf(date).month()));
}

// The day of that number in the date's month.
Date DayInMonth(Date date, int day) {
    return DateSerial(YearOf(date), MonthOf(date), day);
}

// The month's last day is day 0 of the next.
int DaysInMonth(Date date) {
    return static_cast<int>(DateSerial(YearOf(date), MonthOf(date) + 1, 0) - DayInMonth(date, 0));
}

bool CanSearchMonth(int weekday, Date date) {
    return weekday >= 1 && weekday <= 7 && date > 0;
}

std::int16_t Field(std::string_view text) {
    return static_cast<std::int16_t>(std::clamp(ValueOf(text), -32768.0, 32767.0));
}

template <class Convert>
bool Converted(const TimeZone& zone, const SystemTime& from, SystemTime& to, Convert convert) {
    const auto count = zone.SystemTimeToFileTime(from);
    const auto moved = count ? convert(*count) : std::nullopt;
    const auto result = moved ? zone.FileTimeToSystemTime(*moved) : std::nullopt;
    if (result)
        to = *result;
    return result.has_value();
}

} // namespace

Date DateSerial(int year, int month, int day) {
    const auto first = chrono::year{year} / 1 / 1 + chrono::months{month - 1};
    return static_cast<Date>((chrono::sys_days{first} - Epoch).count() + day - 1);
}

int WeekdayOf(Date date) {
    return static_cast<int>(chrono::weekday{MomentOf(date).Day}.c_encoding()) + 1;
}

bool DateToSystemTime(Date date, SystemTime& record) {
    const Moment moment = MomentOf(date);
    const chrono::year_month_day calendar{moment.Day};
    record.wYear = static_cast<std::int16_t>(static_cast<int>(calendar.year()));
    record.wMonth = static_cast<std::int16_t>(static_cast<unsigned>(calendar.month()));
    record.wDayOfWeek = static_cast<std::int16_t>(chrono::weekday{moment.Day}.c_encoding());
    record.wDay = static_cast<std::int16_t>(static_cast<unsigned>(calendar.day()));
    record.wHour = static_cast<std::int16_t>(moment.Second / 3600);
    record.wMinute = static_cast<std::int16_t>(moment.Second / 60 % 60);
    record.wSecond = static_cast<std::int16_t>(moment.Second % 60);
    record.wMilliseconds = 0;
    return true;
}

Date LocalToGMT(Date date, const TimeZone& zone) {
    // Deliberate: daylight saving plays no part here, so IsDaylightSaving is not asked.
    return date + zone.GetTimeZoneInformation().Bias / MinutesPerDay;
}

Date GetDateGMT(const Clock& clock, const TimeZone& zone) {
    return LocalToGMT(clock.LocalNow(), zone);
}

bool GetGMTNow(const Clock& clock, const TimeZone& zone, SystemTime& record) {
    return DateToSystemTime(GetDateGMT(clock, zone), record);
}

void GetLocalNow(const Clock& clock, SystemTime& record) {
    DateToSystemTime(clock.LocalNow(), record);
}

bool SystemTimeLocalToGMT(const TimeZone& zone, const SystemTime& local, SystemTime& gmt) {
    return Converted(zone, local, gmt,
                     [&zone](FileTime count) { return zone.LocalFileTimeToFileTime(count); });
}

bool SystemTimeGMTToLocal(const TimeZone& zone, const SystemTime& gmt, SystemTime& local) {
    return Converted(zone, gmt, local,
                     [&zone](FileTime count) { return zone.FileTimeToLocalFileTime(count); });
}

Date FirstWeekdayOfMonth(int weekday, Date date) {
    return NthWeekdayOfMonth(weekday, 1, date);
}

Date LastWeekdayOfMonth(int weekday, Date date) {
    if (!CanSearchMonth(weekday, date))
        return NoDate;
    Date last = NoDate;
    const int days = DaysInMonth(date);
    for (int day = 1; day <= days; ++day)
        if (WeekdayOf(DayInMonth(date, day)) == weekday)
            last = DayInMonth(date, day);
    return last;
}

Date NthWeekdayOfMonth(int weekday, int n, Date date) {
    if (!CanSearchMonth(weekday, date))
        return NoDate;
    int count = 0;
    const int days = DaysInMonth(date);
    for (int day = 1; day <= days; ++day)
        if (WeekdayOf(DayInMonth(date, day)) == weekday && ++count == n)
            return DayInMonth(date, day);
    return NoDate;
}

bool IsDaylightSaving(Date date) {
    if (!(date > 0))
        return false;
    const int year = YearOf(date);
    if (year < 2007)
        return date >= FirstWeekdayOfMonth(Sunday, DateSerial(year, 4, 1)) &&
               date < LastWeekdayOfMonth(Sunday, DateSerial(year, 10, 1));
    // Deliberate: the start lies in the month of the date itself, not in March.
    return date >= NthWeekdayOfMonth(Sunday, 2, date) &&
           date < FirstWeekdayOfMonth(Sunday, DateSerial(year, 11, 1));
}

ListedTime ShowStoredTime(const Clock& clock, const TimeZone& zone, const ContractTime& stored) {
    SystemTime local;
    SystemTime gmt;
    GetLocalNow(clock, local);
    SystemTimeLocalToGMT(zone, local, gmt);
    if (!stored.ContractHour.empty())
        gmt.wHour = Field(stored.ContractHour);
    if (!stored.ContractMin.empty())
        gmt.wMinute = Field(stored.ContractMin);
    // Deliberate: a failure is not tested; the record then still holds the present local time.
    SystemTimeGMTToLocal(zone, gmt, local);
    return {local.wHour, local.wMinute / 10, local.wMinute % 10};
}

ContractTime StoreEnteredTime(const Clock& clock, const TimeZone& zone, const ListedTime& entered,
                              bool isLocal) {
    SystemTime local;
    SystemTime gmt;
    GetLocalNow(clock, local);
    local.wHour = static_cast<std::int16_t>(entered.ListHour);
    local.wMinute = static_cast<std::int16_t>(10 * entered.ListMinx10 + entered.ListMinx1);
    SystemTimeLocalToGMT(zone, local, gmt);
    const SystemTime& kept = isLocal ? gmt : local;
    return {std::to_string(kept.wHour), std::to_string(kept.wMinute)};
}

std::string ContractTimeText(const Clock& clock, const TimeZone& zone, const ContractTime& stored) {
    SystemTime gmt;
    SystemTime local;
    // Deliberate: this date comes by the bias without daylight, so in summer it can be another day near
    // midnight.
    GetGMTNow(clock, zone, gmt);
    gmt.wHour = Field(stored.ContractHour);
    gmt.wMinute = Field(stored.ContractMin);
    SystemTimeGMTToLocal(zone, gmt, local);
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d", local.wHour, local.wMinute);
    return text;
}

} // namespace gfc::services
