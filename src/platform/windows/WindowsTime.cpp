#include "platform/Machine.h"
#include "platform/windows/Wide.h"
#include "services/modLocalTimeAndGMT.h"

namespace gfc::platform {
namespace {

class WindowsTimeZone : public services::TimeZone {
public:
    services::TimeZoneInformation GetTimeZoneInformation() const override {
        TIME_ZONE_INFORMATION zone{};
        ::GetTimeZoneInformation(&zone);
        return {static_cast<int>(zone.Bias)};
    }

    int CurrentBias() const override {
        TIME_ZONE_INFORMATION zone{};
        const DWORD part = ::GetTimeZoneInformation(&zone);
        const LONG extra = part == TIME_ZONE_ID_DAYLIGHT   ? zone.DaylightBias
                           : part == TIME_ZONE_ID_STANDARD ? zone.StandardBias
                                                           : 0;
        return static_cast<int>(zone.Bias + extra);
    }
};

class WindowsClock : public services::Clock {
public:
    services::Date LocalNow() const override {
        SYSTEMTIME now{};
        ::GetLocalTime(&now);
        const int seconds = (now.wHour * 60 + now.wMinute) * 60 + now.wSecond;
        return services::DateSerial(now.wYear, now.wMonth, now.wDay) + seconds / 86400.0;
    }
};

} // namespace

std::unique_ptr<services::TimeZone> MakeTimeZone() {
    return std::make_unique<WindowsTimeZone>();
}

std::unique_ptr<services::Clock> MakeClock() {
    return std::make_unique<WindowsClock>();
}

} // namespace gfc::platform
