// What the wizard's pages say, as the texts that are stored.
#include "config/Vocabulary.h"
#include "forms/station/CommonStore.h"
#include "forms/wizard/WizardFC.h"
#include "project/WorkingModules.h"

namespace gfc::forms {

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
    StoreSource(station, config::StoredSource(cbSourceGas.Text()), OptCromatografo.Value());
    station.SystemUnits = CombUnits.Text();
    station.StandardT = TextDensityStandardTemp.Text();
    station.StandardP = TextDensityStandardP.Text();
    station.FlowingViscosity = Text1.Text();
    station.IsentropicCoeff = Text2.Text();
    station.Compressible = YesOrNo(OptComprensible.Value());
}

void WizardFC::StorePressure() {
    forms::StorePressure(session_.Station, OptGagePress.Value(), OptAtmPressExt.Value(), txtAtmPress.Text());
}

void WizardFC::StoreTraces() {
    forms::StoreTraces(session_.Station, Check1.Value(), TextDevice.Text(), TextNumTraces.Text());
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
