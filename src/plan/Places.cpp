#include "plan/Places.h"

#include "services/Text.h"

#include <algorithm>

namespace gfc::plan {

namespace {

std::string KindOf(const project::Tag& tag) {
    return services::FoldCase(tag.RegType) + (project::IsVirtual(tag) ? " virtual" : " physical");
}

std::string KeyOf(const std::string& type, const std::string& address) {
    return services::FoldCase(type) + " " + address;
}

} // namespace

Places::Places(const project::TagList& tags) {
    for (const project::Tag& tag : tags) {
        const std::string kind = KindOf(tag);
        auto& modules = kinds_[kind];
        // The tags of a module stand together.
        if (modules.empty() || !services::EqualNoCase(modules.back().Name, tag.ModuleName))
            modules.push_back({tag.ModuleName, {}});
        auto& own = modules.back().Tags;
        own.push_back(&tag);
        places_.try_emplace(KeyOf(tag.RegType, std::to_string(tag.RegAddr)),
                            Place{kind, tag.ModuleName, modules.size() - 1, own.size() - 1, 0});
    }
    for (auto& [key, place] : places_)
        place.Registers = kinds_.at(place.Kind).at(place.ModuleOfKind).Tags.size();
}

std::optional<Places::Place> Places::PlaceOf(const std::string& type, const std::string& address) const {
    const auto found = places_.find(KeyOf(type, address));
    return found == places_.end() ? std::nullopt : std::optional(found->second);
}

const Places::Module* Places::ModuleAt(const Place& place) const {
    const auto kind = kinds_.find(place.Kind);
    if (kind == kinds_.end())
        return nullptr;
    const auto& modules = kind->second;
    const auto same = std::ranges::find_if(
        modules, [&](const Module& module) { return services::EqualNoCase(module.Name, place.Module); });
    if (same != modules.end())
        return &*same;
    if (place.ModuleOfKind >= modules.size())
        return nullptr;
    const Module& module = modules[place.ModuleOfKind];
    return module.Tags.size() == place.Registers ? &module : nullptr;
}

const project::Tag* Places::TagAt(const Place& place) const {
    const Module* module = ModuleAt(place);
    return module == nullptr || place.Register >= module->Tags.size() ? nullptr
                                                                      : module->Tags[place.Register];
}

} // namespace gfc::plan
