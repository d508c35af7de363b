#include "services/UtcText.h"

#include "services/modLocalTimeAndGMT.h"

#include <cstdio>

namespace gfc::services {

std::string UtcText(const Clock& clock, const TimeZone& zone) {
    SystemTime now;
    GetLocalNow(clock, now);
    SystemTimeLocalToGMT(zone, now, now);
    char text[40];
    (void)std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02dZ", int(now.wYear), int(now.wMonth),
                        int(now.wDay), int(now.wHour), int(now.wMinute), int(now.wSecond));
    return text;
}

} // namespace gfc::services
