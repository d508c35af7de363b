#include "services/modLocalTimeAndGMT.h"
#include "support/FakeTime.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace gfc::services;
using gfc::test::FixedClock;
using gfc::test::FixedZone;

// A zone in which one step of a conversion fails.
class BrokenZone : public FixedZone {
public:
    using FixedZone::FixedZone;
    std::optional<FileTime> SystemTimeToFileTime(const SystemTime& time) const override {
        return BreakFirst ? std::nullopt : FixedZone::SystemTimeToFileTime(time);
    }
    std::optional<FileTime> LocalFileTimeToFileTime(FileTime) const override { return std::nullopt; }
    std::optional<FileTime> FileTimeToLocalFileTime(FileTime) const override { return std::nullopt; }
    bool BreakFirst = false;
};

TEST(DateSerial, counts_days_from_the_end_of_1899) {
    EXPECT_EQ(DateSerial(1899, 12, 30), 0);
    EXPECT_EQ(DateSerial(1899, 12, 31), 1);
    EXPECT_EQ(DateSerial(2000, 1, 1), 36526);
    EXPECT_EQ(DateSerial(1899, 12, 29), -1);
}

TEST(DateSerial, carries_months_and_days_over) {
    EXPECT_EQ(DateSerial(2023, 13, 1), DateSerial(2024, 1, 1));
    EXPECT_EQ(DateSerial(2024, 3, 0), DateSerial(2024, 2, 29));
    EXPECT_EQ(DateSerial(2024, 0, 1), DateSerial(2023, 12, 1));
}

TEST(WeekdayOf, numbers_sunday_1_to_saturday_7) {
    EXPECT_EQ(WeekdayOf(DateSerial(2006, 10, 29)), 1);
    EXPECT_EQ(WeekdayOf(DateSerial(2006, 10, 30) + 0.99), 2);
    EXPECT_EQ(WeekdayOf(0), 7);
}

TEST(DateToSystemTime, fills_every_field) {
    SystemTime record{0, 0, 0, 0, 0, 0, 0, 77};
    EXPECT_TRUE(DateToSystemTime(DateSerial(2010, 7, 15) + 13.5 / 24 + 7 / 86400.0, record));
    EXPECT_EQ(record, (SystemTime{2010, 7, 4, 15, 13, 30, 7, 0}));
}

TEST(DateToSystemTime, rounds_to_the_second_and_over_midnight) {
    SystemTime record;
    DateToSystemTime(DateSerial(2010, 12, 31) + 86399.9 / 86400, record);
    EXPECT_EQ(record, (SystemTime{2011, 1, 6, 1, 0, 0, 0, 0}));
}

TEST(DateToSystemTime, keeps_every_second_of_a_day) {
    SystemTime record;
    for (int second = 0; second < 86400; ++second) {
        DateToSystemTime(DateSerial(2024, 2, 29) + second / 86400.0, record);
        ASSERT_EQ((record.wHour * 60 + record.wMinute) * 60 + record.wSecond, second);
        ASSERT_EQ(record.wDay, 29);
    }
}

TEST(DateToSystemTime, takes_the_fraction_before_day_0_as_the_time_of_day) {
    SystemTime record;
    DateToSystemTime(-1.25, record);
    EXPECT_EQ(record, (SystemTime{1899, 12, 5, 29, 6, 0, 0, 0}));
}

TEST(DateToSystemTime, is_true_and_bounded_for_dates_beyond_the_type) {
    SystemTime record;
    EXPECT_TRUE(DateToSystemTime(1e300, record));
    EXPECT_EQ(record.wYear, 9999);
    EXPECT_TRUE(DateToSystemTime(-1e300, record));
    EXPECT_EQ(record.wYear, 100);
    EXPECT_TRUE(DateToSystemTime(std::numeric_limits<double>::quiet_NaN(), record));
}

TEST(DateToSystemTime, takes_what_is_no_number_for_day_0) {
    SystemTime record;
    EXPECT_TRUE(DateToSystemTime(std::numeric_limits<double>::quiet_NaN(), record));
    EXPECT_EQ(record, (SystemTime{1899, 12, 6, 30, 0, 0, 0, 0}));
}

