#include "forms/files/CopyCommands.h"

#include "forms/files/StationName.h"
#include "forms/files/frCopyStation.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "platform/Machine.h"

namespace gfc::forms {

namespace {

using config::ProjectPaths;

// A project and a station of it.
struct Destination {
    ProjectPaths Paths;
    std::string Project;
    std::string Station;

    // Empty if no file can bear the names.
    [[nodiscard]] std::string File() const { return config::ConfigFilePath(Paths, Project, Station); }
    // Deliberately in capitals, however the project file itself is called.
    [[nodiscard]] std::string ProjectFile() const {
        return Paths.ProjectFolder + platform::Separator + Project + ".KPJ";
    }
};

constexpr const char* failedTitle = "Error: Copy configuration file";

void FailCopy(Program& program, const std::string& reason) {
    program.Screen.Ask({.Title = failedTitle, .Text = "Could not copy the configuration file \r\n" + reason});
}

bool SourceIsConfigured(Program& program) {
    if (program.Ini.FileExists(program.Session.ConfigFile()))
        return true;
    FailCopy(program, "The station is not configured");
    return false;
}

void RemindOfTags(Program& program, const std::string& title) {
    program.Screen.Ask({.Title = title,
                        .Text = "Reminder: Please make sure the destination station satisfies the minimun "
                                "I/O requirements (The source station's I/O amount).",
                        .TheIcon = ui::Icon::Information});
}

void NameDestination(Program& program, const Destination& to) {
    const std::string file = to.File();
    // Given up, it stays as it is: a copy that was made is never taken back.
    (void)program.Storage.Change(
        {.Lost = "The copy was made, but it still names the project and the station that it was copied from.",
         .Title = failedTitle},
        file, [&](config::FileIni& ini) {
            ini.WriteKey("General", "Project", to.ProjectFile(), file);
            ini.WriteKey("General", "OrmStation", to.Station, file);
        });
}

// By a file that can be read. Of one that cannot even be looked at the copy itself says why it fails.
bool IsTaken(Program& program, const std::string& file) {
    return program.Machine.Files.ReadStart(file, 1).has_value();
}

// What the two commands say of a copy.
struct CopyWords {
    std::string Failed;
    std::string DoneTitle;
};

// The copy keeps standing whatever follows; one that fails leaves no file behind.
bool CopyTo(Program& program, const Destination& to, const CopyWords& words) {
    if (IsTaken(program, to.File())) {
        FailCopy(program, words.Failed);
        return false;
    }
    if (!program.Storage.Copy({.Lost = "Could not copy the configuration file ", .Title = failedTitle},
                              program.Session.ConfigFile(), to.File()))
        return false;
    RemindOfTags(program, words.DoneTitle);
    NameDestination(program, to);
    return true;
}

bool HasSeveralStations(Program& program) {
    if (program.Session.Project.Stations.size() >= 2)
        return true;
    program.Screen.Ask({.Title = "Error: Copy configuration of a station...",
                        .Text = "To use this option the project must have multiple stations",
                        .TheIcon = ui::Icon::Exclamation});
    return false;
}

bool SomeStationIsFree(Program& program) {
    program.Session.CopyDestination.clear();
    if (!StationsWithoutConfiguration(program).empty())
        return true;
    program.Screen.Ask({.Title = "Error: Copy configuration...",
                        .Text = "Cannot copy. All stations are already configured"});
    return false;
}

void ShowStation(Program& program, const std::string& station) {
    auto& window = program.Forms.Get<GFCPrincipal>();
    window.RebuildAfterCommand();
    if (const int copied = window.TreeGFC.FindPath(node::StationPath(station)); copied > 0)
        window.TreeGFC.EnsureVisible(copied);
}

void CopyToStation(Program& program, const std::string& station) {
    static const CopyWords words{
        "Please, Verify that the station has not been configured previously...",
        "Copy configuration from a station to another station within the same project..."};
    const auto& project = program.Session.Project;
    if (station == program.Session.Station.CurrentStation)
        return FailCopy(program, "the source and destination stations cannot be the same.");
    if (CopyTo(program, {project.Paths, project.ProjectName, station}, words) && !program.Screen.Ended())
        ShowStation(program, station);
}

// A copy under a name that no station can have would never be found again.
bool CanBeNamed(Program& program, const Destination& to) {
    const std::string reason = to.File().empty() ? CharactersRefused : ReasonAgainst(to.Station);
    if (reason.empty())
        return true;
    program.Screen.Ask({.Title = failedTitle,
                        .Text = "Could not copy the configuration file \r\n" + reason,
                        .TheIcon = ui::Icon::Exclamation});
    return false;
}

// The name is taken as it is typed: what stations the other project has is not known here.
void CopyToProject(Program& program, const Destination& to) {
    static const CopyWords words{"Please verify that the station has not been configured previously",
                                 "Copy configuration from a station to another station of another project"};
    if (!CanBeNamed(program, to) || !CopyTo(program, to, words) || program.Screen.Ended())
        return;
    // The other project may be the open one.
    if (to.File() == program.Session.Project.ConfigFileOf(to.Station))
        program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
}

} // namespace

void CopyToStationCommand(Program& program) {
    const auto& session = program.Session;
    if (!HasSeveralStations(program) || node::NamesNoStation(session.SelectedNodeText) ||
        !SourceIsConfigured(program) || !SomeStationIsFree(program))
        return;
    program.Forms.Get<frCopyStation>().ShowModal();
    if (!program.Screen.Ended() && !session.CopyDestination.empty())
        CopyToStation(program, session.CopyDestination);
}

void CopyToProjectCommand(Program& program) {
    if (node::NamesNoStation(program.Session.SelectedNodeText) || !SourceIsConfigured(program))
        return;
    const auto chosen = program.Screen.ChooseFile({.Title = "Configuration to a different project",
                                                   .FilterName = "Project File (*.KPJ)",
                                                   .Pattern = "*.KPJ"});
    if (!chosen || chosen->empty() || program.Screen.Ended())
        return;
    const std::string station =
        program.Screen.AskText("Name of the destination station to configure",
                               "Please select the destination station to copy the configuration to: ");
    if (station.empty() || program.Screen.Ended())
        return;
    CopyToProject(program, {config::PathsOf(*chosen), project::ProjectNameOf(*chosen), station});
}

} // namespace gfc::forms
