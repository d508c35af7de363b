#include "services/TimeZone.h"
#include "support/FakeTime.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace gfc::services;
using gfc::test::FixedZone;

constexpr FileTime Minute = 600'000'000;

TEST(TimeZone, counts_from_the_year_1601) {
    const FixedZone zone(0);
    EXPECT_EQ(zone.SystemTimeToFileTime({1601, 1, 1, 1, 0, 0, 0, 0}), 0);
    EXPECT_EQ(zone.SystemTimeToFileTime({1970, 1, 0, 1, 0, 0, 0, 0}), 116444736000000000);
    EXPECT_EQ(zone.SystemTimeToFileTime({1601, 1, 0, 1, 0, 0, 0, 1}), 10000);
}

TEST(TimeZone, gives_back_the_record_with_its_weekday) {
    const FixedZone zone(0);
    const auto count = zone.SystemTimeToFileTime({2024, 2, 0, 29, 23, 59, 58, 997});
    ASSERT_TRUE(count);
    EXPECT_EQ(zone.FileTimeToSystemTime(*count), (SystemTime{2024, 2, 4, 29, 23, 59, 58, 997}));
}

TEST(TimeZone, refuses_a_record_that_is_no_time) {
    const FixedZone zone(0);
    const SystemTime good{2023, 6, 4, 15, 12, 30, 0, 0};
    ASSERT_TRUE(zone.SystemTimeToFileTime(good));
    const std::function<void(SystemTime&)> faults[] = {
        [](SystemTime& t) { t.wYear = 1600; },
        [](SystemTime& t) { t.wYear = 30828; },
        [](SystemTime& t) { t.wMonth = 0; },
        [](SystemTime& t) { t.wMonth = 13; },
        [](SystemTime& t) { t.wMonth = -1; },
        [](SystemTime& t) { t.wDay = 0; },
        [](SystemTime& t) { t.wDay = 31; },
        [](SystemTime& t) { t.wMonth = 2, t.wDay = 29; },
        [](SystemTime& t) { t.wHour = 24; },
        [](SystemTime& t) { t.wHour = -1; },
        [](SystemTime& t) { t.wMinute = 60; },
        [](SystemTime& t) { t.wSecond = 60; },
        [](SystemTime& t) { t.wMilliseconds = 1000; },
    };
    for (const auto& spoil : faults) {
        SystemTime time = good;
        spoil(time);
        EXPECT_FALSE(zone.SystemTimeToFileTime(time)) << &spoil - faults;
    }
}

TEST(TimeZone, does_not_look_at_the_weekday_it_is_given) {
    const FixedZone zone(0);
    EXPECT_EQ(zone.SystemTimeToFileTime({2023, 6, 99, 15, 0, 0, 0, 0}),
              zone.SystemTimeToFileTime({2023, 6, 4, 15, 0, 0, 0, 0}));
}

TEST(TimeZone, moves_counts_by_the_bias_in_force) {
    const FixedZone zone(360, 300);
    EXPECT_EQ(zone.LocalFileTimeToFileTime(0), 300 * Minute);
    EXPECT_EQ(zone.FileTimeToLocalFileTime(300 * Minute), 0);
}

TEST(TimeZone, refuses_counts_before_the_first_day) {
    const FixedZone zone(60);
    EXPECT_FALSE(zone.FileTimeToSystemTime(-1));
    EXPECT_FALSE(zone.FileTimeToLocalFileTime(0));
}

TEST(TimeZone, covers_the_last_year_of_the_record) {
    const FixedZone zone(0);
    const SystemTime last{30827, 12, 5, 31, 23, 59, 59, 999};
    const auto count = zone.SystemTimeToFileTime(last);
    ASSERT_TRUE(count);
    EXPECT_EQ(zone.FileTimeToSystemTime(*count)->wYear, 30827);
    EXPECT_FALSE(zone.FileTimeToSystemTime(*count + 10'000));
}

} // namespace
