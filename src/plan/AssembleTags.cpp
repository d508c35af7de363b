// Which tags a plan binds: those that it names, and for the others the next ones or the suggested ones.
#include "config/Vocabulary.h"
#include "plan/Assembler.h"
#include "services/Text.h"
#include "suggest/Facts.h"

#include <algorithm>

namespace gfc::plan {

namespace {

using binding::BindingStage;
using services::EqualNoCase;

std::string KeyOf(const binding::Variable& variable) {
    return variable.Row->TagKey();
}

std::string_view ClassText(binding::TagClass tagClass) {
    static constexpr std::string_view texts[] = {"float", "long", "analog", "digital"};
    return texts[static_cast<std::size_t>(tagClass)];
}

} // namespace

void Assembler::Bind() {
    project::TagInventory inventory = to_.Inventory();
    const auto& working = station_.WorkingModules;
    project::BuildAvailableLists(
        inventory, {working.WrkAnalogModName, working.WrkIntLongModName, working.WrkFloatModName},
        station_.FlagAGA7);
    pools_ = TagPools(inventory);
    const std::string tags = wish_.TextOf("Tags");
    if (!tags.empty() && !EqualNoCase(tags, tags::Automatic) && !EqualNoCase(tags, tags::Suggested))
        Blame(CellOf("Tags"), "Tags",
              "Say automatic or suggested, or name each tag and leave the cell empty.");
    // What is named goes to nobody else, whichever run comes first.
    for (const bool named : {true, false}) {
        namesOnly_ = named;
        if (EqualNoCase(station_.ExtAtmPress, config::Yes))
            BindStage(BindingStage::CommonInputs, nullptr, 0);
        for (std::size_t element = 0; element < wish_.Runs.size(); ++element)
            for (const auto stage : {BindingStage::RunInputs, BindingStage::RunOutputs,
                                     BindingStage::GasInputs, BindingStage::GasOutputs})
                BindStage(stage, &wish_.Runs[element], static_cast<int>(element));
    }
    BindSuggested();
}

void Assembler::BindStage(BindingStage stage, const RunWish* run, int element) {
    for (const binding::Variable& variable : binding::VariablesOf(stage, station_, element))
        BindVariable(variable, run);
}

void Assembler::BindVariable(const binding::Variable& variable, const RunWish* run) {
    const std::string key = KeyOf(variable);
    const Said* said = CellOf(key, run);
    if (namesOnly_ != (said != nullptr))
        return;
    const std::string tags = wish_.TextOf("Tags");
    const project::Tag* tag = nullptr;
    std::string reason;
    if (said != nullptr) {
        tag = pools_.Named(variable.Class(), said->Text, reason);
        if (reason.empty())
            reason = "The station has no " + std::string(ClassText(variable.Class())) +
                     " tag of this name that may be bound.";
    } else if (EqualNoCase(tags, tags::Automatic)) {
        tag = pools_.Next(variable.Class());
        reason = "No free " + std::string(ClassText(variable.Class())) + " tag is left.";
    } else if (EqualNoCase(tags, tags::Suggested)) {
        return open_.push_back({variable, run});
    } else {
        reason = "Name a tag, or say automatic or suggested in the column Tags.";
    }
    if (tag == nullptr)
        return Blame(run == nullptr ? wish_.Row : run->Row, key, said == nullptr ? std::string() : said->Text,
                     reason);
    pools_.Take(*tag);
    *variable.Binding = suggest::BindingTo(*tag);
    bound_.push_back({{run == nullptr ? 0 : run->Run, variable.Row}, *variable.Binding});
}

// Only what is sure is taken: who writes a table does not look at each of them.
void Assembler::BindSuggested() {
    if (open_.empty())
        return;
    suggest::Question question{.Tags = to_.OfferedWithout(station_.WorkingModules),
                               .Runs = {},
                               .Wants = {},
                               .Bound = bound_,
                               .Others = circumstances_.Others};
    for (const RunWish& run : wish_.Runs)
        question.Runs.push_back(run.Run);
    for (const Open& open : open_)
        question.Wants.push_back({open.Run == nullptr ? 0 : open.Run->Run, open.Variable.Row});
    const auto suggestions = suggest::Suggest(question);
    for (std::size_t i = 0; i < suggestions.size(); ++i) {
        const suggest::Suggestion& each = suggestions[i];
        if (each.Confidence == suggest::Confidence::High)
            *open_[i].Variable.Binding = each.Binding;
        else
            Blame(open_[i].Run == nullptr ? wish_.Row : open_[i].Run->Row, KeyOf(open_[i].Variable), {},
                  each.Confidence == suggest::Confidence::None
                      ? "Nothing is suggested: " + each.Reason + "."
                      : "What is suggested is not sure: " + Line::TextOf(each.Binding) + ", " + each.Reason +
                            ". Name the tag.");
    }
}

} // namespace gfc::plan
