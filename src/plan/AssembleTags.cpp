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

std::string_view ClassText(binding::TagClass tagClass) {
    static constexpr std::string_view texts[] = {"float", "long", "analog", "digital"};
    return texts[static_cast<std::size_t>(tagClass)];
}

} // namespace

void Assembler::Bind() {
    to_.Offer(station_.WorkingModules, station_.FlagAGA7);
    pools_ = TagPools(to_.Inventory());
    const std::string tags = wish_.TextOf("Tags");
    if (!tags.empty() && !EqualNoCase(tags, tags::Automatic) && !EqualNoCase(tags, tags::Suggested))
        Blame(CellOf("Tags"), "Tags",
              "Say automatic or suggested, or name each tag and leave the cell empty.");
    const auto variables = AllVariables();
    // What is named goes to nobody else, whichever run comes first.
    for (const Open& each : variables)
        if (each.Named != nullptr)
            BindNamed(each);
    for (const Open& each : variables)
        if (each.Named == nullptr)
            BindUnnamed(each);
    BindSuggested();
}

std::vector<Assembler::Open> Assembler::AllVariables() {
    std::vector<Open> variables;
    const auto append = [&](BindingStage stage, const RunWish* run, std::size_t element) {
        for (const auto& variable : binding::VariablesOf(stage, station_, static_cast<int>(element)))
            variables.push_back({variable, run, CellOf(variable.Row->TagKey(), run)});
    };
    if (EqualNoCase(station_.ExtAtmPress, config::Yes))
        append(BindingStage::CommonInputs, nullptr, 0);
    for (std::size_t element = 0; element < wish_.Runs.size(); ++element)
        for (const auto stage : {BindingStage::RunInputs, BindingStage::RunOutputs, BindingStage::GasInputs,
                                 BindingStage::GasOutputs})
            append(stage, &wish_.Runs[element], element);
    return variables;
}

void Assembler::BindNamed(const Open& open) {
    std::string reason;
    if (const auto* tag = pools_.Named(open.Variable.Class(), open.Named->Text, reason))
        return BindTo(open, *tag);
    if (reason.empty())
        reason = "The station has no " + std::string(ClassText(open.Variable.Class())) +
                 " tag of this name that may be bound.";
    Blame(open, reason);
}

void Assembler::BindUnnamed(const Open& open) {
    const std::string tags = wish_.TextOf("Tags");
    if (EqualNoCase(tags, tags::Suggested))
        return open_.push_back(open);
    if (!EqualNoCase(tags, tags::Automatic))
        return Blame(open, "Name a tag, or say automatic or suggested in the column Tags.");
    if (const auto* tag = pools_.Next(open.Variable.Class()))
        return BindTo(open, *tag);
    Blame(open, "No free " + std::string(ClassText(open.Variable.Class())) + " tag is left.");
}

void Assembler::BindTo(const Open& open, const project::Tag& tag) {
    pools_.Take(tag);
    *open.Variable.Binding = suggest::BindingTo(tag);
    bound_.push_back({{open.RunNumber(), open.Variable.Row}, *open.Variable.Binding});
}

void Assembler::Blame(const Open& open, const std::string& text) {
    Blame(open.Run == nullptr ? wish_.Row : open.Run->Row, open.Variable.Row->TagKey(),
          open.Named == nullptr ? std::string() : open.Named->Text, text);
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
        question.Wants.push_back({open.RunNumber(), open.Variable.Row});
    const auto suggestions = suggest::Suggest(question);
    for (std::size_t i = 0; i < suggestions.size(); ++i) {
        const suggest::Suggestion& each = suggestions[i];
        if (each.Confidence == suggest::Confidence::High)
            *open_[i].Variable.Binding = each.Binding;
        else
            Blame(open_[i], each.Confidence == suggest::Confidence::None
                                ? "Nothing is suggested: " + each.Reason + "."
                                : "What is suggested is not sure: " + Line::TextOf(each.Binding) + ", " +
                                      each.Reason + ". Name the tag.");
    }
}

} // namespace gfc::plan
