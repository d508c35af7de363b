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
    std::vector<Tag> Tags;          ///< all of them, in their new delivery order
    std::vector<std::size_t> Added; ///< where they stand in Tags
    std::vector<TagChange> Changed; ///< the same tag by name, whatever the case of its letters
    std::vector<Tag> Removed;
    bool Reordered = false; ///< the tags that stay are delivered in another order
    /// Modules of floats or longs whose type nobody told; a station has such registers in virtual ones alone.
    std::vector<std::string> TakenAsVirtual;

    [[nodiscard]] bool IsNew() const { return Before.Id == 0; }
    [[nodiscard]] bool PropertiesChange() const;
    /// False when the project holds all of it already.
    [[nodiscard]] bool ChangesAnything() const;
};

struct ImportPlan {
    std::vector<StationPlan> Stations; ///< in the order in which the table names them; empty with complaints
    std::vector<Complaint> Complaints; ///< by row; not empty: the table cannot be imported
    std::string Note;                  ///< how the file was read, where its reader should know
    std::string Reading;               ///< the encoding and what parts the fields, for a preview
    std::vector<std::string> Notes;    ///< what was taken otherwise than it stands
    Heading Titles;                    ///< those of the table, and the columns that they were read as
};

/// A table and how to take it.
struct ImportRequest {
    std::filesystem::path Csv;
    ImportMode Mode = ImportMode::Merge;
    TableWishes Wishes = {};
    Progress Told = {}; ///< empty for nobody to be told
};

/// The table alone. Throws Failure when the file cannot be read, or when the request's Progress gives up.
[[nodiscard]] CsvTable ReadRequested(const ImportRequest& request);

/// Reads table and project and changes nothing. New tags stand behind the last one that their module has so
/// far, as tags of one module are delivered together, and else at the end, in the order of the rows; a
/// replacing table gives the order itself. Throws Failure when the file or the project cannot be read, or
/// when the request's Progress gives up.
[[nodiscard]] ImportPlan PlanImport(Project& project, const ImportRequest& request);
[[nodiscard]] ImportPlan PlanTable(Project& project, const CsvTable& file, const ImportRequest& request);

/// Plans and carries the plan out, all of it, or nothing when there are complaints. Throws Failure like
/// PlanImport, and when the project cannot be written.
[[nodiscard]] ImportPlan ImportTags(Project& project, const ImportRequest& request);
[[nodiscard]] ImportPlan ImportTable(Project& project, const CsvTable& file, const ImportRequest& request);

} // namespace gfc::workshop
