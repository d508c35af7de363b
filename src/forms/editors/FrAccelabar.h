#pragma once

#include "forms/editors/EditorParts.h"
#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace gfc::forms {

// Size and coefficients of the Accelabar meter of one run, in inches whatever the unit system. The caller
// sets Session::EditRun and EditedMechanical and finds the result there; on a cancel Session::Cancelled is
// set.
class FrAccelabar : public ProgramForm {
public:
    explicit FrAccelabar(Program& program);

    ui::Frame Frame1{*this, "Frame1", "Accelabar Parameters"};
    ui::Label lbSize{Frame1, "lbSize", "Accelabar Size"};
    ui::DropDownList Combo1{Frame1, "Combo1"};
    ui::Label Label5{Frame1, "Label5", "in"};
    // The constants of the size; for "Other" the fields stand before the labels, which keep what they held.
    ui::Label Label2{Frame1, "Label2", "Gas expansion factor coeff. Y"};
    ui::Label lbAccelabarY{Frame1, "lbAccelabarY"};
    ui::TextBox Text1{Frame1, "Text1"};
    ui::Label Label6{Frame1, "Label6", "a-coeff."};
    ui::Label Label3{Frame1, "Label3", "Flow coefficient ( K )"};
    ui::Label lbAccelabarK{Frame1, "lbAccelabarK"};
    ui::TextBox Text2{Frame1, "Text2"};
    ui::Label Label4{Frame1, "Label4", "Throat Diameter"};
    ui::Label lbDiameter{Frame1, "lbDiameter"};
    ui::TextBox Text3{Frame1, "Text3"};
    ui::Label Label1{Frame1, "Label1", "in"};

    ui::Frame Frame2{*this, "Frame2", "Copy accelabar parameters from"};
    ui::CheckBox Check1{Frame2, "Check1", "Enable Copy"};
    SourceRuns Option1{Frame2, "Option1", SourceRunCaption};

    ui::CommandButton Command4{*this, "Command4", "Help"};
    ui::CommandButton Command1{*this, "Command1", "Accept"};
    ui::CommandButton Command2{*this, "Command2", "Cancel"};
    ui::CommandButton Command3{*this, "Command3", "Default Value"};

protected:
    void Load() override;

private:
    void ShowRecord();
    void SizeChosen();
    void ShowFields(bool shown);
    void Accept();
    [[nodiscard]] bool StoreOther();
    void StoreConstants();
    void SetDefaults();
    void CopyEnabled();
    void CopyFrom(int run);
};

} // namespace gfc::forms
