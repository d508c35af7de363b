#pragma once

#include "forms/program/Program.h"
#include "ui/Furniture.h"
#include "ui/Label.h"

namespace gfc::forms {

// The loading window; its one tick leads through the user's identity to the main window.
class formInicio : public ProgramForm {
public:
    explicit formInicio(Program& program);

    ui::Label picInicio{*this, "picInicio", {}, "picInicio"};
    ui::Label labProgBar{*this, "labProgBar", "Information ..."};
    ui::Timer timerInicio{*this, "timerInicio", 2000};

protected:
    void Load() override;

private:
    void Progress(const std::string& text);
    void Tick();
};

} // namespace gfc::forms
