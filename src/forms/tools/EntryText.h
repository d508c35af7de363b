#pragma once

#include "config/Recorder.h"

#include <string>

// Entries of the history in words, as all windows have them.
namespace gfc::forms {

// "ana (logged on as operator)"; the second alone where no person of this program made the change.
[[nodiscard]] std::string WhoMade(const config::RecordEntry& entry);
// "Entry 12: Configure, 2023-03-15 12:00:00 UTC, ana (logged on as operator)".
[[nodiscard]] std::string TextOf(const config::RecordEntry& entry);
// For a list to choose from: "12: 2023-03-15 12:00:00 Configure, ana".
[[nodiscard]] std::string ShortTextOf(const config::RecordEntry& entry);

} // namespace gfc::forms
