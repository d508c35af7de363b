#include "config/VarINIFile.h"

#include "services/Text.h"

#include <utility>

namespace gfc::config {

void RunArrays::PrepareWholeStation(int activeRuns) {
    IO.assign(static_cast<std::size_t>(activeRuns), {});
    Gas.assign(static_cast<std::size_t>(activeRuns), {});
    Mechanical.assign(MaxRuns, {});
}

void RunArrays::PrepareSingleRun() {
    IO.assign(1, {});
    Gas.assign(1, {});
    Mechanical.assign(1, {});
}

void RunArrays::ArrangeSingleRun() {
    IO.resize(1);
    Gas.resize(1);
    Mechanical.resize(1);
}

void ResetStationConfig(StationConfig& station) {
    StationConfig fresh;
    fresh.Compressible = std::move(station.Compressible);
    fresh.AGA8Method = std::move(station.AGA8Method);
    fresh.AGA8CalInput = std::move(station.AGA8CalInput);
    fresh.UserId = std::move(station.UserId);
    fresh.ProjectFile = std::move(station.ProjectFile);
    fresh.ProjectName = std::move(station.ProjectName);
    fresh.GasComposition = std::move(station.GasComposition);
    fresh.Runs = std::move(station.Runs);
    fresh.Measured = station.Measured;
    fresh.FlagAGA7 = station.FlagAGA7;
    station = std::move(fresh);
}

bool IsRunActive(const StationConfig& station, int run) {
    return services::EqualNoCase(station.RunList.at(static_cast<std::size_t>(run)).Flag, "Yes");
}

int ElementOfRun(const StationConfig& station, int run) {
    int element = 0;
    for (int before = 0; before < run; ++before)
        element += IsRunActive(station, before) ? 1 : 0;
    return element;
}

} // namespace gfc::config
