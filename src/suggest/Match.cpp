#include "suggest/Match.h"

#include <algorithm>
#include <bit>
#include <map>
#include <optional>
#include <set>

namespace gfc::suggest {

namespace {

using naming::Subject;
using Subjects = std::vector<Subject>;

constexpr std::size_t VariablesOfScheme = 3;

bool Holds(const Subjects& all, Subject one) {
    return std::ranges::find(all, one) != all.end();
}

// What qualifies a quantity, and does not make it another.
bool IsFiller(Subject subject) {
    return subject == Subject::Run || subject == Subject::Value || subject == Subject::Neutral ||
           subject == Subject::Selected || subject == Subject::Range;
}

// Names of what an analyser, a flow element or a hand switch has computed or commanded need not mean the
// device.
bool IsCarrier(const TagFacts& tag) {
    constexpr SubjectSet carried = SetOf(Subject::Flow) | SetOf(Subject::Analyser) | SetOf(Subject::Neutral);
    return (tag.Device & ~carried) == 0;
}

SubjectSet MayAlwaysBeSaid(const binding::VariableRow& row) {
    SubjectSet always = row.Stem != "AGA3StatusKDIO" ? SetOf(Subject::Gas) : 0;
    if (row.Stage == binding::BindingStage::GasOutputs)
        always |= SetOf(Subject::GasCalculation);
    return always;
}

// A way of saying a variable, with all that a name may say then.
struct Wording {
    const Meaning* Means;
    SubjectSet Needs;
    SubjectSet Explained;

