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

// A station whose file is to be written, with what its check needs.
struct Target {
    plan::Change Change;
    project::TagList Tags;
};

// What came of one of them.
struct Result {
    plan::Written Written;
    audit::StationReport Report; // of the file as it was to become
};

// Writes them one after the other and goes on where one fails: what was decided for the others still stands.
[[nodiscard]] std::vector<Result> WriteAll(OpenProject& open, const std::vector<Target>& targets,
                                           const std::string& user, Context context);

// NotToBeHad where one was not written, Found where the check finds an error in one, else Clean.
[[nodiscard]] int CodeOf(const std::vector<Result>& results);

// For people: each station with what its check finds.
void PutResults(const std::vector<Target>& targets, const std::vector<Result>& results);

} // namespace gfc::commands
