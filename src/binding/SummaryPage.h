#pragma once

#include <string>
#include <vector>

namespace gfc::binding {

// In which of the window's three lists a page stands; the two others are then empty and hidden.
enum class SummaryList { None, Parameters, Tags, GasValues };

// What one tab of a summary shows: a table, or one line of text.
struct SummaryPage {
    using Row = std::vector<std::string>;

    SummaryList List = SummaryList::None;
    std::vector<std::string> Columns;
    std::vector<Row> Rows; // a cell that a row does not have is empty
    std::string Line;      // stands centred in place of a table; empty where there is one
};

} // namespace gfc::binding
