#pragma once

#include <Qt>

namespace gfc::qt {

// Which row or node an index is, counted from 1 as in its control.
constexpr int ItemRole = Qt::UserRole + 2;

} // namespace gfc::qt
