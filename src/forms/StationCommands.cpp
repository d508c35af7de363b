#include "forms/StationCommands.h"

#include "config/Vocabulary.h"
#include "forms/GFCPrincipal.h"

namespace gfc::forms {

namespace {

// A repaint for each of a hundred thousand tags would take longer than reading them.
constexpr int tagsPerRepaint = 512;

void LoadStationTags(Program& program) {
    auto& session = program.Session;
    auto& bar = program.Forms.Get<GFCPrincipal>().StatusBar1;
    program.Screen.DoEvents();
    int copied = 0;
    const auto show = [&](const std::string& tagName) {
        bar.SetVisible(true);
        bar.SetPanelText(1, "Loading Tags:" + tagName);
        if (++copied % tagsPerRepaint == 0)
            program.Screen.DoEvents();
    };
    session.Tags =
        program.Library.ReadTags(session.Station.CurrentStation, session.Project.ProjectFile, show);
    program.Screen.DoEvents();
    if (session.Tags.empty())
        program.Screen.Ask({.Title = "Flow Gas Computer",
                            .Text = "Error: There are not Tags in Station",
                            .TheIcon = ui::Icon::Critical});
}

} // namespace

bool OpenStation(Program& program) {
    auto& session = program.Session;
    LoadStationTags(program);
    project::BuildInventory(session.Tags, session.Inventory);
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

} // namespace gfc::forms
