#pragma once

#include "binding/ExpectedTags.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The log of what a check found: a profile with a section for each class, direction and kind of fault.
namespace gfc::binding {

// Beside the station's configuration file, ".ini" replaced by "_Errors.log". Empty for an empty path.
[[nodiscard]] std::string ErrorLogPath(std::string_view configFile);

// What the log says of an entry that is at fault; nothing for one that is not. The lists must have been
// checked.
[[nodiscard]] std::optional<std::string_view> ErrorOf(const ExpectedTag& entry);
[[nodiscard]] std::optional<std::string_view> WarningOf(const ExpectedTag& entry);

struct LogSection {
    std::string_view Name;
    std::vector<std::string> Lines; // never empty
};

// The sections that have lines, in the order of writing. The lists must have been checked.
[[nodiscard]] std::vector<LogSection> ErrorLogSections(const ExpectedTags& expected);

// What was not found or bears no name, one line for each, for a person to read where there is no log. The
// lists must have been checked.
[[nodiscard]] std::vector<std::string> Findings(const ExpectedTags& expected);

// True if the log has an error of a gas input, be it of the composition or of the gas parameters.
[[nodiscard]] bool LogsGasInputErrors(const ExpectedTags& expected);

// Replaces the sections of the same names and leaves those of an earlier log in place; all of it or, where
// the file cannot be written, nothing.
void WriteErrorLog(config::FileIni& ini, const ExpectedTags& expected, const std::string& file);

} // namespace gfc::binding
