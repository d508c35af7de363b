#include "services/UtcText.h"
#include "support/FakeTime.h"

#include <gtest/gtest.h>

namespace {

using namespace gfc::services;
using gfc::test::FixedClock;
using gfc::test::FixedZone;

TEST(UtcText, takes_the_offset_in_force) {
    const FixedClock noon(2023, 1, 15, 12, 0);
    EXPECT_EQ(UtcText(noon, FixedZone(0)), "2023-01-15T12:00:00Z");
    EXPECT_EQ(UtcText(noon, FixedZone(-60, -120)), "2023-01-15T10:00:00Z") << "an hour of daylight saving";
    EXPECT_EQ(UtcText(noon, FixedZone(-330)), "2023-01-15T06:30:00Z");
}

TEST(UtcText, goes_over_the_day_the_month_and_the_year) {
    EXPECT_EQ(UtcText(FixedClock(2023, 12, 31, 22, 30), FixedZone(180)), "2024-01-01T01:30:00Z");
    EXPECT_EQ(UtcText(FixedClock(2024, 3, 1, 0, 30), FixedZone(-60)), "2024-02-29T23:30:00Z");
}

} // namespace
