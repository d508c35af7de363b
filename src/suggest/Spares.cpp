#include "suggest/Facts.h"
#include "suggest/Meaning.h"

#include <algorithm>
#include <map>

namespace gfc::suggest {

namespace {

using naming::Subject;

// A name that speaks of nothing, or says that nobody uses its register.
bool IsSpare(const TagFacts& tag) {
    if (!tag.IsFree || !tag.Name.Device.Letters.empty())
        return false;
    if (tag.Name.Says(Subject::Spare))
        return true;
    return std::ranges::all_of(tag.Name.Subjects,
                               [](Subject subject) { return subject == Subject::Neutral; });
}

bool Names(const std::vector<Suggestion>& suggestions, const project::Tag& tag) {
    return std::ranges::any_of(suggestions,
                               [&](const Suggestion& each) { return IsSameRegister(tag, each.Binding); });
}

// How many tags of each module the suggestions name: the spare ones are likeliest beside them.
std::map<std::string, int> ModulesOf(const std::vector<TagFacts>& facts,
                                     const std::vector<Suggestion>& suggestions) {
    std::map<std::string, int> modules;
    for (const TagFacts& tag : facts)
        if (Names(suggestions, *tag.Tag))
            ++modules[tag.Tag->ModuleName];
    return modules;
}

} // namespace

std::vector<Suggestion> OfferSpares(const Question& question, const std::vector<Suggestion>& suggestions) {
    const std::vector<TagFacts> facts = FactsOf(question);
    auto modules = ModulesOf(facts, suggestions);
    std::vector<const TagFacts*> spares;
    for (const TagFacts& tag : facts)
        if (IsSpare(tag) && !Names(suggestions, *tag.Tag))
            spares.push_back(&tag);
    const auto order = [&modules](const TagFacts* tag) {
        return std::pair(-modules[tag->Tag->ModuleName], !tag->Name.Says(Subject::Spare));
    };
    std::ranges::stable_sort(spares, {}, order);
    std::vector<Suggestion> offered;
    for (const Suggestion& each : suggestions) {
        if (each.Confidence != Confidence::None)
            continue;
        const binding::VariableRow& row = *each.Variable.Row;
        const auto spare = std::ranges::find_if(spares, [&](const TagFacts* tag) {
            return tag->Class == row.Class && tag->IsInput == IsInput(row);
        });
        if (spare == spares.end())
            continue;
        offered.push_back(
            {each.Variable, BindingTo(*(*spare)->Tag), Confidence::Fair, "a spare register", 0});
        spares.erase(spare);
    }
    return offered;
}

} // namespace gfc::suggest
