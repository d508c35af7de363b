#include "forms/program/Program.h"

#include "platform/Machine.h"

namespace gfc::forms {

Program::Program(platform::Machine& machine, project::AddOnLibrary& library, ui::Screen& screen)
    : Machine(machine), Library(library, screen), Screen(screen), Ini(machine.Files), Forms(*this) {}

} // namespace gfc::forms
