#include "services/UtcText.h"

#include "services/modLocalTimeAndGMT.h"

#include <cstdio>

namespace gfc::services {

namespace {

constexpr std::size_t dateLength = 10;
constexpr std::size_t textLength = 20;

std::string TextOf(const SystemTime& time) {
    char text[48]; // room for any numbers, as the compiler reckons
    (void)std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02dZ", int(time.wYear),
                        int(time.wMonth), int(time.wDay), int(time.wHour), int(time.wMinute),
                        int(time.wSecond));
    return text;
}

SystemTime UtcNow(const Clock& clock, const TimeZone& zone) {
    SystemTime now;
    GetLocalNow(clock, now);
    SystemTimeLocalToGMT(zone, now, now);
    return now;
}

} // namespace

std::string UtcText(const Clock& clock, const TimeZone& zone) {
    return TextOf(UtcNow(clock, zone));
}

std::string UtcDaysAgo(const Clock& clock, const TimeZone& zone, int days) {
    const SystemTime now = UtcNow(clock, zone);
    SystemTime then;
    DateToSystemTime(DateSerial(now.wYear, now.wMonth, now.wDay - days), then);
    return TextOf(then).substr(0, dateLength);
}

std::string ReadableTime(const std::string& utcText) {
    if (utcText.size() != textLength || utcText[dateLength] != 'T')
        return utcText;
    return utcText.substr(0, dateLength) + " " + utcText.substr(dateLength + 1, 8);
}

std::string TypedTime(std::string typed) {
    const auto first = typed.find_first_not_of(' ');
    typed.erase(0, first == std::string::npos ? typed.size() : first);
    typed.erase(typed.find_last_not_of(' ') + 1);
    if (typed.size() > dateLength && typed[dateLength] == ' ')
        typed[dateLength] = 'T';
    return typed;
}

} // namespace gfc::services
