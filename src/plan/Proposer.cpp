#include "plan/Proposer.h"

#include "naming/TagName.h"
#include "plan/Places.h"
#include "services/Text.h"
#include "suggest/Facts.h"

#include <algorithm>

namespace gfc::plan {

namespace {

std::string RegisterText(std::string_view type, std::string_view address) {
    return naming::Fold(type) + " " + std::string(address);
}

bool IsVariable(const Line& line) {
    return line.Module == WorkingKind::None;
}

bool IsWordCharacter(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') || code >= 0x80;
}

// Where a word of the name begins that is that of the station: no letter before it, none behind it.
std::size_t FindWord(std::string_view name, std::string_view word) {
    for (auto at = name.find(word); at != std::string_view::npos; at = name.find(word, at + 1)) {
        const auto end = at + word.size();
        const bool begins = at == 0 || !IsWordCharacter(name[at - 1]);
        if (begins && (end == name.size() || !IsWordCharacter(name[end])))
            return at;
    }
    return std::string_view::npos;
}

} // namespace

std::string WithOtherStation(std::string_view name, std::string_view from, std::string_view to) {
    std::string folded = naming::Fold(name);
    const std::string word = naming::Fold(from);
    const auto at = word.empty() ? std::string::npos : FindWord(folded, word);
    if (at == std::string::npos)
        return {};
    return folded.replace(at, word.size(), naming::Fold(to));
}

Proposer::Proposer(const BoundStation& source, const Destination& to, std::vector<Line>& lines)
    : source_(source), to_(to), lines_(lines),
      isOwn_(services::EqualNoCase(source.From.Station, to.Of().Station)),
      offered_(to.OfferedWithout(WorkingIn(lines))) {
    Gather();
    Index();
}

void Proposer::Gather() {
    std::map<std::string, std::size_t> places;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const Line& line = lines_[i];
        if (!IsVariable(line))
            continue;
        const auto [place, added] =
            places.try_emplace(RegisterText(line.Source.Type, line.Source.RegAddr), wanted_.size());
        if (added)
            wanted_.push_back({{}, line.Variable.Row, line.Source, false});
        wanted_[place->second].Lines.push_back(i);
    }
}

void Proposer::Index() {
    for (std::size_t i = 0; i < offered_.size(); ++i) {
        const project::Tag& tag = offered_[i];
        byName_[naming::Fold(tag.TagName)].push_back(i);
        byRegister_[RegisterText(tag.RegType, std::to_string(tag.RegAddr))].push_back(i);
        numbers_.push_back(NumbersOf(tag.TagName));
        byFrame_[numbers_.back().Frame].push_back(i);
    }
}

void Proposer::Propose() {
    CountShifts();
    TakeSameNames(isOwn_ ? Chance::Included : Chance::Excluded);
    if (isOwn_)
        TakeSameRegisters();
    TakeStationNames();
    TakeNumbers();
    TakeSameNames(Chance::Included);
    TakePlaces();
    TakeSuggestions();
    ExplainMissing();
}

bool Proposer::MayTake(const Wanted& wanted, std::size_t tag) const {
    return !taken_.contains(tag) && binding::ClassOf(offered_[tag].RegType) == wanted.Row->Class;
}

void Proposer::Take(Wanted& wanted, std::size_t tag, Evidence why, bool isSure, const std::string& reason) {
    taken_.insert(tag);
    wanted.IsFound = true;
    for (const std::size_t i : wanted.Lines) {
        Line& line = lines_[i];
        line.Proposed = suggest::BindingTo(offered_[tag]);
        line.Why = why;
        line.IsSure = isSure;
        line.Reason = reason;
    }
}

const std::size_t* Proposer::OneNamed(const Wanted& wanted, const std::string& name) const {
    const auto found = byName_.find(name);
    if (name.empty() || found == byName_.end())
        return nullptr;
    const std::size_t* one = nullptr;
    int ofClass = 0, ofType = 0;
    for (const std::size_t& tag : found->second) {
        if (!MayTake(wanted, tag))
            continue;
        const bool sameType = services::EqualNoCase(offered_[tag].RegType, wanted.Source.Type);
        ++ofClass;
        ofType += sameType ? 1 : 0;
        if (one == nullptr || sameType)
            one = &tag;
    }
    return ofClass == 1 || ofType == 1 ? one : nullptr;
}

