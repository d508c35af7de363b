#include "audit/Export.h"

#include <algorithm>

namespace gfc::audit {

namespace {

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text)
        if (c == '&')
            escaped += "&amp;";
        else if (c == '<')
            escaped += "&lt;";
        else if (c == '>')
            escaped += "&gt;";
        else
            escaped += c;
    return escaped;
}

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
std::string Row(const std::vector<std::string>& cells, std::string_view between, CellOf cellOf) {
    std::string row;
    for (const std::string& cell : cells)
        row.append(row.empty() ? "" : between).append(cellOf(cell));
    return row;
}

template <class CellOf>
std::string Table(const std::vector<FindingAt>& rows, std::string_view between, std::string_view end,
                  CellOf cellOf) {
    std::string table = Row(TableHeadings(), between, cellOf) + std::string(end);
    for (const FindingAt& at : rows)
        table.append(Row(TableCells(at), between, cellOf)).append(end);
    return table;
}

constexpr std::string_view Style =
    "body{font-family:sans-serif}table{border-collapse:collapse}"
    "td,th{border:1px solid #999;padding:3px 6px;text-align:left;vertical-align:top}"
    "th{background:#eee}tr.error td:nth-child(2){color:#b00020;font-weight:bold}"
    "tr.warning td:nth-child(2){color:#8a5a00}";

} // namespace

const std::vector<std::string>& TableHeadings() {
    static const std::vector<std::string> headings = {"Station", "Severity",   "Run", "Variable",
                                                      "Finding", "What to do", "Rule"};
    return headings;
}

std::vector<std::string> TableCells(const FindingAt& at) {
    const Finding& finding = *at.Finding;
    return {at.Report->Station,
            std::string(WordOf(finding.Severity)),
            finding.Run == 0 ? std::string() : std::to_string(finding.Run),
            finding.Variable,
            finding.Text,
            std::string(finding.Row().Advice),
            std::string(finding.Row().Name)};
}

std::string AsTabbedText(const std::vector<FindingAt>& rows) {
    return Table(rows, "\t", "\n", OneLine);
}

std::string AsCsv(const std::vector<FindingAt>& rows) {
    return "\xEF\xBB\xBF" +
           Table(rows, ",", "\r\n", [](const std::string& cell) { return Quoted(Harmless(cell)); });
}

std::string AsHtml(const std::vector<FindingAt>& rows, const std::string& project) {
    const std::string title = "Findings in " + Escaped(project);
    const auto cells = [](const std::vector<std::string>& texts, std::string_view tag) {
        std::string row;
        for (const std::string& text : texts)
            row.append("<")
                .append(tag)
                .append(">")
                .append(Escaped(text))
                .append("</")
                .append(tag)
                .append(">");
        return row;
    };
    std::string page = "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>" + title +
                       "</title><style>" + std::string(Style) + "</style></head>\n<body><h1>" + title +
                       "</h1>\n<table>\n<tr>" + cells(TableHeadings(), "th") + "</tr>\n";
    for (const FindingAt& at : rows)
        page.append("<tr class=\"")
            .append(WordOf(at.Finding->Severity))
            .append("\">")
            .append(cells(TableCells(at), "td"))
            .append("</tr>\n");
    return page + "</table></body></html>\n";
}

} // namespace gfc::audit
