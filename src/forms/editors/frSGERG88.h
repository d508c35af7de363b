#pragma once

#include "audit/Plausible.h"
#include "forms/editors/GasSources.h"
#include "forms/editors/QuietNotes.h"
#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/ControlArray.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

#include <string>

namespace gfc::forms {

// The four fixed gas properties of one run under the gross model. The caller sets Session::GasRun, and
// empties VolCalorificValue of GasComposition for a run that has none yet; it finds the result in
// GasComposition, with GasAccepted set. On a cancel Cancelled is set.
class frSGERG88 : public ProgramForm {
public:
    explicit frSGERG88(Program& program);

    ui::Label lbPrompt{*this, "lbPrompt"};
    ui::Frame Frame1{*this, "Frame1", "SGERG-88 PARAMETERS"};
    ui::Label Label1{Frame1, "Label1", "Vol. Calorific Value"};
    ui::Label Label2{Frame1, "Label2", "Relative Density"};
    ui::Label Label3{Frame1, "Label3", "CO2 Content"};
    ui::Label Label4{Frame1, "Label4", "H2 Content"};
    ui::ControlArray<ui::TextBox, 4> Text1{Frame1, "Text1", DesignValue};
    ui::Label Label5{Frame1, "Label5"}; // unit of the calorific value
    ui::Label Label6{Frame1, "Label6", "Mole Fraction"};
    ui::Label Label7{Frame1, "Label7", "Mole Fraction"};

    ui::Frame Frame2{*this, "Frame2", "Copy gas properties from:"};
    SourceRuns Option1{Frame2, "Option1", SourceRunCaption};
    ui::CommandButton CopyGasCompButton{Frame2, "CopyGasCompButton", "Copy"};

    ui::CommandButton ayuda{*this, "ayuda", "Help"};
    ui::CommandButton Command1{*this, "Command1", "Accept"};
    ui::CommandButton Command2{*this, "Command2", "Cancel"};
    // Deliberately without any action.
    ui::CommandButton Command3{*this, "Command3", "Undo All"};
    // What is implausible in what stands in the fields.
    ui::Label Notes{*this, "Notes"};

protected:
    void Load() override;
    bool KeyDown(ui::Key key) override;

private:
    // As the fields have it.
    [[nodiscard]] config::RunGas Entered();
    [[nodiscard]] static std::string DesignValue(int item);
    void ShowUnits();
    void CheckLeft(int item);
    void ShowStored();
    void Show(const config::RunGas& gas);
    void Accept();
    void Cancel();
    void Copy();
    void Help();

    std::string file_; // of the current station, as at load
    QuietNotes notes_{
        Notes, [this](audit::Sink& sink) { audit::CheckGasValues(session_.Station, Entered(), sink); }};
};

} // namespace gfc::forms
