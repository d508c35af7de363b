#pragma once

#include "report/Report.h"

#include <string>
#include <string_view>
#include <vector>

// What a report shows, in the order of its parts, before it is a page for a browser or one on paper: both are
// made from this.
namespace gfc::report {

struct Part {
    enum class Kind { Title, Heading, Subheading, Line, Table, Signatures };
    Kind TheKind;
    std::string Text = {};   // but for tables
    SummaryTable Table = {}; // Columns are empty for a table of facts: name and value in each row
};

using Parts = std::vector<Part>;

[[nodiscard]] Parts CoverOf(const Report& report);
[[nodiscard]] Parts PartsOf(const StationPages& station);
[[nodiscard]] Parts SignaturesOf();

// What stands at the foot of a station's pages, and of the others.
[[nodiscard]] std::string FooterOf(const StationPages& station);
[[nodiscard]] std::string FooterOf(const Report& report);

// Whether the text is a SHA-256, which stands in letters of one width.
[[nodiscard]] bool IsHash(std::string_view text);

} // namespace gfc::report
