#pragma once

#include "workshop/usage/TagUses.h"

#include <string>
#include <vector>

namespace gfc::workshop {

/// Adds to `uses` where the station's configuration file names one of these tags.
void AddUses(const Project& project, const Station& station, const std::vector<std::string>& tags,
             std::vector<TagUse>& uses);

enum class Breaks {
    Would, ///< of a preview
    Do     ///< of what was done
};

/// Tells, station by station, that these bindings no longer fit the project and what to do; nothing for none.
/// It is no failure.
void WarnOf(const std::vector<TagUse>& uses, Breaks breaks = Breaks::Do);

} // namespace gfc::workshop
