#include "suggest/Suggest.h"

#include "services/Text.h"
#include "suggest/Runs.h"
#include "suggest/Words.h"

#include <algorithm>
#include <set>

namespace gfc::suggest {

namespace {

using binding::BindingStage;

constexpr std::size_t MostAlike = 3; // of more tags that say the same none is suggested

struct Candidate {
    const Match* Means = nullptr;
    Found Run{Evidence::RunOrder, {}};
    bool IsSure = false; // of the variable and of the run
    int Weight = 0;
};

bool IsGasInput(const Want& want) {
    return want.Row->Stage == BindingStage::GasInputs;
}

bool IsSameVariable(const binding::VariableRow& a, const binding::VariableRow& b) {
    return a.Stage == b.Stage && a.Stem == b.Stem;
}

class Chooser {
public:
    explicit Chooser(const Question& question) : question_(question), facts_(FactsOf(question)) {
        LearnVariables();
        readings_ = ReadingsOf(question_, facts_, known_);
    }

    std::vector<Suggestion> Choose() {
        suggestions_.resize(question_.Wants.size());
        for (std::size_t i = 0; i < suggestions_.size(); ++i)
            suggestions_[i].Variable = question_.Wants[i];
        ChooseBest();
        CopyGasData();
        AskOtherStations();
        for (Suggestion& suggestion : suggestions_)
            if (suggestion.Confidence == Confidence::None)
                suggestion.Reason = ReasonOfNone(suggestion.Variable);
        return std::move(suggestions_);
    }

private:
    void LearnVariables() {
        const auto learn = [this](const Want& want) {
            if (std::ranges::find(known_, want.Row, &Known::Row) == known_.end())
                known_.push_back({want.Row, {}});
        };
        for (const Want& want : question_.Wants)
            learn(want);
        for (const BoundVariable& bound : question_.Bound)
            learn(bound.Variable);
        std::vector<std::vector<Match>> matches;
        for (const Known& variable : known_)
            matches.push_back(MatchesOf(*variable.Row, facts_));
        ForgiveUnknownWords(matches, facts_);
        for (std::size_t i = 0; i < known_.size(); ++i)
            known_[i].Matches = std::move(matches[i]);
    }

    [[nodiscard]] const std::vector<Match>& MatchesFor(const Want& want) const {
        return std::ranges::find(known_, want.Row, &Known::Row)->Matches;
    }

    [[nodiscard]] bool MayBeTaken(const Match& match) const {
        return facts_[match.Tag].IsFree && !taken_.contains(match.Tag);
    }

    static Candidate CandidateOf(const Match& match, const Found& run, bool sureOfRun) {
        return {&match, run, match.IsSure && sureOfRun, match.Weight + RowOf(run.Kind).Weight};
    }

    [[nodiscard]] std::vector<Candidate> CandidatesFor(const Want& want) const {
        std::vector<Candidate> candidates;
        for (const Match& match : MatchesFor(want)) {
            const Reading& reading = readings_[match.Tag];
            if (!MayBeTaken(match))
                continue;
            if (want.Run == 0)
                candidates.push_back(CandidateOf(match, {Evidence::RunOnly, {}}, true));
            else if (reading.Run == want.Run)
                candidates.push_back(CandidateOf(match, reading.Why, reading.IsSure));
        }
        std::ranges::stable_sort(candidates, std::ranges::greater(), &Candidate::Weight);
        return candidates;
    }

    // The gas data that an analyser without a run delivers to all of them.
    [[nodiscard]] std::vector<Candidate> SharedCandidatesFor(const Want& want) const {
        std::vector<Candidate> candidates;
        bool someHaveTheirOwn = false;
        for (const Match& match : MatchesFor(want)) {
            someHaveTheirOwn = someHaveTheirOwn || readings_[match.Tag].Run != 0;
            if (readings_[match.Tag].Run == 0 && MayBeTaken(match))
                candidates.push_back(CandidateOf(match, {Evidence::RunAnalyser, {}}, true));
        }
        if (someHaveTheirOwn)
            return {};
        std::ranges::stable_sort(candidates, std::ranges::greater(), &Candidate::Weight);
        return candidates;
    }

    struct Choice {
        std::size_t Want = 0;
        Candidate Best = {};
        Confidence How = Confidence::None;
        std::string Alike = {}; // the names of those that say the same
    };

