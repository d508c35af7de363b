#include "forms/StartUp.h"

#include "forms/formInicio.h"

namespace gfc::forms {

void StartProgram(Program& program) {
    program.Forms.Get<formInicio>().Show();
}

} // namespace gfc::forms