void Proposer::TakeSameNames(Chance chance) {
    for (std::size_t i = 0; i < wanted_.size(); ++i) {
        Wanted& wanted = wanted_[i];
        const std::size_t numbers = wantedNumbers_[i].Numbers.size();
        const bool waits = chance == Chance::Excluded && numbers > 0 && shifts_.IsBetterThanNone(numbers);
        const std::size_t* tag =
            wanted.IsFound || waits ? nullptr : OneNamed(wanted, naming::Fold(wanted.Source.Tag));
        if (tag == nullptr)
            continue;
        const bool moved = isOwn_ && !suggest::IsSameRegister(offered_[*tag], wanted.Source);
        Take(wanted, *tag, Evidence::SameName, true,
             moved ? "the same name, which stood at " + wanted.Source.Type + " " + wanted.Source.RegAddr
                   : "the same name");
    }
}

void Proposer::TakeSameRegisters() {
    for (Wanted& wanted : wanted_) {
        const auto found = byRegister_.find(RegisterText(wanted.Source.Type, wanted.Source.RegAddr));
        if (wanted.IsFound || found == byRegister_.end())
            continue;
        for (const std::size_t tag : found->second)
            if (!wanted.IsFound && MayTake(wanted, tag))
                Take(wanted, tag, Evidence::SameRegister, true,
                     "the same register, which was called " + wanted.Source.Tag);
    }
}

void Proposer::TakeStationNames() {
    for (Wanted& wanted : wanted_) {
        if (wanted.IsFound)
            continue;
        const auto name = WithOtherStation(wanted.Source.Tag, source_.From.Station, to_.Of().Station);
        if (const std::size_t* tag = OneNamed(wanted, name))
            Take(wanted, *tag, Evidence::StationName, true, "the same name but for that of the station");
    }
}

std::vector<std::size_t> Proposer::LikeFrame(const Wanted& wanted, const NumberedName& name) const {
    std::vector<std::size_t> like;
    if (const auto found = byFrame_.find(name.Frame); !name.Numbers.empty() && found != byFrame_.end())
        std::ranges::copy_if(found->second, std::back_inserter(like),
                             [&](std::size_t tag) { return MayTake(wanted, tag); });
    return like;
}

void Proposer::CountShifts() {
    for (const Wanted& wanted : wanted_) {
        wantedNumbers_.push_back(NumbersOf(wanted.Source.Tag));
        for (const std::size_t tag : LikeFrame(wanted, wantedNumbers_.back()))
            shifts_.Add(ShiftBetween(wantedNumbers_.back(), numbers_[tag]),
                        suggest::IsSameRegister(offered_[tag], wanted.Source));
    }
}

// Of the names that differ in numbers alone the one whose numbers are shifted as those of most others are.
// Where other shifts would do as well, as for a single pair of names, it is not sure.
void Proposer::TakeNumbers() {
    for (std::size_t i = 0; i < wanted_.size(); ++i) {
        const NumberedName& name = wantedNumbers_[i];
        const auto shift = wanted_[i].IsFound ? std::nullopt : shifts_.Best(name.Numbers.size());
        if (!shift)
            continue;
        for (const std::size_t tag : LikeFrame(wanted_[i], name))
            if (!wanted_[i].IsFound && ShiftBetween(name, numbers_[tag]) == *shift) {
                const int like = shifts_.VotesFor(*shift);
                const bool clear = shifts_.IsClear(*shift);
                Take(wanted_[i], tag, Evidence::Number, clear,
                     "the same name but for its number: " + TextOf(name, numbers_[tag]) +
                         (like > 1 ? ", as for " + std::to_string(like - 1) + " more" : std::string()) +
                         (clear || like == 1 ? "" : "; another number would do as well"));
            }
    }
}

