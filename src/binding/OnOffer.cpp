#include "binding/OnOffer.h"

#include <utility>

namespace gfc::binding {

bool OffersAnalog(BindingStage stage) {
    return stage == BindingStage::RunOutputs || stage == BindingStage::GasOutputs;
}

// An empty list leaves its old tags on offer, except the analog one. The long tags are never taken away: one
// used by a run is offered to the next. All of it deliberate.
void LeaveOnOffer(BindingStage stage, project::TagList floats, project::TagList analogOrDigital,
                  project::TagInventory& pools) {
    if (!floats.empty())
        pools.AvailFloat = std::move(floats);
    if (OffersAnalog(stage))
        pools.AvailAnalog = std::move(analogOrDigital);
    else if (!analogOrDigital.empty())
        pools.AvailDigital = std::move(analogOrDigital);
}

} // namespace gfc::binding
