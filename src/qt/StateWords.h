#pragma once

#include <QString>

#include <string_view>

namespace gfc::qt {

// What the picture of a tree's node tells, in words, for those who do not see it or its colour; empty for a
// picture that only adorns.
[[nodiscard]] QString StateTold(std::string_view image);

} // namespace gfc::qt
