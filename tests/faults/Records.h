#pragma once

#include "faults/Room.h"

#include <filesystem>
#include <string>

// The record that the program keeps beside the files of an operation: what is asked of it whatever fails.
namespace gfc::test::faults {

// By its name, with its folder or without.
[[nodiscard]] bool IsRecord(const std::string& name);
// What stands beside a record while it is written, too.
[[nodiscard]] bool IsOfRecord(const std::string& name);

// Puts what a reader has of each record in the place of its bytes: a line for each entry; then one for what
// does not hold, and one for each station whose file is not what the record says of it. What a death has left
// beside it is the record's own affair and goes.
void ReadRecords(const std::filesystem::path& folder, Content& content);

// True if a station's file is another one than its last entry says.
[[nodiscard]] bool IsBehind(const Entry& record);
// What no failure and no death excuses: an entry that was lost, that does not hold or came twice. Empty for
// none. before is null where there was no record.
[[nodiscard]] std::string FaultInRecord(const Entry* before, const Entry* now);

// Of the next start: the record of that project holds and knows what stands there. Empty if so.
[[nodiscard]] std::string WhatIsNotMadeUp(const std::filesystem::path& folder, const std::string& project);

} // namespace gfc::test::faults
