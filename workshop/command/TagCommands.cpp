#include "workshop/command/Commands.h"
#include "workshop/command/Listing.h"
#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace gfc::workshop {

namespace {

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

void ShowTags(const std::string& path, const std::string& name) {
    Project project = ProjectFor(path, Access::Read);
    std::vector<std::vector<std::string>> rows = {
        {"Station", "Tag", "Class", "Register", "Module", "Module Type", "Description"}};
    for (const Station& station : StationsNamed(project, name)) {
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

void AddTagCommands(CLI::App& app) {
    AddStations(app);
    AddTags(app);
}

} // namespace gfc::workshop
