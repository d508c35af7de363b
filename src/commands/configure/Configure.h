#pragma once

#include "commands/Commands.h"
#include "commands/OpenProject.h"
#include "plan/Copy.h"

#include <memory>
#include <string>
#include <vector>

// The command line of gfc-configure: it writes what was decided beforehand, all of it or nothing.
namespace gfc::commands {

void AddCopyCommand(CLI::App& app, Context context);
void AddRebindCommand(CLI::App& app, Context context);
void AddApplyCommand(CLI::App& app, Context context);
void AddTemplateCommand(CLI::App& app, Context context);

// Writes them one after the other and goes on where one fails: what was decided for the others still stands.
// Once it is broken off by Ctrl+C none is begun.
[[nodiscard]] std::vector<plan::Written> WriteAll(OpenProject& open,
                                                  const std::vector<plan::Checked>& targets,
                                                  const std::string& user, Context context);

// NotToBeHad where one was not written, BrokenOff where that was for Ctrl+C, Found where the check finds an
// error in one, else Clean.
[[nodiscard]] int CodeOf(const std::vector<plan::Checked>& targets,
                         const std::vector<plan::Written>& results);

// For people: each station with what its check finds.
void PutResults(const std::vector<plan::Checked>& targets, const std::vector<plan::Written>& results);

} // namespace gfc::commands
