#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A table as a spreadsheet saves it.
namespace gfc::plan {

// What does not fit, and where.
struct Fault {
    int Row = 0;        // as the spreadsheet counts, the titles among them; 0 for the table as a whole
    std::string Column; // its title as it stands in the table; empty for the row as a whole
    std::string Value;  // what stood there
    std::string Text;   // what is wrong and what would do, a sentence

    // "Row 5, column Units (\"Yards\"): ..."
    [[nodiscard]] std::string Line() const;
};

using Faults = std::vector<Fault>;

struct Sheet {
    struct Row {
        int Number = 0;                 // as the spreadsheet counts
        std::vector<std::string> Cells; // as many as there are titles; without blanks around them
    };
    std::vector<std::string> Titles; // without blanks around them
    std::vector<Row> Rows;           // that are not empty
};

// CSV with commas, semicolons or tabs, whichever stands most in the row of titles outside of quotes; UTF-8,
// else the machine's code page. The first row that is not empty holds the titles. Cells beyond the titles and
// a quote that is never closed are faults; what is no text or holds nothing is one fault and gives a sheet
// without titles.
[[nodiscard]] Sheet ReadSheet(std::string_view bytes, Faults& faults);

// The rows joined as CSV with commas and CR LF, in UTF-8 with its mark, as spreadsheets take it.
[[nodiscard]] std::string WriteSheet(const std::vector<std::vector<std::string>>& rows);

} // namespace gfc::plan
