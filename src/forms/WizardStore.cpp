// What the wizard's pages say, as the texts that are stored.
#include "config/Vocabulary.h"
#include "forms/WizardFC.h"
#include "project/WorkingModules.h"

namespace gfc::forms {

namespace {

std::string YesOrNo(bool yes) {
    return std::string(yes ? config::Yes : config::No);
}

} // namespace

void WizardFC::StoreWizardValues() {
    StoreChoices();
    StorePressure();
    StoreTraces();
    StoreModules();
}

void WizardFC::StoreChoices() {
    auto& station = session_.Station;
    station.FlowAlgorithm = config::StoredAlgorithm(CombStandard.Text());
    station.FlagAGA7 = station.FlowAlgorithm == config::algorithm::AGA7;
    station.GasDensitySource = config::StoredSource(cbSourceGas.Text());
    station.Measured = ShowsDensimeter();
    station.SystemUnits = CombUnits.Text();
    if (!ShowsDensimeter()) {
        station.AGA8Method = config::DetailMethod;
        station.AGA8CalInput =
            OptCromatografo.Value() ? config::CompositionMeasured : config::CompositionFixed;
    }
    station.StandardT = TextDensityStandardTemp.Text();
    station.StandardP = TextDensityStandardP.Text();
    station.FlowingViscosity = Text1.Text();
    station.IsentropicCoeff = Text2.Text();
    station.Compressible = YesOrNo(OptComprensible.Value());
}

void WizardFC::StorePressure() {
    auto& station = session_.Station;
    const bool external = OptGagePress.Value() && OptAtmPressExt.Value();
    station.PressType = OptGagePress.Value() ? config::Gage : config::Absolute;
    station.ExtAtmPress = YesOrNo(external);
    if (!external)
        station.AtmPress = txtAtmPress.Text();
}

void WizardFC::StoreTraces() {
    auto& station = session_.Station;
    station.EnableDataTraces = YesOrNo(Check1.Value());
    // Without traces the model keeps what it holds, and that is what the file gets.
    if (!Check1.Value())
        return;
    station.DeviceDataTraces = TextDevice.Text();
    station.NumberTraces = TextNumTraces.Text();
}

void WizardFC::StoreModules() {
    auto& working = session_.Station.WorkingModules;
    working.WrkAnalogModName = Combo1.Text();
    working.WrkIntLongModName = Combo2.Text();
    working.WrkFloatModName = Combo3.Text();
    project::ResolveWorkingModuleRegisters(session_.Inventory, {Combo1.Text(), Combo2.Text(), Combo3.Text()},
                                           working);
}

bool WizardFC::LacksValue() const {
    return TextDensityStandardTemp.Text().empty() || TextDensityStandardP.Text().empty() ||
           Text2.Text().empty() || Text1.Text().empty();
}

} // namespace gfc::forms
