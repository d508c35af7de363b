#include "commands/Json.h"
#include "commands/RecordAccess.h"
#include "record/Sha256.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace gfc::commands {

namespace {

struct Options {
    std::string State, Project, User;
    bool Json = false;
};

// The file that stands there is read first, so that the record knows what was replaced.
config::FileState StateNow(platform::Files& files, const std::string& file) {
    auto state = files.Read(file);
    if (!state && files.Exists(file))
        throw Failure(exitcode::NotToBeHad,
                      "the present configuration cannot be read, and is left as it is: " + file);
    return state;
}

// Why it was not stored, with what stands there now; empty where it was.
std::string Replace(platform::Files& files, const std::string& file, const config::FileState& before,
                    const Operand& wanted, config::FileState& after) {
    after = wanted.Bytes;
    if (before == after || files.Replace(file, wanted.Bytes))
        return {};
    const std::string reason = files.LastFailure(); // before the next call
    after = files.Read(file);
    return "the configuration could not be written, and " +
           std::string(after == before         ? "is the old one"
                       : after == wanted.Bytes ? "nobody says that it is safe on the disk"
                                               : "what stands there is not known") +
           ": " + file + " (" + reason + ")";
}

void Enter(const ProjectFiles& project, const config::FileChange& change, platform::Machine& machine) {
    auto recorder = MakeRecorder(machine);
    recorder.Record({change});
    if (!recorder.Trouble().empty())
        Tell("the configuration of " + change.Station + " in " + project.ProjectName +
             " was changed, but this is not entered in the history. " + recorder.Trouble());
}

void Run(const Options& options, Context context) {
    const ProjectFiles project = FilesOfProject(context.Machine, options.Project);
    const Operand wanted = ReadOperand(options.State, options.Project, context.Machine);
    if (wanted.Entry == 0 || wanted.Run != 0)
        throw Failure(exitcode::WrongUse, "say which entry of the history to bring back: STATION@ENTRY.");
    const std::string file = project.FileOf(wanted.Station);
    const auto before = StateNow(context.Machine.Files, file);
    const bool differs = before != wanted.Bytes;
    config::FileState after;
    const std::string failure = Replace(context.Machine.Files, file, before, wanted, after);
    // What may stand there although it failed is an entry, too.
    if (failure.empty() || (after && after != before))
        Enter(project,
              {project.Record(), wanted.Station, std::string(config::command::BringBack), options.User,
               before, after},
              context.Machine);
    if (!failure.empty())
        throw Failure(exitcode::NotToBeHad, failure);
    if (options.Json)
        return WriteJson(std::cout, {{"version", 1},
                                     {"station", wanted.Station},
                                     {"entry", wanted.Entry},
                                     {"changed", differs},
                                     {"sha256", record::Sha256(wanted.Bytes)}});
    std::cout << wanted.Station << (differs ? ": brought back entry " : ": stands already as after entry ")
              << wanted.Entry << '\n';
}

} // namespace

void AddRestoreCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("restore", "Bring back a configuration from the history");
    command->add_option("STATION@ENTRY", options->State, "The state after that entry")->required();
    AddUserOption(*command, options->User, "The user id under which this is entered").required();
    command->add_flag("--json", options->Json, "Give out JSON");
    command->add_option("--project", options->Project, "The project's file; without it the open project");
    command->callback([options, context] { Run(*options, context); });
}

} // namespace gfc::commands
