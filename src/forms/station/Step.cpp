#include "forms/station/Step.h"

namespace gfc::forms {

Step::Step(Program& program) : ProgramForm(program, "Step", "Individual Parameters") {
    Command1.OnClick = [this] { Unload(); };
    SetDefaultButton(Command1);
}

} // namespace gfc::forms
