// Which branch of the configuration is edited, and which runs.
#include "config/Vocabulary.h"
#include "forms/configurador/Configurador.h"
#include "forms/main_window/StationNodes.h"
#include "forms/station/CapacityGates.h"
#include "forms/station/CommonStore.h"

#include <algorithm>

namespace gfc::forms {

namespace {

// 0 for a path that is none of a run's.
int RunOfPath(const std::string& path, const std::string& station) {
    for (int run = 1; run <= config::MaxRuns; ++run)
        if (path == node::RunPath(station, run))
            return run;
    return 0;
}

} // namespace

int Configurador::CasoOfNode() const {
    const std::string& station = session_.Station.CurrentStation;
    const std::string& path = session_.SelectedPath;
    const bool individual = path == node::IndividualPath(station) || RunOfPath(path, station) > 0;
    return individual ? 2 : 1;
}

void Configurador::ChooseMode() {
    auto& station = session_.Station;
    const std::string& path = session_.SelectedPath;
    if (path == node::StationPath(station.CurrentStation)) {
        station.ActiveRunCount = 1;
        return NameStation("   ");
    }
    if (path == node::CommonPath(station.CurrentStation))
        return NameStation("   ");
    const int chosen = RunOfPath(path, station.CurrentStation);
    const int run = path == node::IndividualPath(station.CurrentStation) ? FirstEnabledRun() : chosen;
    if (run == 0)
        return;
    station.RunList.at(static_cast<std::size_t>(run - 1)).Flag = config::Yes;
    station.ActiveRunCount = 1;
    if (chosen > 0)
        RunBoxes().at(static_cast<std::size_t>(chosen - 1))->SetValue(true);
    NameStation("   ", " (" + node::RunText(run) + ")");
}

// 1 to 5, 0 where none is enabled.
int Configurador::FirstEnabledRun() const {
    const auto& runs = session_.Station.Run;
    const auto found = std::find(runs.begin(), runs.end(), config::Yes);
    return found == runs.end() ? 0 : static_cast<int>(found - runs.begin()) + 1;
}

void Configurador::NameStation(const std::string& blanks, const std::string& run) {
    SetCaption(Caption() + blanks + "Station : " + session_.Station.CurrentStation + run);
}

std::array<ui::CheckBox*, config::MaxRuns> Configurador::RunBoxes() {
    return {&Run11, &Run22, &Run33, &Run44, &Run55};
}

bool Configurador::NoRunBoxSet() {
    const auto boxes = RunBoxes();
    return std::none_of(boxes.begin(), boxes.end(), [](const ui::CheckBox* box) { return box->Value(); });
}

Configurador::PassedChoices Configurador::Choices() const {
    PassedChoices choices{.Runs = {},
                          .Standard = general.CombStandard.ListIndex(),
                          .Source = general.cbSourceGas.ListIndex(),
                          .FromOutside = general.cbSourceGas.ListIndex() > 0 && Option5.Value(),
                          .Units = general.CombUnits.ListIndex()};
    std::ranges::transform(session_.Station.RunList, choices.Runs.begin(), &config::RunFlag::Flag);
    return choices;
}

// run is 0 to 4. A box that does not fit is cleared again, which comes back here and takes its count off.
void Configurador::RunBoxClicked(int run) {
    if (caso != 3)
        return;
    auto& station = session_.Station;
    ui::CheckBox& box = *RunBoxes().at(static_cast<std::size_t>(run));
    station.RunList.at(static_cast<std::size_t>(run)).Flag = YesOrNo(box.Value());
    if (!box.Value()) {
        --station.ActiveRunCount;
        return;
    }
    ++station.ActiveRunCount;
    if (!RunsFit(program_, general.Choices(), Option5.Value()))
        box.SetValue(false);
}

} // namespace gfc::forms
