// The "Configure" command.
#include "binding/ExpectedTags.h"
#include "config/Vocabulary.h"
#include "forms/configurador/Configurador.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "forms/runs/FrModificarTags.h"
#include "forms/runs/RunCommands.h"
#include "forms/station/IOReports.h"
#include "forms/station/StationCommands.h"

namespace gfc::forms {

namespace {

// Entries of the configurator's list of standards.
constexpr int aga3 = 0;
constexpr int aga7 = 1;

// One message, where the wizard's command gives two.
void RefuseStation(Program& program, project::ShortageKind kind) {
    auto& station = program.Session.Station;
    station.ActiveRunCount = 1;
    ReportIOShortage(program, kind);
    station.ActiveRunCount = 0;
    ClearSession(program);
}

// The standard that the station carries, the first choice first; nothing if it carries none.
std::optional<int> CarriedStandard(const Session& session) {
    const auto capacity = CapacityOf(session);
    if (RunCapacity(capacity, 17, 1, 3))
        return aga3;
    if (RunCapacity(capacity, 6, 1, 3) && LongCapacity(capacity, 1))
        return aga7;
    return std::nullopt;
}

bool IsForOneRun(const std::string& nodeText) {
    return nodeText == node::IndividualParameters || node::RunOf(nodeText) > 0;
}

void CheckStoredTags(Program& program) {
    auto& session = program.Session;
    binding::BuildExpectedTags(program.Ini, session.ConfigFile(), session.Station, session.Expected);
    (void)binding::CheckExpectedTags(session.Expected, session.Inventory);
}

// A new configuration starts on what the station carries.
void PresetConfigurador(Program& program, int standard) {
    auto& form = program.Forms.Touch<Configurador>();
    form.general.cbSourceGas.SetListIndex(0);
    form.general.CombStandard.SetListIndex(standard);
}

void EditStation(Program& program, int standard, bool stored) {
    if (!stored)
        PresetConfigurador(program, standard);
    program.Forms.Get<Configurador>().ShowModal();
}

void Configure(Program& program) {
    auto& session = program.Session;
    const std::string selected = session.SelectedNodeText;
    StartAfresh(session);
    if (!OpenStation(program))
        return RefuseStation(program, project::ShortageKind::AGA7);
    const auto standard = CarriedStandard(session);
    if (!standard)
        return RefuseStation(program, project::ShortageKind::AGA3Family);
    session.Station.FlagAGA7 = *standard == aga7;
    session.Cancelled = false;
    const bool stored = program.Ini.FileExists(session.ConfigFile());
    if (stored)
        CheckStoredTags(program);
    (void)MaximumRuns(program, session.Station.FlagAGA7, !stored);
    session.SelectedNodeText = selected;
    if (IsForOneRun(selected))
        return program.Forms.Get<FrModificarTags>().ShowModal();
    EditStation(program, *standard, stored);
}

} // namespace

bool ConfigureDisabledRun(Program& program, const std::string& nodeText) {
    const int run = node::RunOf(nodeText);
    if (run == 0)
        return false;
    const std::string key = "Run" + std::to_string(run);
    if (program.Ini.ReadKey("FlowRuns", key, program.Session.ConfigFile()) != config::No)
        return false;
    EnableRunCommand(program);
    return true;
}

void ConfigParCommand(Program& program) {
    if (ConfigureDisabledRun(program, program.Session.SelectedNodeText))
        return;
    if (node::NamesNoStation(program.Session.SelectedNodeText)) {
        program.Screen.Ask({.Title = "Orm Gas Flow Computer", .Text = "Please select one Station."});
        return;
    }
    if (!HasPlaceForItsFile(program))
        return;
    Configure(program);
    if (!program.Screen.Ended())
        program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
}

} // namespace gfc::forms
