#pragma once

#include "config/Recorder.h"
#include "forms/program/Program.h"

#include <string>

namespace gfc::forms {

// The file that the entry left. Where it cannot be had a box with that title says so.
[[nodiscard]] config::FileState GenerationOf(Program& program, const std::string& record,
                                             const config::RecordEntry& entry, const std::string& title);

// Puts that file in the place of what the station has now, after a question, and has it entered. True if the
// station's file is another one now.
[[nodiscard]] bool BringBack(Program& program, const std::string& record, const config::RecordEntry& entry,
                             const std::string& title);

} // namespace gfc::forms
