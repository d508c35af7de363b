#include "plan/TagPools.h"

#include "services/Text.h"

namespace gfc::plan {

namespace {

std::size_t PlaceOf(binding::TagClass tagClass) {
    return static_cast<std::size_t>(tagClass);
}

std::string RegisterOf(const project::Tag& tag) {
    return services::FoldCase(tag.RegType) + " " + std::to_string(tag.RegAddr);
}

} // namespace

TagPools::TagPools(const project::TagInventory& inventory) {
    using enum binding::TagClass;
    lists_[PlaceOf(Float)] = inventory.AvailFloat;
    lists_[PlaceOf(Long)] = inventory.AvailLong;
    lists_[PlaceOf(Analog)] = inventory.AvailAnalog;
    lists_[PlaceOf(Digital)] = inventory.AvailDigital;
}

const project::TagList& TagPools::Of(binding::TagClass tagClass) const {
    return lists_[PlaceOf(tagClass)];
}

void TagPools::Take(const project::Tag& tag) {
    taken_.insert(RegisterOf(tag));
}

const project::Tag* TagPools::Next(binding::TagClass tagClass) {
    const project::TagList& list = Of(tagClass);
    for (std::size_t& place = next_[PlaceOf(tagClass)]; place < list.size(); ++place)
        if (taken_.insert(RegisterOf(list[place])).second)
            return &list[place++];
    return nullptr;
}

} // namespace gfc::plan
