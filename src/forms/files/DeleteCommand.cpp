// The "Delete" command.
#include "forms/files/CopyCommands.h"
#include "forms/files/WaitForFile.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "forms/program/Loss.h"

namespace gfc::forms {

namespace {

bool HasConfiguration(const Program& program) {
    const auto& session = program.Session;
    return !node::NamesNoStation(session.SelectedNodeText) && program.Ini.FileExists(session.ConfigFile());
}

bool MayDelete(Program& program) {
    return MayLose(program, "Delete Configuration",
                   "Are you sure that you want to delete the configuration of this station?");
}

} // namespace

void DeleteCommand(Program& program) {
    if (!HasConfiguration(program)) {
        program.Screen.Ask({.Title = "Orm Gas Flow Computer",
                            .Text = "No configuration exists for the current station. Ignoring...",
                            .TheIcon = ui::Icon::Exclamation});
        return;
    }
    if (!MayDelete(program))
        return;
    const auto& session = program.Session;
    const std::string& station = session.Station.CurrentStation;
    const std::string file = session.ConfigFile();
    (void)program.Storage.TryToDelete(file); // what stands in its way is told while it waits
    // Deliberately before the file is sure to be gone; at the program's end the list follows the files again.
    (void)project::UnregisterStation(program.Library, session.Project, station, station);
    const bool gone = DeletePatiently(program, file);
    if (program.Screen.Ended())
        return;
    if (!gone)
        project::RegisterStation(program.Library, session.Project, station);
    auto& window = program.Forms.Get<GFCPrincipal>();
    window.RebuildAfterCommand();
    window.TreeGFC.EnsureVisible(1);
}

} // namespace gfc::forms
