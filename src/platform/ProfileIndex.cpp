#include "platform/ProfileIndex.h"

#include "platform/ProfileLines.h"
#include "services/CodePage.h"

#include <algorithm>

namespace gfc::platform {

std::size_t ProfileIndex::NameHash::operator()(std::string_view name) const {
    std::size_t hash = 14695981039346656037U;
    for (const char byte : name)
        hash = (hash ^ services::FoldByte(byte)) * 1099511628211U;
    return hash;
}

bool ProfileIndex::SameName::operator()(std::string_view left, std::string_view right) const {
    return services::EqualBytesNoCase(left, right);
}

std::string ProfileIndex::Read(std::string_view section, std::string_view key) {
    const Values& values = ValuesOf(profile::CallName(section));
    const auto found = values.find(profile::CallName(key));
    return found == values.end() ? std::string() : std::string(found->second.substr(0, ProfileValueLimit));
}

const ProfileIndex::Values& ProfileIndex::ValuesOf(std::string_view section) {
    const auto known = std::ranges::find_if(
        sections_, [&](const Section& s) { return services::EqualBytesNoCase(s.Name, section); });
    if (known != sections_.end())
        return known->ValueOf;
    return sections_.emplace_back(Section{std::string(section), Collect(section)}).ValueOf;
}

ProfileIndex::Values ProfileIndex::Collect(std::string_view section) const {
    Values values;
    const auto header = profile::FindHeader(bytes_, section);
    if (!header)
        return values;
    // Of equal names the first one stays.
    for (profile::SectionLines lines(bytes_, *header); lines.Next();)
        if (const auto entry = lines.AsEntry())
            values.emplace(entry->Key, entry->Value);
    return values;
}

} // namespace gfc::platform
