#pragma once

#include "config/Recorder.h"

#include <string>
#include <vector>

namespace gfc::config {

// The entry that left the state in which a station was at a time; entries are those of the station, in their
// order, and the time is in their form or the beginning of it: "2023-03-15" is the first moment of that day.
// Where the first entry came later and found the file already there, that one; else null: there was no file.
[[nodiscard]] const RecordEntry* EntryAt(const std::vector<RecordEntry>& entries, const std::string& time);

} // namespace gfc::config
