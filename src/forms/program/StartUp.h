#pragma once

namespace gfc::forms {

struct Program;

// Shows the loading window; all that follows comes from its tick. The program is over when Screen::Ended says
// so.
void StartProgram(Program& program);

} // namespace gfc::forms
