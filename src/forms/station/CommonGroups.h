#pragma once

#include "config/VarINIFile.h"
#include "forms/station/CapacityGates.h"
#include "project/WorkingModules.h"
#include "ui/Buttons.h"
#include "ui/DropDownList.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

#include <string>

// The groups of common parameters that the wizard and the configurator both show, each with what it decides
// without a look at the others. Each stands on a page of its form.
namespace gfc::forms {

// The three choices that decide what else there is to enter.
struct GeneralGroup {
    explicit GeneralGroup(ui::Place page);

    [[nodiscard]] bool ShowsAGA7() const;
    [[nodiscard]] bool ShowsAccelabar() const;
    [[nodiscard]] bool ShowsDensimeter() const;
    [[nodiscard]] GateChoices Choices() const;

    ui::Frame Frame1;
    ui::Label LbStandard{Frame1, "LbStandard", "Flow Calculation Standard"};
    ui::DropDownList CombStandard{Frame1, "CombStandard"};
    ui::Label LbUnits{Frame1, "LbUnits", "System Units"};
    ui::DropDownList CombUnits{Frame1, "CombUnits"};
    ui::Label LbSourceGas{Frame1, "LbSourceGas", "Gas Density Source"};
    ui::DropDownList cbSourceGas{Frame1, "cbSourceGas"};
};

// The package's trace file on the station; the names of its two fields are those of the form.
struct TracesGroup {
    TracesGroup(ui::Place page, std::string deviceName, std::string numberName);

    // The fields follow the check box.
    void Refresh();
    void Store(config::StationConfig& station) const;

    ui::Frame Frame2;
    ui::CheckBox Check1{Frame2, "Check1", "Enable data traces"};
    ui::Label LabelDevice{Frame2, "LabelDevice", "Device"};
    ui::TextBox Device;
    ui::Label LabelNumTrace{Frame2, "LabelNumTrace", "Number of traces"};
    ui::TextBox Number;
};

// The virtual modules that the package keeps for its own registers.
struct ModulesGroup {
    explicit ModulesGroup(ui::Place page);

    // Offers the candidates; nothing is selected.
    void Fill(const project::WorkingModuleCandidates& candidates);
    void SelectFirst();
    void SetListsEnabled(bool enabled);
    // A list without a selection gives the stored module, which stays until a person picks another one.
    [[nodiscard]] project::WorkingModuleNames Chosen(const config::WorkingModules& stored) const;
    // With the registers that the inventory knows of the chosen modules.
    void Store(config::WorkingModules& working, const project::TagInventory& inventory) const;

    ui::Frame Frame9;
    ui::Label LbAnalogModule{Frame9, "LbAnalogModule", "Analog Input Module"};
    ui::DropDownList Combo1{Frame9, "Combo1"};
    ui::Label LbLongModule{Frame9, "LbLongModule", "Long Input Module"};
    ui::DropDownList Combo2{Frame9, "Combo2"};
    ui::Label LbFloatModule{Frame9, "LbFloatModule", "Float Input Module"};
    ui::DropDownList Combo3{Frame9, "Combo3"};
};

// How the static pressure is measured, and where a gage reading takes the atmospheric pressure from.
struct PressureGroup {
    PressureGroup(ui::Place page, std::string sourceFrameName);

    void EnableFixed(bool enabled);
    void EnableSources(bool enabled);
    [[nodiscard]] bool IsExternal() const;
    void Store(config::StationConfig& station) const;

    ui::Frame FrameAtmPress;
    ui::Frame FrameType{FrameAtmPress, "FrameType", "Pressure type"};
    ui::OptionButton OptAbsPress{FrameType, "OptAbsPress", "Absolute"};
    ui::OptionButton OptGagePress{FrameType, "OptGagePress", "Gage"};
    ui::Frame FrameAtmPressSource;
    // Selected by design, so that the load does not run its handling after that of the absolute pressure.
    ui::OptionButton OptAtmPressFixed{FrameAtmPressSource, "OptAtmPressFixed", "Fixed", true};
    ui::OptionButton OptAtmPressExt{FrameAtmPressSource, "OptAtmPressExt", "External I/O"};
    ui::Label LbAtmPress{FrameAtmPressSource, "LbAtmPress", "Atmospheric Pressure"};
    ui::TextBox txtAtmPress{FrameAtmPressSource, "txtAtmPress"};
    ui::Label unitAtmPress{FrameAtmPressSource, "unitAtmPress", "PSI"};
};

} // namespace gfc::forms
