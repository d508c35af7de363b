#pragma once

#include <QStringList>

namespace gfc::tour {

// The stand-in's command beside this program, by its arguments; false if it failed. What it prints is shown.
[[nodiscard]] bool Workshop(const QStringList& arguments);

// Any command beside this program; what it ended with, -1 if it could not be run.
[[nodiscard]] int Beside(const QString& command, const QStringList& arguments);

} // namespace gfc::tour
