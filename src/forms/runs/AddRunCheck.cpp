// Whether a station carries one more run.
#include "config/Vocabulary.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/runs/AddRun.h"
#include "forms/station/IOReports.h"
#include "forms/station/ModuleLists.h"
#include "forms/station/StationCommands.h"

namespace gfc::forms {

namespace {

// A fixed text, unlike the report that counts by runs; the blanks behind "AGA-8" are its own.
constexpr std::string_view ModulesMissing = "ERROR: The number of available tags/modules is below the "
                                            "minimum required for the flow computer software.\r\n"
                                            "Please make sure that at least the following I/O memory is "
                                            "available for the flow computer software usage:\r\n"
                                            "- One LI or LO Virtual Module containing 8 registers\r\n"
                                            "- One AI or AO Virtual Module containing 32 registers\r\n"
                                            "- One FI or FO Virtual Module containing 128 registers\r\n";

constexpr std::string_view RegistersForAGA3 =
    "- 8 FI or FO, 1 AI or AO and 1 DI or DO registers per enabled flow calculation run\r\n"
    "- 13 FI or FO, 2 AI or AO and 1 DI or DO registers if AGA-8  calculation block is enabled\r\n"
    "- 34 FI or FO, 2 AI or AO and 1 DI or DO registers if AGA-8 is enabled and gas composition source is "
    "from an external gas chromatograph";

constexpr std::string_view RegistersForAGA7 =
    "- 5 FI or FO, 1 AI or AO, 1 LI or LO and 1 DI or DO registers per enabled flow calculation run\r\n"
    "- 12 FI or FO, 2 AI or AO, 1 LI or LO and 1 DI or DO registers if AGA-8  calculation block is "
    "enabled\r\n"
    "- 33 FI or FO, 2 AI or AO, 1 LI or LO and 1 DI or DO registers if AGA-8 is enabled and gas composition "
    "source is from an external gas chromatograph";

// The orifice under SY/T6143 is deliberately tested, and reported, as the turbine is.
bool CountsAsAGA3(const config::StationConfig& station) {
    return station.FlowAlgorithm == config::algorithm::AGA3 ||
           station.FlowAlgorithm == config::algorithm::Accelabar;
}

bool CarriesOneRun(const Session& session) {
    const auto capacity = CapacityOf(session);
    return CountsAsAGA3(session.Station) ? RunCapacity(capacity, 17, 1, 3)
                                         : RunCapacity(capacity, 6, 1, 3) && LongCapacity(capacity, 1);
}

void ReportMissing(Program& program) {
    const bool aga3 = CountsAsAGA3(program.Session.Station);
    std::string text(ModulesMissing);
    text += aga3 ? RegistersForAGA3 : RegistersForAGA7;
    program.Screen.Ask(
        {.Title = aga3 ? "Error: Configuring AGA3" : "Error: Configuring AGA7", .Text = std::move(text)});
}

void PresetModules(Program& program) {
    auto& window = program.Forms.Get<GFCPrincipal>();
    const auto& candidates = program.Session.Modules;
    const auto& stored = program.Session.Station.WorkingModules;
    FillModuleNames(window.Combo2, candidates.LongCandidates);
    FillModuleNames(window.Combo1, candidates.AnalogCandidates);
    FillModuleNames(window.Combo3, candidates.FloatCandidates);
    ShowModule(window.Combo2, stored.WrkIntLongModName);
    ShowModule(window.Combo1, stored.WrkAnalogModName);
    ShowModule(window.Combo3, stored.WrkFloatModName);
}

} // namespace

bool ChkRun(Program& program) {
    const bool carries = OpenStation(program) && CarriesOneRun(program.Session);
    if (program.Screen.Ended())
        return false;
    if (carries)
        PresetModules(program);
    else
        ReportMissing(program);
    return carries;
}

} // namespace gfc::forms
