#include "workshop/command/UseWarnings.h"

#include "workshop/command/Commands.h"
#include "workshop/text/Paths.h"

#include <iterator>

namespace gfc::workshop {

void AddUses(const Project& project, const Station& station, const std::vector<std::string>& tags,
             std::vector<TagUse>& uses) {
    if (tags.empty()) {
        return;
    }
    const std::vector<TagUse> all = TagUsesOf(project, station);
    for (const std::string& tag : tags) {
        const std::vector<TagUse> naming = UsesNaming(all, tag);
        uses.insert(uses.end(), naming.begin(), naming.end());
    }
}

void WarnOf(const std::vector<TagUse>& uses) {
    for (const TagUse& use : uses) {
        Tell("warning: " + PathText(use.File.filename()) + " names " + use.Tag + " at " + use.Class + ' ' +
             use.Register + " (" + use.Section + ", " + use.Key + ").");
    }
    if (!uses.empty()) {
        Tell("warning: check the station in the configurator and bind these anew.");
    }
}

} // namespace gfc::workshop
