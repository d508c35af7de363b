#pragma once

#include "config/Recorder.h"

#include <string>

namespace gfc::record {

// Reads all of a record: that each entry has the next number, its own hash and that of the entry before, that
// its file and its changes can be had from what is kept and the file has its hash, that it is found by its
// station, that none is missing at the end, and that tables, rules and the database itself are as they were
// made. What no reading ever comes to, such as the rest of a page behind its last row, is not looked at. A
// record that is not there has no entries and no damage. Does not throw.
[[nodiscard]] config::RecordCheck VerifyRecord(const std::string& file);

} // namespace gfc::record
