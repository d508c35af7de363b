#include "services/TimeZone.h"

#include <chrono>
#include <ratio>

namespace gfc::services {
namespace {

using Ticks = std::chrono::duration<FileTime, std::ratio<1, 10'000'000>>;

constexpr std::chrono::sys_days FirstDay = std::chrono::year{1601} / 1 / 1;
constexpr int LastYear = 30827; // the last whole year that the count can hold

bool Between(int value, int low, int high) {
    return value >= low && value <= high;
}

std::chrono::year_month_day DateOf(const SystemTime& time) {
    using namespace std::chrono;
    return year{time.wYear} / month{static_cast<unsigned>(time.wMonth)} /
           day{static_cast<unsigned>(time.wDay)};
}

bool IsValid(const SystemTime& time) {
    return Between(time.wYear, 1601, LastYear) && Between(time.wMonth, 1, 12) && Between(time.wDay, 1, 31) &&
           DateOf(time).ok() && Between(time.wHour, 0, 23) && Between(time.wMinute, 0, 59) &&
           Between(time.wSecond, 0, 59) && Between(time.wMilliseconds, 0, 999);
}

std::optional<FileTime> Shifted(FileTime count, int minutes) {
    const FileTime result = count + Ticks{std::chrono::minutes{minutes}}.count();
    return result < 0 ? std::nullopt : std::optional{result};
}

} // namespace

std::optional<FileTime> TimeZone::SystemTimeToFileTime(const SystemTime& time) const {
    using namespace std::chrono;
    if (!IsValid(time))
        return std::nullopt;
    const auto days = sys_days{DateOf(time)} - FirstDay;
    const Ticks count = Ticks{days} + hours{time.wHour} + minutes{time.wMinute} + seconds{time.wSecond} +
                        milliseconds{time.wMilliseconds};
    return count.count();
}

std::optional<SystemTime> TimeZone::FileTimeToSystemTime(FileTime count) const {
    using namespace std::chrono;
    if (count < 0)
        return std::nullopt;
    const Ticks ticks{count};
    const sys_days day = FirstDay + floor<days>(ticks);
    const year_month_day date{day};
    if (static_cast<int>(date.year()) > LastYear)
        return std::nullopt;
    const hh_mm_ss time{floor<milliseconds>(ticks - floor<days>(ticks))};
    const auto narrow = [](auto value) { return static_cast<std::int16_t>(value); };
    return SystemTime{narrow(static_cast<int>(date.year())), narrow(static_cast<unsigned>(date.month())),
                      narrow(weekday{day}.c_encoding()),     narrow(static_cast<unsigned>(date.day())),
                      narrow(time.hours().count()),          narrow(time.minutes().count()),
                      narrow(time.seconds().count()),        narrow(time.subseconds().count())};
}

std::optional<FileTime> TimeZone::LocalFileTimeToFileTime(FileTime local) const {
    return Shifted(local, CurrentBias());
}

std::optional<FileTime> TimeZone::FileTimeToLocalFileTime(FileTime gmt) const {
    return Shifted(gmt, -CurrentBias());
}

} // namespace gfc::services
