#include "services/TableText.h"

#include "services/HtmlText.h"

#include <algorithm>
#include <string_view>

namespace gfc::services {

namespace {

using Cells = std::vector<std::string>;

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

// A cell that begins so is reckoned with by a spreadsheet.
std::string Harmless(const std::string& text) {
    constexpr std::string_view formula = "=+-@";
    return !text.empty() && formula.find(text.front()) != std::string_view::npos ? "'" + text : text;
}

std::string OneLine(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return text;
}

// Each cell as cellOf makes it, with between between them.
template <class CellOf>
std::string Row(const Cells& cells, std::string_view between, CellOf cellOf) {
    std::string row;
    for (std::size_t cell = 0; cell < cells.size(); ++cell)
        row.append(cell == 0 ? "" : between).append(cellOf(cells[cell]));
    return row;
}

template <class CellOf>
std::string Lines(const TextTable& table, std::string_view between, std::string_view end, CellOf cellOf) {
    std::string lines = Row(table.Headings, between, cellOf) + std::string(end);
    for (const Cells& row : table.Rows)
        lines.append(Row(row, between, cellOf)).append(end);
    return lines;
}

std::string HtmlRow(const Cells& cells, const std::string& tag, const std::string& className) {
    std::string row = className.empty() ? "<tr>" : "<tr class=\"" + className + "\">";
    for (const std::string& cell : cells)
        row.append("<").append(tag).append(">").append(HtmlText(cell)).append("</").append(tag).append(">");
    return row + "</tr>\n";
}

constexpr std::string_view pageStyle =
    "body{font-family:sans-serif}table{border-collapse:collapse}"
    "td,th{border:1px solid #999;padding:3px 6px;text-align:left;vertical-align:top}"
    "th{background:#eee}";

} // namespace

std::string AsTabbedText(const TextTable& table) {
    return Lines(table, "\t", "\n", OneLine);
}

std::string AsCsv(const TextTable& table) {
    return "\xEF\xBB\xBF" +
           Lines(table, ",", "\r\n", [](const std::string& cell) { return Quoted(Harmless(cell)); });
}

std::string AsHtml(const TextTable& table, const std::string& title, const std::string& style) {
    const std::string heading = HtmlText(title);
    std::string page = "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>" + heading +
                       "</title><style>" + std::string(pageStyle) + style + "</style></head>\n<body><h1>" +
                       heading + "</h1>\n<table>\n" + HtmlRow(table.Headings, "th", {});
    for (std::size_t row = 0; row < table.Rows.size(); ++row)
        page += HtmlRow(table.Rows[row], "td", table.Classes.empty() ? std::string() : table.Classes[row]);
    return page + "</table></body></html>\n";
}

} // namespace gfc::services
