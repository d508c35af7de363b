// The case of letters, as the project compares names: of the 26 letters of ASCII alone.
#pragma once

#include <string>
#include <string_view>

namespace gfc::workshop {

/// With all letters small: equal for two names that the project takes for one.
[[nodiscard]] std::string Folded(std::string_view text);
/// True for two names that the project takes for one.
[[nodiscard]] bool SameName(std::string_view a, std::string_view b);
[[nodiscard]] std::string Upper(std::string_view text);

} // namespace gfc::workshop
