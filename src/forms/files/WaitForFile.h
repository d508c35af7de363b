#pragma once

#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/Furniture.h"
#include "ui/Label.h"

namespace gfc::forms {

// Shown while a file that is to go cannot be deleted, by whatever holds it: says which and why, tries again
// four times a second, and goes with the file. A person may stop waiting; the file then stays.
class WaitForFile : public ProgramForm {
public:
    explicit WaitForFile(Program& program);

    // Set by the caller before the form is loaded.
    std::string File;
    // Left behind: nothing stands there any more.
    bool Gone = false;

    ui::Label Label1{*this, "Label1", "Waiting until the configuration file can be deleted:"};
    ui::Label Label2{*this, "Label2"};
    ui::Label Label3{*this, "Label3"};
    ui::CommandButton Command1{*this, "Command1", "Stop waiting"};
    ui::Timer timerWait{*this, "timerWait", 250};

protected:
    void Load() override;

private:
    void Try();
};

// Deletes the file, however long something else holds it. True once nothing stands there; false if a person
// has stopped waiting, or the program has ended meanwhile.
[[nodiscard]] bool DeletePatiently(Program& program, const std::string& file);

} // namespace gfc::forms