TEST(FirstWeekdayOfMonth, finds_the_day) {
    EXPECT_EQ(FirstWeekdayOfMonth(1, DateSerial(2006, 4, 20)), DateSerial(2006, 4, 2));
    EXPECT_EQ(FirstWeekdayOfMonth(7, DateSerial(2006, 4, 20) + 0.5), DateSerial(2006, 4, 1));
    EXPECT_EQ(FirstWeekdayOfMonth(6, DateSerial(2006, 4, 1)), DateSerial(2006, 4, 7));
}

TEST(LastWeekdayOfMonth, finds_the_leap_day) {
    EXPECT_EQ(LastWeekdayOfMonth(5, DateSerial(2024, 2, 1)), DateSerial(2024, 2, 29));
    EXPECT_EQ(LastWeekdayOfMonth(5, DateSerial(2023, 2, 1)), DateSerial(2023, 2, 23));
    EXPECT_EQ(LastWeekdayOfMonth(1, DateSerial(2006, 10, 31)), DateSerial(2006, 10, 29));
    EXPECT_EQ(LastWeekdayOfMonth(1, DateSerial(2006, 12, 1)), DateSerial(2006, 12, 31));
}

TEST(NthWeekdayOfMonth, counts_and_ends_with_the_month) {
    EXPECT_EQ(NthWeekdayOfMonth(1, 2, DateSerial(2010, 2, 25)), DateSerial(2010, 2, 14));
    EXPECT_EQ(NthWeekdayOfMonth(5, 5, DateSerial(2024, 2, 1)), DateSerial(2024, 2, 29));
    EXPECT_EQ(NthWeekdayOfMonth(5, 5, DateSerial(2023, 2, 1)), NoDate);
    EXPECT_EQ(NthWeekdayOfMonth(1, 6, DateSerial(2023, 10, 1)), NoDate);
    EXPECT_EQ(NthWeekdayOfMonth(1, 0, DateSerial(2023, 10, 1)), NoDate);
}

TEST(WeekdaySearches, refuse_a_wrong_weekday_and_a_date_not_above_0) {
    const Date day = DateSerial(2010, 7, 15);
    for (const int weekday : {0, 8, -1}) {
        EXPECT_EQ(FirstWeekdayOfMonth(weekday, day), NoDate);
        EXPECT_EQ(LastWeekdayOfMonth(weekday, day), NoDate);
        EXPECT_EQ(NthWeekdayOfMonth(weekday, 1, day), NoDate);
    }
    for (const Date date : {0.0, -1.0}) {
        EXPECT_EQ(FirstWeekdayOfMonth(1, date), NoDate);
        EXPECT_EQ(LastWeekdayOfMonth(1, date), NoDate);
        EXPECT_EQ(NthWeekdayOfMonth(1, 1, date), NoDate);
    }
}

TEST(IsDaylightSaving, goes_from_april_to_october_before_2007) {
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2006, 4, 1)));
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2006, 4, 2) - 1 / 86400.0));
    EXPECT_TRUE(IsDaylightSaving(DateSerial(2006, 4, 2)));
    EXPECT_TRUE(IsDaylightSaving(DateSerial(2006, 10, 28) + 0.99));
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2006, 10, 29)));
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2006, 10, 31)));
}

// Deliberate: the start is the second Sunday of the date's own month.
TEST(IsDaylightSaving, starts_in_every_month_from_2007_on) {
    EXPECT_TRUE(IsDaylightSaving(DateSerial(2010, 7, 15)));
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2010, 7, 10)));
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2010, 2, 1)));
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2010, 2, 13)));
    EXPECT_TRUE(IsDaylightSaving(DateSerial(2010, 2, 14)));
    EXPECT_TRUE(IsDaylightSaving(DateSerial(2010, 2, 25)));
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2010, 11, 14))) << "after the end in November";
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2010, 12, 31)));
    EXPECT_FALSE(IsDaylightSaving(DateSerial(2007, 4, 2))) << "the later rule from 2007 on";
}

