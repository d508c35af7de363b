#include "Plant.h"

namespace gfc::bench {

Plant::Plant(ui::Screen& screen, int stations) : program_(seams_, *library_, screen, noRecord_) {
    auto& project = program_.Session.Project;
    project.ProjectFile = folder_.File("plant.KPJ");
    project.ProjectName = "plant";
    project.Paths = config::PathsOf(project.ProjectFile);
    for (int i = 1; i <= stations; ++i)
        project.Stations.push_back({"Station" + std::to_string(i), "Orm", "10.0.0.1", i});
    Configure();
}

void Plant::Configure() {
    const std::string bytes = StationFile();
    for (const std::string& file : StationFiles())
        Put(file, bytes);
}

std::vector<std::string> Plant::StationFiles() const {
    std::vector<std::string> files;
    for (const auto& station : program_.Session.Project.Stations)
        files.push_back(program_.Session.Project.ConfigFileOf(station.Name));
    return files;
}

} // namespace gfc::bench
