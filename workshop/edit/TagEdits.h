// What a person changes of single tags, with the rules that hold for it.
#pragma once

#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"

#include <string>

namespace gfc::workshop {

struct EditOfTag {
    std::string Station;
    std::string Tag;    ///< whatever the case of its letters
    std::string Target; ///< the new name or the new register; empty for a removal
};

/// "FX 1201".
[[nodiscard]] std::string PlaceText(const Tag& tag);

/// Each carries the edit out in one step of the project and gives the line that tells what was done. Throws
/// Failure, with the project as it was, where there is no such station or tag, where the target cannot be, or
/// where another tag of the station has it.
std::string RenameTag(Project& project, const EditOfTag& edit);
std::string MoveTag(Project& project, const EditOfTag& edit);
std::string RemoveTag(Project& project, const EditOfTag& edit);

} // namespace gfc::workshop
