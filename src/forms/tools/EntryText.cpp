#include "forms/tools/EntryText.h"

#include "services/UtcText.h"

namespace gfc::forms {

std::string WhoMade(const config::RecordEntry& entry) {
    return entry.User.empty() ? "logged on as " + entry.MachineUser
                              : entry.User + " (logged on as " + entry.MachineUser + ")";
}

std::string TextOf(const config::RecordEntry& entry) {
    return "Entry " + std::to_string(entry.Number) + ": " + entry.Command + ", " +
           services::ReadableTime(entry.Time) + " UTC, " + WhoMade(entry);
}

std::string ShortTextOf(const config::RecordEntry& entry) {
    return std::to_string(entry.Number) + ": " + services::ReadableTime(entry.Time) + " " + entry.Command +
           (entry.User.empty() ? "" : ", " + entry.User);
}

} // namespace gfc::forms
