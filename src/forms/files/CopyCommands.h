#pragma once

namespace gfc::forms {

struct Program;

// Commands on the selected station's configuration file as a whole. A copy is the file with the names of its
// project and station changed; whether the other station has the tags is for the user to see to.

// "Configuration to another station", of the same project.
void CopyToStationCommand(Program& program);
// "Configuration to a different project", chosen by its file, and a station typed by name.
void CopyToProjectCommand(Program& program);
// "Delete": the file, and its entry in the station's list of files to load.
void DeleteCommand(Program& program);

} // namespace gfc::forms
