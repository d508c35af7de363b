// What the controls of the configurator do to each other.
#include "config/Units.h"
#include "forms/configurador/Configurador.h"
#include "forms/editors/NumericFields.h"
#include "forms/station/CapacityGates.h"

namespace gfc::forms {

namespace {

// Entries of the lists.
constexpr int AGA3 = 0;
constexpr int AGA7 = 1;
constexpr int Densimeter = 0;
constexpr int AGA8 = 1;
constexpr int SGERG88 = 2;

using Controls = std::initializer_list<ui::Control*>;

void Enable(Controls controls, bool enabled) {
    for (ui::Control* control : controls)
        control->SetEnabled(enabled);
}

} // namespace

void Configurador::BindRules() {
    pressure.OptAbsPress.OnClick = [this] { AbsoluteChosen(); };
    pressure.OptGagePress.OnClick = [this] { GageChosen(); };
    pressure.OptAtmPressFixed.OnClick = [this] { AtmPressFixedChosen(); };
    pressure.OptAtmPressExt.OnClick = [this] { AtmPressExtChosen(); };
    general.CombUnits.OnClick = [this] { UnitsChosen(); };
    general.CombStandard.OnClick = [this] { StandardChosen(); };
    general.cbSourceGas.OnClick = [this] { SourceChosen(); };
    Option5.OnClick = [this] { CompositionFromOutsideChosen(); };
    const auto boxes = RunBoxes();
    for (int run = 0; run < config::MaxRuns; ++run)
        boxes.at(static_cast<std::size_t>(run))->OnClick = [this, run] { RunBoxClicked(run); };
    // For show: no other method than the detailed one is ever stored.
    Enable({&Option17, &Option18}, false);
    for (ui::TextBox* field : {&Text1, &Text3, &Text4})
        MakeNumeric(program_.Screen, *field);
    // Deliberately not alike: the standard pressure takes any key, the other two any shape.
    CheckShapeOnLeaving(program_.Screen, Text2);
    FilterKeys(pressure.txtAtmPress);
    FilterKeys(traces.Number);
    const auto station = [this] { return Entered(); };
    TellExpected(Text1, "StandardT", station);
    TellExpected(Text2, "StandardP", station);
    TellExpected(Text3, "IsentropicCoeff", station);
    TellExpected(Text4, "FlowingViscosity", station);
    TellExpected(pressure.txtAtmPress, "AtmPress", station);
    notes_.Follow({&Text1, &Text2, &Text3, &Text4, &pressure.txtAtmPress});
    notes_.FollowChoices({&pressure.OptAbsPress.OnClick, &pressure.OptGagePress.OnClick,
                          &pressure.OptAtmPressFixed.OnClick, &pressure.OptAtmPressExt.OnClick,
                          &general.CombUnits.OnClick, &general.CombStandard.OnClick,
                          &general.cbSourceGas.OnClick});
}

void Configurador::EnableExternalPressure(bool enabled) {
    Enable({&FrameExtAtmPress, &AtmExtName, &AtmExtType, &AtmExtAddr, &btExtAtmChange}, enabled);
}

void Configurador::AbsoluteChosen() {
    pressure.EnableFixed(false);
    EnableExternalPressure(false);
    pressure.EnableSources(false);
}

void Configurador::GageChosen() {
    pressure.EnableSources(true);
    pressure.OptAtmPressExt.Value() ? AtmPressExtChosen() : AtmPressFixedChosen();
}

void Configurador::AtmPressFixedChosen() {
    pressure.EnableFixed(true);
    EnableExternalPressure(false);
}

void Configurador::AtmPressExtChosen() {
    pressure.EnableFixed(false);
    EnableExternalPressure(true);
}

void Configurador::MeasureAbsolute() {
    pressure.OptAbsPress.SetValue(true);
    Enable({&pressure.FrameAtmPress, &pressure.FrameType, &pressure.FrameAtmPressSource,
            &pressure.OptAbsPress, &pressure.OptGagePress},
           true);
}

void Configurador::DisablePressureGroup() {
    pressure.OptAbsPress.SetValue(true);
    Enable({&pressure.FrameAtmPress, &pressure.FrameType, &pressure.FrameAtmPressSource,
            &pressure.OptAbsPress, &pressure.OptGagePress, &pressure.LbAtmPress, &pressure.txtAtmPress,
            &pressure.unitAtmPress, &pressure.OptAtmPressFixed, &pressure.OptAtmPressExt, &AtmExtName,
            &AtmExtType, &AtmExtAddr, &btExtAtmChange, &FrameExtAtmPress},
           false);
}

void Configurador::EnableGasEntries(bool enabled) {
    Enable({&LbIsentropic, &Text3, &LbViscosity, &Text4, &Label25}, enabled);
}

void Configurador::UnitsChosen() {
    const std::string stored = program_.Ini.ReadKey("FlowRuns", "SystemUnits", session_.ConfigFile());
    const std::string chosen = general.CombUnits.Text();
    const auto& defaults = config::DefaultsOf(chosen);
    session_.Station.SystemUnits = chosen;
    Label25.SetCaption(std::string(defaults.ViscosityCaption));
    unitStandardTemp.SetCaption(std::string(defaults.TemperatureCaption));
    unitStandardP.SetCaption(std::string(defaults.PressureCaption));
    pressure.unitAtmPress.SetCaption(std::string(defaults.AtmCaptionInConfigurador));
    // A stored configuration keeps the numbers that a person sees, and the atmospheric pressure stays in any
    // case.
    if (stored.empty()) {
        Text1.SetText(std::string(defaults.StandardT));
        Text2.SetText(std::string(defaults.StandardP));
    } else if (stored != chosen && IsShown()) {
        program_.Screen.Ask(
            {.Title = "System Units change...",
             .Text = "Warning: When changing the system units, please make sure to convert any previously "
                     "configured parameter values for temperatures, pressures and lengths to the new system "
                     "units, so that the Orm Gas Flow Computer can continue to work correctly.",
             .TheIcon = ui::Icon::Information});
    }
}

// Touches neither units nor values, unlike the wizard.
void Configurador::StandardChosen() {
    session_.Station.FlagAGA7 = general.ShowsAGA7();
    EnableGasEntries(!general.ShowsAGA7());
    // Any click on one of these resets the pressure to absolute, whatever the file said.
    if (!general.ShowsAGA7())
        MeasureAbsolute();
    else if (general.ShowsDensimeter())
        DisablePressureGroup();
    // Deliberately undone for this one entry: under AGA-7 the viscosity can be edited here, unlike in the
    // wizard, until the tab of the common parameters is entered.
    Text4.SetEnabled(!general.ShowsAccelabar());
    if (session_.Station.ActiveRunCount < 1)
        return;
    const int verdict = SourceVerdict(program_, general.Choices());
    if (verdict != 0)
        FallBack(verdict <= 2 ? AGA3 : AGA7);
}

// A standard that does not fit either is reported a second time and stays: each is the other's fallback, and
// taking it back too would go on for ever.
void Configurador::FallBack(int standard) {
    if (fallingBack_)
        return;
    fallingBack_ = true;
    general.CombStandard.SetListIndex(standard);
    fallingBack_ = false;
}

void Configurador::SourceChosen() {
    const int source = general.cbSourceGas.ListIndex();
    if (source != Densimeter)
        MeasureAbsolute();
    // The two sources of ISO 12213 deliberately go untested.
    if (source == AGA8 || source == SGERG88)
        GasModelChosen();
    if (general.ShowsDensimeter() && general.ShowsAGA7())
        DisablePressureGroup();
}

void Configurador::GasModelChosen() {
    if (session_.Station.ActiveRunCount > 0) {
        const int verdict = SourceVerdict(program_, general.Choices());
        if (verdict == 2 || verdict == 4)
            return general.cbSourceGas.SetListIndex(Densimeter);
        Enable({&Option5, &Option6, &Option16}, true);
        Option6.SetValue(true);
        Option16.SetValue(true);
    } else if (caso == 3) {
        program_.Screen.Ask({.Title = "Orm Gas Flow Computer Configurator",
                             .Text = "Error: please select at least one run",
                             .TheIcon = ui::Icon::Exclamation});
        general.cbSourceGas.SetListIndex(Densimeter);
    }
}

void Configurador::CompositionFromOutsideChosen() {
    if (session_.Station.ActiveRunCount > 0 && CompositionVerdict(program_, general.Choices()) != 0)
        Option6.SetValue(true);
}

} // namespace gfc::forms
