#include "forms/tools/ToolStations.h"

#include "forms/main_window/StationNodes.h"

namespace gfc::forms {

std::vector<std::string> StationNames(const Program& program) {
    std::vector<std::string> names;
    for (const project::Station& station : program.Session.Project.Stations)
        names.push_back(station.Name);
    return names;
}

std::string SelectedStation(const Program& program) {
    const std::string& path = program.Session.SelectedPath;
    const std::string lead = node::StationPath({});
    if (!path.starts_with(lead))
        return {};
    return path.substr(lead.size(), path.find('\\', lead.size()) - lead.size());
}

} // namespace gfc::forms
