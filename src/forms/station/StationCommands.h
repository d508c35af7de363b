#pragma once

#include <string>

namespace gfc::config {
struct StationConfig;
}

namespace gfc::forms {

struct Program;
struct Session;

// As a start of the program leaves it, but for the project, the person and the station that is selected: what
// a command writes must not depend on what was done before it.
void StartAfresh(config::StationConfig& station);
// The same for all that a command on a station goes by.
void StartAfresh(Session& session);

// Reads the current station's tags anew and sorts them.
void ReadStationTags(Program& program);

// Reads the current station's tags anew, sorts them and chooses the candidates of working modules, which is
// how every command on a station begins. True when every kind of working module has a candidate.
bool OpenStation(Program& program);

// False, after saying so, for a station whose configuration no file can hold: better before the work is done
// than after it.
[[nodiscard]] bool HasPlaceForItsFile(Program& program);

// Forgets the station that is open. A command that ends with nothing configured calls it.
void ClearSession(Program& program);

// "Configuration  Wizard": makes a station's configuration from nothing.
void ConfigWiardCommand(Program& program);

// "Configure": edits the common parameters at a station or common node, the tags of a run at a run's node.
void ConfigParCommand(Program& program);
// On a run that is off in the file it means to enable it: then that command is run, and the result is true.
bool ConfigureDisabledRun(Program& program, const std::string& nodeText);

} // namespace gfc::forms
