#pragma once

#include <vector>

namespace gfc::ui {
class Form;
}

namespace gfc::forms {

struct Program;

// Shows the loading window; all that follows comes from its tick. The program is over when Screen::Ended says
// so.
void StartProgram(Program& program);

// The forms that come after the loading window, in their order: made, not loaded.
[[nodiscard]] std::vector<ui::Form*> FormsToCome(Program& program);

} // namespace gfc::forms
