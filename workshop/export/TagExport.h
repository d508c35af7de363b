// Stations and their tags as the table that an import takes.
#pragma once

#include "workshop/store/Tags.h"

#include <string>
#include <vector>

namespace gfc::workshop {

/// The station of that name, or all of them in their order for an empty name. Throws Failure when the project
/// has no such station.
[[nodiscard]] std::vector<StationTags> StationTagsOf(Project& project, const std::string& station);

/// A table in CSV, UTF-8, of everything that an import can bring into a project: imported into an empty one,
/// it gives the same stations, modules and tags in the same order. A station without tags has a row of its
/// own.
[[nodiscard]] std::string TagTableText(const std::vector<StationTags>& stations, char separator);

} // namespace gfc::workshop
