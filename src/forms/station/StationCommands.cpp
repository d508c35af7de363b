#include "forms/station/StationCommands.h"

#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "forms/program/Loss.h"
#include "forms/station/IOReports.h"
#include "forms/wizard/SelectRuns.h"
#include "forms/wizard/WizardFC.h"

#include <utility>

namespace gfc::forms {

namespace {

// A repaint for each of a hundred thousand tags would take longer than reading them.
constexpr int tagsPerRepaint = 512;

project::TagList LoadStationTags(Program& program) {
    const auto& session = program.Session;
    auto& window = program.Forms.Get<GFCPrincipal>();
    auto& bar = window.StatusBar1;
    program.Screen.DoEvents();
    std::string copied; // the tag that was copied last
    int count = 0;
    const auto show = [&] {
        bar.SetVisible(true);
        bar.SetPanelText(1, "Loading Tags:" + copied);
    };
    const auto onTag = [&](std::string_view tagName) {
        copied = tagName;
        if (++count % tagsPerRepaint != 0)
            return;
        show();
        program.Screen.DoEvents();
    };
    auto tags = program.Library.ReadTags(session.Station.CurrentStation, session.Project.ProjectFile, onTag);
    window.TagsAnswered(session.Station.CurrentStation, tags);
    if (count > 0)
        show();
    program.Screen.DoEvents();
    if (tags.empty())
        program.Screen.Ask({.Title = "Flow Gas Computer",
                            .Text = "Error: There are not Tags in Station",
                            .TheIcon = ui::Icon::Critical});
    return tags;
}

// Entries of the wizard's list of standards.
constexpr int aga3 = 0;
constexpr int aga7 = 1;

void ReportShortageOfBoth(Program& program) {
    ReportIOShortage(program, project::ShortageKind::AGA3Family);
    ReportIOShortage(program, project::ShortageKind::AGA7);
}

// Asked for a station without a configuration too.
bool MayReplaceConfiguration(Program& program) {
    return MayLose(program, "Flow Gas Computer",
                   "Creating a new configuration for the station.\r\n"
                   "The current configuration will be deleted.\r\n"
                   "Proceed?");
}

// The wizard starts on the algorithm that the station carries.
void PresetWizard(Program& program, int standard) {
    auto& wizard = program.Forms.Touch<WizardFC>();
    wizard.general.cbSourceGas.SetListIndex(0);
    wizard.general.CombStandard.SetListIndex(standard);
    program.Session.EditMode = EditMode::Wizard;
    program.Session.Station.FlagAGA7 = standard == aga7;
}

// False if the station carries neither algorithm.
bool PresetWhatFits(Program& program) {
    const auto capacity = CapacityOf(program.Session);
    if (RunCapacity(capacity, 17, 1, 3)) {
        PresetWizard(program, aga3);
        return true;
    }
    if (!RunCapacity(capacity, 6, 1, 3) || !LongCapacity(capacity, 1))
        return false;
    PresetWizard(program, aga7);
    return true;
}

void SelectRunsAndGoOn(Program& program) {
    const bool isAGA7 = program.Session.Station.FlagAGA7;
    (void)MaximumRuns(program, isAGA7, true);
    auto& selection = program.Forms.Get<SelectRuns>();
    selection.FlagAGA7 = isAGA7;
    selection.ShowModal();
}

void NewConfiguration(Program& program) {
    StartAfresh(program.Session);
    int& activeRuns = program.Session.Station.ActiveRunCount;
    if (!OpenStation(program)) {
        activeRuns = 1;
        ReportShortageOfBoth(program);
        activeRuns = 0;
        return ClearSession(program);
    }
    if (PresetWhatFits(program))
        return SelectRunsAndGoOn(program);
    ReportShortageOfBoth(program);
    ClearSession(program);
}

} // namespace

void StartAfresh(config::StationConfig& station) {
    config::StationConfig fresh;
    fresh.ProjectFile = std::move(station.ProjectFile);
    fresh.ProjectName = std::move(station.ProjectName);
    fresh.UserId = std::move(station.UserId);
    fresh.CurrentStation = std::move(station.CurrentStation);
    station = std::move(fresh);
}

void StartAfresh(Session& session) {
    StartAfresh(session.Station);
    session.Inventory = {};
    session.Modules = {};
    session.Expected = {};
    session.EditedMechanical = {};
}

bool HasPlaceForItsFile(Program& program) {
    if (!program.Session.ConfigFile().empty())
        return true;
    program.Screen.Ask(
        {.Title = "Gas Flow Computer",
         .Text = "The configuration of this station could not be saved:\r\n"
                 "the name of the station, or the path of the project, cannot be that of a file.\r\n"
                 "Please rename the station, or open the project from its folder, in the I/O Workshop.",
         .TheIcon = ui::Icon::Exclamation});
    return false;
}

void ReadStationTags(Program& program) {
    project::BuildInventory(LoadStationTags(program), program.Session.Inventory);
}

bool OpenStation(Program& program) {
    auto& session = program.Session;
    ReadStationTags(program);
    return project::ChooseWorkingModules(session.Inventory, session.Modules);
}

void ClearSession(Program& program) {
    auto& session = program.Session;
    auto& inventory = session.Inventory;
    auto& modules = session.Modules;
    session.SelectedNodeText.clear();
    // The names of VirtFX and the physical float and long lists deliberately stay.
    for (auto* names :
         {&modules.NamesLX, &modules.NamesLY, &modules.NamesAX, &modules.NamesAY, &modules.NamesFY})
        names->clear();
    for (auto* list : {&inventory.VirtX, &inventory.VirtY, &inventory.VirtFX, &inventory.VirtFY,
                       &inventory.VirtAX, &inventory.VirtAY, &inventory.VirtLX, &inventory.VirtLY,
                       &inventory.PhysAX, &inventory.PhysAY, &inventory.PhysX, &inventory.PhysY})
        list->clear();
    modules.ClearCounts();
    config::ResetStationConfig(session.Station);
    session.TreeRefreshNeeded = false;
    auto& window = program.Forms.Get<GFCPrincipal>();
    for (auto* combo : {&window.Combo1, &window.Combo2, &window.Combo3})
        combo->Clear();
}

void ConfigWiardCommand(Program& program) {
    if (node::NamesNoStation(program.Session.SelectedNodeText)) {
        program.Screen.Ask({.Title = "Gas Flow Computer", .Text = "Please select a station..."});
        return;
    }
    if (!HasPlaceForItsFile(program) || !MayReplaceConfiguration(program))
        return;
    NewConfiguration(program);
    // Nobody drives dialogs any more.
    program.Session.EditMode = EditMode::None;
    if (!program.Screen.Ended())
        program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
}

} // namespace gfc::forms
