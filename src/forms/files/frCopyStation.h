#pragma once

#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Label.h"

namespace gfc::forms {

// Asks for the station of the project that a configuration is copied to: Session.CopyDestination, which stays
// as it was if the window is closed without a button. Only stations without a configuration are offered.
class frCopyStation : public ProgramForm {
public:
    explicit frCopyStation(Program& program);

    ui::Label Label1{*this, "Label1", "Please select the destination station to copy the configuration to:"};
    ui::DropDownList Combo1{*this, "Combo1"};
    ui::CommandButton Command1{*this, "Command1", "Accept"};
    ui::CommandButton Command2{*this, "Command2", "Cancel"};

protected:
    void Load() override;

private:
    void Leave(const std::string& destination);
};

// The stations of the open project that have no configuration file, in the project's order.
[[nodiscard]] std::vector<std::string> StationsWithoutConfiguration(const Program& program);

} // namespace gfc::forms