    // What of them is to be suggested, and how surely.
    [[nodiscard]] Choice Judge(std::size_t want, const std::vector<Candidate>& candidates) const {
        Choice choice{.Want = want};
        if (candidates.empty() || candidates.front().Weight < LeastWeight)
            return choice;
        choice.Best = candidates.front();
        const auto near = static_cast<std::size_t>(std::ranges::count_if(
            candidates, [&](const Candidate& c) { return c.Weight > choice.Best.Weight - ClearMargin; }));
        // Where what parts them is not known, any of them would be a guess.
        const bool unknown = near > 1 && Has(choice.Best.Means->Evidence, Evidence::UnknownWord);
        if (near > MostAlike || unknown)
            return choice;
        choice.How = choice.Best.IsSure && near == 1 ? Confidence::High : Confidence::Fair;
        for (std::size_t i = 1; i < near; ++i)
            choice.Alike += (i == 1 ? "" : " and ") + NameOf(candidates[i]);
        return choice;
    }

    [[nodiscard]] std::string NameOf(const Candidate& candidate) const {
        return facts_[candidate.Means->Tag].Tag->TagName;
    }

    // The sure ones take their tags first; what is left over is looked at again.
    void ChooseBest() {
        std::vector<std::size_t> open;
        for (std::size_t i = 0; i < question_.Wants.size(); ++i)
            open.push_back(i);
        while (!open.empty()) {
            std::vector<Choice> choices;
            for (const std::size_t want : open)
                if (auto choice = Judge(want, CandidatesFor(question_.Wants[want]));
                    choice.How != Confidence::None)
                    choices.push_back(std::move(choice));
            std::ranges::stable_sort(choices, std::ranges::greater(),
                                     [](const Choice& c) { return std::pair(c.How, c.Best.Weight); });
            open = TakeAll(choices);
        }
    }

    // Those whose tag another has taken.
    [[nodiscard]] std::vector<std::size_t> TakeAll(const std::vector<Choice>& choices) {
        std::vector<std::size_t> left;
        for (const Choice& choice : choices) {
            if (taken_.insert(choice.Best.Means->Tag).second)
                Show(choice);
            else
                left.push_back(choice.Want);
        }
        return left;
    }

    void Show(const Choice& choice) {
        Suggestion& suggestion = suggestions_[choice.Want];
        suggestion.Binding = BindingTo(*facts_[choice.Best.Means->Tag].Tag);
        suggestion.Confidence = choice.How;
        suggestion.Reason = ReasonOf(choice.Best.Means->Evidence, choice.Best.Run);
        if (!choice.Alike.empty())
            suggestion.Reason += ", but " + choice.Alike + " says the same";
    }

    void CopyGasData() {
        for (std::size_t i = 0; i < suggestions_.size(); ++i) {
            Suggestion& suggestion = suggestions_[i];
            if (suggestion.Confidence != Confidence::None || !IsGasInput(suggestion.Variable) ||
                HasOwnGasData(suggestion.Variable.Run))
                continue;
            if (!CopyBound(suggestion))
                ShareAnalyser(i);
        }
        // Only now, since the runs share them.
        for (const Suggestion& suggestion : suggestions_)
            if (IsGasInput(suggestion.Variable))
                for (const std::size_t tag : registers_.TagsOf(suggestion.Binding))
                    taken_.insert(tag);
    }

    [[nodiscard]] bool HasOwnGasData(int run) const {
        for (const Known& variable : known_)
            if (variable.Row->Stage == BindingStage::GasInputs)
                for (const Match& match : variable.Matches)
                    if (readings_[match.Tag].Run == run)
                        return true;
        return false;
    }

    bool CopyBound(Suggestion& suggestion) const {
        for (const BoundVariable& bound : question_.Bound) {
            if (!IsSameVariable(*bound.Variable.Row, *suggestion.Variable.Row) ||
                bound.Variable.Run == suggestion.Variable.Run ||
                binding::ClassOf(bound.Binding.Type) != suggestion.Variable.Row->Class)
                continue;
            suggestion.Binding = bound.Binding;
            suggestion.CopiedFrom = bound.Variable.Run;
            suggestion.Confidence = IsOfAnyRun(bound) ? Confidence::High : Confidence::Fair;
            suggestion.Reason = "the same as run " + std::to_string(bound.Variable.Run) +
                                ", since this run has no analyser of its own";
            return true;
        }
        return false;
    }

    // Its tag means the variable for sure, and its name says no run.
    [[nodiscard]] bool IsOfAnyRun(const BoundVariable& bound) const {
        return std::ranges::any_of(MatchesFor(bound.Variable), [&](const Match& match) {
            return match.IsSure && readings_[match.Tag].Run == 0 &&
                   IsSameRegister(*facts_[match.Tag].Tag, bound.Binding);
        });
    }

    void ShareAnalyser(std::size_t want) {
        const Choice choice = Judge(want, SharedCandidatesFor(question_.Wants[want]));
        if (choice.How == Confidence::None)
            return;
        Show(choice);
        Suggestion& suggestion = suggestions_[want];
        const auto first = std::ranges::find_if(suggestions_, [&](const Suggestion& other) {
            return &other != &suggestion && IsSameVariable(*other.Variable.Row, *suggestion.Variable.Row) &&
                   other.Binding == suggestion.Binding;
        });
        if (first != suggestions_.end())
            suggestion.CopiedFrom = first->Variable.Run;
    }

