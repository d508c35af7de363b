#include "platform/NameTable.h"

#include "services/CodePage.h"

#include <bit>
#include <cstdint>
#include <utility>

namespace gfc::platform {
namespace {

// In 64 bits on every machine, and folded into those that an address of this one has.
std::size_t Hash(std::string_view name) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char byte : name)
        hash = (hash ^ services::FoldByte(byte)) * 1099511628211U;
    return static_cast<std::size_t>(hash ^ (hash >> 32));
}

} // namespace

// One slot in two is free, so that a search soon ends.
NameTable::NameTable(std::vector<std::string_view> names) : names_(std::move(names)) {
    slots_.assign(std::bit_ceil(2 * names_.size() + 1), 0);
    for (std::size_t place = 0; place < names_.size(); ++place)
        if (auto& slot = slots_[SlotOf(names_[place])]; slot == 0)
            slot = static_cast<std::uint32_t>(place + 1);
}

// That of the name, else the free one where it would stand.
std::size_t NameTable::SlotOf(std::string_view name) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = Hash(name) & mask;
    while (slots_[slot] != 0 && !services::EqualBytesNoCase(names_[slots_[slot] - 1], name))
        slot = (slot + 1) & mask;
    return slot;
}

std::optional<std::size_t> NameTable::Find(std::string_view name) const {
    const std::uint32_t place = slots_[SlotOf(name)];
    return place == 0 ? std::nullopt : std::optional<std::size_t>(place - 1);
}

} // namespace gfc::platform
