#include "commands/Json.h"
#include "commands/RecordAccess.h"
#include "services/Text.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace gfc::commands {

namespace {

using config::KeyChange;
using config::RecordEntry;

struct Options {
    std::vector<std::string> Stations;
    std::string Project, Key, User, Since, Until;
    int Run = 0;
    bool Json = false;
    bool Changes = false;
};

// A part of a key or a section, whatever its case.
bool Holds(const std::string& text, const std::string& part) {
    return services::FoldCase(text).find(services::FoldCase(part)) != std::string::npos;
}

bool IsWanted(const KeyChange& change, const Options& options) {
    const bool ofRun =
        options.Run == 0 || services::EqualNoCase(change.Section, "Run" + std::to_string(options.Run));
    return ofRun && (options.Key.empty() || Holds(change.Key, options.Key));
}

// Times compare as texts; a part of one, "2023-03", stands for all that begins so.
bool IsWanted(const RecordEntry& entry, const Options& options) {
    const bool ofStation = options.Stations.empty() || std::ranges::any_of(options.Stations, [&](auto& name) {
                               return services::EqualNoCase(name, entry.Station);
                           });
    return ofStation && (options.User.empty() || services::EqualNoCase(options.User, entry.User)) &&
           entry.Time >= options.Since &&
           (options.Until.empty() || entry.Time.substr(0, options.Until.size()) <= options.Until);
}

std::string Quoted(const std::optional<std::string>& text) {
    return text ? "\"" + *text + "\"" : "(none)";
}

void Put(const RecordEntry& entry, const std::vector<KeyChange>& changes, const Options& options) {
    std::cout << entry.Number << "  " << entry.Time << "  " << entry.Station << "  " << entry.Command << "  "
              << (entry.User.empty() ? "-" : entry.User) << " (" << entry.MachineUser << ")  "
              << changes.size() << (changes.size() == 1 ? " change" : " changes")
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
        if (!IsWanted(entry, options))
            continue;
        auto changes = recorder.Changes(project.Record(), entry.Number);
        std::erase_if(changes, [&](const KeyChange& change) { return !IsWanted(change, options); });
        if (changes.empty() && (options.Run != 0 || !options.Key.empty()))
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
    command->add_option("STATION", options->Stations, "Entries of these stations; of all if none is named");
    command->add_option("--run", options->Run, "Changes of run 1 to 5 alone")->check(CLI::Range(1, 5));
    command->add_option("--key", options->Key, "Changes of keys with this in their name");
    command->add_option("--user", options->User, "Entries of this user");
    command->add_option("--since", options->Since, "Entries from this time on (UTC): 2023-03-15T12:00");
    command->add_option("--until", options->Until, "Entries up to this time (UTC): 2023-03");
    command->add_flag("--changes", options->Changes, "List the changed keys, too");
    command->add_flag("--json", options->Json, "Give out JSON, changed keys included");
    command->add_option("--project", options->Project, "The project's file; without it the open project");
    command->callback([options, context] { Run(*options, context); });
}

} // namespace gfc::commands
