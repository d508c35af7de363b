#pragma once

#include <string>
#include <vector>

// Tables as files for others to read, and for the clipboard.
namespace gfc::services {

struct TextTable {
    std::vector<std::string> Headings;
    std::vector<std::vector<std::string>> Rows; // UTF-8
    // The style class of each row, for a page; empty, or one for each.
    std::vector<std::string> Classes = {};
};

// With tabs between the cells and a line for each row, as tables are pasted.
[[nodiscard]] std::string AsTabbedText(const TextTable& table);
// By RFC 4180, UTF-8 with the mark that spreadsheets look for; no cell is taken for a formula.
[[nodiscard]] std::string AsCsv(const TextTable& table);
// A page of its own, without anything from elsewhere. style stands behind that of all tables.
[[nodiscard]] std::string AsHtml(const TextTable& table, const std::string& title,
                                 const std::string& style = {});

} // namespace gfc::services
