// What was said of one tool's tables, kept under a name for the next table of that tool.
#pragma once

#include "workshop/import/TableWishes.h"

#include <string>
#include <vector>

namespace gfc::workshop {

/// The names of all that are kept, sorted.
[[nodiscard]] std::vector<std::string> SavedMappings();
/// Throws Failure when there is none of that name, or its file cannot be read or is none.
[[nodiscard]] TableWishes LoadMapping(const std::string& name);
/// Replaces what was kept under that name. Throws Failure when the name cannot be that of a file, or the file
/// cannot be written.
void SaveMapping(const std::string& name, const TableWishes& wishes);

/// One line for each wish, or more where a title has line ends; the text from which LoadMapping makes the
/// same wishes.
[[nodiscard]] std::string LinesOf(const TableWishes& wishes);
/// Throws Failure, led by `source`, for a line that is none of LinesOf.
[[nodiscard]] TableWishes WishesFrom(const std::string& lines, const std::string& source);

} // namespace gfc::workshop
