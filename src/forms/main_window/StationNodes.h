#pragma once

#include "config/VarINIFile.h"

#include <string>
#include <string_view>

// The texts of the station tree's nodes. They are compared exactly.
namespace gfc::forms::node {

constexpr std::string_view AllStations = "All Stations";
constexpr std::string_view CommonParameters = "Common Parameters";
constexpr std::string_view IndividualParameters = "Individual Parameters";

// run is 1 to 5.
[[nodiscard]] inline std::string RunText(int run) {
    return "Run " + std::to_string(run);
}

// 1 to 5 for "Run 1" to "Run 5", 0 for any other text.
[[nodiscard]] inline int RunOf(std::string_view nodeText) {
    // Asked of each node of a plant.
    constexpr std::string_view lead = "Run ";
    if (nodeText.size() != lead.size() + 1 || !nodeText.starts_with(lead))
        return 0;
    const int run = nodeText.back() - '0';
    return run >= 1 && run <= config::MaxRuns ? run : 0;
}

[[nodiscard]] inline std::string StationPath(std::string_view station) {
    return std::string(AllStations) + "\\" + std::string(station);
}

[[nodiscard]] inline std::string CommonPath(std::string_view station) {
    return StationPath(station) + "\\" + std::string(CommonParameters);
}

[[nodiscard]] inline std::string IndividualPath(std::string_view station) {
    return StationPath(station) + "\\" + std::string(IndividualParameters);
}

[[nodiscard]] inline std::string RunPath(std::string_view station, int run) {
    return IndividualPath(station) + "\\" + RunText(run);
}

// True where a command has no station to work on.
[[nodiscard]] inline bool NamesNoStation(std::string_view nodeText) {
    return nodeText.empty() || nodeText == AllStations;
}

} // namespace gfc::forms::node
