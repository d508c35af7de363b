#pragma once

#include "workshop/store/Project.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

struct FileToLoad {
    std::string Station;
    std::string Local;  ///< path on this machine; a relative one counts from the project's folder
    std::string Target; ///< path on the station; a station has one file per target
    std::int32_t Flag = -1;
};

/// In the order of the stations, then of the targets.
[[nodiscard]] std::vector<FileToLoad> ListFilesToLoad(Project& project);
/// Enters the file, or gives the station's entry of that target the new local path. False for an unknown
/// station.
[[nodiscard]] bool AddFileToLoad(Project& project, const FileToLoad& file);
/// Takes the station's entry of that target out. False when there was none, which harms nothing.
[[nodiscard]] bool RemoveFileToLoad(Project& project, std::string_view station, std::string_view target);

} // namespace gfc::workshop
