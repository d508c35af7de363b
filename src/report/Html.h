#pragma once

#include "report/Content.h"

#include <string>
#include <string_view>

// The parts of a report as HTML.
namespace gfc::report {

// For a text between quotes of a style sheet.
[[nodiscard]] std::string CssText(std::string_view text);

[[nodiscard]] std::string ToHtml(const Parts& parts);

// What stands around the form for programs within a page.
inline constexpr std::string_view EmbeddedBegin = "<script type=\"application/json\" id=\"gfc-report\">";
inline constexpr std::string_view EmbeddedEnd = "</script>\n";

} // namespace gfc::report
