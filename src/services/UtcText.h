#pragma once

#include "services/Clock.h"
#include "services/TimeZone.h"

#include <string>

namespace gfc::services {

// The present moment in UTC, "2023-03-15T12:00:00Z", by the offset in force now, daylight part included:
// what is kept of when something was done. The forms' own dates leave that part out (GetDateGMT).
[[nodiscard]] std::string UtcText(const Clock& clock, const TimeZone& zone);

} // namespace gfc::services
