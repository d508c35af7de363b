#pragma once

#include "platform/Machine.h"
#include "project/TagInventory.h"

#include <string>
#include <vector>

namespace gfc::audit {

// A page of the summaries: a table, or a line of text in its place.
struct SummaryTable {
    std::string Title;
    std::vector<std::string> Columns;
    std::vector<std::vector<std::string>> Rows; // a cell that a row does not have is empty
    std::string Line;

    bool operator==(const SummaryTable&) const = default;
};

// Whose file it is, and its bytes.
struct StationFile {
    std::string Path;
    std::string ProjectName;
    std::string Station;
    std::string Bytes;
};

// All that the summaries of the main window show of a configuration, page for page: the common parameters,
// then each run that is configured, those that are off marked as such. Tags have their module beside them, as
// far as the list of tags knows it; without a list there is no such column.
[[nodiscard]] std::vector<SummaryTable> PagesOf(const StationFile& file, const project::TagList& tags,
                                                platform::Machine& machine);

} // namespace gfc::audit
