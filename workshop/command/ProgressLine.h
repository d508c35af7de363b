#pragma once

#include "workshop/import/TableWishes.h"

namespace gfc::workshop {

/// A line on the screen that counts up, where a person sits at it and the work takes more than half a second;
/// empty where nobody does. It goes with the work. Ctrl+C ends the command, and a project is then as it was.
[[nodiscard]] Progress ProgressLine();

} // namespace gfc::workshop
