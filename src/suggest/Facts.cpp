#include "suggest/Facts.h"

#include "services/Text.h"

#include <algorithm>
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

// The name without what a tool has put behind it.
std::string WithoutToolSuffix(const naming::TagName& name) {
    if (!name.ToolSuffix)
        return name.Folded;
    return name.Folded.substr(0, name.Folded.find_last_of("~("));
}

void MarkAlike(std::vector<TagFacts>& facts) {
    std::vector<std::string> keys;
    keys.reserve(facts.size());
    for (const TagFacts& tag : facts) {
        std::string& key = keys.emplace_back(WithoutToolSuffix(tag.Name));
        key.append("|").append(tag.Module->Folded).append("|").append(tag.Tag->RegType.View());
    }
    std::unordered_map<std::string_view, int> counts;
    counts.reserve(keys.size());
    for (const std::string& key : keys)
        ++counts[key];
    for (std::size_t i = 0; i < facts.size(); ++i)
        facts[i].IsAlike = facts[i].Name.ToolSuffix || counts[keys[i]] > 1;
}

bool MayBeScheme(const naming::Part& part) {
    return part.Kind == naming::PartKind::Letters && !part.Device &&
           (part.Means.empty() || part.Means.front() == naming::Subject::Aside);
}

void MarkSchemeWords(std::vector<TagFacts>& facts) {
    std::unordered_map<std::string_view, std::size_t> counts;
    std::vector<std::string_view> once; // of one name; there are few
    for (const TagFacts& tag : facts) {
        once.clear();
        for (const naming::Part& part : tag.Name.Parts)
            if (MayBeScheme(part) && std::ranges::find(once, part.Text) == once.end())
                ++counts[once.emplace_back(part.Text)];
    }
    const auto least =
        std::max(FewestForScheme, static_cast<std::size_t>(ShareForScheme * double(facts.size())));
    for (TagFacts& tag : facts)
        for (const naming::Part& part : tag.Name.Parts)
            if (MayBeScheme(part) && counts[part.Text] >= least)
                tag.Idle.insert(part.Text);
}

// What qualifies a quantity, and does not make it another.
constexpr SubjectSet Fillers = SetOf(naming::Subject::Run) | SetOf(naming::Subject::Value) |
                               SetOf(naming::Subject::Neutral) | SetOf(naming::Subject::Selected) |
                               SetOf(naming::Subject::Range);

void GatherSubjects(TagFacts& tag) {
    for (const naming::Part& part : tag.Name.Parts)
        if (!part.Device && !part.Means.empty() && !tag.Idle.contains(part.Text))
            tag.Words |= SetOf(part.Means);
    tag.Words &= ~Fillers;
    tag.Device = SetOf(tag.Name.Device.Means);
    tag.WordsAndDevice = tag.Words | (tag.Device & ~Fillers);
}

void Say(TagFacts& tag, SubjectSet more) {
    tag.Words |= more;
    tag.WordsAndDevice |= more;
}

bool IsOfFlow(const TagFacts& tag) {
    constexpr SubjectSet quantities = SetOf(naming::Subject::Volume) | SetOf(naming::Subject::Mass);
    return tag.Device == SetOf(naming::Subject::Flow) && (tag.Words & quantities) != 0;
}

// "FI-101_VOL" beside "FQI-101_VOL": alone, it might be either.
void MarkRates(std::vector<TagFacts>& facts) {
    const auto keyOf = [](const TagFacts& tag) {
        return naming::Fold(tag.Tag->RegType) + "|" + tag.Name.Device.Loop + "|" +
               tag.Name.Device.LoopSuffix + "|" + std::to_string(tag.Words);
    };
    std::unordered_map<std::string, const TagFacts*> totals;
    for (const TagFacts& tag : facts)
        if (IsOfFlow(tag) && tag.Name.Device.Totalizes)
            totals.emplace(keyOf(tag), &tag);
    for (TagFacts& tag : facts) {
        if (totals.empty() || !IsOfFlow(tag) || tag.Name.Device.Totalizes)
            continue;
        if (const auto total = totals.find(keyOf(tag)); total != totals.end()) {
            tag.Total = total->second->Tag->TagName;
            Say(tag, SetOf(naming::Subject::Rate));
        }
    }
}

// "NS-101_FLOW" in a module of states. What says more than whose state it is may be anything.
void MarkStates(std::vector<TagFacts>& facts) {
    using enum naming::Subject;
    constexpr SubjectSet whose = SetOf(Flow) | SetOf(Gas) | SetOf(FlowCalculation) | SetOf(GasCalculation);
    for (TagFacts& tag : facts)
        if (tag.Words != 0 && (tag.Words & ~whose) == 0 && tag.Module->Says(Status)) {
            tag.IsByModule = true;
            Say(tag, SetOf(Status));
        }
}

// Which registers a question's bindings name, by their numbers: hardly any tag passes that.
class TakenRegisters {
public:
    explicit TakenRegisters(const std::vector<BoundVariable>& bound) {
        for (const BoundVariable& each : bound)
            byAddress_[each.Binding.RegAddr].push_back(&each.Binding);
    }
    [[nodiscard]] bool Has(const project::Tag& tag) const {
        if (byAddress_.empty())
            return false;
        const auto found = byAddress_.find(std::to_string(tag.RegAddr));
        return found != byAddress_.end() &&
               std::ranges::any_of(found->second, [&](const config::TagBinding* each) {
                   return naming::Fold(each->Type) == naming::Fold(tag.RegType);
               });
    }

private:
    std::unordered_map<std::string, std::vector<const config::TagBinding*>> byAddress_;
};

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

SubjectSet SetOf(std::span<const naming::Subject> subjects) {
    SubjectSet set = 0;
    for (const naming::Subject subject : subjects)
        set |= SetOf(subject);
    return set;
}

RegisterIndex::RegisterIndex(const std::vector<TagFacts>& facts) : facts_(facts) {
    byAddress_.reserve(facts.size());
    for (std::size_t tag = 0; tag < facts.size(); ++tag)
        byAddress_[std::to_string(facts[tag].Tag->RegAddr)].push_back(tag);
}

std::vector<std::size_t> RegisterIndex::TagsOf(const config::TagBinding& binding) const {
    const auto found = byAddress_.find(binding.RegAddr);
    std::vector<std::size_t> tags = found == byAddress_.end() ? std::vector<std::size_t>() : found->second;
    std::erase_if(tags, [&](std::size_t tag) {
        return !services::EqualNoCase(facts_[tag].Tag->RegType, binding.Type);
    });
    return tags;
}

std::vector<TagFacts> FactsOf(const Question& question) {
    const TakenRegisters taken(question.Bound);
    std::unordered_map<std::string_view, std::shared_ptr<const naming::TagName>> modules;
    std::vector<TagFacts> all;
    all.reserve(question.Tags.size());
    for (const project::Tag& tag : question.Tags) {
        const auto tagClass = binding::ClassOf(tag.RegType);
        if (!tagClass)
            continue;
        all.push_back(FactsOf(tag, *tagClass));
        auto& module = modules[tag.ModuleName];
        if (module == nullptr)
            module = std::make_shared<const naming::TagName>(naming::Parse(tag.ModuleName));
        all.back().Module = module;
        all.back().IsFree = !taken.Has(tag);
    }
    MarkAlike(all);
    MarkSchemeWords(all);
    std::ranges::for_each(all, GatherSubjects);
    MarkRates(all);
    MarkStates(all);
    return all;
}

} // namespace gfc::suggest
