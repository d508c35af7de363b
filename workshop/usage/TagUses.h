// Which variables of which stations are bound to a tag, by what the configuration files say.
#pragma once

#include "workshop/store/Project.h"
#include "workshop/store/Stations.h"

#include <filesystem>
#include <string>
#include <vector>

namespace gfc::workshop {

struct TagUse {
    std::string Station;
    std::filesystem::path File;
    std::string Section; ///< "Run1", or "AGA3" and so on for what all runs share
    bool Off = false;    ///< the section is of a run that is not enabled
    std::string Key;     ///< as the file has it, such as "GasPressKDIOTag"
    std::string Tag;     ///< as the file has it
    std::string Class;
    std::string Register;
};

/// What the station's configuration file binds, in its order; empty when there is no file. Throws Failure
/// when the file cannot be read.
[[nodiscard]] std::vector<TagUse> TagUsesOf(const Project& project, const Station& station);

/// Those of the uses that name this tag, whatever the case of its letters.
[[nodiscard]] std::vector<TagUse> UsesNaming(const std::vector<TagUse>& uses, const std::string& tag);

} // namespace gfc::workshop
