#pragma once

#include "services/Clock.h"
#include "services/TimeZone.h"

#include <string>
#include <string_view>

// Dates and the contract time between local time and GMT.
namespace gfc::services {

// Weekdays are numbered 1 (Sunday) to 7.
inline constexpr int Sunday = 1;

// A calendar date as a day count at midnight. Month and day may lie outside their range: month 13 is January
// of the next year, day 0 the last day of the month before.
[[nodiscard]] Date DateSerial(int year, int month, int day);
[[nodiscard]] int WeekdayOf(Date date);

// The record of a date, to the nearest second; always true.
bool DateToSystemTime(Date date, SystemTime& record);

[[nodiscard]] Date LocalToGMT(Date date, const TimeZone& zone);
[[nodiscard]] Date GetDateGMT(const Clock& clock, const TimeZone& zone);
bool GetGMTNow(const Clock& clock, const TimeZone& zone, SystemTime& record);
void GetLocalNow(const Clock& clock, SystemTime& record);

// False if a step fails; the output is then no valid time and keeps what it held. They use the offset in
// force at this moment, whatever the date in the record. Input and output may be the same record.
bool SystemTimeLocalToGMT(const TimeZone& zone, const SystemTime& local, SystemTime& gmt);
bool SystemTimeGMTToLocal(const TimeZone& zone, const SystemTime& gmt, SystemTime& local);

// In the month of the date. NoDate for a weekday outside 1 to 7, for a date not above 0, and where there is
// no such day.
[[nodiscard]] Date FirstWeekdayOfMonth(int weekday, Date date);
[[nodiscard]] Date LastWeekdayOfMonth(int weekday, Date date);
[[nodiscard]] Date NthWeekdayOfMonth(int weekday, int n, Date date);

// By the North American rule, except that from 2007 on the start is the second Sunday of the date's own
// month.
[[nodiscard]] bool IsDaylightSaving(Date date);

// A contract time as it stands in the file, GMT: decimal text without leading zero; empty for none.
struct ContractTime {
    std::string ContractHour;
    std::string ContractMin;
};

// The three lists of the binding form: hour 0 to 23, minute by tens and ones.
struct ListedTime {
    int ListHour = 0;
    int ListMinx10 = 0;
    int ListMinx1 = 0;
};

// What the lists show for a stored time, in local time. Without a stored time, and where it is no valid time,
// the present local time; a stored half stands beside the other half of the present time.
[[nodiscard]] ListedTime ShowStoredTime(const Clock& clock, const TimeZone& zone, const ContractTime& stored);

// What is stored for an entered time: converted if it is local time, else as it stands.
[[nodiscard]] ContractTime StoreEnteredTime(const Clock& clock, const TimeZone& zone,
                                            const ListedTime& entered, bool isLocal);

// The summary's value, local time as "hh:mm"; "00:00" where the stored time is no valid time.
[[nodiscard]] std::string ContractTimeText(const Clock& clock, const TimeZone& zone,
                                           const ContractTime& stored);

} // namespace gfc::services
