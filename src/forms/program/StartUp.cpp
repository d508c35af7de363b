#include "forms/program/StartUp.h"

#include "forms/program/formInicio.h"

namespace gfc::forms {

void StartProgram(Program& program) {
    program.Forms.Get<formInicio>().Show();
}

} // namespace gfc::forms