void Proposer::TakePlaces() {
    if (std::ranges::all_of(wanted_, &Wanted::IsFound))
        return;
    const Places from(source_.From.Tags);
    const Places to(to_.Of().Tags);
    for (Wanted& wanted : wanted_) {
        const auto place = from.PlaceOf(wanted.Source.Type, wanted.Source.RegAddr);
        const project::Tag* there = wanted.IsFound || !place ? nullptr : to.TagAt(*place);
        if (there == nullptr)
            continue;
        const auto found = byRegister_.find(RegisterText(there->RegType, std::to_string(there->RegAddr)));
        if (found != byRegister_.end() && MayTake(wanted, found->second.front()))
            Take(wanted, found->second.front(), Evidence::Place, false,
                 "the same place in the module: register " + std::to_string(place->Register + 1) + " of " +
                     std::string(there->ModuleName));
    }
}

void Proposer::TakeSuggestions() {
    suggest::Question question{
        .Tags = offered_, .Runs = source_.Runs, .Wants = {}, .Bound = {}, .Others = {}};
    std::vector<std::size_t> asked;
    for (std::size_t i = 0; i < wanted_.size(); ++i)
        for (const std::size_t line : wanted_[i].Lines)
            if (wanted_[i].IsFound)
                question.Bound.push_back({lines_[line].Variable, lines_[line].Proposed});
            else if (line == wanted_[i].Lines.front()) {
                question.Wants.push_back(lines_[line].Variable);
                asked.push_back(i);
            }
    if (asked.empty())
        return;
    for (const suggest::OtherStation& other : source_.Others)
        if (!services::EqualNoCase(other.Name, to_.Of().Station))
            question.Others.push_back(other);
    const auto suggestions = suggest::Suggest(question);
    for (std::size_t i = 0; i < suggestions.size(); ++i) {
        Wanted& wanted = wanted_[asked[i]];
        const auto found =
            byRegister_.find(RegisterText(suggestions[i].Binding.Type, suggestions[i].Binding.RegAddr));
        if (suggestions[i].Confidence != suggest::Confidence::None && found != byRegister_.end() &&
            MayTake(wanted, found->second.front()))
            Take(wanted, found->second.front(), Evidence::Suggested,
                 suggestions[i].Confidence == suggest::Confidence::High, suggestions[i].Reason);
    }
}

void Proposer::ExplainMissing() {
    for (const Wanted& wanted : wanted_)
        for (const std::size_t line : wanted.Lines)
            if (!wanted.IsFound)
                lines_[line].Reason = "no tag of " + to_.Of().Station + " is like " + wanted.Source.Tag;
}

void ProposeModule(const BoundStation& source, const Destination& to, Line& line) {
    const auto modules = to.ModulesFor(line.Module);
    const auto take = [&](const config::TagBinding& module, Evidence why, bool isSure, std::string reason) {
        line.Proposed = module;
        line.Why = why;
        line.IsSure = isSure;
        line.Reason = std::move(reason);
    };
    const std::string other = WithOtherStation(line.Source.Tag, source.From.Station, to.Of().Station);
    for (const config::TagBinding& module : modules) {
        if (services::EqualNoCase(module.Tag, line.Source.Tag))
            return take(module, Evidence::SameName, true, "the same name");
        if (!other.empty() && naming::Fold(module.Tag) == other)
            return take(module, Evidence::StationName, true, "the same name but for that of the station");
    }
    const NumberedName from = NumbersOf(line.Source.Tag);
    std::vector<config::TagBinding> like;
    std::ranges::copy_if(modules, std::back_inserter(like), [&](const config::TagBinding& module) {
        return NumbersOf(module.Tag).Frame == from.Frame;
    });
    if (like.size() == 1)
        return take(like.front(), Evidence::Number, true,
                    "the same name but for its number: " + TextOf(from, NumbersOf(like.front().Tag)));
    if (modules.size() == 1)
        return take(modules.front(), Evidence::Place, true, "the only module that is large enough");
    line.Reason = modules.empty() ? "the station has no virtual module that is large enough"
                                  : std::to_string(modules.size()) + " modules are large enough";
}

} // namespace gfc::plan
