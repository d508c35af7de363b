#pragma once

namespace gfc::forms {

struct Program;

// "Enable run": turns the selected run on in the station's file. A run whose tags do not agree with the
// station any more is turned off instead; one that was never configured is offered to be configured.
void EnableRunCommand(Program& program);

// "Disable run": turns the selected run off in the station's file.
void DisableRunCommand(Program& program);

} // namespace gfc::forms
