// A table of stations and tags against what the project holds: first the plan, then carrying it out.
#pragma once

#include "workshop/import/TagTable.h"
#include "workshop/store/Project.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace gfc::workshop {

enum class ImportMode {
    Merge,  ///< tags of the table are added or changed, all others stay; an empty field says nothing
    Replace ///< the tags of every station that the table names become those of the table
};

struct TagChange {
    Tag Before;
    Tag After;
};

/// What becomes of one station that the table names.
struct StationPlan {
    Station Before; ///< its Id is 0 while the project does not have it
    Station After;
    std::vector<Tag> Tags; ///< all of them, in their new delivery order
    std::vector<Tag> Added;
    std::vector<TagChange> Changed; ///< the same tag by name, whatever the case of its letters
    std::vector<Tag> Removed;
    bool Reordered = false; ///< the tags that stay are delivered in another order

    [[nodiscard]] bool IsNew() const { return Before.Id == 0; }
    [[nodiscard]] bool PropertiesChange() const;
    /// False when the project holds all of it already.
    [[nodiscard]] bool ChangesAnything() const;
};

struct ImportPlan {
    std::vector<StationPlan> Stations; ///< in the order in which the table names them; empty with complaints
    std::vector<Complaint> Complaints; ///< by row; not empty: the table cannot be imported
    std::string Note;                  ///< how the file was read, where its reader should know
};

/// Reads table and project and changes nothing. New tags stand behind the last one that their module has so
/// far, as tags of one module are delivered together, and else at the end, in the order of the rows; a
/// replacing table gives the order itself. Throws Failure when the file or the project cannot be read.
[[nodiscard]] ImportPlan PlanImport(Project& project, const std::filesystem::path& csv, ImportMode mode);
[[nodiscard]] ImportPlan PlanTable(Project& project, CsvTable file, ImportMode mode);

/// Plans and carries the plan out, all of it, or nothing when there are complaints. Throws Failure like
/// PlanImport, and when the project cannot be written.
[[nodiscard]] ImportPlan ImportTags(Project& project, const std::filesystem::path& csv, ImportMode mode);
[[nodiscard]] ImportPlan ImportTable(Project& project, CsvTable file, ImportMode mode);

} // namespace gfc::workshop
