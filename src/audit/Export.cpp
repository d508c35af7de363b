#include "audit/Export.h"

#include "services/TableText.h"

namespace gfc::audit {

namespace {

using services::TextTable;

constexpr const char* style = "tr.error td:nth-child(2){color:#b00020;font-weight:bold}"
                              "tr.warning td:nth-child(2){color:#8a5a00}";

TextTable TableOf(const std::vector<FindingAt>& rows) {
    TextTable table{TableHeadings(), {}};
    for (const FindingAt& at : rows) {
        table.Rows.push_back(TableCells(at));
        table.Classes.emplace_back(WordOf(at.Finding->Severity));
    }
    return table;
}

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
    return services::AsTabbedText(TableOf(rows));
}

std::string AsCsv(const std::vector<FindingAt>& rows) {
    return services::AsCsv(TableOf(rows));
}

std::string AsHtml(const std::vector<FindingAt>& rows, const std::string& project) {
    return services::AsHtml(TableOf(rows), "Findings in " + project, style);
}

} // namespace gfc::audit
