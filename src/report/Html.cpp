#include "report/Html.h"

#include "services/HtmlText.h"

namespace gfc::report {

using services::HtmlText;

namespace {

std::string Marked(std::string_view tag, const std::string& inner) {
    return "<" + std::string(tag) + ">" + inner + "</" + std::string(tag) + ">";
}

std::string Written(std::string_view text) {
    return IsHash(text) ? Marked("code", std::string(text)) : HtmlText(text);
}

// A cell that a row does not have is empty.
std::string Row(const std::vector<std::string>& cells, std::size_t columns, std::string_view first,
                std::string_view others) {
    std::string row;
    for (std::size_t column = 0; column < columns; ++column)
        row += Marked(column == 0 ? first : others,
                      column < cells.size() ? Written(cells[column]) : std::string());
    return Marked("tr", row) + "\n";
}

std::string TableHtml(const Part& part) {
    constexpr std::size_t nameAndValue = 2;
    const SummaryTable& table = part.Table;
    const bool facts = table.Columns.empty();
    std::string html = part.TheKind == Part::Kind::Signatures ? "<table class=\"sign\">\n" : "<table>\n";
    if (!facts)
        html += "<thead>" + Row(table.Columns, table.Columns.size(), "th", "th") + "</thead>\n";
    html += "<tbody>\n";
    for (const auto& row : table.Rows)
        html += facts ? Row(row, nameAndValue, "th", "td") : Row(row, table.Columns.size(), "td", "td");
    return html + "</tbody></table>\n";
}

std::string PartHtml(const Part& part) {
    switch (part.TheKind) {
    case Part::Kind::Title:
        return Marked("h1", HtmlText(part.Text)) + "\n";
    case Part::Kind::Heading:
        return Marked("h2", HtmlText(part.Text)) + "\n";
    case Part::Kind::Subheading:
        return Marked("h3", HtmlText(part.Text)) + "\n";
    case Part::Kind::Line:
        return Marked("p", Written(part.Text)) + "\n";
    default:
        return TableHtml(part);
    }
}

} // namespace

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

std::string ToHtml(const Parts& parts) {
    std::string html;
    for (const Part& part : parts)
        html += PartHtml(part);
    return html;
}

} // namespace gfc::report
