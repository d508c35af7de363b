#pragma once

#include <string>
#include <string_view>

namespace gfc::services {

// Cuts a fixed-width text at its first NUL; a text without one comes back as it is.
[[nodiscard]] std::string TrimFixedString(std::string_view text);

// The text cut at its first blank, then at its first NUL. Empty if the text starts with either.
[[nodiscard]] std::string FirstWord(std::string_view text);

} // namespace gfc::services
