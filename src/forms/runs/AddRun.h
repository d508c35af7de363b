#pragma once

#include "config/VarINIFile.h"

namespace gfc::forms {

struct Program;

// One more run for a configuration that is stored already. run is 1 to 5. Nothing is written before
// SaveAddedRun.

// Opens the station and tells whether it carries one more run; a message says so if not. If it does, the main
// window's lists hold the candidates of working modules, with those of the configuration selected.
[[nodiscard]] bool ChkRun(Program& program);

// The dialogs of the run, each announced by Step, and the question about saving. The configuration must have
// been loaded, with this run alone active in memory. Unless it is saved, no station is open afterwards.
void AddRunSequence(Program& program, int run);

// Writes what the dialogs have left in element 0 of the run records, all or nothing, and shows the run as
// enabled. A file that has gone meanwhile is not made anew: a message says so.
void SaveAddedRun(Program& program, int run);

// The run's flag in both places where the model keeps it.
void SetRunInMemory(config::StationConfig& station, int run, bool active);

} // namespace gfc::forms
