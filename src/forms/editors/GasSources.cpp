#include "forms/editors/GasSources.h"

#include "config/Vocabulary.h"
#include "forms/editors/NumericFields.h"
#include "services/Text.h"

namespace gfc::forms {

namespace {

bool IsOffered(const Program& program, const std::string& file, config::GasSlot witness, int run) {
    const auto& session = program.Session;
    if (run == session.GasRun)
        return false;
    if (GasSourcesAreInFile(session))
        return services::EqualNoCase(program.Ini.ReadKey("FlowRuns", "Run" + std::to_string(run + 1), file),
                                     config::Yes);
    const auto* gas = GasInMemory(session, run);
    return gas != nullptr && !(*gas)[witness].Tag.empty();
}

} // namespace

bool GasSourcesAreInFile(const Session& session) {
    return session.EditMode != EditMode::Wizard && session.EditMode != EditMode::Configurator;
}

void OfferGasSources(const Program& program, const std::string& file, config::GasSlot witness,
                     SourceRuns& runs, ui::CommandButton& copy) {
    copy.SetEnabled(false);
    for (int run = 0; run < SourceRuns::Size(); ++run) {
        const bool offered = IsOffered(program, file, witness, run);
        runs[run].SetEnabled(offered);
        if (offered)
            copy.SetEnabled(true);
    }
}

int ChosenSource(const SourceRuns& runs) {
    for (int run = 0; run < SourceRuns::Size(); ++run)
        if (runs[run].Value())
            return run;
    return -1;
}

const config::RunGas* GasInMemory(const Session& session, int run) {
    if (!config::IsRunActive(session.Station, run))
        return nullptr;
    const auto& records = session.Station.Runs.Gas;
    const auto element = static_cast<std::size_t>(config::ElementOfRun(session.Station, run));
    return element < records.size() ? &records[element] : nullptr;
}

void TakeFixedGas(const config::StationConfig& station, config::RunGas& record) {
    using config::GasSlot;
    const auto take = [&](GasSlot slot) { record[slot].Tag = station.GasComposition[slot].Tag; };
    if (config::IsDetail(station.GasDensitySource)) {
        for (int slot = 0; slot < config::Components; ++slot)
            take(static_cast<GasSlot>(slot));
        return;
    }
    for (const auto slot :
         {GasSlot::VolCalorificValue, GasSlot::RelativeDensity, GasSlot::XCO2, GasSlot::XH2})
        take(slot);
}

void RefuseIncompleteGas(ui::Screen& screen) {
    EntryError(screen, "Gas Flow Computer, V1.6.1", "Gas composition not entered");
}

void RefuseCopyWithoutSource(ui::Screen& screen, const std::string& title, const std::string& what) {
    screen.Ask(
        {.Title = title,
         .Text = "Error: Can't copy " + what + ", no source Run selected. Please select a Run to copy from.",
         .TheIcon = ui::Icon::Exclamation});
}

} // namespace gfc::forms
