#include "workshop/usage/TagUses.h"

#include "workshop/store/WholeFile.h"
#include "workshop/text/Letters.h"
#include "workshop/usage/ConfigurationFile.h"

#include <algorithm>
#include <iterator>

namespace gfc::workshop {

namespace {

constexpr std::string_view TagKeyEnd = "KDIOTag"; // beside it stand the same with "KDIOType", "KDIORegAddr"

bool NamesTag(const ConfigurationEntry& entry) {
    const std::string_view key = entry.Key;
    return key.size() >= TagKeyEnd.size() && SameName(key.substr(key.size() - TagKeyEnd.size()), TagKeyEnd) &&
           !entry.Value.empty();
}

bool IsRunOff(const std::vector<ConfigurationEntry>& entries, const std::string& section) {
    return SameName(section.substr(0, 3), "Run") && !SameName(ValueOf(entries, "FlowRuns", section), "Yes");
}

TagUse UseOf(const std::vector<ConfigurationEntry>& entries, const ConfigurationEntry& entry) {
    const std::string variable = entry.Key.substr(0, entry.Key.size() - TagKeyEnd.size());
    TagUse use;
    use.Section = entry.Section;
    use.Off = IsRunOff(entries, entry.Section);
    use.Key = entry.Key;
    use.Tag = entry.Value;
    use.Class = ValueOf(entries, entry.Section, variable + "KDIOType");
    use.Register = ValueOf(entries, entry.Section, variable + "KDIORegAddr");
    return use;
}

} // namespace

std::vector<TagUse> TagUsesOf(const Project& project, const Station& station) {
    const std::filesystem::path file = ConfigurationFileOf(project, station.Name);
    if (!std::filesystem::is_regular_file(file)) {
        return {};
    }
    const std::vector<ConfigurationEntry> entries = EntriesOf(ReadWhole(file));
    std::vector<TagUse> uses;
    for (const ConfigurationEntry& entry : entries) {
        if (NamesTag(entry)) {
            TagUse& use = uses.emplace_back(UseOf(entries, entry));
            use.Station = station.Name;
            use.File = file;
        }
    }
    return uses;
}

std::vector<TagUse> UsesNaming(const std::vector<TagUse>& uses, const std::string& tag) {
    std::vector<TagUse> naming;
    std::copy_if(uses.begin(), uses.end(), std::back_inserter(naming),
                 [&](const TagUse& use) { return SameName(use.Tag, tag); });
    return naming;
}

} // namespace gfc::workshop
