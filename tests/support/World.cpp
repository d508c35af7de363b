#include "support/World.h"

#include <algorithm>

namespace gfc::test {

FakeProgram::FakeProgram(ui::Screen& screen) : FakeProgram(screen, Files) {}

FakeProgram::FakeProgram(ui::Screen& screen, platform::Files& onDisk)
    : FakeProgram(screen, onDisk, NoRecord) {}

FakeProgram::FakeProgram(ui::Screen& screen, config::Recorder& recorder)
    : FakeProgram(screen, Files, recorder) {}

FakeProgram::FakeProgram(ui::Screen& screen, platform::Files& onDisk, config::Recorder& recorder)
    : Machine{onDisk, TimeZone, Clock, SingleInstance, Launcher, Paths},
      Program(Machine, Library, screen, recorder) {
    Session.Station.UserId = "4711";
}

void FakeProgram::AddStation(const std::string& name, project::TagList tags) {
    Library.Stations.push_back({name, "Orm", "10.0.0." + std::to_string(Library.Stations.size() + 1), 1000});
    Library.TagsOf[name] = std::move(tags);
}

void FakeProgram::OpenProject() {
    (void)project::LoadProject(Library, Session.Project);
    Session.Project.Paths = config::PathsOf(Session.Project.ProjectFile);
    Station.ProjectFile = Session.Project.ProjectFile;
    Station.ProjectName = Session.Project.ProjectName;
}

void FakeProgram::OpenStation(const std::string& name) {
    Station.CurrentStation = name;
    project::BuildInventory(Library.ReadTags(name, Station.ProjectFile, {}), Session.Inventory);
    Session.Modules.ClearCounts();
    if (!project::ChooseWorkingModules(Session.Inventory, Session.Modules))
        return;
    const project::WorkingModuleNames names{Session.Modules.AnalogCandidates.front().ModuleName,
                                            Session.Modules.LongCandidates.front().ModuleName,
                                            Session.Modules.FloatCandidates.front().ModuleName};
    project::BuildAvailableLists(Session.Inventory, names, true);
}

void FakeProgram::ActivateRuns(const std::vector<int>& runs) {
    for (int n = 1; n <= config::MaxRuns; ++n) {
        const bool active = std::find(runs.begin(), runs.end(), n) != runs.end();
        auto& entry = Station.RunList.at(static_cast<std::size_t>(n - 1));
        entry.Name = "Run" + std::to_string(n);
        entry.Flag = active ? "Yes" : "No";
        Station.Run.at(static_cast<std::size_t>(n - 1)) = entry.Flag;
    }
    Station.ActiveRunCount = static_cast<int>(runs.size());
    Station.Runs.PrepareWholeStation(Station.ActiveRunCount);
}

std::string FakeProgram::ConfigFile(const std::string& station) const {
    return Session.Project.ConfigFileOf(station);
}

} // namespace gfc::test
