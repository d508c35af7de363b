#pragma once

#include "report/Report.h"

#include <string>
#include <string_view>

// The parts of a report as HTML that a browser and a text document both take.
namespace gfc::report {

[[nodiscard]] std::string HtmlText(std::string_view text);
// For a text between quotes of a style sheet.
[[nodiscard]] std::string CssText(std::string_view text);

[[nodiscard]] std::string CoverHtml(const Report& report);
[[nodiscard]] std::string StationHtml(const StationPages& station);
[[nodiscard]] std::string SignaturesHtml();

// What stands around the form for programs within a page.
inline constexpr std::string_view EmbeddedBegin = "<script type=\"application/json\" id=\"gfc-report\">";
inline constexpr std::string_view EmbeddedEnd = "</script>\n";

} // namespace gfc::report
