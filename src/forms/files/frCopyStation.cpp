#include "forms/files/frCopyStation.h"

#include "services/Utilidades.h"

namespace gfc::forms {

frCopyStation::frCopyStation(Program& program)
    : ProgramForm(program, "frCopyStation", "Name of the destination station to configure") {
    Command1.OnClick = [this] { Leave(Combo1.Text()); };
    Command2.OnClick = [this] { Leave({}); };
    SetDefaultButton(Command1);
    SetCancelButton(Command2);
}

void frCopyStation::Load() {
    for (const auto& station : StationsWithoutConfiguration(program_))
        Combo1.AddEntry(station);
    Combo1.SetListIndex(0);
}

void frCopyStation::Leave(const std::string& destination) {
    session_.CopyDestination = destination;
    Unload();
}

std::vector<std::string> StationsWithoutConfiguration(const Program& program) {
    const auto& project = program.Session.Project;
    std::vector<std::string> names;
    for (const auto& station : project.Stations) {
        std::string name = services::TrimFixedString(station.Name);
        // No file can bear the name: nothing can be copied to it.
        if (config::ConfigFilePath(project.Paths, project.ProjectName, name).empty())
            continue;
        if (!config::ConfigFileExists(program.Ini, project.Paths, project.ProjectName, name))
            names.push_back(std::move(name));
    }
    return names;
}

} // namespace gfc::forms
