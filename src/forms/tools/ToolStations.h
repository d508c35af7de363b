#pragma once

#include "forms/program/Program.h"

#include <string>
#include <vector>

// Which stations the tools' windows offer.
namespace gfc::forms {

// Those of the project, in its order.
[[nodiscard]] std::vector<std::string> StationNames(const Program& program);
// The station at the selected node or above it; empty where none is.
[[nodiscard]] std::string SelectedStation(const Program& program);

} // namespace gfc::forms
