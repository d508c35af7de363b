#include "drafts/GoOn.h"

#include "binding/Catalogue.h"
#include "binding/ExpectedTags.h"
#include "binding/OnOffer.h"

#include <algorithm>

namespace gfc::drafts {

namespace {

using binding::BindingStage;
using binding::ExpectedTag;
using binding::ExpectedTags;
using binding::TagClass;

void Expect(ExpectedTags& expected, TagClass tagClass, const config::TagBinding& bound) {
    auto& entry = binding::ListOf(tagClass, expected).emplace_back();
    entry.RegAddr = bound.RegAddr;
    entry.Tag = bound.Tag;
    entry.Type = bound.Type;
}

bool IsThere(TagClass tagClass, const config::TagBinding& bound, const project::TagInventory& inventory) {
    ExpectedTags expected;
    Expect(expected, tagClass, bound);
    return binding::CheckExpectedTags(expected, inventory);
}

int ElementOf(const PassStep& step, const config::StationConfig& station) {
    return step.Run == 0 ? 0 : config::ElementOfRun(station, step.Run - 1);
}

std::vector<binding::Variable> VariablesOf(const PassStep& step, config::StationConfig& station) {
    return binding::VariablesOf(StageOf(step.What), station, ElementOf(step, station));
}

// Empties those of the bindings whose tags are not there; gives their names.
class MissingTags {
public:
    MissingTags(Draft& draft, const project::TagInventory& inventory)
        : draft_(draft), inventory_(inventory) {}

    std::vector<std::string> LetGo() {
        for (auto& [step, dialog] : draft_.Open)
            LetGoOf(step, dialog.Bound);
        for (const PassStep& step : std::vector(draft_.Done))
            Reopen(step);
        return std::move(names_);
    }

private:
    // True if any had to go.
    bool LetGoOf(const PassStep& step, std::vector<config::TagBinding>& bound) {
        const auto variables = VariablesOf(step, draft_.Station);
        bool gone = bound.size() > variables.size();
        bound.resize(std::min(bound.size(), variables.size()));
        for (std::size_t i = 0; i < bound.size(); ++i)
            if (bound[i].IsMade() && !IsThere(variables[i].Class(), bound[i], inventory_)) {
                Name(bound[i].Tag);
                bound[i] = {};
                gone = true;
            }
        return gone;
    }

    // What is left of a dialog that lost a tag stands in it as if it had been left half-way.
    void Reopen(const PassStep& step) {
        std::vector<config::TagBinding> bound;
        const auto variables = VariablesOf(step, draft_.Station);
        for (const auto& variable : variables)
            bound.push_back(*variable.Binding);
        if (!LetGoOf(step, bound))
            return;
        for (const auto& variable : variables)
            *variable.Binding = {};
        draft_.Open[step].Bound = std::move(bound);
        std::erase(draft_.Done, step);
    }

    void Name(const std::string& tag) {
        if (std::ranges::find(names_, tag) == names_.end())
            names_.push_back(tag);
    }

    Draft& draft_;
    const project::TagInventory& inventory_;
    std::vector<std::string> names_;
};

// Those of the list that the variables of a class do not bind.
project::TagList Without(project::TagList list, const std::vector<ExpectedTag>& bound) {
    binding::RemoveUsedTags(list, bound);
    return list;
}

} // namespace

std::vector<std::string> LetGoOfMissingTags(Draft& draft, const project::TagInventory& inventory) {
    return MissingTags(draft, inventory).LetGo();
}

void TakeOffOffer(Draft& draft, project::TagInventory& inventory) {
    for (const PassStep& step : draft.Done) {
        const BindingStage stage = StageOf(step.What);
        if (stage == BindingStage::None)
            continue;
        ExpectedTags bound;
        for (const auto& variable : VariablesOf(step, draft.Station))
            Expect(bound, variable.Class(), *variable.Binding);
        const bool analog = binding::OffersAnalog(stage);
        const auto& rest = analog ? inventory.AvailAnalog : inventory.AvailDigital;
        binding::LeaveOnOffer(stage, Without(inventory.AvailFloat, bound.ExpectedFloat),
                              stage == BindingStage::CommonInputs
                                  ? project::TagList()
                                  : Without(rest, analog ? bound.ExpectedAnalog : bound.ExpectedDigital),
                              inventory);
    }
}

} // namespace gfc::drafts
