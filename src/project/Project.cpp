#include "project/Project.h"

#include "services/Utilidades.h"

#include <algorithm>

namespace gfc::project {
namespace {

// Where the package reads its configuration on the station, the same on every station.
constexpr const char* TargetOnStation = "/etc/stacfg/kdormaga.ini";

} // namespace

std::string ProjectNameOf(std::string_view path) {
    path = path.substr(0, path.find('\0'));
    const auto separator = path.find_last_of("\\/");
    const auto name = separator == std::string_view::npos ? path : path.substr(separator + 1);
    auto extension = name.find(".kpj");
    if (extension == std::string_view::npos)
        extension = name.find(".KPJ"); // other mixtures of case are deliberately no extension
    return std::string(name.substr(0, extension));
}

LoadOutcome LoadProject(AddOnLibrary& library, Project& project) {
    project.Stations.clear();
    project.ProjectFile = library.GetProjectFile();
    if (project.ProjectFile.empty())
        return LoadOutcome::NoProject;
    project.ProjectName = ProjectNameOf(project.ProjectFile);
    auto stations = library.GetStations();
    if (!stations)
        return LoadOutcome::ListFailed;
    project.Stations = *std::move(stations);
    return project.Stations.empty() ? LoadOutcome::NoStations : LoadOutcome::Loaded;
}

void RegisterAllStations(AddOnLibrary& library, const config::FileIni& ini, const Project& project,
                         const std::string& currentStation) {
    for (const Station& station : project.Stations) {
        const std::string name = services::TrimFixedString(station.Name);
        if (config::ConfigFileExists(ini, project.Paths, project.ProjectName, name))
            RegisterStation(library, project, name);
        else
            UnregisterStation(library, project, name, currentStation);
    }
}

void RegisterStation(AddOnLibrary& library, const Project& project, const std::string& station) {
    library.AddFileToLoad(services::TrimFixedString(station), project.ConfigFileOf(station), TargetOnStation);
}

int UnregisterStation(AddOnLibrary& library, const Project& project, const std::string& station,
                      const std::string& currentStation) {
    // Deliberately the file of the current station, whichever station the entry is taken from.
    const std::string local = project.Paths.ConfigFilePrefix + project.ProjectName + "_" +
                              services::TrimFixedString(currentStation) + ".ini";
    return library.RemoveFileToLoad(services::TrimFixedString(station), local, TargetOnStation);
}

} // namespace gfc::project
