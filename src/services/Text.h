#pragma once

#include <string>
#include <string_view>

namespace gfc::services {

// Compares two UTF-8 texts without regard to case, by the letters of the code page (accented ones included);
// characters outside the page and bytes that are no valid UTF-8 must be the same.
[[nodiscard]] bool EqualNoCase(std::string_view left, std::string_view right);

// A key for look-ups without regard to case: two texts have the same one exactly if EqualNoCase holds for
// them.
[[nodiscard]] std::string FoldCase(std::string_view utf8);

} // namespace gfc::services
