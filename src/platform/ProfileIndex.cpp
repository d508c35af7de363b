#include "platform/ProfileIndex.h"

#include "services/CodePage.h"

#include <algorithm>
#include <utility>

namespace gfc::platform {
namespace {

using services::EqualBytesNoCase;

// From this reading on a table of the section pays for itself.
constexpr int WorthATable = 8;

} // namespace

ProfileIndex::Table::Table(profile::SectionLines lines) {
    std::vector<std::string_view> names;
    while (lines.Next())
        if (const auto entry = lines.AsEntry()) {
            names.push_back(entry->Key);
            values_.push_back(entry->Value);
        }
    names_ = NameTable(std::move(names));
}

std::optional<std::string_view> ProfileIndex::Table::Find(std::string_view key) const {
    const auto place = names_.Find(key);
    return place ? std::optional(values_[*place]) : std::nullopt;
}

std::string ProfileIndex::Read(std::string_view section, std::string_view key) {
    const auto value = Find(SectionOf(profile::CallName(section)), profile::CallName(key));
    return std::string(value.value_or("").substr(0, ProfileValueLimit));
}

ProfileIndex::Section& ProfileIndex::SectionOf(std::string_view name) {
    const auto known =
        std::ranges::find_if(sections_, [&](const Section& s) { return EqualBytesNoCase(s.Name, name); });
    if (known != sections_.end())
        return *known;
    return sections_.emplace_back(Section{std::string(name), profile::FindHeader(bytes_, name), 0, {}});
}

std::optional<std::string_view> ProfileIndex::Find(Section& section, std::string_view key) const {
    if (!section.Header)
        return std::nullopt;
    profile::SectionLines lines(bytes_, *section.Header);
    if (++section.Readings < WorthATable) {
        const auto entry = profile::FindEntry(lines, key);
        return entry ? std::optional(entry->Value) : std::nullopt;
    }
    if (!section.Entries)
        section.Entries.emplace(lines);
    return section.Entries->Find(key);
}

} // namespace gfc::platform
