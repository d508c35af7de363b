#pragma once

#include "audit/Check.h"

#include <string>
#include <vector>

// Findings as files for others to read.
namespace gfc::audit {

// One finding of a station, as a row of a list.
struct FindingAt {
    const StationReport* Report;
    const audit::Finding* Finding;
};

// The headings of a table of findings, and the cells of one under them.
[[nodiscard]] const std::vector<std::string>& TableHeadings();
[[nodiscard]] std::vector<std::string> TableCells(const FindingAt& at);

// With tabs between the cells and a line for each row, as tables are pasted.
[[nodiscard]] std::string AsTabbedText(const std::vector<FindingAt>& rows);
// By RFC 4180, UTF-8 with the mark that spreadsheets look for.
[[nodiscard]] std::string AsCsv(const std::vector<FindingAt>& rows);
// A page of its own, without anything from elsewhere.
[[nodiscard]] std::string AsHtml(const std::vector<FindingAt>& rows, const std::string& project);

} // namespace gfc::audit
