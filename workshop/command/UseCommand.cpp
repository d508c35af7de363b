#include "workshop/command/Commands.h"
#include "workshop/command/Listing.h"
#include "workshop/store/Failure.h"
#include "workshop/store/Tags.h"
#include "workshop/text/Paths.h"
#include "workshop/usage/TagUses.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace gfc::workshop {

namespace {

struct UseOptions {
    std::string Tag;
    std::string Station;
    std::string Project;
};

// Whether the binding fits the tag that the station has now.
std::string StateOf(const TagUse& use, const std::optional<Tag>& tag) {
    if (!tag) {
        return "no such tag";
    }
    const std::string place = tag->Class + ' ' + std::to_string(tag->Register);
    return place == use.Class + ' ' + use.Register ? "as bound" : "now " + place;
}

std::vector<std::string> RowOf(const TagUse& use, const std::optional<Tag>& tag) {
    return {use.Station,
            use.Section + (use.Off ? " (off)" : ""),
            use.Key,
            use.Class,
            use.Register,
            StateOf(use, tag),
            PathText(use.File.filename())};
}

void ShowUses(const UseOptions& options) {
    Project project = ProjectFor(options.Project, Access::Read);
    std::vector<std::vector<std::string>> rows = {
        {"Station", "Section", "Key", "Class", "Register", "Project", "File"}};
    bool known = false;
    for (const Station& station : StationsNamed(project, options.Station)) {
        const auto tag = FindTag(project, station.Id, options.Tag);
        known = known || tag.has_value();
        for (const TagUse& use : UsesNaming(TagUsesOf(project, station), options.Tag)) {
            rows.push_back(RowOf(use, tag));
        }
    }
    if (rows.size() > 1) {
        PrintListing(std::cout, rows);
    } else if (known) {
        std::cout << "No configuration file names " << options.Tag << ".\n";
    } else {
        throw Failure(options.Tag + ": no station has such a tag and no configuration file names it; "
                                    "\"io-workshop tags\" lists the tags.");
    }
}

} // namespace

void AddUseCommand(CLI::App& app) {
    auto options = std::make_shared<UseOptions>();
    CLI::App* command = app.add_subcommand(
        "where-used", "Show which runs and variables of the stations' configuration files name a tag");
    command->add_option("TAG", options->Tag, "Name of the tag, whatever the case of its letters")->required();
    command->add_option("STATION", options->Station, "Only the file of this station");
    AddProjectOption(*command, options->Project);
    command->footer(
        "The column Project says whether the station's tag still stands where the file binds it.\n"
        "Example:\n  io-workshop where-used PIT-601_PV");
    command->callback([options] { ShowUses(*options); });
}

} // namespace gfc::workshop
