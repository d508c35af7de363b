#pragma once

#include "workshop/store/Project.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

struct Station {
    std::int64_t Id = 0; ///< given by the project
    std::string Name;    ///< one in the project, whatever the case of its letters
    std::string Type;
    std::string Address;
    std::int32_t SerialNumber = 0;

    bool operator==(const Station&) const = default;
};

/// All stations in the order in which they came into the project.
[[nodiscard]] std::vector<Station> ListStations(Project& project);
/// By name, whatever the case of its letters.
[[nodiscard]] std::optional<Station> FindStation(Project& project, std::string_view name);
/// The same, for one that must be there. Throws Failure when the project has no such station.
[[nodiscard]] Station StationNamed(Project& project, const std::string& name);
/// That station alone, or all of them for an empty name. Throws Failure when the project has no such station.
[[nodiscard]] std::vector<Station> StationsNamed(Project& project, const std::string& name);
/// Returns the id that the station was given.
std::int64_t AddStation(Project& project, const Station& station);
/// Stores type, address and serial number of the station of that id.
void UpdateStation(Project& project, const Station& station);

} // namespace gfc::workshop
