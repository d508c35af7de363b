#pragma once

#include "binding/Catalogue.h"
#include "config/Vocabulary.h"

#include <string>
#include <string_view>
#include <vector>

namespace gfc::test {

// One run's records under the given choices; composition from tags unless said otherwise.
inline config::StationConfig StationWith(std::string_view algorithm, std::string_view source) {
    config::StationConfig station;
    station.FlowAlgorithm = algorithm;
    station.GasDensitySource = source;
    station.Measured = source == config::source::Measured;
    station.FlagAGA7 = algorithm == config::algorithm::AGA7;
    station.AGA8CalInput = config::CompositionMeasured;
    station.SystemUnits = config::units::Metric;
    station.Runs.IO.resize(1);
    station.Runs.Gas.resize(1);
    station.Runs.Mechanical.resize(5);
    return station;
}

inline config::StationConfig WithExternalDiameters(config::StationConfig station) {
    station.Runs.Mechanical.front().ExtMechParam = config::Yes;
    return station;
}

inline std::vector<std::string> TreeCaptions(binding::BindingStage stage, config::StationConfig station) {
    std::vector<std::string> captions;
    for (const auto& variable : binding::VariablesOf(stage, station, 0))
        captions.emplace_back(variable.Caption());
    return captions;
}

inline std::vector<std::string> Stems(const std::vector<const binding::VariableRow*>& rows) {
    std::vector<std::string> stems;
    for (const auto* row : rows)
        stems.emplace_back(row->Stem);
    return stems;
}

using Texts = std::vector<std::string>;

constexpr std::string_view AllAlgorithms[] = {config::algorithm::AGA3, config::algorithm::AGA7,
                                              config::algorithm::Accelabar, config::algorithm::SYT6143};
constexpr std::string_view AllSources[] = {config::source::Measured, config::source::AGA8,
                                           config::source::SGERG88, config::source::ISO12213_2,
                                           config::source::ISO12213_3};

} // namespace gfc::test
