#include "forms/binding/TagSuggestions.h"

#include "binding/Assignment.h"
#include "config/Vocabulary.h"
#include "suggest/Facts.h"

#include <algorithm>
#include <charconv>

namespace gfc::forms {

using suggest::BoundVariable;
using suggest::Want;

namespace {

std::string KeyOf(std::string_view type, std::string_view address) {
    return naming::Fold(type).append(" ").append(address);
}

// A number for each register: the filter asks for tens of thousands of them behind one key. A type has at
// most two letters.
std::uint64_t RegisterOf(std::string_view type, std::int32_t address) {
    std::uint64_t code = 0;
    for (const char letter : type.substr(0, 2))
        code = code << 8U | static_cast<unsigned char>(letter >= 'a' && letter <= 'z' ? letter - 32 : letter);
    return code << 32U | static_cast<std::uint32_t>(address);
}

bool IsMade(const config::TagBinding& shown) {
    return shown.RegAddr != binding::NotConfigured;
}

} // namespace

void TagSuggestions::Forget() {
    asked_ = withSpares_ = false;
    suggestions_.clear();
    elsewhere_.reset();
    tags_.clear();
}

const suggest::Suggestion* TagSuggestions::At(int position) const {
    const auto found = suggestions_.find(position);
    return found == suggestions_.end() ? nullptr : &found->second;
}

// The wizard and the configurator hold all runs in memory.
bool TagSuggestions::HoldsAllRuns() const {
    const auto mode = program_.Session.EditMode;
    return mode == EditMode::Wizard || mode == EditMode::Configurator;
}

int TagSuggestions::RunHere() const {
    return program_.Session.BindingStage == BindingStage::CommonInputs ? 0 : program_.Session.RunNumber + 1;
}

std::vector<int> TagSuggestions::ActiveRuns() const {
    const Session& session = program_.Session;
    std::vector<int> runs;
    if (HoldsAllRuns()) {
        for (int run = 1; run <= config::MaxRuns; ++run)
            if (session.Station.RunList[static_cast<std::size_t>(run - 1)].Flag == config::Yes)
                runs.push_back(run);
    } else {
        runs = suggest::RunsInFile(program_.Ini, session.ConfigFile());
    }
    if (RunHere() != 0 && std::ranges::find(runs, RunHere()) == runs.end())
        runs.push_back(RunHere());
    std::ranges::sort(runs);
    return runs;
}

std::vector<Want> TagSuggestions::Variables() const {
    const Session& session = program_.Session;
    std::vector<Want> variables;
    for (const auto* row :
         binding::TreeRows(session.BindingStage, binding::ConditionsOf(session.Station, session.RunPosition)))
        variables.push_back({RunHere(), row});
    return variables;
}

// What the file and the records bind, but for the stage that is open: of that the tree alone tells.
const std::vector<BoundVariable>& TagSuggestions::Elsewhere() const {
    if (!elsewhere_)
        RememberElsewhere();
    return *elsewhere_;
}

void TagSuggestions::RememberElsewhere() const {
    const Session& session = program_.Session;
    const auto leaveOutOpenStage = [&](std::vector<BoundVariable>& bound) {
        std::erase_if(bound, [&](const BoundVariable& each) {
            return each.Variable.Run == RunHere() && each.Variable.Row->Stage == session.BindingStage;
        });
    };
    auto& all = elsewhere_.emplace(suggest::BoundInFile(program_.Ini, session.ConfigFile()));
    leaveOutOpenStage(all);
    fromFile_ = all.size();
    const auto add = [&all](const std::vector<BoundVariable>& more) {
        all.insert(all.end(), more.begin(), more.end());
    };
    int element = 0;
    for (const int run : HoldsAllRuns() ? ActiveRuns() : std::vector<int>())
        add(suggest::BoundInRecords(session.Station, element++, run));
    if (!HoldsAllRuns() && RunHere() != 0)
        add(suggest::BoundInRecords(session.Station, session.RunPosition, RunHere()));
    if (session.Station.CommonPa.IsMade())
        all.push_back({{0, &binding::CommonPressureRow()}, session.Station.CommonPa});
    leaveOutOpenStage(all);
    boundElsewhere_.clear();
    for (const BoundVariable& bound : all)
        boundElsewhere_.insert(KeyOf(bound.Binding.Type, bound.Binding.RegAddr));
}

std::vector<BoundVariable> TagSuggestions::InEffectElsewhere() const {
    const auto& all = Elsewhere();
    const auto runs = HoldsAllRuns() ? ActiveRuns() : std::vector{RunHere()};
    // The wizard writes the file anew, without the runs that it does not hold.
    const bool anew = program_.Session.EditMode == EditMode::Wizard;
    const auto isHeld = [&](int run) {
        return anew || run == 0 || std::ranges::find(runs, run) != runs.end();
    };
    std::vector<BoundVariable> inEffect;
    for (std::size_t i = 0; i < all.size(); ++i)
        if (i >= fromFile_ || !isHeld(all[i].Variable.Run))
            inEffect.push_back(all[i]);
    return inEffect;
}

std::vector<BoundVariable> TagSuggestions::BoundHere(const std::vector<config::TagBinding>& shown) const {
    std::vector<BoundVariable> bound;
    const auto variables = Variables();
    for (std::size_t position = 0; position < std::min(variables.size(), shown.size()); ++position)
        if (IsMade(shown[position]))
            bound.push_back({variables[position], shown[position]});
    return bound;
}

suggest::Question TagSuggestions::QuestionFor(const std::vector<config::TagBinding>& shown) const {
    const Session& session = program_.Session;
    suggest::Question question;
    question.Tags = suggest::OfferedTags(session.Inventory, session.Station.WorkingModules);
    question.Runs = ActiveRuns();
    question.Bound = Elsewhere();
    const auto here = BoundHere(shown);
    question.Bound.insert(question.Bound.end(), here.begin(), here.end());
    question.Others = suggest::OtherStationsOf(program_.Ini, session.Project, session.Station.CurrentStation);
    const auto variables = Variables();
    for (std::size_t position = 0; position < variables.size(); ++position)
        if (position >= shown.size() || !IsMade(shown[position]))
            question.Wants.push_back(variables[position]);
    AddOtherWants(question);
    return question;
}

// What other stages and runs still want, so that none is given what plainly belongs to another.
void TagSuggestions::AddOtherWants(suggest::Question& question) const {
    const Session& session = program_.Session;
    const auto isKnown = [&](const Want& want) {
        return std::ranges::any_of(question.Bound,
                                   [&](const BoundVariable& b) { return b.Variable == want; });
    };
    int element = 0;
    for (const int run : question.Runs) {
        const bool held = HoldsAllRuns() || run == RunHere();
        const int at = HoldsAllRuns() ? element++ : session.RunPosition;
        if (!held)
            continue;
        for (const Want& want : suggest::VariablesOfRun(run, binding::ConditionsOf(session.Station, at)))
            if ((run != RunHere() || want.Row->Stage != session.BindingStage) && !isKnown(want))
                question.Wants.push_back(want);
    }
}

void TagSuggestions::Ask(const std::vector<config::TagBinding>& shown) {
    const auto found = suggest::Suggest(QuestionFor(shown));
    suggestions_.clear();
    asked_ = true;
    withSpares_ = false;
    const auto variables = Variables();
    for (const auto& suggestion : found) {
        const auto position = std::ranges::find(variables, suggestion.Variable);
        if (position != variables.end())
            suggestions_[static_cast<int>(position - variables.begin())] = suggestion;
    }
}

bool TagSuggestions::LackVariables(const std::vector<config::TagBinding>& shown) const {
    for (std::size_t position = 0; position < shown.size(); ++position)
        if (!IsMade(shown[position]) && At(static_cast<int>(position)) == nullptr)
            return true;
    return false;
}

void TagSuggestions::AskAgain(const std::vector<config::TagBinding>& shown) {
    if (withSpares_)
        (void)AskForSpares(shown);
    else
        Ask(shown);
}

bool TagSuggestions::AskForSpares(const std::vector<config::TagBinding>& shown) {
    Ask(shown);
    withSpares_ = true;
    std::vector<suggest::Suggestion> here;
    for (const auto& [position, suggestion] : suggestions_)
        here.push_back(suggestion);
    const auto spares = suggest::OfferSpares(QuestionFor(shown), here);
    for (const auto& spare : spares)
        for (auto& [position, suggestion] : suggestions_)
            if (suggestion.Variable == spare.Variable)
                suggestion = spare;
    return !spares.empty();
}

bool TagSuggestions::IsBoundElsewhere(std::string_view type, std::string_view address) const {
    (void)Elsewhere();
    return boundElsewhere_.contains(KeyOf(type, address));
}

// Of two tags on one register the first one counts.
void TagSuggestions::IndexTags() const {
    const auto& inventory = program_.Session.Inventory;
    const project::TagList* const lists[] = {&inventory.VirtFX, &inventory.VirtFY, &inventory.VirtLX,
                                             &inventory.VirtLY, &inventory.VirtAX, &inventory.VirtAY,
                                             &inventory.PhysAX, &inventory.PhysAY, &inventory.PhysX,
                                             &inventory.PhysY,  &inventory.VirtX,  &inventory.VirtY};
    for (const project::TagList* list : lists)
        for (const project::Tag& tag : *list)
            tags_.emplace_back(RegisterOf(tag.RegType, tag.RegAddr), &tag);
    std::ranges::stable_sort(tags_, {}, &decltype(tags_)::value_type::first);
}

const project::Tag* TagSuggestions::TagAt(std::string_view type, std::string_view address) const {
    std::int32_t number = 0;
    const auto read = std::from_chars(address.data(), address.data() + address.size(), number);
    if (read.ec != std::errc() || read.ptr != address.data() + address.size())
        return nullptr;
    if (tags_.empty())
        IndexTags();
    const std::uint64_t wanted = RegisterOf(type, number);
    const auto found = std::ranges::lower_bound(tags_, wanted, {}, &decltype(tags_)::value_type::first);
    return found == tags_.end() || found->first != wanted ? nullptr : found->second;
}

std::string_view TagSuggestions::ModuleOf(std::string_view type, std::string_view address) const {
    const project::Tag* tag = TagAt(type, address);
    return tag == nullptr ? std::string_view() : tag->ModuleName.View();
}

std::vector<std::string> TagSuggestions::PlacesOf(const config::TagBinding& binding,
                                                  const std::vector<config::TagBinding>& shown) const {
    const Session& session = program_.Session;
    auto own = Elsewhere();
    const auto here = BoundHere(shown);
    own.insert(own.end(), here.begin(), here.end());
    return suggest::WhereUsed(
        binding, session.Station.CurrentStation, own,
        suggest::OtherStationsOf(program_.Ini, session.Project, session.Station.CurrentStation));
}

} // namespace gfc::forms
