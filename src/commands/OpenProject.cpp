#include "commands/OpenProject.h"

#include "platform/DynamicLibrary.h"
#include "platform/Folder.h"
#include "project/AddOnGate.h"
#include "services/Text.h"

#include <algorithm>

namespace gfc::commands {

namespace {

void Refuse(project::LoadOutcome outcome) {
    using enum project::LoadOutcome;
    if (outcome == NoProject)
        throw Failure(exitcode::NotToBeHad, "no project is open in the I/O Workshop; open one first.");
    if (outcome == ListFailed)
        throw Failure(
            exitcode::NotToBeHad,
            "the I/O Workshop gave no list of stations; look there whether the project is in order.");
}

} // namespace

OpenProject AskForProject(platform::Machine& machine) {
    OpenProject open;
    std::string error;
    open.Library =
        project::LoadAddOnLibrary(platform::LoadLibraryAt, machine.Paths.ExecutableFolder(), error);
    if (open.Library == nullptr)
        throw Failure(exitcode::NotToBeHad, "the library of the I/O Workshop could not be loaded: " + error);
    Refuse(project::LoadProject(*open.Library, open.Project));
    open.Project.Paths = config::PathsOf(open.Project.ProjectFile);
    open.Library->CoInitialize();
    return open;
}

std::vector<std::string> StationsNamed(const project::Project& project,
                                       const std::vector<std::string>& names) {
    std::vector<std::string> stations;
    for (const std::string& name : names) {
        const auto found = std::ranges::find_if(project.Stations, [&](const project::Station& station) {
            return services::EqualNoCase(station.Name, name);
        });
        if (found == project.Stations.end())
            throw Failure(exitcode::WrongUse, "the project has no station \"" + name + "\".");
        stations.push_back(found->Name);
    }
    return stations;
}

std::vector<std::string> NamesInFolder(const std::string& folder, int code) {
    auto names = platform::FileNamesIn(folder);
    if (!names)
        throw Failure(code, "the folder \"" + folder + "\" is not there, or may not be read.");
    return *std::move(names);
}

} // namespace gfc::commands
