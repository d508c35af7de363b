#include "fuzz/Input.h"
#include "fuzz/Target.h"
#include "services/modLocalTimeAndGMT.h"
#include "support/FakeTime.h"

// Any stored contract time, at any moment, in any zone.
namespace gfc::fuzz {

namespace {

constexpr std::int32_t SecondsPerDay = 86400;
constexpr std::size_t LongestField = 12;

void CheckListed(const services::ListedTime& time) {
    Require(time.ListHour >= 0 && time.ListHour < 24, "the hour stands in its list");
    Require(time.ListMinx10 >= 0 && time.ListMinx10 < 6, "the tens of minutes stand in their list");
    Require(time.ListMinx1 >= 0 && time.ListMinx1 < 10, "the minutes stand in their list");
}

void CheckRoundTrip(const services::Clock& clock, const services::TimeZone& zone,
                    const services::ListedTime& time) {
    const auto again = ShowStoredTime(clock, zone, StoreEnteredTime(clock, zone, time, true));
    Require(again.ListHour == time.ListHour && again.ListMinx10 == time.ListMinx10 &&
                again.ListMinx1 == time.ListMinx1,
            "a time that was entered is shown again");
}

void CheckMonth(services::Date date, int weekday) {
    const services::Date first = services::FirstWeekdayOfMonth(weekday, date);
    const services::Date last = services::LastWeekdayOfMonth(weekday, date);
    Require((first == services::NoDate) == (last == services::NoDate), "a month has a first one and a last");
    Require(first == services::NoDate || (last - first >= 21 && last - first <= 28),
            "four or five weeks lie between");
    (void)services::IsDaylightSaving(date);
}

} // namespace

void ContractTime(std::string_view bytes) {
    Input input(bytes);
    // From the year 100 to the year 9999, as the date holds it, and a little beyond both ends.
    const int day = static_cast<int>(static_cast<std::uint32_t>(input.Number()) % 3700000) - 660000;
    const int second = static_cast<int>(static_cast<std::uint32_t>(input.Number()) % SecondsPerDay);
    const int bias = static_cast<int>(input.Below(113)) * 15 - 840; // as far as zones go
    const test::FixedClock clock(day + static_cast<double>(second) / SecondsPerDay);
    const test::FixedZone zone(bias, bias - (input.Below(2) == 0 ? 0 : 60));
    const services::ContractTime stored{std::string(input.Text(LongestField)),
                                        std::string(input.Text(LongestField))};
    const auto time = ShowStoredTime(clock, zone, stored);
    CheckListed(time);
    Require(ContractTimeText(clock, zone, stored).size() == 5, "the text is hh:mm");
    // Within the days that the machine's own count of time knows, with room for any bias.
    if (day > -109200)
        CheckRoundTrip(clock, zone, time);
    // In the month that holds day 0 one day has the number that stands for no day.
    if (day < 0 || day > 1)
        CheckMonth(clock.Now, static_cast<int>(input.Below(9)));
}

} // namespace gfc::fuzz
