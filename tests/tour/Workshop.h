#pragma once

#include <QStringList>

namespace gfc::tour {

// The stand-in's command beside this program, by its arguments; false if it failed. What it prints is shown.
[[nodiscard]] bool Workshop(const QStringList& arguments);

} // namespace gfc::tour
