#pragma once

#include "plan/Assemble.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::plan {

struct ApplyOptions {
    std::string User; // in the place of what the plan says; empty where that counts
    bool MayReplace = false;
    plan::Strictness Strictness = plan::Strictness::AllErrors;
};

// What has become of a whole table: all of its stations, or none and every fault. onStation is told of each
// one before it is looked at, and ends it by false; what is found until then is given back then.
[[nodiscard]] std::vector<Checked> PlanTable(std::string_view csv, platform::Files& files,
                                             project::AddOnLibrary& library, const project::Project& project,
                                             const ApplyOptions& options, Faults& faults,
                                             const std::function<bool(const std::string&)>& onStation);

} // namespace gfc::plan
