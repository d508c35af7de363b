#include "platform/Machine.h"
#include "services/modLocalTimeAndGMT.h"

#include <algorithm>
#include <ctime>
#include <optional>

namespace gfc::platform {
namespace {

struct Offset {
    int Minutes = 0; // to add to GMT for local time
    bool Daylight = false;
};

std::tm LocalTime(std::time_t time) {
    std::tm local{};
    ::tzset();
    ::localtime_r(&time, &local);
    return local;
}

Offset OffsetOf(const std::tm& local) {
    return {static_cast<int>(local.tm_gmtoff / 60), local.tm_isdst > 0};
}

// Noon of the first day of that month (0 to 11) in the year.
Offset OffsetInMonth(int year, int month) {
    std::tm noon{};
    noon.tm_year = year;
    noon.tm_mon = month;
    noon.tm_mday = 1;
    noon.tm_hour = 12;
    noon.tm_isdst = -1;
    return OffsetOf(LocalTime(std::mktime(&noon)));
}

// The offset without daylight part: the smaller of winter and summer where either is daylight time (which
// half of the year is marked so differs between zones), else simply the present one.
int StandardMinutes() {
    const std::tm now = LocalTime(std::time(nullptr));
    const Offset january = OffsetInMonth(now.tm_year, 0);
    const Offset july = OffsetInMonth(now.tm_year, 6);
    if (!january.Daylight && !july.Daylight)
        return OffsetOf(now).Minutes;
    return std::min(january.Minutes, july.Minutes);
}

class PosixTimeZone : public services::TimeZone {
public:
    services::TimeZoneInformation GetTimeZoneInformation() const override { return {-StandardMinutes()}; }
    int CurrentBias() const override { return -OffsetOf(LocalTime(std::time(nullptr))).Minutes; }
};

class PosixClock : public services::Clock {
public:
    services::Date LocalNow() const override {
        const std::tm now = LocalTime(std::time(nullptr));
        const int seconds =
            (now.tm_hour * 60 + now.tm_min) * 60 + std::min(now.tm_sec, 59); // a leap second is no time
        return services::DateSerial(now.tm_year + 1900, now.tm_mon + 1, now.tm_mday) + seconds / 86400.0;
    }
};

} // namespace

std::unique_ptr<services::TimeZone> MakeTimeZone() {
    return std::make_unique<PosixTimeZone>();
}

std::unique_ptr<services::Clock> MakeClock() {
    return std::make_unique<PosixClock>();
}

} // namespace gfc::platform
