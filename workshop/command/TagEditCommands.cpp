#include "workshop/command/Commands.h"
#include "workshop/command/UseWarnings.h"
#include "workshop/edit/TagEdits.h"
#include "workshop/import/TagTable.h"
#include "workshop/store/Tags.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace gfc::workshop {

namespace {

struct EditOptions {
    EditOfTag Wanted;
    std::string Project;
};

using TagEdit = std::string (*)(Project&, const EditOfTag&);

void Edit(const EditOptions& options, TagEdit edit) {
    Project project = ProjectFor(options.Project, Access::Write);
    const Station station = StationNamed(project, options.Wanted.Station);
    const auto before = FindTag(project, station.Id, options.Wanted.Tag);
    std::cout << edit(project, options.Wanted) << '\n';
    if (before && FindTag(project, station.Id, before->Name) != before) {
        std::vector<TagUse> lost;
        AddUses(project, station, {before->Name}, lost);
        WarnOf(lost);
    }
}

// The rule of the table of an import. Asked while the arguments are read, so that it ends as wrong usage.
std::string FaultOfRegister(const std::string& text) {
    const std::string fault = FaultUnder("Register", text);
    return fault.empty() ? "" : fault + "; \"io-workshop tags\" shows the registers in use";
}

struct EditCommand {
    const char* Name;
    const char* Help;
    const char* Target; // null where nothing but station and tag is asked for
    const char* TargetHelp;
    TagEdit Edit;
    const char* Example;
};

// clang-format off
constexpr EditCommand Commands[] = {
    {"rename-tag", "Give a tag another name", "NEWNAME",
     "At most 40 characters of Windows-1252", RenameTag,
     "Lakeside_Delivery PIT-601_PV PIT-601A_PV"},
    {"move-tag", "Put a tag at another register of its class", "REGISTER",
     "Whole number from 0 to 2147483647", MoveTag,
     "Lakeside_Delivery PIT-601_PV 1299"},
    {"remove-tag", "Take a tag out of its station", nullptr,
     nullptr, RemoveTag,
     "Lakeside_Delivery PIT-601_PV"},
};
// clang-format on

std::string FooterOf(const EditCommand& edit) {
    return "The tags are delivered in the same order as before. Configuration files that name the tag stay\n"
           "as they are; a warning tells which, and a check of the station in the configurator, too.\n"
           "Example:\n  io-workshop " +
           std::string(edit.Name) + ' ' + edit.Example;
}

void AddEdit(CLI::App& app, const EditCommand& edit) {
    auto options = std::make_shared<EditOptions>();
    CLI::App* command = app.add_subcommand(edit.Name, edit.Help);
    command->add_option("STATION", options->Wanted.Station, "Name of the station")->required();
    command->add_option("TAG", options->Wanted.Tag, "Name of the tag, whatever the case of its letters")
        ->required();
    if (edit.Target != nullptr) {
        command->add_option(edit.Target, options->Wanted.Target, edit.TargetHelp)->required();
    }
    if (std::string_view(edit.Name) == "move-tag") {
        command->get_option("REGISTER")->check(FaultOfRegister);
    }
    AddProjectOption(*command, options->Project);
    command->footer(FooterOf(edit));
    command->callback([options, &edit] { Edit(*options, edit.Edit); });
}

} // namespace

void AddTagEditCommands(CLI::App& app) {
    for (const EditCommand& edit : Commands) {
        AddEdit(app, edit);
    }
}

} // namespace gfc::workshop
