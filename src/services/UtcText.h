#pragma once

#include "services/Clock.h"
#include "services/TimeZone.h"

#include <string>

namespace gfc::services {

// The present moment in UTC, "2023-03-15T12:00:00Z", by the offset in force now, daylight part included:
// what is kept of when something was done. The forms' own dates leave that part out (GetDateGMT).
[[nodiscard]] std::string UtcText(const Clock& clock, const TimeZone& zone);
// The date alone, so many days before: "2023-03-08" for 7.
[[nodiscard]] std::string UtcDaysAgo(const Clock& clock, const TimeZone& zone, int days);
// As people read it: "2023-03-15 12:00:00". What has another form comes back as it is.
[[nodiscard]] std::string ReadableTime(const std::string& utcText);
// The reverse of what a person types, whole or its beginning: "2023-03-15 12:00" as "2023-03-15T12:00".
// Such beginnings compare with times as texts do.
[[nodiscard]] std::string TypedTime(std::string typed);

} // namespace gfc::services
