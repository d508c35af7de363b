#pragma once

#include <QStringList>

#include <string>

namespace gfc::qt {

// Opens the page in the machine's own help viewer; false if it has none, or if the file is not there.
[[nodiscard]] bool OpenMachineHelp(const std::string& file, int context);

// What the machine's viewer is started with; context 0 is the contents page.
[[nodiscard]] QStringList MachineHelpArguments(const QString& path, int context);

} // namespace gfc::qt
