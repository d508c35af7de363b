#pragma once

#include "services/Clock.h"
#include "services/TimeZone.h"
#include "services/modLocalTimeAndGMT.h"

namespace gfc::test {

// A zone whose biases are given: minutes to add to local time for GMT, without and with the daylight part in
// force.
class FixedZone : public services::TimeZone {
public:
    explicit FixedZone(int bias) : FixedZone(bias, bias) {}
    FixedZone(int bias, int currentBias) : Bias(bias), Current(currentBias) {}

    services::TimeZoneInformation GetTimeZoneInformation() const override { return {Bias}; }
    int CurrentBias() const override { return Current; }

    int Bias;
    int Current;
};

// A clock that stands.
class FixedClock : public services::Clock {
public:
    explicit FixedClock(services::Date now) : Now(now) {}
    FixedClock(int year, int month, int day, int hour, int minute)
        : Now(services::DateSerial(year, month, day) + (hour * 60 + minute) / 1440.0) {}

    services::Date LocalNow() const override { return Now; }

    services::Date Now;
};

} // namespace gfc::test
