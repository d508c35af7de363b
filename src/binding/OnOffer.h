#pragma once

#include "binding/BindingStage.h"
#include "project/TagInventory.h"

namespace gfc::binding {

// Analog and digital tags share a list: a stage of outputs offers the analog ones there.
[[nodiscard]] bool OffersAnalog(BindingStage stage);

// What the stages behind this one are offered, given what it has left in its lists of floats and of analog or
// digital tags.
void LeaveOnOffer(BindingStage stage, project::TagList floats, project::TagList analogOrDigital,
                  project::TagInventory& pools);

} // namespace gfc::binding
