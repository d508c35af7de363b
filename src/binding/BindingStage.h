#pragma once

namespace gfc::binding {

// What one showing of TagRuns edits. The in-place update numbers its kinds likewise; CountRequiredTags does
// not.
enum class BindingStage {
    None = 0,
    RunInputs = 1,
    RunOutputs = 2,
    GasOutputs = 3,
    GasInputs = 4,
    CommonInputs = 5
};

} // namespace gfc::binding
