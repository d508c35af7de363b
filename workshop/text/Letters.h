// The case of letters, as the project compares names: of the 26 letters of ASCII alone; and titles, compared
// more loosely.
#pragma once

#include <string>
#include <string_view>

namespace gfc::workshop {

/// With all letters small: equal for two names that the project takes for one.
[[nodiscard]] std::string Folded(std::string_view text);
/// True for two names that the project takes for one.
[[nodiscard]] bool SameName(std::string_view a, std::string_view b);
[[nodiscard]] std::string Upper(std::string_view text);

/// A title as people mean it: small letters without accents, and one blank for all signs between two words.
/// "Dirección_IP" and "DIRECCION  IP" are one.
[[nodiscard]] std::string Plainly(std::string_view utf8);

/// Line ends, tabs and blanks between two words as one blank, and none at the ends, where the text has a line
/// end or tab at all; else the text as it is.
[[nodiscard]] std::string OnOneLine(const std::string& text);

} // namespace gfc::workshop
