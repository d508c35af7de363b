#include "platform/ProfileIndex.h"

#include "services/CodePage.h"

#include <algorithm>
#include <bit>

namespace gfc::platform {
namespace {

using services::EqualBytesNoCase;

// From this reading on a table of the section pays for itself.
constexpr int WorthATable = 8;

std::size_t Hash(std::string_view name) {
    std::size_t hash = 14695981039346656037U;
    for (const char byte : name)
        hash = (hash ^ services::FoldByte(byte)) * 1099511628211U;
    return hash ^ (hash >> 32);
}

} // namespace

// One slot in two is free, so that a search soon ends.
ProfileIndex::Table::Table(profile::SectionLines lines) {
    while (lines.Next())
        if (const auto entry = lines.AsEntry())
            entries_.push_back(*entry);
    slots_.resize(std::bit_ceil(2 * entries_.size() + 1));
    for (std::size_t i = 0; i < entries_.size(); ++i)
        if (auto& slot = slots_[SlotOf(entries_[i].Key)]; slot == 0)
            slot = static_cast<std::uint32_t>(i + 1);
}

// That of the key, else the free one where it would stand.
std::size_t ProfileIndex::Table::SlotOf(std::string_view key) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = Hash(key) & mask;
    while (slots_[slot] != 0 && !EqualBytesNoCase(entries_[slots_[slot] - 1].Key, key))
        slot = (slot + 1) & mask;
    return slot;
}

std::optional<profile::Entry> ProfileIndex::Table::Find(std::string_view key) const {
    const std::uint32_t place = slots_[SlotOf(key)];
    return place == 0 ? std::nullopt : std::optional(entries_[place - 1]);
}

std::string ProfileIndex::Read(std::string_view section, std::string_view key) {
    const auto entry = Find(SectionOf(profile::CallName(section)), profile::CallName(key));
    return entry ? std::string(entry->Value.substr(0, ProfileValueLimit)) : std::string();
}

ProfileIndex::Section& ProfileIndex::SectionOf(std::string_view name) {
    const auto known =
        std::ranges::find_if(sections_, [&](const Section& s) { return EqualBytesNoCase(s.Name, name); });
    if (known != sections_.end())
        return *known;
    return sections_.emplace_back(Section{std::string(name), profile::FindHeader(bytes_, name), 0, {}});
}

std::optional<profile::Entry> ProfileIndex::Find(Section& section, std::string_view key) const {
    if (!section.Header)
        return std::nullopt;
    profile::SectionLines lines(bytes_, *section.Header);
    if (++section.Readings < WorthATable)
        return profile::FindEntry(lines, key);
    if (!section.Entries)
        section.Entries.emplace(lines);
    return section.Entries->Find(key);
}

} // namespace gfc::platform
