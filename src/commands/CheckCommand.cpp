#include "audit/Plant.h"
#include "commands/Commands.h"
#include "commands/Listing.h"
#include "commands/OpenProject.h"
#include "commands/Steps.h"
#include "platform/Console.h"
#include "services/Text.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace gfc::commands {

namespace {

struct Options {
    std::vector<std::string> Stations;
    std::string Folder;
    std::string Severity;
    bool Json = false;
    bool Rules = false;
};

std::optional<audit::Severity> LevelOf(const Options& options) {
    return options.Severity.empty() ? std::nullopt : audit::SeverityOf(options.Severity);
}

std::unique_ptr<Listing> ListingFor(const Options& options) {
    if (options.Json)
        return MakeJsonListing(std::cout, LevelOf(options));
    return MakeTextListing(std::cout, LevelOf(options).value_or(audit::Severity::Warning));
}

void CheckAll(audit::PlantCheck check, const std::string& project, const Options& options, int& status) {
    const auto level = LevelOf(options).value_or(audit::Severity::Warning);
    const auto listing = ListingFor(options);
    listing->Begin(project);
    // On a screen the stations count themselves, as each is listed once it was looked at.
    std::optional<Steps> steps;
    if (!platform::GoesToScreen(platform::Stream::Results))
        steps.emplace("Checking", check.Count());
    while (!check.IsAtEnd()) {
        const audit::StationReport report = check.Next();
        if (steps && !steps->Begin(report.Station))
            break;
        listing->Put(report);
        const auto counts = [&](const audit::Finding& finding) { return finding.Severity <= level; };
        if (std::ranges::any_of(report.Findings, counts))
            status = exitcode::Found;
    }
    listing->End();
}

// The files of these stations in their order, each once; a folder may hold those of several projects.
std::vector<std::size_t> PlacesOf(const audit::FolderPlant& plant, const std::vector<std::string>& stations) {
    std::vector<std::size_t> places;
    for (const std::string& station : stations) {
        const std::size_t before = places.size();
        for (std::size_t place = 0; place < plant.Count(); ++place)
            if (services::EqualNoCase(plant.NameOf(place), station))
                places.push_back(place);
        if (places.size() == before)
            throw Failure(exitcode::WrongUse, "the folder has no file of a station \"" + station + "\".");
    }
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

void CheckFolder(const Options& options, Context context) {
    const audit::FolderPlant plant(context.Machine.Files, options.Folder,
                                   NamesInFolder(options.Folder, exitcode::WrongUse));
    const auto only = PlacesOf(plant, options.Stations);
    CheckAll(only.empty() ? audit::PlantCheck(plant) : audit::PlantCheck(plant, only), {}, options,
             context.Status);
}

void CheckProject(const Options& options, Context context) {
    const OpenProject open = AskForProject(context.Machine);
    const project::Project& project = open.Project;
    if (!options.Stations.empty()) {
        const audit::ProjectPlant::OnlyStations only{StationsNamed(project, options.Stations)};
        const audit::ProjectPlant plant(context.Machine.Files, *open.Library, project, only);
        return CheckAll(audit::PlantCheck(plant), project.ProjectFile, options, context.Status);
    }
    const audit::ProjectPlant plant(context.Machine.Files, *open.Library, project,
                                    NamesInFolder(project.Paths.ProjectFolder, exitcode::NotToBeHad));
    CheckAll(audit::PlantCheck(plant), project.ProjectFile, options, context.Status);
}

void Run(const Options& options, Context context) {
    if (options.Rules)
        return options.Json ? ListRulesAsJson(std::cout) : ListRules(std::cout);
    options.Folder.empty() ? CheckProject(options, context) : CheckFolder(options, context);
}

} // namespace

void AddCheckCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("check", "Look over the stations of the open project");
    command->add_option("STATION", options->Stations, "Stations to look at; all of them if none is named");
    command->add_flag("--json", options->Json, "Give out JSON, all findings unless --severity is given");
    command->add_option("--severity", options->Severity, "List these and worse: error, warning or note")
        ->check(CLI::IsMember({"error", "warning", "note"}));
    command->add_option("--folder", options->Folder, "Look at the files in FOLDER alone, without a project");
    command->add_flag("--rules", options->Rules, "List the rules and look at nothing");
    command->footer("Examples:\n  gfc-audit check\n  gfc-audit check North --severity note\n"
                    "  gfc-audit check --json > findings.json");
    command->callback([options, context] { Run(*options, context); });
}

} // namespace gfc::commands
