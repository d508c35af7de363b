// Which row of a table holds its titles, and what stands under each.
#pragma once

#include "workshop/import/Columns.h"
#include "workshop/import/CsvFile.h"
#include "workshop/import/TableWishes.h"

#include <cstddef>
#include <string>
#include <vector>

namespace gfc::workshop {

struct Complaint {
    std::size_t Row;    ///< 0 for the table as a whole
    std::string Column; ///< empty for the row as a whole
    std::string Text;
};
/// "row 3, column Class: ..."
[[nodiscard]] std::string TextOf(const Complaint& complaint);

struct Heading {
    std::size_t At = 0;                 ///< the place of the titles among the rows
    std::vector<const Column*> Columns; ///< one for each title; nullptr for one that is left out
    std::vector<std::string> Titles;    ///< as the table has them
    std::vector<std::string> Ignored;   ///< the titles that nobody knows, of columns that hold anything
    bool Foreign = false;               ///< a title is not ours to the letter, but for its case

    /// The table's title for that column, with ours behind it where they differ.
    [[nodiscard]] std::string NameOf(const Column& column) const;
};

/// How many of the fields a reader would take for titles.
[[nodiscard]] std::size_t CountTitles(const std::vector<std::string>& fields, const TableWishes& wishes);

/// The row of the first forty that has the most titles, or else the most fields that hold anything, and the
/// columns under it. Each fault of it is a complaint. There is at least one row.
[[nodiscard]] Heading FindHeading(const std::vector<CsvRow>& rows, const TableWishes& wishes,
                                  std::vector<Complaint>& complaints);

} // namespace gfc::workshop