TEST(IsDaylightSaving, is_false_for_a_date_not_above_0) {
    EXPECT_FALSE(IsDaylightSaving(0));
    EXPECT_FALSE(IsDaylightSaving(NoDate));
}

// Deliberate: the bias in force now, 300, plays no part.
TEST(LocalToGMT, adds_the_bias_without_daylight) {
    const FixedZone zone(360, 300);
    const Date summer = DateSerial(2010, 7, 15) + 0.5;
    EXPECT_DOUBLE_EQ(LocalToGMT(summer, zone), summer + 0.25);
    EXPECT_DOUBLE_EQ(LocalToGMT(0.5, zone), 0.75);
}

TEST(GetGMTNow, is_the_present_local_time_plus_the_bias) {
    SystemTime record;
    EXPECT_TRUE(GetGMTNow(FixedClock(2010, 7, 15, 19, 30), FixedZone(300, 240), record));
    EXPECT_EQ(record, (SystemTime{2010, 7, 5, 16, 0, 30, 0, 0}));
    EXPECT_DOUBLE_EQ(GetDateGMT(FixedClock(2010, 7, 15, 12, 0), FixedZone(-360)),
                     DateSerial(2010, 7, 15) + 0.25);
}

TEST(GetLocalNow, is_the_clocks_time) {
    SystemTime record;
    GetLocalNow(FixedClock(2010, 7, 15, 19, 30), record);
    EXPECT_EQ(record, (SystemTime{2010, 7, 4, 15, 19, 30, 0, 0}));
}

TEST(SystemTimeConversions, use_the_bias_in_force_whatever_the_date) {
    const FixedZone zone(360, 300);
    SystemTime gmt;
    ASSERT_TRUE(SystemTimeLocalToGMT(zone, {2010, 12, 5, 31, 20, 0, 0, 0}, gmt));
    EXPECT_EQ(gmt, (SystemTime{2011, 1, 6, 1, 1, 0, 0, 0}));
    SystemTime local;
    ASSERT_TRUE(SystemTimeGMTToLocal(zone, gmt, local));
    EXPECT_EQ(local, (SystemTime{2010, 12, 5, 31, 20, 0, 0, 0}));
}

TEST(SystemTimeConversions, work_in_place) {
    SystemTime record{2010, 7, 4, 15, 10, 0, 0, 0};
    ASSERT_TRUE(SystemTimeLocalToGMT(FixedZone(90), record, record));
    EXPECT_EQ(record.wHour, 11);
    EXPECT_EQ(record.wMinute, 30);
}

TEST(SystemTimeConversions, fail_at_every_step_and_leave_the_output) {
    const SystemTime good{2010, 7, 4, 15, 10, 0, 0, 0};
    const SystemTime before{1, 2, 3, 4, 5, 6, 7, 8};
    BrokenZone zone(0);
    for (const bool breakFirst : {false, true}) {
        zone.BreakFirst = breakFirst;
        SystemTime output = before;
        EXPECT_FALSE(SystemTimeLocalToGMT(zone, good, output));
        EXPECT_FALSE(SystemTimeGMTToLocal(zone, good, output));
        EXPECT_EQ(output, before);
    }
    SystemTime output = before;
    EXPECT_FALSE(SystemTimeGMTToLocal(FixedZone(60), {1601, 1, 1, 1, 0, 0, 0, 0}, output));
    EXPECT_EQ(output, before);
}

TEST(ShowStoredTime, shows_the_stored_time_in_local_time) {
    const FixedClock clock(2024, 1, 10, 9, 47);
    const auto shown = ShowStoredTime(clock, FixedZone(-120), {"21", "35"});
    EXPECT_EQ(shown.ListHour, 23);
    EXPECT_EQ(shown.ListMinx10, 3);
    EXPECT_EQ(shown.ListMinx1, 5);
}

