#include "forms/program/formInicio.h"

#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/UserIDForm.h"

namespace gfc::forms {

formInicio::formInicio(Program& program) : ProgramForm(program, "formInicio", "Gas Flow Computer") {
    timerInicio.OnTimer = [this] { Tick(); };
}

void formInicio::Load() {
    RemoveCloseCommand();
    Progress("Loading ...");
    timerInicio.SetEnabled(true);
}

void formInicio::Progress(const std::string& text) {
    labProgBar.SetVisible(true);
    labProgBar.SetCaption(text);
    program_.Screen.DoEvents();
}

void formInicio::Tick() {
    Progress("Loading .");
    Unload();
    program_.Forms.Get<UserIDForm>().ShowModal();
    labProgBar.SetVisible(false);
    timerInicio.SetEnabled(false);
    if (!program_.Screen.Ended())
        program_.Forms.Get<GFCPrincipal>().Show();
}

} // namespace gfc::forms
