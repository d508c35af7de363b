#include "report/Html.h"
#include "report/Report.h"
#include "services/HtmlText.h"

namespace gfc::report {

using services::HtmlText;

namespace {

constexpr std::string_view style = R"(
body { font: 10pt sans-serif; color: black; background: white; margin: 12mm; }
h1 { font-size: 18pt; } h2 { font-size: 14pt; break-after: avoid; } h3 { font-size: 11pt; break-after: avoid; }
table { border-collapse: collapse; width: 100%; margin-bottom: 5mm; }
thead { display: table-header-group; }
tr { break-inside: avoid; }
th, td { border: 0.3pt solid black; padding: 0.6mm 1.5mm; text-align: left; vertical-align: top;
  overflow-wrap: anywhere; }
th { font-weight: bold; } thead th { border-bottom: 1pt solid black; } p { margin: 1mm 0; }
code { font: 8.5pt monospace; overflow-wrap: anywhere; }
section { break-before: page; }
.sign td { height: 14mm; width: 33%; vertical-align: bottom; }
@page { margin: 15mm 12mm 18mm 15mm; @bottom-right { content: counter(page) " of " counter(pages);
  font: 8pt sans-serif; } }
@media print { body { margin: 0; } }
)";

// The footer of a station's pages bears its name and its hash.
std::string PageRule(const StationPages& station, std::size_t number) {
    const std::string name = "station" + std::to_string(number);
    return "@page " + name + " { @bottom-left { content: \"" + CssText(FooterOf(station)) +
           "\"; font: 8pt sans-serif; } }\n." + name + " { page: " + name + "; }\n";
}

std::string Head(const Report& report) {
    std::string head = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
                       HtmlText("Configuration report: " + report.Project) + "</title>\n<style>";
    head += style;
    for (std::size_t number = 0; number < report.Stations.size(); ++number)
        head += PageRule(report.Stations[number], number + 1);
    return head + "</style>\n</head>\n<body>\n";
}

// "</" would end the script that bears it; in JSON it may be written so.
std::string Embedded(const std::string& json) {
    std::string safe;
    for (const char byte : json)
        byte == '<' ? safe += "\\u003c" : safe += byte;
    return std::string(EmbeddedBegin) + safe + std::string(EmbeddedEnd);
}

} // namespace

std::string ToHtml(const Report& report) {
    std::string page = Head(report) + ToHtml(CoverOf(report));
    for (std::size_t number = 0; number < report.Stations.size(); ++number)
        page += "<section class=\"station" + std::to_string(number + 1) + "\">\n" +
                ToHtml(PartsOf(report.Stations[number])) + "</section>\n";
    return page + "<section>\n" + ToHtml(SignaturesOf()) + "</section>\n" + Embedded(ToJson(report)) +
           "</body>\n</html>\n";
}

} // namespace gfc::report
