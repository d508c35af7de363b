// Carries out a download: every listed file into a folder that stands for the stations.
#pragma once

#include "workshop/store/Project.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace gfc::workshop {

struct DownloadResult {
    std::vector<std::filesystem::path> Written; ///< in list order
    std::vector<std::string> Faults;            ///< one text per file that could not be brought over
};

/// The local path of a list entry as a path of this machine.
[[nodiscard]] std::filesystem::path LocalPath(const Project& project, const std::string& local);

/// Copies each listed file to `folder`/station/target, replacing what stands there. A file at fault is told
/// and the others are copied all the same; nothing is written outside `folder`. Files of the stations in
/// `refused` are left out, each with a fault.
[[nodiscard]] DownloadResult Download(Project& project, const std::filesystem::path& folder,
                                      const std::set<std::string>& refused = {});

} // namespace gfc::workshop
