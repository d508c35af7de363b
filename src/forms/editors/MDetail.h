#pragma once

#include "audit/Plausible.h"
#include "forms/editors/Composition.h"
#include "forms/editors/GasSources.h"
#include "forms/editors/NumericFields.h"
#include "forms/editors/QuietNotes.h"
#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/Frame.h"
#include "ui/Label.h"

#include <string>

namespace gfc::forms {

// The fixed gas composition of one run. The caller sets Session::GasRun, and empties GC_N2 of GasComposition
// for a run that has none yet; it finds the result in GasComposition, with GasAccepted set. On a cancel
// Cancelled is set.
class MDetail : public ProgramForm {
public:
    explicit MDetail(Program& program);

    ui::Label lbPrompt{*this, "lbPrompt"};
    ui::Frame Frame1{*this, "Frame1", "GAS COMPOSITION (Mole Fraction)"};
    CompositionFields Text{Frame1};

    ui::Frame Frame2{*this, "Frame2", "Copy gas composition from:"};
    SourceRuns Option1{Frame2, "Option1", SourceRunCaption};
    ui::CommandButton CopyGasCompButton{Frame2, "CopyGasCompButton", "Copy"};

    ui::CommandButton HelpCompGas{*this, "HelpCompGas", "&Help"};
    ui::CommandButton Command1{*this, "Command1", "&Accept"};
    ui::CommandButton Command2{*this, "Command2", "&Undo All"};
    ui::CommandButton Command3{*this, "Command3", "&Cancel"};
    // What is implausible in what stands in the fields.
    ui::Label Notes{*this, "Notes"};

protected:
    void Load() override;
    bool KeyDown(ui::Key key) override;

private:
    // As the fields have it.
    [[nodiscard]] config::RunGas Entered();
    void CheckLeft(const ComponentRow& row);
    [[nodiscard]] CheckedFields FieldsOf(const LeavingCheck& check);
    void ShowComposition();
    void Show(const config::RunGas& gas);
    void Accept();
    void UndoAll();
    void Cancel();
    void Copy();
    void Help();

    std::string file_; // of the current station, as at load
    QuietNotes notes_{
        Notes, [this](audit::Sink& sink) { audit::CheckGasValues(session_.Station, Entered(), sink); }};
};

} // namespace gfc::forms
