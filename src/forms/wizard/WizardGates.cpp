// Whether the station's registers carry what the wizard's pages choose.
#include "forms/station/CapacityGates.h"
#include "forms/wizard/WizardFC.h"

namespace gfc::forms {

int WizardFC::SourceCapacityCheck() {
    const int verdict = SourceVerdict(program_, general.Choices());
    if (verdict == 0 && general.cbSourceGas.ListIndex() != ui::DropDownList::None)
        TakeFittingSource();
    return verdict;
}

void WizardFC::TakeFittingSource() {
    OptComp.SetValue(!general.ShowsDensimeter());
    FrCompGas.SetVisible(!general.ShowsDensimeter());
    lastPage_ = 3;
    RefreshStep();
}

int WizardFC::CompositionCapacityCheck() {
    return OptCromatografo.Value() ? CompositionVerdict(program_, general.Choices()) : 0;
}

void WizardFC::FallBack(ui::DropDownList& list, int entry) {
    // A fallback that does not fit either is reported a second time and stays: each entry is the other's
    // fallback, and taking it back too would go on for ever.
    if (fallingBack_)
        return;
    fallingBack_ = true;
    list.SetListIndex(entry);
    fallingBack_ = false;
}

} // namespace gfc::forms
