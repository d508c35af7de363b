#include "report/Html.h"

#include <algorithm>

namespace gfc::report {

namespace {

std::string Cell(std::string_view tag, std::string_view text) {
    return "<" + std::string(tag) + ">" + HtmlText(text) + "</" + std::string(tag) + ">";
}

std::string Row(std::string_view tag, const std::vector<std::string>& cells, std::size_t columns) {
    std::string row = "<tr>";
    for (std::size_t column = 0; column < columns; ++column)
        row += Cell(tag, column < cells.size() ? std::string_view(cells[column]) : std::string_view());
    return row + "</tr>\n";
}

constexpr std::string_view tableBegin =
    "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\">\n";

std::string TableHtml(const SummaryTable& table) {
    std::string html = "<h3>" + HtmlText(table.Title) + "</h3>\n";
    if (!table.Line.empty())
        return html + "<p>" + HtmlText(table.Line) + "</p>\n";
    html += tableBegin;
    html += "<thead>" + Row("th", table.Columns, table.Columns.size()) + "</thead>\n<tbody>\n";
    for (const auto& row : table.Rows)
        html += Row("td", row, table.Columns.size());
    return html + "</tbody></table>\n";
}

std::string Fact(std::string_view name, std::string_view value, bool code = false) {
    const std::string text = HtmlText(value.empty() ? "-" : value);
    return "<tr>" + Cell("th", name) + "<td>" + (code ? "<code>" + text + "</code>" : text) + "</td></tr>\n";
}

std::string StationRow(const StationPages& station) {
    return "<tr>" + Cell("td", station.Name) + Cell("td", station.FileName) + "<td><code>" +
           HtmlText(station.FileHash.empty() ? "not configured" : station.FileHash) + "</code></td>" +
           Cell("td", station.Entry == 0 ? "-" : std::to_string(station.Entry)) + "</tr>\n";
}

} // namespace

std::string HtmlText(std::string_view text) {
    std::string html;
    for (const char byte : text)
        switch (byte) {
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '&':
            html += "&amp;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += byte;
        }
    return html;
}

// "<" too: it could end the style sheet.
std::string CssText(std::string_view text) {
    std::string css;
    for (const char byte : text)
        if (byte == '"' || byte == '\\' || byte == '<' || static_cast<unsigned char>(byte) < 0x20) {
            constexpr char digits[] = "0123456789abcdef";
            css.append("\\").append(1, digits[byte >> 4]).append(1, digits[byte & 15]).append(" ");
        } else {
            css += byte;
        }
    return css;
}

std::string CoverHtml(const Report& report) {
    std::string html = "<h1>Configuration report</h1>\n";
    html += tableBegin;
    html += Fact("Project", report.Project) + Fact("Project file", report.ProjectFile) +
            Fact("Time (UTC)", report.Time) + Fact("User ID", report.User) +
            Fact("Logged on as", report.MachineUser) + Fact("Program", report.Version) +
            Fact("Entries of the history", std::to_string(report.Entries)) +
            Fact("Hash of its last entry", report.HistoryHash, true) +
            Fact("Changes listed", report.Since.empty() ? "none" : report.Since) +
            Fact("SHA-256 of the content", ContentHash(report), true) + "</table>\n";
    html += "<h2>Stations</h2>\n";
    html += tableBegin;
    html +=
        "<thead>" + Row("th", {"Station", "File", "SHA-256 of the file", "Entry"}, 4) + "</thead>\n<tbody>\n";
    for (const StationPages& station : report.Stations)
        html += StationRow(station);
    return html + "</tbody></table>\n";
}

std::string StationHtml(const StationPages& station) {
    std::string html = "<h2>" + HtmlText(station.Name) + "</h2>\n";
    if (station.FileHash.empty())
        return html + "<p>This station has no configuration.</p>\n";
    html += "<p>" + HtmlText(station.FileName) + "<br><code>" + station.FileHash + "</code></p>\n";
    for (const SummaryTable& table : station.Tables)
        html += TableHtml(table);
    return html;
}

std::string SignaturesHtml() {
    std::string html = "<h2>Signatures</h2>\n<table class=\"sign\" border=\"1\" cellspacing=\"0\" "
                       "cellpadding=\"14\" width=\"100%\">\n<tr><th>Name</th><th>Date</th>"
                       "<th>Signature</th></tr>\n";
    for (const char* who : {"Configured by", "Checked by", "Witnessed by"})
        html += "<tr><td>" + std::string(who) + "</td><td>&nbsp;</td><td>&nbsp;</td></tr>\n";
    return html + "</table>\n";
}

} // namespace gfc::report
