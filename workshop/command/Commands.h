// The command line of the workshop, one source file per group of commands.
#pragma once

#include "workshop/store/Project.h"
#include "workshop/store/Stations.h"

#include <string>

namespace CLI {
class App;
}

namespace gfc::workshop {

inline constexpr int Succeeded = 0;
inline constexpr int Failed = 1;
inline constexpr int WrongUsage = 2;

/// Each adds its commands. A command that fails throws Failure, or tells its faults and sets `status` to
/// Failed.
void AddProjectCommands(CLI::App& app, int& status); ///< new, demo, open, close
void AddTagCommands(CLI::App& app, int& status);     ///< import-tags, stations, tags
void AddTagEditCommands(CLI::App& app);              ///< rename-tag, move-tag, remove-tag
void AddFileCommands(CLI::App& app, int& status);    ///< files, download

/// Adds --project to a command.
void AddProjectOption(CLI::App& command, std::string& project);
/// The project of that path, or the open one for an empty text.
[[nodiscard]] Project ProjectFor(const std::string& path, Access access);
/// By name, whatever the case of its letters. Throws Failure when the project has no such station.
[[nodiscard]] Station StationNamed(Project& project, const std::string& name);

} // namespace gfc::workshop
