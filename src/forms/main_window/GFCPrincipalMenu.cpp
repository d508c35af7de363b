#include "forms/files/CopyCommands.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "forms/program/CommandRecord.h"
#include "forms/program/HelpFile.h"
#include "forms/runs/RunCommands.h"
#include "forms/station/StationCommands.h"
#include "forms/tools/ToolsMenu.h"

#include <array>

namespace gfc::forms {

namespace {

constexpr int stationsContext = 2300;
constexpr int commonContext = 2000;

struct TabHelp {
    std::string_view Caption;
    int Context;
};

// clang-format off
constexpr std::array<TabHelp, 4> helpOfRunTabs = {{
    {"AGA-3 Input Tags",               2100},
    {"SY/T6143 Input Tags",            7700},
    {"AGA-7 Input Tags",               2200},
    {"SGERG88/ISO-12213-3 Input Tags", 7700},
}};
// clang-format on

// The commands on a station, and what the record calls them; empty where that depends on the node.
struct CommandRow {
    ui::MenuEntry GFCPrincipal::*Entry;
    std::string_view Name;
    void (*Run)(Program& program);
};

// clang-format off
constexpr std::array<CommandRow, 7> commands = {{
    {&GFCPrincipal::ConfigWiard, config::command::Wizard,        ConfigWiardCommand},
    {&GFCPrincipal::ConfigPar,   {},                             ConfigParCommand},
    {&GFCPrincipal::erun,        config::command::EnableRun,     EnableRunCommand},
    {&GFCPrincipal::dRun,        config::command::DisableRun,    DisableRunCommand},
    {&GFCPrincipal::copiar1,     config::command::CopyToStation, CopyToStationCommand},
    {&GFCPrincipal::copiar2,     config::command::CopyToProject, CopyToProjectCommand},
    {&GFCPrincipal::undo,        config::command::Delete,        DeleteCommand},
}};
// clang-format on

} // namespace

std::vector<std::unique_ptr<ui::MenuEntry>> GFCPrincipal::MakeToolEntries() {
    std::vector<std::unique_ptr<ui::MenuEntry>> entries;
    for (const Tool& tool : forms::Tools()) {
        entries.push_back(std::make_unique<ui::MenuEntry>(Tools, tool.Name, tool.Caption));
        entries.back()->OnClick = [this, command = tool.Command] { command(program_); };
    }
    return entries;
}

void GFCPrincipal::ConnectMenu() {
    Config.OnClick = [this] { ApplyMenuState(); };
    for (const CommandRow& row : commands)
        (this->*row.Entry).OnClick = [this, &row] {
            const auto name = row.Name.empty() ? NameOfConfigure(program_) : row.Name;
            RunRecorded(program_, name, [this, &row] { row.Run(program_); });
        };
    exit.OnClick = [this] { Exit(); };
    HelpPrincipal.OnClick = [this] { OpenHelp(ui::Key::F1); };
}

void GFCPrincipal::ApplyMenuState() {
    for (auto* entry : {&ConfigWiard, &ConfigPar, &optRun, &copiar, &undo})
        entry->SetEnabled(true);
    const std::string& selected = session_.SelectedNodeText;
    const bool isStation = !selected.empty() && selected == session_.Station.CurrentStation;
    const bool isCommon = selected == node::CommonParameters;
    const bool isRun = node::RunOf(selected) > 0;
    if (isStation || isCommon)
        optRun.SetEnabled(false);
    if (isCommon || isRun)
        for (auto* entry : {&ConfigWiard, &copiar, &undo})
            entry->SetEnabled(false);
}

void GFCPrincipal::TreePressed(ui::MouseButton button) {
    if (button != ui::MouseButton::Right || node::NamesNoStation(session_.SelectedNodeText))
        return;
    ApplyMenuState();
    program_.Screen.PopUp(Config);
}

bool GFCPrincipal::KeyDown(ui::Key key) {
    OpenHelp(key);
    return true;
}

void GFCPrincipal::OpenHelp(ui::Key key) {
    // The viewer is deliberately called whatever the key; it is the page that depends on it.
    program_.Screen.OpenHelp(HelpFile, key == ui::Key::F1 ? HelpContext() : 0);
}

// 0 where nothing that is visible has a page of its own.
int GFCPrincipal::HelpContext() const {
    if (ListView1.Visible())
        return stationsContext;
    if (SSTab1.Visible())
        return commonContext;
    if (!SSTab2.Visible())
        return 0;
    for (const auto& help : helpOfRunTabs)
        if (SSTab2.TabCaption(SSTab2.Tab()) == help.Caption)
            return help.Context;
    return 0;
}

} // namespace gfc::forms
