// What the wizard's pages say, as the texts that are stored.
#include "config/Vocabulary.h"
#include "forms/station/CommonStore.h"
#include "forms/wizard/WizardFC.h"

namespace gfc::forms {

void WizardFC::StoreWizardValues() {
    StoreChoices(session_.Station);
    pressure.Store(session_.Station);
    traces.Store(session_.Station);
    modules.Store(session_.Station.WorkingModules, session_.Inventory);
}

void WizardFC::StoreChoices(config::StationConfig& station) const {
    station.FlowAlgorithm = config::StoredAlgorithm(general.CombStandard.Text());
    station.FlagAGA7 = station.FlowAlgorithm == config::algorithm::AGA7;
    StoreSource(station, config::StoredSource(general.cbSourceGas.Text()), OptCromatografo.Value());
    station.SystemUnits = general.CombUnits.Text();
    station.StandardT = TextDensityStandardTemp.Text();
    station.StandardP = TextDensityStandardP.Text();
    station.FlowingViscosity = Text1.Text();
    station.IsentropicCoeff = Text2.Text();
    station.Compressible = YesOrNo(OptComprensible.Value());
}

config::StationConfig WizardFC::Entered() const {
    config::StationConfig station;
    StoreChoices(station);
    pressure.Store(station);
    return station;
}

bool WizardFC::LacksValue() const {
    return TextDensityStandardTemp.Text().empty() || TextDensityStandardP.Text().empty() ||
           Text2.Text().empty() || Text1.Text().empty();
}

} // namespace gfc::forms
