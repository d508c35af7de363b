#include "suggest/Facts.h"

#include "services/Text.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>

namespace gfc::suggest {

namespace {

// A word in so many of the names is the plant's own manner of speaking.
constexpr std::size_t FewestForScheme = 8;
constexpr double ShareForScheme = 0.4;

bool IsInputType(std::string_view type) {
    return !type.empty() && (type.back() == 'X' || type.back() == 'x');
}

std::string RegisterKey(std::string_view type, std::string_view address) {
    return naming::Fold(type) + " " + std::string(address);
}

// The name without what a tool has put behind it.
std::string WithoutToolSuffix(const naming::TagName& name) {
    if (!name.ToolSuffix)
        return name.Folded;
    return name.Folded.substr(0, name.Folded.find_last_of("~("));
}

void MarkAlike(std::vector<TagFacts>& facts) {
    const auto key = [](const TagFacts& tag) {
        return WithoutToolSuffix(tag.Name) + "|" + tag.Module.Folded + "|" + std::string(tag.Tag->RegType);
    };
    std::unordered_map<std::string, int> counts;
    for (const TagFacts& tag : facts)
        ++counts[key(tag)];
    for (TagFacts& tag : facts)
        tag.IsAlike = tag.Name.ToolSuffix || counts[key(tag)] > 1;
}

bool MayBeScheme(const naming::Part& part) {
    return part.Kind == naming::PartKind::Letters && !part.Device &&
           (part.Means.empty() || part.Means.front() == naming::Subject::Aside);
}

void MarkSchemeWords(std::vector<TagFacts>& facts) {
    std::map<std::string, std::size_t> counts;
    for (const TagFacts& tag : facts) {
        std::set<std::string> once;
        for (const naming::Part& part : tag.Name.Parts)
            if (MayBeScheme(part) && once.insert(part.Text).second)
                ++counts[part.Text];
    }
    const auto least =
        std::max(FewestForScheme, static_cast<std::size_t>(ShareForScheme * double(facts.size())));
    for (TagFacts& tag : facts)
        for (const naming::Part& part : tag.Name.Parts)
            if (MayBeScheme(part) && counts[part.Text] >= least)
                tag.Idle.insert(part.Text);
}

TagFacts FactsOf(const project::Tag& tag, binding::TagClass tagClass) {
    TagFacts facts;
    facts.Tag = &tag;
    facts.Name = naming::Parse(tag.TagName);
    facts.Class = tagClass;
    facts.IsInput = IsInputType(tag.RegType);
    return facts;
}

} // namespace

bool IsSameRegister(const project::Tag& tag, const config::TagBinding& binding) {
    return services::EqualNoCase(tag.RegType, binding.Type) && std::to_string(tag.RegAddr) == binding.RegAddr;
}

config::TagBinding BindingTo(const project::Tag& tag) {
    return {.Tag = tag.TagName, .Type = tag.RegType, .RegAddr = std::to_string(tag.RegAddr)};
}

std::vector<TagFacts> FactsOf(const Question& question) {
    std::unordered_set<std::string> taken;
    for (const BoundVariable& bound : question.Bound)
        taken.insert(RegisterKey(bound.Binding.Type, bound.Binding.RegAddr));
    std::map<std::string, naming::TagName> modules;
    std::vector<TagFacts> all;
    all.reserve(question.Tags.size());
    for (const project::Tag& tag : question.Tags) {
        const auto tagClass = binding::ClassOf(tag.RegType);
        if (!tagClass)
            continue;
        all.push_back(FactsOf(tag, *tagClass));
        auto [module, added] = modules.try_emplace(std::string(tag.ModuleName));
        if (added)
            module->second = naming::Parse(tag.ModuleName);
        all.back().Module = module->second;
        all.back().IsFree = !taken.contains(RegisterKey(tag.RegType, std::to_string(tag.RegAddr)));
    }
    MarkAlike(all);
    MarkSchemeWords(all);
    return all;
}

} // namespace gfc::suggest
