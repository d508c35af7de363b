#pragma once

#include "workshop/import/TagTable.h"
#include "workshop/store/Project.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace gfc::workshop {

enum class ImportMode {
    Add,    ///< tags are appended to what a station has
    Replace ///< the tags of every station that the table names are thrown away first
};

struct ImportResult {
    std::size_t Stations = 0; ///< named by the table, new or not
    std::size_t Tags = 0;
    std::vector<Complaint> Complaints; ///< not empty: nothing was changed
};

/// Takes a table of stations and tags into the project, all of it or nothing. Tags are delivered in the order
/// of the rows. Throws Failure when the file cannot be read or the project not be written.
[[nodiscard]] ImportResult ImportTags(Project& project, const std::filesystem::path& csv, ImportMode mode);

} // namespace gfc::workshop
