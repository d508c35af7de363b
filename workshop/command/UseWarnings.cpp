#include "workshop/command/UseWarnings.h"

#include "workshop/command/Commands.h"
#include "workshop/text/Paths.h"

#include <algorithm>
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

void WarnOf(const std::vector<TagUse>& uses, Breaks breaks) {
    const std::string_view verb = breaks == Breaks::Would ? " would break" : " no longer fit";
    for (auto use = uses.begin(); use != uses.end(); ++use) {
        if (use == uses.begin() || std::prev(use)->Station != use->Station) {
            const auto count = std::count_if(
                use, uses.end(), [&](const TagUse& each) { return each.Station == use->Station; });
            Tell("warning: " + use->Station + ": " +
                 Counted(static_cast<std::size_t>(count), "stored binding") + std::string(verb) +
                 (count == 1 && breaks == Breaks::Do ? "s:" : ":"));
        }
        Tell("warning: " + PathText(use->File.filename()) + " names " + use->Tag + " at " + use->Class + ' ' +
             use->Register + " (" + use->Section + ", " + use->Key + ").");
    }
    if (!uses.empty()) {
        Tell("warning: check the station in the configurator and bind these anew.");
    }
}

} // namespace gfc::workshop
