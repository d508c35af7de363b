#pragma once

namespace gfc::forms {

struct Program;

// Reads the current station's tags anew and sorts them.
void ReadStationTags(Program& program);

// Reads the current station's tags anew, sorts them and chooses the candidates of working modules, which is
// how every command on a station begins. True when every kind of working module has a candidate.
bool OpenStation(Program& program);

// Forgets the station that is open. A command that ends with nothing configured calls it.
void ClearSession(Program& program);

// "Configuration  Wizard": makes a station's configuration from nothing.
void ConfigWiardCommand(Program& program);

} // namespace gfc::forms
