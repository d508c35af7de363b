#include "forms/program/Program.h"

#include "platform/Machine.h"

namespace gfc::forms {

Program::Program(platform::Machine& machine, project::AddOnLibrary& library, ui::Screen& screen,
                 config::Recorder& recorder)
    : Machine(machine), Library(library, screen), Screen(screen), Storage(machine.Files, screen),
      Ini(Storage.Ini()), Recorder(recorder), Forms(*this) {}

} // namespace gfc::forms
