#pragma once

#include "plan/Change.h"
#include "plan/Rebind.h"
#include "plan/Wish.h"

#include <optional>
#include <string>

namespace gfc::plan {

// What of the check's errors keeps a plan from being written. The windows refuse what their fields and lists
// do, but let a bore through that is wider than its pipe, or one pulse counter for two runs.
enum class Strictness { AllErrors, AsTheWindows };

struct Circumstances {
    const project::Project& Project;
    std::string User; // in the place of what the plan says; empty where that counts
    std::vector<suggest::OtherStation> Others;
    plan::Strictness Strictness = plan::Strictness::AllErrors;
};

// The whole configuration that a plan says, byte for byte as the wizard would write it with the same choices.
// Nothing, with at least one fault more, where anything does not fit the station or the rules. before is what
// stands in the file's place.
[[nodiscard]] std::optional<Checked> Assemble(const StationWish& wish, Destination to,
                                              const Circumstances& circumstances, config::FileState before,
                                              Faults& faults);

} // namespace gfc::plan
