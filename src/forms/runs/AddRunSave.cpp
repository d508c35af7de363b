// The end of adding a run: the only place that writes.
#include "config/InPlaceUpdate.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "forms/runs/AddRun.h"

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

void TellFileIsGone(Program& program, const std::string& file) {
    program.Screen.Ask(
        {.Title = "Gas Flow Computer",
         .Text =
             "The run was not saved. The configuration file of the station is not there any more:\r\n" + file,
         .TheIcon = ui::Icon::Exclamation});
}

} // namespace

void SaveAddedRun(Program& program, int run) {
    const std::string file = program.Session.ConfigFile();
    auto& window = program.Forms.Get<GFCPrincipal>();
    if (!program.Ini.FileExists(file)) {
        TellFileIsGone(program, file);
        return window.RebuildAfterCommand();
    }
    WriteRun(program, run, file);
    const std::string path = node::RunPath(program.Session.Station.CurrentStation, run);
    window.SetRunImage(path, true);
    // The pane beside the tree is that of this run, and showed it as not configured.
    window.ShowPaneFor(path);
}

} // namespace gfc::forms
