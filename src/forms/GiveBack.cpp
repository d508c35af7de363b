#include "forms/GiveBack.h"

#include "forms/Step.h"
#include "forms/TagRuns.h"

namespace gfc::forms {

void GiveBackFromTagRuns(Program& program) {
    program.Session.Cancelled = true;
    program.Forms.Unload<TagRuns>();
    const EditMode mode = program.Session.EditMode;
    if (mode == EditMode::Wizard || mode == EditMode::Configurator)
        program.Forms.Unload<Step>();
}

void GiveBackFromEditor(Program& program, ui::Form& editor) {
    program.Session.Cancelled = true;
    editor.Unload();
    program.Forms.Unload<Step>();
}

} // namespace gfc::forms
