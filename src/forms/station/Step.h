#pragma once

#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/Label.h"

namespace gfc::forms {

// Announces the next dialog of a pass over the runs.
class Step : public ProgramForm {
public:
    explicit Step(Program& program);

    ui::Label Label1{*this, "Label1", "Press  'Continue' to configure the individual parameters"};
    ui::Label Label2{*this, "Label2"};
    // Beside what is announced: that the pass is not kept as a draft.
    ui::Label Notes{*this, "Notes"};
    ui::CommandButton Command1{*this, "Command1", "Continue"};
};

} // namespace gfc::forms
