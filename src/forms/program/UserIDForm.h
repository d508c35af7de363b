#pragma once

#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace gfc::forms {

// Asks for the user's identity: Session.Station.UserId and Session.UserIdCancelled.
class UserIDForm : public ProgramForm {
public:
    explicit UserIDForm(Program& program);

    ui::Frame Frame1{*this, "Frame1", "      Enter User ID:"};
    ui::Label Label1{Frame1, "Label1", "Please identify yourself with an user ID:"};
    ui::TextBox Text1{Frame1, "Text1"};
    ui::Label Label2{Frame1, "Label2",
                     "This ID will be recorded in the API21.1 configuration change logs and will help to "
                     "identify who makes changes to the Gas Flow Computer configuration."};
    ui::CommandButton Command1{*this, "Command1", "Accept"};
    ui::CommandButton Command2{*this, "Command2", "Cancel"};

protected:
    void Load() override;

private:
    bool KeyTaken(char32_t key);
    void Accept();
    void Cancel();
};

} // namespace gfc::forms
