// What the project holds, in the records that the library hands out.
#pragma once

#include "project/WireRecords.h"
#include "workshop/store/Project.h"

#include <string_view>
#include <vector>

namespace gfc::workshop {

[[nodiscard]] std::vector<project::StationRecord> StationRecords(Project& project);
/// In delivery order; empty for a station that the project does not have.
[[nodiscard]] std::vector<project::TagRecord> TagRecords(Project& project, std::string_view station);

} // namespace gfc::workshop
