// A table of stations and tags: from rows of text to rows under our columns, with a complaint for each fault.
#pragma once

#include "workshop/import/Columns.h"
#include "workshop/import/CsvFile.h"
#include "workshop/import/Heading.h"
#include "workshop/import/TableWishes.h"
#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

/// The titles of all columns that are written, in their order.
[[nodiscard]] std::vector<std::string> ColumnTitles();

/// What keeps the text from standing under the column of that title, as "..." and a reason; empty when it
/// may. An empty text is a fault under a column that a tag cannot be without.
[[nodiscard]] std::string FaultUnder(std::string_view title, const std::string& text);

/// The fields of a row under ColumnTitles.
[[nodiscard]] std::vector<std::string> FieldsOf(const TableRow& row);
/// A row without module, tag, class and register stands for its station alone.
[[nodiscard]] bool HoldsTag(const TableRow& row);
/// Of a row without a fault.
[[nodiscard]] Tag TagOf(const TableRow& row);
/// Of a text without a fault; 0 for an empty one.
[[nodiscard]] std::int32_t NumberOf(const std::string& text);

struct TagTable {
    std::vector<TableRow> Rows; ///< those without a fault
    std::vector<Complaint>
        Complaints; ///< of single fields and rows; what the project holds is not looked at here
    std::vector<std::string> Notes; ///< what was taken otherwise than it stands, where its reader should know
    Heading Titles;                 ///< as far as it was found
};
/// The row that has the most titles names the columns, in any order and any case, by our titles or by usual
/// ones. The rows above it are passed over, and so are those that begin with "#" or "//".
[[nodiscard]] TagTable ReadTagTable(const std::vector<CsvRow>& rows, const TableWishes& wishes = {},
                                    const Progress& progress = {});

} // namespace gfc::workshop
