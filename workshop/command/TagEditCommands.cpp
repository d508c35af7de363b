#include "workshop/command/Commands.h"
#include "workshop/command/UseWarnings.h"
#include "workshop/import/TagTable.h"
#include "workshop/store/Failure.h"
#include "workshop/store/Tags.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace gfc::workshop {

namespace {

struct EditOptions {
    std::string Station;
    std::string Tag;
    std::string Target; // the new name or the new register
    std::string Project;
};

std::string PlaceText(const std::string& registerClass, std::int32_t number) {
    return registerClass + ' ' + std::to_string(number);
}

std::string PlaceText(const Tag& tag) {
    return PlaceText(tag.Class, tag.Register);
}

std::string Called(const Station& station, const Tag& tag) {
    return "tag " + tag.Name + " of station " + station.Name;
}

Tag TagNamed(Project& project, const Station& station, const std::string& name) {
    auto tag = FindTag(project, station.Id, name);
    if (!tag) {
        throw Failure(name + ": station " + station.Name + " has no such tag; \"io-workshop tags " +
                      station.Name + "\" lists them.");
    }
    return *std::move(tag);
}

// The tag itself is in nobody's way: a name may change in the case of its letters alone.
void CheckName(Project& project, const Station& station, const Tag& tag, const std::string& name) {
    if (const std::string fault = FaultUnder("Tag", name); !fault.empty()) {
        throw Failure("New name of " + Called(station, tag) + ": " + fault + "; choose another name.");
    }
    const auto holder = FindTag(project, station.Id, name);
    if (holder && holder->Name != tag.Name) {
        throw Failure(name + ": station " + station.Name + " has a tag " + holder->Name + " at " +
                      PlaceText(*holder) + " already; choose another name, or rename that tag first.");
    }
}

void CheckRegister(Project& project, const Station& station, const Tag& tag, std::int32_t number) {
    const auto holder = FindTagAt(project, station.Id, tag.Class, number);
    if (holder && holder->Name != tag.Name) {
        throw Failure(PlaceText(tag.Class, number) + ": " + Called(station, *holder) +
                      " stands there already; choose another register, or move that tag first.");
    }
}

std::string Rename(Project& project, const Station& station, const Tag& tag, const std::string& name) {
    CheckName(project, station, tag, name);
    RenameTag(project, station.Id, tag.Name, name);
    return "Renamed " + Called(station, tag) + " to " + name + ".";
}

std::string Move(Project& project, const Station& station, const Tag& tag, const std::string& text) {
    const std::int32_t number = NumberOf(text);
    CheckRegister(project, station, tag, number);
    MoveTag(project, station.Id, tag.Name, number);
    return "Moved " + Called(station, tag) + " from " + PlaceText(tag) + " to " +
           PlaceText(tag.Class, number) + ".";
}

std::string Remove(Project& project, const Station& station, const Tag& tag, const std::string& /*none*/) {
    RemoveTag(project, station.Id, tag.Name);
    return "Removed " + Called(station, tag) + " from " + PlaceText(tag) + ".";
}

// Gives the line that tells what was done.
using TagEdit = std::string (*)(Project&, const Station&, const Tag&, const std::string& target);

void Edit(const EditOptions& options, TagEdit edit) {
    Project project = ProjectFor(options.Project, Access::Write);
    Transaction transaction(project.Data()); // what was looked up must still hold when it is changed
    const Station station = StationNamed(project, options.Station);
    const Tag tag = TagNamed(project, station, options.Tag);
    const std::string done = edit(project, station, tag, options.Target);
    transaction.Commit();
    std::cout << done << '\n';
    if (FindTag(project, station.Id, tag.Name) != tag) {
        std::vector<TagUse> lost;
        AddUses(project, station, {tag.Name}, lost);
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
     "At most 40 characters of Windows-1252", Rename,
     "Lakeside_Delivery PIT-601_PV PIT-601A_PV"},
    {"move-tag", "Put a tag at another register of its class", "REGISTER",
     "Whole number from 0 to 2147483647", Move,
     "Lakeside_Delivery PIT-601_PV 1299"},
    {"remove-tag", "Take a tag out of its station", nullptr,
     nullptr, Remove,
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
    command->add_option("STATION", options->Station, "Name of the station")->required();
    command->add_option("TAG", options->Tag, "Name of the tag, whatever the case of its letters")->required();
    if (edit.Target != nullptr) {
        command->add_option(edit.Target, options->Target, edit.TargetHelp)->required();
    }
    if (edit.Edit == Move) {
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
