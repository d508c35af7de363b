#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gfc::report {

// The bytes of the one file that a PDF of this program bears as its attachment. Nothing where it has none, or
// one in a form that this program does not write.
[[nodiscard]] std::optional<std::string> AttachmentIn(std::string_view pdf);

} // namespace gfc::report