TEST(ShowStoredTime, shows_the_present_time_where_nothing_is_stored) {
    const auto shown = ShowStoredTime(FixedClock(2024, 1, 10, 9, 47), FixedZone(330), {});
    EXPECT_EQ(shown.ListHour, 9);
    EXPECT_EQ(shown.ListMinx10, 4);
    EXPECT_EQ(shown.ListMinx1, 7);
}

TEST(ShowStoredTime, replaces_each_half_alone) {
    const FixedClock clock(2024, 1, 10, 9, 47);
    EXPECT_EQ(ShowStoredTime(clock, FixedZone(60), {"0", ""}).ListHour, 23);
    EXPECT_EQ(ShowStoredTime(clock, FixedZone(60), {"0", ""}).ListMinx10, 4);
    EXPECT_EQ(ShowStoredTime(clock, FixedZone(60), {"", "8"}).ListHour, 9);
    EXPECT_EQ(ShowStoredTime(clock, FixedZone(60), {"", "8"}).ListMinx10, 0);
    EXPECT_EQ(ShowStoredTime(clock, FixedZone(60), {"", "8"}).ListMinx1, 8);
}

TEST(ShowStoredTime, falls_back_to_the_present_time_for_a_stored_hour_above_23) {
    const FixedClock clock(2024, 1, 10, 9, 47);
    for (const char* hour : {"24", "99999999999", "-1"}) {
        EXPECT_EQ(ShowStoredTime(clock, FixedZone(60), {hour, "10"}).ListHour, 9) << hour;
        EXPECT_EQ(ShowStoredTime(clock, FixedZone(60), {hour, "10"}).ListMinx1, 7) << hour;
    }
}

TEST(StoreEnteredTime, converts_a_local_time_and_keeps_a_gmt_time) {
    const FixedClock clock(2024, 1, 10, 9, 47);
    const FixedZone zone(-120);
    const auto fromLocal = StoreEnteredTime(clock, zone, {23, 3, 0}, true);
    EXPECT_EQ(fromLocal.ContractHour, "21");
    EXPECT_EQ(fromLocal.ContractMin, "30");
    const auto fromGmt = StoreEnteredTime(clock, zone, {23, 3, 0}, false);
    EXPECT_EQ(fromGmt.ContractHour, "23");
    EXPECT_EQ(fromGmt.ContractMin, "30");
}

TEST(StoreEnteredTime, writes_no_leading_zero) {
    const auto stored = StoreEnteredTime(FixedClock(2024, 1, 10, 9, 47), FixedZone(0), {7, 0, 5}, true);
    EXPECT_EQ(stored.ContractHour, "7");
    EXPECT_EQ(stored.ContractMin, "5");
}

TEST(StoreEnteredTime, comes_back_as_it_was_entered) {
    const FixedClock clock(2024, 3, 31, 1, 59);
    for (const int bias : {-765, -330, -120, 0, 210, 300, 720})
        for (int hour = 0; hour < 24; ++hour) {
            const FixedZone zone(bias);
            const auto shown = ShowStoredTime(clock, zone, StoreEnteredTime(clock, zone, {hour, 4, 9}, true));
            ASSERT_EQ(shown.ListHour, hour) << bias;
            ASSERT_EQ(shown.ListMinx10 * 10 + shown.ListMinx1, 49) << bias;
        }
}

TEST(ContractTimeText, has_two_digits_each) {
    const FixedClock clock(2024, 7, 10, 9, 47);
    EXPECT_EQ(ContractTimeText(clock, FixedZone(0), {"7", "5"}), "07:05");
    EXPECT_EQ(ContractTimeText(clock, FixedZone(-60, -120), {"22", "30"}), "00:30");
    EXPECT_EQ(ContractTimeText(clock, FixedZone(0), {"", ""}), "00:00");
}

TEST(ContractTimeText, is_midnight_for_a_time_that_is_none) {
    EXPECT_EQ(ContractTimeText(FixedClock(2024, 7, 10, 9, 47), FixedZone(60), {"24", "30"}), "00:00");
    EXPECT_EQ(ContractTimeText(FixedClock(2024, 7, 10, 9, 47), FixedZone(60), {"6", "60"}), "00:00");
}

} // namespace
