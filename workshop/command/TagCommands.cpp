#include "workshop/command/Commands.h"
#include "workshop/command/Listing.h"
#include "workshop/import/TagImport.h"
#include "workshop/store/Failure.h"
#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"
#include "workshop/text/Paths.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace gfc::workshop {

namespace {

constexpr std::size_t MostComplaints = 50; // more than this is one cause told many times

void TellComplaints(const std::string& csv, const std::vector<Complaint>& complaints) {
    for (std::size_t at = 0; at < std::min(complaints.size(), MostComplaints); ++at) {
        std::cerr << csv << ": " << TextOf(complaints[at]) << '\n';
    }
    if (complaints.size() > MostComplaints) {
        std::cerr << csv << ": and " << complaints.size() - MostComplaints << " more faults\n";
    }
    std::cerr << "io-workshop: nothing was imported; mend the table and import it again.\n";
}

struct ImportOptions {
    std::string Csv;
    std::string Project;
    bool Replace = false;
};

void Import(const ImportOptions& options, int& status) {
    Project project = ProjectFor(options.Project, Access::Write);
    const ImportMode mode = options.Replace ? ImportMode::Replace : ImportMode::Add;
    const ImportResult result = ImportTags(project, PathOf(options.Csv), mode);
    if (!result.Complaints.empty()) {
        TellComplaints(options.Csv, result.Complaints);
        status = Failed;
        return;
    }
    std::cout << "Imported " << result.Tags << " tags of " << result.Stations << " stations into "
              << PathText(project.File()) << ".\n";
}

void AddImportTags(CLI::App& app, int& status) {
    auto options = std::make_shared<ImportOptions>();
    CLI::App* command =
        app.add_subcommand("import-tags", "Take a table of stations and tags into the project");
    command->add_option("CSV", options->Csv, "UTF-8 file, commas between the fields")->required();
    command->add_flag("--replace", options->Replace,
                      "Throw away the tags that the table's stations have so far");
    AddProjectOption(*command, options->Project);
    command->footer(
        "The first row names the columns, in any order: Station, Station Type, IP Address, Serial Number,\n"
        "Module, Module Type, Tag, Class, Register, Description. Type, address, serial number and\n"
        "description may be left out; a row without module and tag makes a station without tags. Tags\n"
        "are delivered in the order of the rows, so rows of one module stand together. The type of a\n"
        "virtual module begins with the word Virtual. All of the table is taken or nothing.\n"
        "Example:\n  io-workshop import-tags tags.csv\nwith the table\n"
        "  Station,IP Address,Module,Module Type,Tag,Class,Register\n"
        "  North,10.0.0.5,VFX_RUN,Virtual Module,PIT-101,FX,1001");
    command->callback([options, &status] { Import(*options, status); });
}

void ShowStations(const std::string& path) {
    Project project = ProjectFor(path, Access::Read);
    std::vector<std::vector<std::string>> rows = {
        {"Station", "Station Type", "IP Address", "Serial Number", "Tags"}};
    for (const Station& station : ListStations(project)) {
        rows.push_back({station.Name, station.Type, station.Address, std::to_string(station.SerialNumber),
                        std::to_string(CountTags(project, station.Id))});
    }
    PrintListing(std::cout, rows);
}

void AddStations(CLI::App& app) {
    auto path = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("stations", "List the stations of the project");
    AddProjectOption(*command, *path);
    command->footer("Example:\n  io-workshop stations");
    command->callback([path] { ShowStations(*path); });
}

std::vector<Station> StationsToShow(Project& project, const std::string& name) {
    if (name.empty()) {
        return ListStations(project);
    }
    return {StationNamed(project, name)};
}

void ShowTags(const std::string& path, const std::string& name) {
    Project project = ProjectFor(path, Access::Read);
    std::vector<std::vector<std::string>> rows = {
        {"Station", "Tag", "Class", "Register", "Module", "Module Type", "Description"}};
    for (const Station& station : StationsToShow(project, name)) {
        for (const Tag& tag : ListTags(project, station.Id)) {
            rows.push_back({station.Name, tag.Name, tag.Class, std::to_string(tag.Register), tag.Module,
                            tag.ModuleType, tag.Description});
        }
    }
    PrintListing(std::cout, rows);
}

void AddTags(CLI::App& app) {
    struct Options {
        std::string Project;
        std::string Station;
    };
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("tags", "List tags in the order in which they are delivered");
    command->add_option("STATION", options->Station, "Only the tags of this station");
    AddProjectOption(*command, options->Project);
    command->footer("Example:\n  io-workshop tags Lakeside_Delivery");
    command->callback([options] { ShowTags(options->Project, options->Station); });
}

} // namespace

Station StationNamed(Project& project, const std::string& name) {
    auto station = FindStation(project, name);
    if (!station) {
        throw Failure(name + ": the project has no such station; \"io-workshop stations\" lists them.");
    }
    return *std::move(station);
}

void AddTagCommands(CLI::App& app, int& status) {
    AddImportTags(app, status);
    AddStations(app);
    AddTags(app);
}

} // namespace gfc::workshop
