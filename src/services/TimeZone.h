#pragma once

#include <cstdint>
#include <optional>

namespace gfc::services {

// The operating system's broken-down time, field for field.
struct SystemTime {
    std::int16_t wYear = 0;
    std::int16_t wMonth = 0;     // 1 to 12
    std::int16_t wDayOfWeek = 0; // 0 is Sunday
    std::int16_t wDay = 0;       // 1 to 31
    std::int16_t wHour = 0;
    std::int16_t wMinute = 0;
    std::int16_t wSecond = 0;
    std::int16_t wMilliseconds = 0;

    bool operator==(const SystemTime&) const = default;
};

// A count of 100 ns steps from the start of the year 1601.
using FileTime = std::int64_t;

struct TimeZoneInformation {
    int Bias = 0; // minutes to add to local time for GMT, without any daylight part
};

// The machine's time zone. A machine gives the two biases; the counting of days is the same everywhere and
// stands here, open to a test that wants a step to fail. A failed step gives nothing.
class TimeZone {
public:
    virtual ~TimeZone() = default;

    [[nodiscard]] virtual TimeZoneInformation GetTimeZoneInformation() const = 0;
    // Minutes to add to local time for GMT as they are in force at this moment, daylight part included.
    [[nodiscard]] virtual int CurrentBias() const = 0;

    // Fails on a record that is no date and time from 1601 on; wDayOfWeek is not looked at.
    [[nodiscard]] virtual std::optional<FileTime> SystemTimeToFileTime(const SystemTime& time) const;
    // Fails on a count below zero or beyond what the record's year holds.
    [[nodiscard]] virtual std::optional<SystemTime> FileTimeToSystemTime(FileTime count) const;
    // These two use the bias in force now, whatever date they are given.
    [[nodiscard]] virtual std::optional<FileTime> LocalFileTimeToFileTime(FileTime local) const;
    [[nodiscard]] virtual std::optional<FileTime> FileTimeToLocalFileTime(FileTime gmt) const;
};

} // namespace gfc::services
