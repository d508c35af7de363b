#pragma once

#include "commands/Commands.h"
#include "platform/Machine.h"
#include "project/AddOnLibrary.h"
#include "project/Project.h"

#include <memory>
#include <string>
#include <vector>

namespace gfc::commands {

// The project that is open in the I/O Workshop tool, asked through the add-on library beside the program.
struct OpenProject {
    std::unique_ptr<project::AddOnLibrary> Library;
    project::Project Project;
};

// Fails with NotToBeHad if there is no library, no project open in the tool, or no list of its stations.
[[nodiscard]] OpenProject AskForProject(platform::Machine& machine);

// Fails with WrongUse if the project has no such station; names come back as the project writes them.
[[nodiscard]] std::vector<std::string> StationsNamed(const project::Project& project,
                                                     const std::vector<std::string>& names);

// The names of the files in the folder; fails with the code if it cannot be looked into.
[[nodiscard]] std::vector<std::string> NamesInFolder(const std::string& folder, int code);

} // namespace gfc::commands
