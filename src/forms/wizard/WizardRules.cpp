// What the controls of the wizard's pages do to each other.
#include "config/Units.h"
#include "config/Vocabulary.h"
#include "forms/editors/NumericFields.h"
#include "forms/wizard/WizardFC.h"

namespace gfc::forms {

namespace {

constexpr int AGA3 = 0;
constexpr int AGA7 = 1;
constexpr int GBT = 3;
constexpr int US = 0;
constexpr int PracticalSI = 4;
constexpr int SGERG88 = 2;
constexpr int ISO12213_3 = 4;

} // namespace

void WizardFC::BindRules() {
    pressure.OptAbsPress.OnClick = [this] { AbsoluteChosen(); };
    pressure.OptGagePress.OnClick = [this] { GageChosen(); };
    pressure.OptAtmPressFixed.OnClick = [this] { pressure.EnableFixed(true); };
    pressure.OptAtmPressExt.OnClick = [this] { pressure.EnableFixed(false); };
    general.CombUnits.OnClick = [this] { UnitsChosen(); };
    general.CombStandard.OnClick = [this] { StandardChosen(); };
    general.cbSourceGas.OnClick = [this] { SourceChosen(); };
    OptCromatografo.OnClick = [this] { CompositionFromOutsideChosen(); };
    for (ui::TextBox* field : {&Text1, &Text2, &TextDensityStandardTemp})
        MakeNumeric(program_.Screen, *field);
    // Deliberately not alike: the standard pressure takes any key, the atmospheric pressure any shape.
    CheckShapeOnLeaving(program_.Screen, TextDensityStandardP);
    FilterKeys(pressure.txtAtmPress);
    const auto station = [this] { return Entered(); };
    TellExpected(TextDensityStandardTemp, "StandardT", station);
    TellExpected(TextDensityStandardP, "StandardP", station);
    TellExpected(Text1, "FlowingViscosity", station);
    TellExpected(Text2, "IsentropicCoeff", station);
    TellExpected(pressure.txtAtmPress, "AtmPress", station);
    notes_.Follow({&Text1, &Text2, &TextDensityStandardTemp, &TextDensityStandardP, &pressure.txtAtmPress});
    notes_.FollowChoices({&pressure.OptAbsPress.OnClick, &pressure.OptGagePress.OnClick,
                          &pressure.OptAtmPressFixed.OnClick, &pressure.OptAtmPressExt.OnClick,
                          &general.CombUnits.OnClick, &general.CombStandard.OnClick,
                          &general.cbSourceGas.OnClick});
}

void WizardFC::AbsoluteChosen() {
    pressure.EnableFixed(false);
    pressure.EnableSources(false);
}

void WizardFC::GageChosen() {
    pressure.EnableSources(true);
    pressure.EnableFixed(!pressure.OptAtmPressExt.Value());
}

// Overwrites what was entered, without a question and without converting anything.
void WizardFC::UnitsChosen() {
    session_.Station.SystemUnits = general.CombUnits.Text();
    const auto& defaults = config::DefaultsOf(general.CombUnits.Text());
    Label6.SetCaption(std::string(defaults.ViscosityCaption));
    Text1.SetText(std::string(config::start::FlowingViscosity));
    unitStandardTemp.SetCaption(std::string(defaults.TemperatureCaption));
    TextDensityStandardTemp.SetText(std::string(defaults.StandardT));
    unitStandardP.SetCaption(std::string(defaults.PressureCaption));
    TextDensityStandardP.SetText(std::string(defaults.StandardP));
    pressure.unitAtmPress.SetCaption(std::string(defaults.AtmCaptionInWizard));
    pressure.txtAtmPress.SetText(std::string(defaults.AtmPress));
}

void WizardFC::StandardChosen() {
    session_.Station.FlagAGA7 = general.ShowsAGA7();
    EnableGasEntries();
    if (general.cbSourceGas.ListIndex() != ui::DropDownList::None) {
        const int verdict = SourceCapacityCheck();
        if (verdict != 0)
            FallBack(general.CombStandard, verdict <= 2 ? AGA3 : AGA7);
    }
    PresetValues();
    const int standard = general.CombStandard.ListIndex();
    Text1.SetEnabled(standard == AGA3 || standard == GBT);
}

void WizardFC::EnableGasEntries() {
    const bool enabled = !general.ShowsAGA7();
    LbViscosity.SetEnabled(enabled);
    Text1.SetEnabled(enabled);
    Label6.SetEnabled(enabled);
    LbIsentropic.SetEnabled(enabled);
    Text2.SetEnabled(enabled);
}

void WizardFC::PresetValues() {
    if (general.CombStandard.ListIndex() == GBT) {
        general.CombUnits.SetListIndex(PracticalSI);
        Text1.SetText(std::string(config::start::ViscosityOfGBT));
        Text2.SetText(std::string(config::start::IsentropicOfGBT));
        return;
    }
    // The isentropic coefficient deliberately stays: that of GBT21446 survives a change of the standard.
    general.CombUnits.SetListIndex(US);
    Text1.SetText(std::string(config::start::FlowingViscosity));
}

void WizardFC::SourceChosen() {
    const int verdict = SourceCapacityCheck();
    if (verdict != 0)
        FallBack(general.cbSourceGas, verdict % 2 == 0 ? 0 : 1);
    const int source = general.cbSourceGas.ListIndex();
    const bool gross = source == SGERG88 || source == ISO12213_3;
    OptCromatografo.SetEnabled(!gross);
    OptDetail.SetEnabled(!gross);
}

void WizardFC::CompositionFromOutsideChosen() {
    if (CompositionCapacityCheck() != 0)
        OptComp.SetValue(true);
}

} // namespace gfc::forms
