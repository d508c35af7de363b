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

void WriteRun(Program& program, int run, const std::string& file) {
    const auto& station = program.Session.Station;
    const config::FileBatch batch(program.Ini, file);
    const auto write = [&](BindingStage kind) {
        config::WriteRunBindings(program.Ini, station, static_cast<int>(kind), run, file);
    };
    write(BindingStage::RunInputs);
    write(BindingStage::RunOutputs);
    if (config::IsGasModel(station.GasDensitySource)) {
        write(BindingStage::GasInputs);
        write(BindingStage::GasOutputs);
    }
    const config::RunMechanical none;
    config::WriteAddedRunKeys(program.Ini, station, config::ElementOr(station.Runs.Mechanical, 0, none), run,
                              file);
}

} // namespace

void SaveAddedRun(Program& program, int run) {
    const std::string file = program.Session.ConfigFile();
    auto& window = program.Forms.Get<GFCPrincipal>();
    if (!FileIsStillThere(program, "The run was not saved."))
        return window.RebuildAfterCommand();
    WriteRun(program, run, file);
    const std::string path = node::RunPath(program.Session.Station.CurrentStation, run);
    window.SetRunImage(path, true);
    // The pane beside the tree is that of this run, and showed it as not configured.
    window.ShowPaneFor(path);
}

} // namespace gfc::forms
