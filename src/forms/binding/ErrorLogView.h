#pragma once

#include "ui/Screen.h"

#include <string>
#include <vector>

namespace gfc::forms {

struct Program;

// Shows the log of a check in the machine's viewer. A log that is not there, or a viewer that does not start,
// is told in a box; a viewer of its own accord would only offer to make a new file.
void ViewErrorLog(Program& program, const std::string& path, ui::WindowState state);

// The same in a large window; where there is no log, a box with what the check has found.
void ViewFindings(Program& program, const std::string& path, const std::vector<std::string>& findings);

} // namespace gfc::forms
