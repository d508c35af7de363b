#pragma once

#include <string>

namespace gfc::qt {

// Opens the page of that number in the machine's own help viewer, 0 for the first one; the file lies in the
// folder that is current. False if the machine has no viewer, if the file is not there, or if the viewer does
// not take it.
[[nodiscard]] bool OpenMachineHelp(const std::string& file, int context);

} // namespace gfc::qt
