#pragma once

#include "audit/Plausible.h"
#include "forms/editors/EditorParts.h"
#include "forms/editors/QuietNotes.h"
#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace gfc::forms {

// Pipe, orifice plate and pressure tap of one run. The caller sets Session::EditRun and EditedMechanical,
// empty or the run's record, and finds the result in EditedMechanical; on a cancel Session::Cancelled is set.
class FrParMec : public ProgramForm {
public:
    explicit FrParMec(Program& program);

    ui::Frame FramePipe{*this, "FramePipe", "Pipe"};
    ui::Label Label9{FramePipe, "Label9", "Internal Diameter"};
    ui::TextBox txtDiaPipe{FramePipe, "txtDiaPipe"};
    ui::Label Label14{FramePipe, "Label14"};
    ui::Label LabelMatPipe{FramePipe, "LabelMatPipe", "Material"};
    ui::DropDownList cbMatPipe{FramePipe, "cbMatPipe"};
    ui::Label LabelTempRefPipe{FramePipe, "LabelTempRefPipe", "Ref. Temperature "};
    ui::TextBox txtTempRefPipe{FramePipe, "txtTempRefPipe"};
    ui::Label Label17{FramePipe, "Label17"};
    ui::Label LabelPipeThermal{FramePipe, "LabelPipeThermal", "Thermal Exp. Coeff."};
    ui::TextBox txtPipeThermal{FramePipe, "txtPipeThermal"};
    ui::Label Label2{FramePipe, "Label2"};

    ui::Frame FrameOrifice{*this, "FrameOrifice", "Orifice"};
    ui::Label Label8{FrameOrifice, "Label8", "Bore size"};
    ui::TextBox txtDiaOrif{FrameOrifice, "txtDiaOrif"};
    ui::Label Label13{FrameOrifice, "Label13"};
    ui::Label LabelMatOrif{FrameOrifice, "LabelMatOrif", "Material"};
    ui::DropDownList cbMatOrif{FrameOrifice, "cbMatOrif"};
    ui::Label LabelTempRefOrif{FrameOrifice, "LabelTempRefOrif", "Ref. Temperature "};
    ui::TextBox txtTempRefOrif{FrameOrifice, "txtTempRefOrif"};
    ui::Label Label20{FrameOrifice, "Label20"};
    ui::Label LabelOrificeThermal{FrameOrifice, "LabelOrificeThermal", "Thermal Exp. Coeff."};
    ui::TextBox txtOrificeThermal{FrameOrifice, "txtOrificeThermal"};
    ui::Label Label3{FrameOrifice, "Label3"};

    ui::Frame FrameTap{*this, "FrameTap", "Pressure Tap"};
    ui::Frame FrameType{FrameTap, "FrameType", "Type"};
    ui::OptionButton OptFlange{FrameType, "OptFlange", "Flange"};
    ui::OptionButton OptPipe{FrameType, "OptPipe", "Pipe"};
    ui::Frame FrameLocation{FrameTap, "FrameLocation", "Location"};
    ui::OptionButton OptUp{FrameLocation, "OptUp", "Upstream"};
    ui::OptionButton OptDown{FrameLocation, "OptDown", "Downstream"};

    ui::Frame FrameSource{*this, "FrameSource", "Pipe/Orifice diameter source"};
    ui::OptionButton OptFixed{FrameSource, "OptFixed", "Fixed"};
    ui::OptionButton OptExt{FrameSource, "OptExt", "External I/O"};

    ui::Frame FrameCopy{*this, "FrameCopy", "Copy mechanical parameters from"};
    ui::CheckBox Check1{FrameCopy, "Check1", "Enable Copy"};
    SourceRuns Option1{FrameCopy, "Option1", SourceRunCaption};

    ui::CommandButton cmdHelp{*this, "cmdHelp", "Help"};
    ui::CommandButton cmdAceptar{*this, "cmdAceptar", "Accept"};
    ui::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
    ui::CommandButton cmdDefaultValue{*this, "cmdDefaultValue", "Default Value"};
    // What is implausible in what stands in the fields.
    ui::Label Notes{*this, "Notes"};

protected:
    void Load() override;
    bool KeyDown(ui::Key key) override;

private:
    void ShowUnits();
    void ShowRecord();
    void ShowTap();
    void ShowMaterials();
    void OrificeMaterialChosen();
    void PipeMaterialChosen();
    void FlangeChosen();
    void PipeTapChosen();
    void EnableDiameters(bool enabled);
    void SetDefaults();
    void EnableEntries();
    void CopyEnabled();
    void CopyFrom(int run);
    [[nodiscard]] bool SomethingMissing() const;
    void Accept();
    void Store();
    // The record as the fields have it.
    [[nodiscard]] config::RunMechanical Entered() const;
    void Help();
    [[nodiscard]] bool IsSYT6143() const;

    QuietNotes notes_{Notes, [this](audit::Sink& sink) {
                          audit::CheckMechanicalValues(session_.Station, Entered(), sink);
                      }};
};

} // namespace gfc::forms
