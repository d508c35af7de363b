#include "forms/program/StartUp.h"

#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/UserIDForm.h"
#include "forms/program/formInicio.h"

namespace gfc::forms {

void StartProgram(Program& program) {
    program.Forms.Get<formInicio>().Show();
}

std::vector<ui::Form*> FormsToCome(Program& program) {
    return {&program.Forms.Get<UserIDForm>(), &program.Forms.Get<GFCPrincipal>()};
}

} // namespace gfc::forms
