#include "forms/GiveBack.h"

#include "forms/Step.h"

namespace gfc::forms {

void GiveBackFromEditor(Program& program, ui::Form& editor) {
    program.Session.Cancelled = true;
    editor.Unload();
    program.Forms.Unload<Step>();
}

} // namespace gfc::forms
