#include "audit/Comparison.h"
#include "commands/Json.h"
#include "commands/RecordAccess.h"
#include "config/RecordFilter.h"
#include "services/Counted.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace gfc::commands {

namespace {

using config::KeyChange;
using config::RecordEntry;

struct Options {
    config::RecordFilter Wanted;
    std::string Project;
    bool Json = false;
    bool Changes = false;
};

std::string Quoted(const std::optional<std::string>& text) {
    return text ? "\"" + *text + "\"" : "(none)";
}

void Put(const RecordEntry& entry, const std::vector<KeyChange>& changes, const Options& options) {
    std::cout << entry.Number << "  " << entry.Time << "  " << entry.Station << "  " << entry.Command << "  "
              << (entry.User.empty() ? "-" : entry.User) << " (" << entry.MachineUser << ")  "
              << services::Counted(changes.size(), "change", "changes")
              << (entry.FileHash.empty() ? ", no file" : "") << '\n';
    if (options.Changes)
        for (const KeyChange& change : changes)
            std::cout << "      [" << change.Section << "] " << change.Key << ": " << Quoted(change.Old)
                      << " -> " << Quoted(change.New) << '\n';
}

Json JsonOf(const RecordEntry& entry, const std::vector<KeyChange>& changes) {
    Json rows = Json::array();
    for (const KeyChange& change : changes)
        rows.push_back({{"section", change.Section},
                        {"key", change.Key},
                        {"old", OrNull(change.Old)},
                        {"new", OrNull(change.New)}});
    return {{"entry", entry.Number},    {"time", entry.Time}, {"station", entry.Station},
            {"command", entry.Command}, {"user", entry.User}, {"machineUser", entry.MachineUser},
            {"sha256", entry.FileHash}, {"hash", entry.Hash}, {"changes", std::move(rows)}};
}

void Run(const Options& options, Context context) {
    const ProjectFiles project = FilesOfProject(context.Machine, options.Project);
    auto recorder = MakeRecorder(context.Machine);
    Json list = Json::array();
    const auto entries = recorder.Entries(project.Record(), {});
    DemandNoTrouble(recorder);
    for (const RecordEntry& entry : entries) {
        if (!options.Wanted.Wants(entry))
            continue;
        auto changes = recorder.Changes(project.Record(), entry.Number);
        std::erase_if(changes, [&](const KeyChange& change) {
            return !options.Wanted.Wants(change, audit::CaptionOf(change.Key));
        });
        if (changes.empty() && options.Wanted.AsksForChanges())
            continue;
        options.Json ? list.push_back(JsonOf(entry, changes)) : Put(entry, changes, options);
    }
    if (options.Json)
        WriteJson(std::cout,
                  {{"version", 1}, {"project", project.ProjectFile}, {"entries", std::move(list)}});
}

} // namespace

void AddHistoryCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("history", "List what was changed, when and by whom");
    command->add_option("STATION", options->Wanted.Stations,
                        "Entries of these stations; of all if none is named");
    command->add_option("--run", options->Wanted.Run, "Changes of run 1 to 5 alone")->check(CLI::Range(1, 5));
    command->add_option("--key", options->Wanted.Key, "Changes of keys with this in their name or caption");
    command->add_option("--user", options->Wanted.User, "Entries of users with this in their id");
    command->add_option("--since", options->Wanted.Since,
                        "Entries from this time on (UTC): 2023-03-15T12:00");
    command->add_option("--until", options->Wanted.Until, "Entries up to this time (UTC): 2023-03");
    command->add_flag("--changes", options->Changes, "List the changed keys, too");
    command->add_flag("--json", options->Json, "Give out JSON, changed keys included");
    command->add_option("--project", options->Project, "The project's file; without it the open project");
    command->callback([options, context] { Run(*options, context); });
}

} // namespace gfc::commands
