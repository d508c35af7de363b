// The end of adding a run: the only place that writes.
#include "config/InPlaceUpdate.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "forms/runs/AddRun.h"
#include "forms/runs/StoredFile.h"

namespace gfc::forms {

namespace {

void WriteRun(config::FileIni& ini, const config::StationConfig& station, int run, const std::string& file) {
    const auto write = [&](BindingStage kind) {
        config::WriteRunBindings(ini, station, static_cast<int>(kind), run, file);
    };
    write(BindingStage::RunInputs);
    write(BindingStage::RunOutputs);
    if (config::IsGasModel(station.GasDensitySource)) {
        write(BindingStage::GasInputs);
        write(BindingStage::GasOutputs);
    }
    const config::RunMechanical none;
    config::WriteAddedRunKeys(ini, station, config::ElementOr(station.Runs.Mechanical, 0, none), run, file);
}

} // namespace

void SaveAddedRun(Program& program, int run) {
    const std::string file = program.Session.ConfigFile();
    auto& window = program.Forms.Get<GFCPrincipal>();
    const std::string lost = "The run was not saved.";
    const auto& station = program.Session.Station;
    const bool saved =
        FileIsStillThere(program, lost) &&
        program.Storage.Change({lost}, file, [&](auto& ini) { WriteRun(ini, station, run, file); });
    if (program.Screen.Ended())
        return;
    if (!saved)
        return window.RebuildAfterCommand();
    const std::string path = node::RunPath(program.Session.Station.CurrentStation, run);
    window.SetRunImage(path, true);
    // The pane beside the tree is that of this run, and showed it as not configured.
    window.ShowPaneFor(path);
}

} // namespace gfc::forms
