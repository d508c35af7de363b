// The check of the configurator's files before they go out, where its program stands beside this one.
#pragma once

#include "workshop/store/Project.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace gfc::workshop {

/// Empty where gfc-audit does not stand beside this program, or the machine does not tell where that is.
[[nodiscard]] std::filesystem::path AuditProgram();

/// What it is started with to look over all stations for errors. Of a project that is not the open one the
/// files are looked at without their tags.
[[nodiscard]] std::vector<std::string> AuditArguments(const Project& project);

/// The stations of these whose files have errors. What is found is written to the standard output. A station
/// that cannot be checked counts as one without errors, and is told.
[[nodiscard]] std::set<std::string> StationsWithErrors(const std::filesystem::path& program,
                                                       const Project& project,
                                                       const std::set<std::string>& stations);

} // namespace gfc::workshop
