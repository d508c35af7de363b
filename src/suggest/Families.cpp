#include "suggest/Families.h"

#include <algorithm>

namespace gfc::suggest {

namespace {

using naming::Part;
using naming::PartKind;
using naming::Subject;

// A number behind a word of the plant or of runs is read with that word; behind a quantity it is read alone,
// since the loops of all quantities count alike.
std::string WordBefore(const std::vector<Part>& parts, std::size_t number) {
    std::size_t at = number;
    if (at > 0 && parts[at - 1].Kind == PartKind::Sign && parts[at - 1].Text.size() == 1)
        --at;
    if (at == 0 || parts[at - 1].Kind != PartKind::Letters || parts[at - 1].Device)
        return {};
    const Part& word = parts[at - 1];
    const bool quantity =
        !word.Means.empty() && word.Means.front() != Subject::Run && word.Means.front() != Subject::Neutral;
    return quantity ? std::string() : word.Text;
}

std::size_t EndOfName(const naming::TagName& name) {
    return name.ToolSuffix ? name.Folded.find_last_of("~(") : name.Folded.size();
}

void AddPlaces(const naming::TagName& name, const std::string& rest, std::vector<DigitPlace>& places) {
    int number = 0;
    for (std::size_t i = 0; i < name.Parts.size(); ++i) {
        const Part& part = name.Parts[i];
        if (part.Kind != PartKind::Digits || part.Begin >= EndOfName(name))
            continue;
        ++number;
        for (std::size_t digit = 0; digit < part.Text.size(); ++digit) {
            DigitPlace place;
            std::string starred = part.Text;
            starred[digit] = '*';
            place.Family = name.Folded;
            place.Family.replace(part.Begin + digit, 1, "*");
            place.Family += "|" + rest;
            place.Manner = WordBefore(name.Parts, i) + "|" + starred;
            place.Place =
                std::to_string(number) + "." + std::to_string(digit) + "/" + std::to_string(part.Text.size());
            place.Number = part.Text;
            place.Digit = part.Text[digit] - '0';
            places.push_back(std::move(place));
        }
    }
}

} // namespace

std::vector<DigitPlace> DigitPlacesOf(const TagFacts& tag) {
    std::vector<DigitPlace> places;
    const std::string type = naming::Fold(tag.Tag->RegType);
    AddPlaces(tag.Name, type, places);
    if (places.empty())
        AddPlaces(*tag.Module, type + "|" + tag.Name.Folded, places);
    else
        return places;
    for (DigitPlace& place : places)
        place.Module = tag.Tag->ModuleName;
    return places;
}

Families::Families(const Question& question, const std::vector<TagFacts>& facts,
                   const std::vector<Known>& known)
    : runs_(question.Runs) {
    Gather(facts, known);
    LearnFromBound(question, facts);
    JudgeManners();
}

void Families::Gather(const std::vector<TagFacts>& facts, const std::vector<Known>& known) {
    places_.resize(facts.size());
    for (const Known& variable : known)
        for (const Match& match : variable.Matches) {
            auto& places = places_[match.Tag];
            if (places.empty())
                places = DigitPlacesOf(facts[match.Tag]);
            for (const DigitPlace& place : places) {
                Family& family = families_[place.Family];
                auto& members = family.Members[place.Digit];
                if (std::ranges::find(members, match.Tag) == members.end())
                    members.push_back(match.Tag);
                family.Manner = place.Manner;
                family.Place = place.Place;
                family.Rows.insert(variable.Row);
            }
        }
}

bool Families::HasAllRuns(const Family& family) const {
    const auto has = [&family](int run) { return family.Members.contains(run); };
    // Who counts from 0 means another run by each digit.
    return !family.Members.contains(0) && std::ranges::all_of(runs_, has);
}

// A family of several digits that lacks a run and has what is none speaks against its manner: there the
// digits count something else, or count from elsewhere.
void Families::JudgeManners() {
    for (const auto& [name, family] : families_) {
        if (HasAllRuns(family)) {
            byManner_[family.Manner].insert(family.Rows.begin(), family.Rows.end());
            byPlace_[family.Place].insert(family.Rows.begin(), family.Rows.end());
            continue;
        }
        const auto isNone = [this](const auto& member) {
            return std::ranges::find(runs_, member.first) == runs_.end();
        };
        if (family.Members.size() > 1 && std::ranges::any_of(family.Members, isNone))
            refuted_.insert(family.Manner);
    }
}

void Families::LearnFromBound(const Question& question, const std::vector<TagFacts>& facts) {
    for (const BoundVariable& bound : question.Bound) {
        const auto same = [&](const TagFacts& tag) { return IsSameRegister(*tag.Tag, bound.Binding); };
        const auto tag = std::ranges::find_if(facts, same);
        if (tag == facts.end() || bound.Variable.Run == 0 ||
            bound.Variable.Row->Stage == binding::BindingStage::GasInputs)
            continue;
        for (const DigitPlace& place : DigitPlacesOf(*tag)) {
            const auto family = families_.find(place.Family);
            if (family == families_.end() || family->second.Members.size() < 2)
                continue;
            if (place.Digit == bound.Variable.Run)
                confirmed_.try_emplace(place.Family,
                                       bound.Binding.Tag + " of run " + std::to_string(bound.Variable.Run));
            else if (HasAllRuns(family->second))
                refuted_.insert(place.Manner);
        }
    }
}

int Families::Coverage(const DigitPlace& place) const {
    const auto count = [](const auto& all, const std::string& key) {
        const auto found = all.find(key);
        return found == all.end() ? 0 : static_cast<int>(found->second.size());
    };
    return 2 * count(byManner_, place.Manner) + count(byPlace_, place.Place);
}

Reading Families::Read(std::size_t tag) const {
    Reading best;
    int bestCoverage = 0;
    int otherCoverage = 0; // of the best place that says another run
    for (const DigitPlace& place : places_[tag]) {
        const Family& family = families_.at(place.Family);
        const auto bound = confirmed_.find(place.Family);
        const bool isRun = std::ranges::find(runs_, place.Digit) != runs_.end();
        if (!isRun || (!HasAllRuns(family) && bound == confirmed_.end()))
            continue;
        const int coverage = Coverage(place) + (bound == confirmed_.end() ? 0 : 4);
        if (coverage <= bestCoverage) {
            if (place.Digit != best.Run)
                otherCoverage = std::max(otherCoverage, coverage);
            continue;
        }
        if (best.Run != place.Digit)
            otherCoverage = bestCoverage;
        bestCoverage = coverage;
        best.Run = place.Digit;
        const bool loop = place.Number.size() > 1;
        best.Why = {Evidence::RunDigit, (loop ? "loop " : "number ") + place.Number +
                                            " like the other tags of run " + std::to_string(place.Digit)};
        if (!place.Module.empty())
            best.Why = {Evidence::RunModule, place.Module};
        if (bound != confirmed_.end())
            best.Why = {Evidence::RunLikeBound, bound->second};
        best.IsSure = !refuted_.contains(place.Manner) && (coverage > 3 || place.Manner.size() > 2);
    }
    if (2 * otherCoverage >= bestCoverage)
        best.IsSure = false;
    if (otherCoverage == bestCoverage)
        return {};
    return best;
}

} // namespace gfc::suggest