    [[nodiscard]] bool IsSaidBy(SubjectSet said) const {
        return (Needs & ~said) == 0 && (said & ~Explained) == 0;
    }
};

std::vector<Wording> WordingsOf(const binding::VariableRow& row) {
    std::vector<Wording> wordings;
    for (const Meaning* meaning : MeaningsOf(row)) {
        const SubjectSet needs = SetOf(meaning->Needs);
        wordings.push_back({meaning, needs, needs | SetOf(meaning->Allows) | MayAlwaysBeSaid(row)});
    }
    return wordings;
}

// How a name says the variable: with the letters of its device or by its words alone.
struct Saying {
    const Meaning* Means = nullptr;
    SubjectSet Said = 0;
    bool ByDevice = false;
};

const Meaning* BestMeaning(SubjectSet said, const std::vector<Wording>& wordings) {
    const Meaning* best = nullptr;
    for (const Wording& wording : wordings)
        if (wording.IsSaidBy(said) && (best == nullptr || wording.Means->Needs.size() > best->Needs.size()))
            best = wording.Means;
    return best;
}

// "FY-101_STDVOL" says a volume, and by its letters alone a flow: where the words mean a variable of the
// class by themselves, the letters of a carrier add nothing.
bool DoWordsMeanAnything(const TagFacts& tag) {
    static const std::vector<std::pair<binding::TagClass, std::vector<Wording>>> all = [] {
        std::vector<std::pair<binding::TagClass, std::vector<Wording>>> wordings;
        for (const binding::VariableRow& row : binding::Catalogue())
            wordings.emplace_back(row.Class, WordingsOf(row));
        return wordings;
    }();
    if (tag.Words == 0 || !IsCarrier(tag))
        return false;
    return std::ranges::any_of(all, [&](const auto& row) {
        return row.first == tag.Class && BestMeaning(tag.Words, row.second) != nullptr;
    });
}

std::optional<Saying> SayingOf(const TagFacts& tag, const binding::VariableRow& row,
                               const std::vector<Wording>& wordings) {
    const bool device = !tag.Name.Device.Letters.empty();
    if (tag.Words != 0 && (!device || IsCarrier(tag)))
        if (const Meaning* best = BestMeaning(tag.Words, wordings))
            return Saying{best, tag.Words, false};
    if (!device)
        return std::nullopt;
    const Meaning* best = BestMeaning(tag.WordsAndDevice, wordings);
    // An element's own letters never are a result: those are computed.
    const bool measured = tag.Words == 0 && tag.Name.Device.Transmits && !IsInput(row);
    if (best == nullptr || measured || DoWordsMeanAnything(tag))
        return std::nullopt;
    return Saying{best, tag.WordsAndDevice, tag.Words == 0};
}

std::string Quoted(const naming::Part& part) {
    static constexpr std::string_view languages[] = {"", "", " (Spanish)", " (Portuguese)"};
    const auto language = part.Known == nullptr ? naming::Language::Any : part.Known->In;
    return part.Text + std::string(languages[static_cast<std::size_t>(language)]);
}

bool IsSaidBy(const naming::Part& part, const Meaning& meaning) {
    return std::ranges::any_of(part.Means, [&](Subject subject) {
        return Holds(meaning.Needs, subject) || (Holds(meaning.Allows, subject) && !IsFiller(subject));
    });
}

void AddWords(const TagFacts& tag, const Saying& saying, Match& match) {
    std::string words;
    for (const naming::Part& part : tag.Name.Parts) {
        if (part.Device || !IsSaidBy(part, *saying.Means))
            continue;
        words += (words.empty() ? "" : " ") + Quoted(part);
        if (part.Cut)
            match.Evidence.push_back({Evidence::CutWord, part.Text});
    }
    const bool several = words.find(' ') != std::string::npos && words.find(" (") == std::string::npos;
    if (!words.empty())
        match.Evidence.insert(match.Evidence.begin(),
                              {Evidence::Word, (several ? "words " : "word ") + words});
}

void AddWhat(const TagFacts& tag, const Saying& saying, Match& match) {
    const naming::Device& device = tag.Name.Device;
    if (saying.ByDevice)
        match.Evidence.push_back(
            {device.IsKks ? Evidence::KksLetters : Evidence::IsaLetters, device.Letters});
    else
        AddWords(tag, saying, match);
    const auto said = static_cast<std::size_t>(std::popcount(saying.Said));
    const auto extra = said - std::min(said, saying.Means->Needs.size());
    for (std::size_t i = 0; i < extra; ++i)
        match.Evidence.push_back({Evidence::ExtraWord, {}});
}

void AddQualities(const TagFacts& tag, const binding::VariableRow& row, Match& match) {
    const naming::TagName& name = tag.Name;
    const bool selected = name.Says(Subject::Selected);
    const auto add = [&match](bool there, Evidence kind, const std::string& text = {}) {
        if (there)
            match.Evidence.push_back({kind, text});
    };
    for (const std::string& word : name.Unknown)
        add(!tag.Idle.contains(word), Evidence::UnknownWord, word);
    add(name.Says(Subject::Value), Evidence::ValueWord);
    add(selected, Evidence::SelectedWord);
    add(name.Says(Subject::Range) && !selected, Evidence::LowOrHigh);
    add(!name.Device.LoopSuffix.empty() && !selected, Evidence::LoopSuffix);
    const bool same = tag.IsInput == IsInput(row);
    add(same, Evidence::SameDirection);
    add(!same, Evidence::OtherDirection);
    add(!tag.Total.empty(), Evidence::TotalOfLoop, tag.Total);
    add(tag.IsByModule, Evidence::ModuleWord, std::string(tag.Tag->ModuleName.View()));
    add(!project::IsVirtual(*tag.Tag), Evidence::PhysicalModule);
}

bool IsSureOfWhat(const TagFacts& tag, const Match& match) {
    using enum Evidence;
    for (const auto kind : {CutWord, UnknownWord, LowOrHigh, LoopSuffix, OtherDirection, ModuleWord})
        if (Has(match.Evidence, kind))
            return false;
    return !tag.IsAlike && !tag.Name.Says(Subject::HexanePlus);
}

// Stacked ranges are known for differential pressures alone; a high pressure is an alarm.
bool IsStackedElsewhere(const TagFacts& tag, const binding::VariableRow& row) {
    return tag.Name.Says(Subject::Range) && row.Stem != "GasDPKDIO";
}

std::optional<Match> MatchOf(const binding::VariableRow& row, const std::vector<Wording>& wordings,
                             const TagFacts& tag) {
    if (tag.Class != row.Class)
        return std::nullopt;
    const auto saying = SayingOf(tag, row, wordings);
    if (!saying || IsStackedElsewhere(tag, row))
        return std::nullopt;
    Match match;
    AddWhat(tag, *saying, match);
    AddQualities(tag, row, match);
    match.IsSure = IsSureOfWhat(tag, match);
    match.Weight = WeightOf(match.Evidence);
    return match;
}

} // namespace

int WeightOf(const std::vector<Found>& evidence) {
    int weight = 0;
    for (const Found& found : evidence)
        weight += RowOf(found.Kind).Weight;
    return weight;
}

bool Has(const std::vector<Found>& evidence, Evidence kind) {
    return std::ranges::find(evidence, kind, &Found::Kind) != evidence.end();
}

std::vector<Match> MatchesOf(const binding::VariableRow& row, const std::vector<TagFacts>& facts) {
    std::vector<Match> matches;
    const auto wordings = WordingsOf(row);
    for (std::size_t i = 0; i < facts.size(); ++i)
        if (auto match = MatchOf(row, wordings, facts[i])) {
            match->Tag = i;
            matches.push_back(std::move(*match));
        }
    const auto other = [](const Match& match) { return Has(match.Evidence, Evidence::OtherDirection); };
    if (!std::ranges::all_of(matches, other))
        std::erase_if(matches, other);
    return matches;
}

void ForgiveUnknownWords(std::vector<std::vector<Match>>& matches, const std::vector<TagFacts>& facts) {
    std::map<std::string, std::set<std::size_t>> variables;
    for (std::size_t row = 0; row < matches.size(); ++row)
        for (const Match& match : matches[row])
            for (const std::string& word : facts[match.Tag].Name.Unknown)
                variables[word].insert(row);
    const auto forgiven = [&](const Found& found) {
        return found.Kind == Evidence::UnknownWord && variables[found.Text].size() >= VariablesOfScheme;
    };
    for (auto& row : matches)
        for (Match& match : row) {
            std::erase_if(match.Evidence, forgiven);
            match.IsSure = IsSureOfWhat(facts[match.Tag], match);
            match.Weight = WeightOf(match.Evidence);
        }
}

} // namespace gfc::suggest
