#pragma once

#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TabbedPane.h"
#include "ui/TextBox.h"

namespace gfc::forms {

// A configuration from nothing: four pages common to the station, the pass over all runs, and the closing
// page from which the file is written.
class WizardFC : public ProgramForm {
public:
    explicit WizardFC(Program& program);

    ui::Label lbStep{*this, "lbStep", "Step 1 of 3"};
    ui::Label lbInfo{*this, "lbInfo", "Common parameters to all runs"};
    ui::TabbedPane wizard{*this, "wizard", {"Common", "Modules", "Pressure", "Gas", "Finished"}};

    ui::Frame Frame1{wizard.OnPage(0), "Frame1", "GENERAL"};
    ui::Label LbStandard{Frame1, "LbStandard", "Flow Calculation Standard"};
    ui::DropDownList CombStandard{Frame1, "CombStandard"};
    ui::Label LbUnits{Frame1, "LbUnits", "System Units"};
    ui::DropDownList CombUnits{Frame1, "CombUnits"};
    ui::Label LbSourceGas{Frame1, "LbSourceGas", "Gas Density Source"};
    ui::DropDownList cbSourceGas{Frame1, "cbSourceGas"};
    ui::Frame Frame2{wizard.OnPage(0), "Frame2", "DEBUGGING OUTPUT"};
    ui::CheckBox Check1{Frame2, "Check1", "Enable data traces"};
    ui::Label LabelDevice{Frame2, "LabelDevice", "Device"};
    ui::TextBox TextDevice{Frame2, "TextDevice"};
    ui::Label LabelNumTrace{Frame2, "LabelNumTrace", "Number of traces"};
    ui::TextBox TextNumTraces{Frame2, "TextNumTraces"};

    ui::Frame Frame9{wizard.OnPage(1), "Frame9", "DATALOG WORKING MODULES"};
    ui::Label LbAnalogModule{Frame9, "LbAnalogModule", "Analog Input Module"};
    ui::DropDownList Combo1{Frame9, "Combo1"};
    ui::Label LbLongModule{Frame9, "LbLongModule", "Long Input Module"};
    ui::DropDownList Combo2{Frame9, "Combo2"};
    ui::Label LbFloatModule{Frame9, "LbFloatModule", "Float Input Module"};
    ui::DropDownList Combo3{Frame9, "Combo3"};

    ui::Frame FrameAtmPress{wizard.OnPage(2), "FrameAtmPress", "PRESSURE MEASUREMENT"};
    ui::Frame FrameType{FrameAtmPress, "FrameType", "Pressure type"};
    ui::OptionButton OptAbsPress{FrameType, "OptAbsPress", "Absolute"};
    ui::OptionButton OptGagePress{FrameType, "OptGagePress", "Gage"};
    ui::Frame FrameAtmPressSource{FrameAtmPress, "FrameAtmPressSource", "Atmospheric pressure source"};
    // Selected by design, so that the load does not run its handling after that of the absolute pressure.
    ui::OptionButton OptAtmPressFixed{FrameAtmPressSource, "OptAtmPressFixed", "Fixed", true};
    ui::OptionButton OptAtmPressExt{FrameAtmPressSource, "OptAtmPressExt", "External I/O"};
    ui::Label LbAtmPress{FrameAtmPressSource, "LbAtmPress", "Atmospheric Pressure"};
    ui::TextBox txtAtmPress{FrameAtmPressSource, "txtAtmPress"};
    ui::Label unitAtmPress{FrameAtmPressSource, "unitAtmPress", "PSI"};

