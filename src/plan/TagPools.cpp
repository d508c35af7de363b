#include "plan/TagPools.h"

#include "plan/Rebind.h"
#include "services/Text.h"
#include "suggest/Facts.h"

#include <algorithm>
#include <functional>

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
    pools_[PlaceOf(Float)].Tags = inventory.AvailFloat;
    pools_[PlaceOf(Long)].Tags = inventory.AvailLong;
    pools_[PlaceOf(Analog)].Tags = inventory.AvailAnalog;
    pools_[PlaceOf(Digital)].Tags = inventory.AvailDigital;
    for (Pool& pool : pools_)
        for (std::size_t place = 0; place < pool.Tags.size(); ++place)
            pool.ByName.emplace(services::FoldCase(pool.Tags[place].TagName), place);
}

std::vector<const project::Tag*> TagPools::AllNamed(const Pool& pool, std::string_view name) const {
    std::vector<const project::Tag*> tags;
    const auto [begin, end] = pool.ByName.equal_range(services::FoldCase(name));
    for (auto found = begin; found != end; ++found)
        tags.push_back(&pool.Tags[found->second]);
    return tags;
}

const project::Tag* TagPools::Named(binding::TagClass tagClass, const std::string& text,
                                    std::string& reason) const {
    const Pool& pool = pools_[PlaceOf(tagClass)];
    if (text.ends_with(')'))
        for (const project::Tag* tag : AllNamed(pool, text.substr(0, text.rfind(" ("))))
            if (services::EqualNoCase(Line::TextOf(suggest::BindingTo(*tag)), text))
                return tag;
    const auto tags = AllNamed(pool, text);
    if (tags.size() == 1)
        return tags.front();
    // The last of them in the list stands for all.
    if (tags.size() > 1)
        reason = std::to_string(tags.size()) + " tags bear the name; say which, as " +
                 Line::TextOf(suggest::BindingTo(*std::ranges::max(tags, std::less<>()))) + ".";
    return nullptr;
}

void TagPools::Take(const project::Tag& tag) {
    taken_.insert(RegisterOf(tag));
}

const project::Tag* TagPools::Next(binding::TagClass tagClass) {
    Pool& pool = pools_[PlaceOf(tagClass)];
    for (std::size_t& place = pool.Next; place < pool.Tags.size(); ++place)
        if (taken_.insert(RegisterOf(pool.Tags[place])).second)
            return &pool.Tags[place++];
    return nullptr;
}

} // namespace gfc::plan
