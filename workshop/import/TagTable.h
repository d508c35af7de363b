// The columns of a tag table and what each may hold; from rows of text to tags, with a complaint for each
// fault.
#pragma once

#include "workshop/import/CsvFile.h"
#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::workshop {

struct Complaint {
    std::size_t Row;    ///< 0 for the table as a whole
    std::string Column; ///< empty for the row as a whole
    std::string Text;
};
/// "row 3, column Class: ..."
[[nodiscard]] std::string TextOf(const Complaint& complaint);

/// The titles of all columns, in the order in which a table is written.
[[nodiscard]] std::vector<std::string> ColumnTitles();

/// What keeps the text from standing under the column of that title, as "..." and a reason; empty when it
/// may. An empty text is a fault under a column that a tag cannot be without.
[[nodiscard]] std::string FaultUnder(std::string_view title, const std::string& text);

/// One row as it was read; every field is text, and empty where the table has no such column.
struct TableRow {
    std::size_t Row = 0;
    std::string Station;
    std::string StationType;
    std::string Address;
    std::string SerialNumber;
    std::string Module;
    std::string ModuleType;
    std::string Tag;
    std::string Class;
    std::string Register;
    std::string Description;
};

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
};
/// The first row names the columns, in any order and any case.
[[nodiscard]] TagTable ReadTagTable(const std::vector<CsvRow>& rows);

} // namespace gfc::workshop
