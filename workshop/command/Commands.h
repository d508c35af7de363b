// The command line of the workshop, one source file per group of commands.
#pragma once

#include "workshop/store/Project.h"

#include <string>
#include <string_view>

namespace CLI {
class App;
}

namespace gfc::workshop {

inline constexpr int Succeeded = 0;
inline constexpr int Failed = 1;
inline constexpr int WrongUsage = 2;

/// Each adds its commands. A command that fails throws Failure, or tells its faults and sets `status` to
/// Failed.
void AddProjectCommands(CLI::App& app);            ///< new, demo, open, close
void AddImportCommand(CLI::App& app, int& status); ///< import-tags, mappings
void AddExportCommand(CLI::App& app);              ///< export-tags
void AddTagCommands(CLI::App& app);                ///< stations, tags
void AddUseCommand(CLI::App& app);                 ///< where-used
void AddTagEditCommands(CLI::App& app);            ///< rename-tag, move-tag, remove-tag
void AddFileCommands(CLI::App& app, int& status);  ///< files, download
void AddWindowCommand(CLI::App& app);              ///< window

/// Adds --project to a command.
void AddProjectOption(CLI::App& command, std::string& project);
/// The project of that path, or the open one for an empty text.
[[nodiscard]] Project ProjectFor(const std::string& path, Access access);

/// "1 tag", "2 tags".
[[nodiscard]] std::string Counted(std::size_t count, std::string_view thing);
/// A line for whoever sits at the screen, apart from what a command gives out.
void Tell(const std::string& text);

} // namespace gfc::workshop
