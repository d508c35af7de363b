#include "forms/station/GiveBack.h"

#include "forms/binding/TagRuns.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/station/Step.h"
#include "forms/wizard/SelectRuns.h"
#include "forms/wizard/WizardFC.h"

namespace gfc::forms {

namespace {

// The main window, if there is one: nothing here brings it up for the first time.
GFCPrincipal* MainWindow(Program& program) {
    return program.Forms.IsLoaded<GFCPrincipal>() ? &program.Forms.Get<GFCPrincipal>() : nullptr;
}

} // namespace

void GiveBackFromTagRuns(Program& program) {
    program.Session.Cancelled = true;
    const EditMode mode = program.Session.EditMode;
    if (mode == EditMode::Wizard) {
        program.Forms.Unload<WizardFC>();
        program.Forms.Unload<SelectRuns>();
    }
    program.Forms.Unload<TagRuns>();
    if (mode == EditMode::Wizard || mode == EditMode::Configurator)
        program.Forms.Unload<Step>();
    if (auto* main = MainWindow(program); main != nullptr && mode == EditMode::Wizard)
        main->Show();
}

void GiveBackFromEditor(Program& program, ui::Form& editor) {
    program.Session.Cancelled = true;
    editor.Unload();
    program.Forms.Unload<Step>();
    const EditMode mode = program.Session.EditMode;
    if (mode == EditMode::Wizard)
        program.Forms.Unload<WizardFC>();
    if (auto* main = MainWindow(program);
        main != nullptr && (mode == EditMode::Wizard || mode == EditMode::ModifyTags))
        main->SetEnabled(true);
}

} // namespace gfc::forms