    void AskOtherStations() {
        for (Suggestion& suggestion : suggestions_) {
            const auto known = KnownElsewhere(suggestion.Variable);
            if (known.size() != 1)
                continue;
            const auto& [binding, station] = known.front();
            const std::string why = TextOf({Evidence::OtherStation, station});
            if (suggestion.Binding == binding)
                suggestion.Reason += ", " + why;
            else if (suggestion.Confidence == Confidence::None && Take(binding)) {
                suggestion.Binding = binding;
                suggestion.Confidence = Confidence::Fair;
                suggestion.Reason = why;
            }
        }
    }

    // Which tags of this station others bind to the variable, each once, with one of those stations.
    [[nodiscard]] std::vector<std::pair<config::TagBinding, std::string>>
    KnownElsewhere(const Want& want) const {
        std::vector<std::pair<config::TagBinding, std::string>> known;
        for (const OtherStation& station : question_.Others)
            for (const BoundVariable& bound : station.Bound) {
                if (bound.Variable.Run != want.Run || !IsSameVariable(*bound.Variable.Row, *want.Row))
                    continue;
                const auto there = [&](const auto& each) {
                    return each.first.RegAddr == bound.Binding.RegAddr;
                };
                const bool fits = binding::ClassOf(bound.Binding.Type) == want.Row->Class;
                if (fits && IsThere(bound.Binding) && std::ranges::none_of(known, there))
                    known.emplace_back(bound.Binding, station.Name);
            }
        return known;
    }

    [[nodiscard]] bool IsThere(const config::TagBinding& binding) const {
        return std::ranges::any_of(registers_.TagsOf(binding), [&](std::size_t tag) {
            return services::EqualNoCase(facts_[tag].Tag->TagName, binding.Tag);
        });
    }

    // False where it is bound or suggested for another.
    bool Take(const config::TagBinding& binding) {
        for (std::size_t tag = 0; tag < facts_.size(); ++tag)
            if (IsSameRegister(*facts_[tag].Tag, binding))
                return facts_[tag].IsFree && taken_.insert(tag).second;
        return false;
    }

    [[nodiscard]] std::string ReasonOfNone(const Want& want) const {
        const auto candidates = CandidatesFor(want);
        if (candidates.size() > 1)
            return std::to_string(candidates.size()) + " free tags say the same";
        const auto matches =
            std::ranges::count_if(MatchesFor(want), [this](const Match& m) { return MayBeTaken(m); });
        if (matches == 0)
            return "no free tag speaks of it";
        return std::to_string(matches) + (matches == 1 ? " free tag speaks" : " free tags speak") +
               " of it, none of this run";
    }

    const Question& question_;
    std::vector<TagFacts> facts_;
    RegisterIndex registers_{facts_};
    std::vector<Known> known_;
    std::vector<Reading> readings_;
    std::vector<Suggestion> suggestions_;
    std::set<std::size_t> taken_;
};

} // namespace

std::string_view TextOf(Confidence confidence) {
    static constexpr std::string_view texts[] = {"none", "fair", "high"};
    return texts[static_cast<std::size_t>(confidence)];
}

std::vector<Want> VariablesOfRun(int run, const binding::Conditions& conditions) {
    std::vector<Want> wants;
    for (const auto stage : {BindingStage::RunInputs, BindingStage::RunOutputs, BindingStage::GasInputs,
                             BindingStage::GasOutputs})
        for (const auto* row : binding::TreeRows(stage, conditions))
            wants.push_back({run, row});
    return wants;
}

std::vector<Suggestion> Suggest(const Question& question) {
    return Chooser(question).Choose();
}

project::TagList OfferedTags(const project::TagInventory& inventory, const config::WorkingModules& working) {
    project::TagList tags =
        project::MergeWithout(inventory.VirtFX, inventory.VirtFY, working.WrkFloatModName);
    const auto append = [&tags](const project::TagList& more) {
        tags.insert(tags.end(), more.begin(), more.end());
    };
    append(project::MergeWithout(inventory.VirtLX, inventory.VirtLY, working.WrkIntLongModName));
    append(project::MergeWithout(inventory.VirtAX, inventory.VirtAY, working.WrkAnalogModName));
    for (const project::TagList* more : {&inventory.PhysAX, &inventory.PhysAY, &inventory.PhysX,
                                         &inventory.PhysY, &inventory.VirtX, &inventory.VirtY})
        append(*more);
    return tags;
}

} // namespace gfc::suggest
