#pragma once

#include <string>
#include <string_view>

namespace gfc::services {

// As it stands in a page or between the quotes of an attribute: the signs of the markup are spelt out.
[[nodiscard]] std::string HtmlText(std::string_view text);

} // namespace gfc::services
