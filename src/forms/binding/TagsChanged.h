#pragma once

#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/Label.h"

namespace gfc::forms {

// Writes the log of a failed check and asks what to do: Session.TagsChangedChoice. It is told the check's
// result in Session.Expected, and clears Session.GasInputsValid where the log has an error of a gas input.
class TagsChanged : public ProgramForm {
public:
    explicit TagsChanged(Program& program);

    ui::Label Label3{*this, "Label3",
                     "Warning: The current configuration is incomplete or has errors in its tag assigments. "
                     "An error log file describing all the errors found has been generated and saved in "};
    ui::CommandButton Command1{*this, "Command1", "View Errors"};
    // Two blanks before "be", and the misspelling above, are this form's own.
    ui::Label Label1{*this, "Label1",
                     "Click ignore to exit and save the project changes for later correction. Please note "
                     "that runs with errors will  be marked as disabled independently of your selection. If "
                     "all runs are disabled your configuration will not execute in the orm (*)"};
    ui::CommandButton CmdIgnore{*this, "CmdIgnore", "Ignore"};
    ui::Label Label2{*this, "Label2",
                     "Click to continue working in the configuration mode to correct the errors."};
    ui::CommandButton Command3{*this, "Command3", "Back to Configure"};
    ui::Label Label4{
        *this, "Label4",
        "Click to Exit KDOrm-AGA and discard all configuration or changes made in this session."};
    ui::CommandButton Command2{*this, "Command2", "Discard"};
    ui::Label Label5{*this, "Label5",
                     "* Note: If only warnings were found, a configuration file will be generated anyway"};

protected:
    void Load() override;

private:
    void Answer(TagsChangedChoice choice);
    void Discard();

    std::string logPath_;
};

} // namespace gfc::forms
