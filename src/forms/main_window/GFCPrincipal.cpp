#include "forms/main_window/GFCPrincipal.h"

#include "forms/main_window/OfferWorkshop.h"
#include "forms/main_window/StationNodes.h"
#include "forms/program/CommandRecord.h"
#include "forms/station/StationCommands.h"
#include "platform/Machine.h"
#include "platform/ProfileFile.h"
#include "services/CodePage.h"

#include <array>

namespace gfc::forms {

namespace {

constexpr const char* title = "Gas Flow Computer";
constexpr const char* version = "Gas Flow Computer, V1.6.1";
constexpr const char* instanceName = "GasFlowComputerConfigurator";
constexpr int failedStart = 1;

// The value of "Path32"; nothing in the program needs it.
std::string ReadInstallFolder(platform::Machine& machine) {
    const std::string file = platform::ProfilePath(machine.Paths, "morlin.ini");
    const platform::Profile profile(machine.Files.Read(file).value_or(std::string()));
    return services::FromCodePage(profile.Read("Installation Directory", "Path32", "c:\\"));
}

} // namespace

GFCPrincipal::GFCPrincipal(Program& program)
    : ProgramForm(program, "GFCPrincipal", "Gas Flow Computer Configurator") {
    for (auto* combo : {&Combo1, &Combo2, &Combo3})
        combo->SetVisible(false);
    // Captions of what a summary shows; they take no room until one needs them.
    for (auto* label : {&Label1, &Label3, &Label4})
        label->SetVisible(false);
    ConnectMenu();
    ConnectPanes();
    recordTimer.OnTimer = [this] { TellTrouble(); };
}

void GFCPrincipal::Load() {
    SettlePaths();
    // Deliberately after the look-up of the project.
    if (!IsOnlyInstance())
        return;
    session_.TreeRefreshNeeded = false;
    session_.EditMode = EditMode::None;
    AttachMenuImages();
    StatusBar1.SetPanelText(1, title);
    if (session_.UserIdCancelled)
        return Unload();
    PrepareWindow();
    if (!LoadProjectAndStations())
        return;
    BuildTree();
    MarkRunNodes();
    LookAtAllStations(program_);
    SetCaption(version);
    for (auto* combo : {&Combo3, &Combo2, &Combo1})
        combo->Clear();
    program_.Library.CoInitialize();
}

void GFCPrincipal::SettlePaths() {
    auto& paths = session_.Project.Paths;
    paths = config::PathsOf(program_.Library.GetProjectFile());
    paths.InstallFolder = ReadInstallFolder(program_.Machine);
}

bool GFCPrincipal::IsOnlyInstance() {
    if (program_.Machine.SingleInstance.Acquire(instanceName))
        return true;
    RefuseToStart("Loading... Gas Flow Computer",
                  "ERROR: The Orm Gas Flow Computer configuration program is running already.");
    return false;
}

void GFCPrincipal::RefuseToStart(const std::string& boxTitle, const std::string& text,
                                 const std::function<void()>& offer) {
    program_.Screen.Ask({.Title = boxTitle, .Text = text, .TheIcon = ui::Icon::Exclamation});
    if (offer)
        offer();
    exitCode_ = failedStart;
    Unload();
}

// The pictures go by the place in the menu, lines counted.
void GFCPrincipal::AttachMenuImages() {
    constexpr std::array<int, 5> images = {1, 2, 5, 4, 3};
    std::size_t place = 0;
    for (auto* control : Controls()) {
        if (control->Container() != &Config)
            continue;
        if (place % 2 == 0 && place / 2 < images.size())
            static_cast<ui::MenuEntry*>(control)->SetImage(ImageList2.Image(images[place / 2]));
        ++place;
    }
}

void GFCPrincipal::PrepareWindow() {
    Label2.SetCaption(Label2.Caption() + " " + session_.Station.UserId);
    StatusBar1.MakePanel1AsWideAs(TreeGFC);
    HidePanes();
}

bool GFCPrincipal::LoadProjectAndStations() {
    const auto outcome = project::LoadProject(program_.Library, session_.Project);
    session_.Station.ProjectFile = session_.Project.ProjectFile;
    session_.Station.ProjectName = session_.Project.ProjectName;
    if (outcome == project::LoadOutcome::NoProject)
        RefuseToStart(title, "Error: please open the I/O Workshop", [this] { OfferWorkshop(program_); });
    else if (outcome == project::LoadOutcome::NoStations)
        RefuseToStart(title, "Error: no stations in project");
    // A list that could not be had leaves an empty tree, without a word.
    return !IsUnloaded();
}

void GFCPrincipal::WatchRecord() {
    recordTimer.SetEnabled(true);
}

void GFCPrincipal::TellTrouble() {
    if (program_.Recorder.IsBusy())
        return;
    recordTimer.SetEnabled(false);
    const std::string trouble = program_.Recorder.Trouble();
    if (!trouble.empty() && trouble != toldTrouble_)
        StatusBar1.SetPanelText(1, "History not written. " + trouble);
    toldTrouble_ = trouble;
}

void GFCPrincipal::Activate() {
    if (!session_.TreeRefreshNeeded)
        return;
    RebuildAfterCommand();
    session_.TreeRefreshNeeded = false;
}

void GFCPrincipal::Exit() {
    // Deliberately once here and once more in the unload: registration is repeatable.
    RegisterFiles();
    Unload();
}

void GFCPrincipal::Unloading() {
    RegisterFiles();
    program_.Screen.EndProgram(exitCode_);
}

void GFCPrincipal::RegisterFiles() {
    program_.Screen.Busy([this] {
        project::RegisterAllStations(program_.Library, program_.Ini, session_.Project,
                                     session_.Station.CurrentStation);
    });
}

} // namespace gfc::forms
