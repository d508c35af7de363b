#include "commands/Json.h"
#include "commands/Steps.h"
#include "commands/configure/Configure.h"
#include "plan/Apply.h"
#include "plan/Template.h"
#include "services/Counted.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace gfc::commands {

namespace {

struct Options {
    std::string Plan;
    plan::ApplyOptions Apply;
    bool DespiteErrors = false;
    bool Preview = false;
    bool Json = false;
};

void PutFaults(const plan::Faults& faults, bool json) {
    if (!json) {
        for (const plan::Fault& fault : faults)
            std::cout << fault.Line() << "\n";
        return;
    }
    Json list = Json::array();
    for (const plan::Fault& fault : faults)
        list.push_back(
            {{"row", fault.Row}, {"column", fault.Column}, {"value", fault.Value}, {"text", fault.Text}});
    WriteJson(std::cout, {{"version", 1}, {"written", false}, {"faults", std::move(list)}});
}

void PutAsJson(const std::vector<plan::Checked>& targets, const std::vector<plan::Written>& results) {
    Json stations = Json::array();
    for (std::size_t i = 0; i < targets.size(); ++i) {
        Json station = {{"station", targets[i].Change.Station},
                        {"replaces", targets[i].Change.Before.has_value()}};
        if (i < results.size()) {
            station["written"] = results[i].Done;
            station["reason"] = results[i].Reason;
            station["errors"] = audit::CountOf(targets[i].Report.Findings, audit::Severity::Error);
            station["warnings"] = audit::CountOf(targets[i].Report.Findings, audit::Severity::Warning);
        }
        stations.push_back(std::move(station));
    }
    WriteJson(std::cout, {{"version", 1}, {"written", !results.empty()}, {"stations", std::move(stations)}});
}

void PutPreview(const std::vector<plan::Checked>& targets) {
    for (const plan::Checked& target : targets)
        std::cout << target.Change.Station << ": "
                  << (!target.Change.Before                          ? "is configured"
                      : *target.Change.Before == target.Change.After ? "stands already as the table says"
                                                                     : "is configured anew")
                  << "\n";
}

std::string ReadPlan(const std::string& path, platform::Machine& machine) {
    if (auto bytes = machine.Files.Read(path))
        return *std::move(bytes);
    throw Failure(exitcode::WrongUse,
                  "the table cannot be read: " + path + " (" + machine.Files.LastFailure() + ")");
}

std::vector<plan::Checked> PlanAll(const std::string& table, const OpenProject& open,
                                   const plan::ApplyOptions& options, Context context, plan::Faults& faults) {
    std::vector<plan::Checked> targets;
    {
        Steps steps("Planning", 0);
        targets = plan::PlanTable(table, context.Machine.Files, *open.Library, open.Project, options, faults,
                                  [&steps](const std::string& station) { return steps.Begin(station); });
    }
    EndIfBrokenOff();
    return targets;
}

void Apply(Options options, Context context) {
    const std::string table = ReadPlan(options.Plan, context.Machine);
    OpenProject open = AskForProject(context.Machine);
    if (options.DespiteErrors)
        options.Apply.Strictness = plan::Strictness::AsTheWindows;
    plan::Faults faults;
    const auto targets = PlanAll(table, open, options.Apply, context, faults);
    if (!faults.empty()) {
        PutFaults(faults, options.Json);
        throw Failure(exitcode::Found, services::Counted(faults.size(), "fault", "faults") +
                                           " in the table; nothing was written.");
    }
    if (options.Preview)
        return options.Json ? PutAsJson(targets, {}) : PutPreview(targets);
    const auto results = WriteAll(open, targets, options.Apply.User, context);
    context.Status = CodeOf(targets, results);
    options.Json ? PutAsJson(targets, results) : PutResults(targets, results);
}

struct TemplateOptions {
    std::vector<std::string> Stations;
    std::string Tags;
    std::string Target;
};

void MakeTemplate(const TemplateOptions& options, Context context) {
    const OpenProject open = AskForProject(context.Machine);
    const config::FileIni ini(context.Machine.Files);
    std::vector<project::TagList> tags;
    tags.reserve(options.Stations.size()); // they are pointed to
    std::vector<plan::TemplateStation> stations;
    Steps steps("Reading", options.Stations.size());
    for (const std::string& station : StationsNamed(open.Project, options.Stations)) {
        if (!steps.Begin(station))
            break;
        const std::string file = open.Project.ConfigFileOf(station);
        if (!context.Machine.Files.Read(file))
            throw Failure(exitcode::WrongUse,
                          "the station \"" + station + "\" is not configured, or its file cannot be read.");
        tags.push_back(open.Library->ReadTags(station, open.Project.ProjectFile, [](std::string_view) {}));
        stations.push_back({station, file, &tags.back()});
    }
    EndIfBrokenOff();
    const std::string table = plan::WriteSheet(plan::TemplateOf(ini, stations, options.Tags));
    if (options.Target.empty())
        std::cout << table;
    else if (!context.Machine.Files.Replace(options.Target, table))
        throw Failure(exitcode::NotToBeHad, "the table could not be written: " + options.Target + " (" +
                                                context.Machine.Files.LastFailure() + ")");
}

} // namespace

void AddApplyCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("apply", "Configure the stations of a table");
    command->add_option("PLAN.csv", options->Plan, "The table; \"template\" makes one to start from")
        ->required();
    command->add_flag("--preview", options->Preview, "Say what would be written, and write nothing");
    command->add_flag("--replace", options->Apply.MayReplace,
                      "Replace the configuration of a station that has one");
    command->add_flag("--despite-errors", options->DespiteErrors,
                      "Write what the check calls an error, too, where the windows would let it through");
    AddUserOption(*command, options->Apply.User, "The user id, in the place of that in the column User");
    command->add_flag("--json", options->Json, "Give out JSON");
    command->footer("Examples:\n  gfc-configure template North --tags suggested -o plan.csv\n"
                    "  gfc-configure apply plan.csv --preview\n  gfc-configure apply plan.csv --user 4711");
    command->callback([options, context] { Apply(*options, context); });
}

void AddTemplateCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<TemplateOptions>();
    CLI::App* command =
        app.add_subcommand("template", "Make a table to start from out of configured stations");
    command->add_option("STATION", options->Stations, "Configured stations")->required();
    command
        ->add_option("--tags", options->Tags,
                     "Leave the tags out, and have them bound \"automatic\" or \"suggested\"")
        ->check(CLI::IsMember({std::string(plan::tags::Automatic), std::string(plan::tags::Suggested)}));
    command->add_option("-o,--output", options->Target, "Write the table to this file");
    command->footer("Example:\n  gfc-configure template North -o plan.csv");
    command->callback([options, context] { MakeTemplate(*options, context); });
}

} // namespace gfc::commands
