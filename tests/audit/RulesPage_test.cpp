#include "audit/Rule.h"
#include "services/HtmlText.h"
#include "support/TestFolders.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <optional>

// The manual's page of the rules is made from their table; a test that fails leaves the page as it has to be
// beside the programs.
namespace gfc::audit {
namespace {

using services::HtmlText;

// What a finding fills in stands as its word in italics.
std::string WithPlaces(std::string_view text) {
    std::string page;
    for (const char c : HtmlText(text))
        if (c == '{')
            page += "<i>";
        else if (c == '}')
            page += "</i>";
        else
            page += c;
    return page;
}

std::string RowOf(const Rule& rule) {
    const auto cell = [](const std::string& text) { return "<td>" + text + "</td>"; };
    return "<tr>" +
           cell("<a name=\"" + std::string(rule.Name) + "\"></a><code>" + std::string(rule.Name) +
                "</code><br/>" + std::string(WordOf(rule.Severity))) +
           "\n" + cell(WithPlaces(rule.Text) + "<br/>Looks at: " + HtmlText(rule.Looks) + ".") + "\n" +
           cell(HtmlText(rule.Advice)) + "\n" + cell(HtmlText(rule.Source)) + "</tr>\n";
}

std::string RulesPage() {
    std::string page =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n"
        "<title>The rules of the check</title>\n"
        "<link rel=\"stylesheet\" type=\"text/css\" href=\"manual.css\"/>\n</head>\n<body>\n"
        "<h1>The rules of the check</h1>\n"
        "<p>By these rules <a href=\"check-stations.html\">Check all stations</a> and "
        "<code>gfc-audit</code> look a project over. What is in\nitalics a finding fills in. In a run "
        "that is off every finding is a note.</p>\n";
    std::optional<Area> area;
    for (const Rule& rule : Rules()) {
        if (rule.Area != area)
            page += std::string(area ? "</table>\n" : "") + "<h2>" + std::string(TitleOf(rule.Area)) +
                    "</h2>\n<table>\n<tr><th>Rule</th><th>What it says</th><th>What to "
                    "do</th><th>Source</th></tr>\n";
        area = rule.Area;
        page += RowOf(rule);
    }
    return page + "</table>\n</body>\n</html>\n";
}

TEST(RulesPage, of_the_manual_says_what_the_table_says) {
    std::ifstream in(test::SourceFolder().parent_path() / "manual" / "check-rules.html", std::ios::binary);
    const std::string written(std::istreambuf_iterator<char>(in), {});
    if (written != RulesPage())
        std::ofstream(test::BinFolder() / "check-rules.html", std::ios::binary) << RulesPage();
    EXPECT_EQ(written, RulesPage()) << "the page as it has to be stands beside the programs";
}

} // namespace
} // namespace gfc::audit
