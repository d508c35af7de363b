#pragma once

#include <QString>

namespace gfc::qt {

// Below 0, 0 or above 0, as people order names: upper and lower case are the same, and numbers within a name
// count by their value, so that "Run 2" comes before "Run 10".
[[nodiscard]] int CompareNaturally(const QString& left, const QString& right);

} // namespace gfc::qt