    ui::Frame Frame4{wizard.OnPage(3), "Frame4", "GAS PROPERTIES"};
    ui::Label LbStandardTemp{Frame4, "LbStandardTemp", "Standard Temperature"};
    ui::TextBox TextDensityStandardTemp{Frame4, "TextDensityStandardTemp"};
    ui::Label unitStandardTemp{Frame4, "unitStandardTemp"};
    ui::Label LbStandardP{Frame4, "LbStandardP", "Standard Pressure"};
    ui::TextBox TextDensityStandardP{Frame4, "TextDensityStandardP"};
    ui::Label unitStandardP{Frame4, "unitStandardP"};
    ui::Label LbViscosity{Frame4, "LbViscosity", "Flowing Viscosity"};
    ui::TextBox Text1{Frame4, "Text1"};
    ui::Label Label6{Frame4, "Label6", "cP"};
    ui::Label LbIsentropic{Frame4, "LbIsentropic", "Isentropic Coefficient"};
    ui::TextBox Text2{Frame4, "Text2"};
    ui::OptionButton OptComprensible{Frame4, "OptComprensible", "Compressible fluid"};
    ui::OptionButton OptNoComprensible{Frame4, "OptNoComprensible", "Incompressible fluid"};
    ui::Frame FrCompGas{wizard.OnPage(3), "FrCompGas", "GAS COMPOSITION SOURCE"};
    ui::OptionButton OptComp{FrCompGas, "OptComp", "Manual"};
    ui::OptionButton OptCromatografo{FrCompGas, "OptCromatografo", "External I/O"};
    ui::Frame FrMetAGA8{wizard.OnPage(3), "FrMetAGA8", "DENSITY COMPUTATION METHOD"};
    ui::OptionButton OptDetail{FrMetAGA8, "OptDetail", "Detail"};
    ui::OptionButton OptGross1{FrMetAGA8, "OptGross1", "Gross 1"};
    ui::OptionButton OptGross2{FrMetAGA8, "OptGross2", "Gross 2"};

    ui::Label Label19{wizard.OnPage(4), "Label19", "Configuration Finished !"};
    ui::CommandButton Command1{wizard.OnPage(4), "Command1", "Finished"};

    ui::CommandButton Command2{*this, "Command2", "Help"};
    ui::CommandButton atras{*this, "atras", "Back"};
    ui::CommandButton siguiente{*this, "siguiente", "Next"};
    ui::CommandButton finalizar{*this, "finalizar", "Finish"};
    ui::CommandButton cancelar{*this, "cancelar", "Cancel"};

    // Copies the pages into the station's configuration, as the texts that are stored.
    void StoreWizardValues();
    // Whether the station can carry the standard with the density source: 0, or the failed row, 1 to 4, after
    // the message of the minimum I/O.
    [[nodiscard]] int SourceCapacityCheck();
    // The same for a gas composition from outside: 0 to 2.
    [[nodiscard]] int CompositionCapacityCheck();

protected:
    void Load() override;
    void Unloading() override;
    bool KeyDown(ui::Key key) override;

private:
    // Pages (WizardFC.cpp)
    void SetDefaults();
    void FillModules();
    void FillChoices();
    void ShowPage(int page);
    void ShowGasFrames();
    void RefreshStep();
    void Next();
    void Back();
    void OfferFinish();
    void TabClicked();
    void ShowClosingPage();
    void OpenHelp();

    // What the controls do to each other (WizardRules.cpp)
    void BindRules();
    void TracesChanged();
    void AbsoluteChosen();
    void GageChosen();
    void EnableAtmPress(bool enabled);
    void UnitsChosen();
    void StandardChosen();
    void EnableGasEntries();
    void PresetValues();
    void SourceChosen();
    void CompositionFromOutsideChosen();

    // Gates (WizardGates.cpp)
    [[nodiscard]] bool ShowsAGA7() const;
    [[nodiscard]] bool ShowsDensimeter() const;
    void FallBack(ui::DropDownList& list, int entry);
    void TakeFittingSource();

    // The commit of the pages (WizardStore.cpp)
    [[nodiscard]] bool LacksValue() const;
    void StoreChoices();
    void StorePressure();
    void StoreTraces();
    void StoreModules();

    // The end (WizardSave.cpp)
    void Finish();
    void SetModulesAside();
    void Abandon();
    void Save();
    void CloseForms();
    void Quit();

    int nStep_ = 0;
    int lastPage_ = 3;
    bool finished_ = false;
    bool fallingBack_ = false;
};

} // namespace gfc::forms
