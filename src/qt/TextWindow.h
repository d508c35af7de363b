#pragma once

#include "ui/Screen.h"

#include <string>

class QWidget;

namespace gfc::qt {

// Shows a text file for reading in a window of the program's own; false if the file cannot be read.
bool ShowTextWindow(const std::string& path, ui::WindowState state, QWidget* owner);

} // namespace gfc::qt
