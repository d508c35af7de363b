#pragma once

#include <QIcon>

#include <string_view>

namespace gfc::qt {

// The picture of that name in the icon set; the empty icon for an empty or unknown name.
[[nodiscard]] QIcon IconNamed(std::string_view name);
[[nodiscard]] bool HasIcon(std::string_view name);

} // namespace gfc::qt
