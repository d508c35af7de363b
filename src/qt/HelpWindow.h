#pragma once

#include <string>

class QWidget;

namespace gfc::qt {

// Opens the page in the machine's own help viewer; false if it has none, or if the file is not there.
[[nodiscard]] bool OpenMachineHelp(const std::string& file, int context);

// Says which page of the help is meant, in a window that can be read while its owner, which may be modal,
// goes on. One such window at a time; context 0 is the contents page.
void ShowHelpWindow(const std::string& file, int context, QWidget* owner);

} // namespace gfc::qt
