#pragma once

#include "forms/program/Program.h"
#include "forms/runs/ModifyFlowFile.h"
#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Frame.h"

namespace gfc::forms {

// Changes a configuration that exists, for one run: the one selected in the main window's tree, or the first
// enabled one of the station. What to change is ticked here; the flow then leads through the editors.
class FrModificarTags : public ProgramForm {
public:
    explicit FrModificarTags(Program& program);

    ui::Frame Frame1{*this, "Frame1", "          Edit Run Parameters"};
    ui::CheckBox Check1{Frame1, "Check1"};
    ui::CheckBox Check2{Frame1, "Check2"};
    ui::CheckBox Check3{Frame1, "Check3", "Mechanical Parameters"};
    ui::CheckBox Check4{Frame1, "Check4", "AGA-8 / ISO-12213-3-1997 Outputs "};
    ui::CheckBox Check5{Frame1, "Check5", "Gas Composition Inputs"};
    ui::CheckBox Check6{Frame1, "Check6", "Change Fixed Gas Composition"};
    ui::CommandButton Command1{*this, "Command1", "Accept"};
    ui::CommandButton Command2{*this, "Command2", "Cancel"};
    // Never seen: the working modules of the station, analog, long and float. Their tags are not offered.
    ui::DropDownList Combo1{*this, "Combo1"};
    ui::DropDownList Combo2{*this, "Combo2"};
    ui::DropDownList Combo3{*this, "Combo3"};

protected:
    void Load() override;
    void Unloading() override;

private:
    // 0 where the selected path names no run.
    [[nodiscard]] int RunOfSelection() const;
    [[nodiscard]] int FirstEnabledRun() const;
    void EditOnly(int run);
    void ShowModules();
    void ShowCaptions();
    void ShowGasCaptions();
    void ShowWhatExists();
    void Accept();

    ModifySelection selection_;
};

} // namespace gfc::forms
