#pragma once

#include <string_view>

namespace gfc::services {

// Compares two UTF-8 texts without regard to case, by the letters of the code page (accented ones included);
// characters outside the page and bytes that are no valid UTF-8 must be the same.
[[nodiscard]] bool EqualNoCase(std::string_view left, std::string_view right);

} // namespace gfc::services
