#include "audit/Bindings.h"
#include "audit/Plausible.h"
#include "config/Vocabulary.h"
#include "forms/binding/TagLists.h"
#include "forms/binding/TagRuns.h"

#include <algorithm>

namespace gfc::forms {

using suggest::BoundVariable;
using suggest::Confidence;
namespace node = binding::node;

namespace {

// Class and direction in words: "float input".
std::string KindOf(std::string_view type) {
    const auto tagClass = binding::ClassOf(type);
    if (!tagClass)
        return {};
    constexpr std::string_view classes[] = {"float", "long", "analog", "digital"};
    const bool isOutput = type.ends_with('Y') || type.ends_with('y');
    return std::string(classes[static_cast<std::size_t>(*tagClass)]) + (isOutput ? " output" : " input");
}

std::string HintOf(const config::TagBinding& tag) {
    const std::string kind = KindOf(tag.Type);
    return tag.Tag + ": " + (kind.empty() ? "" : kind + ", ") + "register " + tag.Type + " " + tag.RegAddr;
}

// They point into what is bound, which must outlive them.
std::vector<audit::Bound> ForAudit(const std::vector<BoundVariable>& bound) {
    std::vector<audit::Bound> all;
    all.reserve(bound.size());
    for (const BoundVariable& each : bound)
        all.push_back({each.Variable.Row, &each.Binding, each.Variable.Run, true, {}, true});
    return all;
}

} // namespace

void TagRuns::ShowNotes() {
    // What was bound when suggestions were asked for may be taken back.
    if (suggestions_.WereAsked() && suggestions_.LackVariables(ShownBindings()))
        program_.Screen.Busy([this] { suggestions_.AskAgain(ShownBindings()); });
    for (int position = 0; position < VariablesShown(); ++position)
        ShowNote(position);
    ShowProgress();
    ShowMissing();
    ShowEditState();
    ApplyFilter();
    notes_.Refresh();
}

void TagRuns::ShowNote(int position) {
    const int at = node::Variable(position);
    if (IsBound(position))
        return TreeAGA.SetNote(at, ShownBinding(position).Tag, HintOf(ShownBinding(position)));
    if (!IsOffered(position)) {
        const auto* none = suggestions_.At(position);
        return TreeAGA.SetNote(at, {}, none == nullptr ? std::string() : none->Reason);
    }
    const auto& suggestion = *suggestions_.At(position);
    const bool sure = suggestion.Confidence == Confidence::High;
    // How sure it is comes first: a long name may be cut.
    TreeAGA.SetNote(at, (sure ? "sure: " : "fair: ") + suggestion.Binding.Tag, suggestion.Reason,
                    sure ? ui::Colour::Green : ui::Colour::Blue);
}

void TagRuns::ShowProgress() {
    const auto& station = session_.Station;
    std::string text = "Station " + station.CurrentStation;
    if (Stage() != BindingStage::CommonInputs)
        text += ", run " + std::to_string(session_.RunNumber + 1);
    const auto standard = config::AlgorithmIndex(station.FlowAlgorithm);
    text += ", " + std::string(config::FlowAlgorithms[static_cast<std::size_t>(standard)].InConfigurador);
    if (const int source = config::SourceIndex(station.GasDensitySource); source >= 0)
        text +=
            ", " + std::string(config::GasDensitySources[static_cast<std::size_t>(source)].InConfigurador);
    text += ": " + std::to_string(BoundVariables()) + " of " + std::to_string(needed_.Total()) + " bound";
    int offered = 0;
    int sure = 0;
    for (int position = 0; position < VariablesShown(); ++position)
        if (IsOffered(position)) {
            ++offered;
            sure += suggestions_.At(position)->Confidence == Confidence::High ? 1 : 0;
        }
    if (offered > 0)
        text += ", " + std::to_string(offered) + " suggested" + ", " + std::to_string(sure) + " of them sure";
    Progress.SetCaption(std::move(text));
}

// Continue wants all of them, so what has no tag is said before.
void TagRuns::ShowMissing() {
    std::string names;
    int missing = 0;
    for (int position = 0; suggestions_.WereAsked() && position < VariablesShown(); ++position)
        if (!IsBound(position) && !IsOffered(position)) {
            names += (missing++ == 0 ? "" : ", ") + TreeAGA.At(node::Variable(position)).Text;
        }
    Missing.SetVisible(missing > 0);
    Missing.SetCaption(missing == 0
                           ? std::string()
                           : names + ": no tag; Continue will ask for " + (missing == 1 ? "one" : "them"));
}

std::string TagRuns::HintOfRow(const ui::ListView& list, int row) const {
    const auto tag = BindingInRow(list, row);
    const std::string module(suggestions_.ModuleOf(tag.Type, tag.RegAddr));
    return HintOf(tag) + (module.empty() ? "" : ", module " + module);
}

config::RunIO TagRuns::EnteredFactors() const {
    config::RunIO entered;
    entered.CalibrationFactor = Text1.Text();
    entered.meterKFactor = kfactor.Text();
    entered.GasDensityStandard = phostd.Text();
    return entered;
}

// What is bound elsewhere counts, but is not told of here. The stage's own stand last: of two that share a
// tag the rules tell of the later one.
void TagRuns::Judge(audit::Sink& sink) const {
    if (Stage() == BindingStage::RunInputs)
        audit::CheckTypedRunValues(session_.Station, EnteredFactors(), sink);
    const auto here = suggestions_.BoundHere(ShownBindings());
    if (here.empty())
        return;
    auto bound = suggestions_.InEffectElsewhere();
    bound.insert(bound.end(), here.begin(), here.end());
    const auto all = ForAudit(bound);
    audit::Findings findings;
    audit::Sink any(findings);
    audit::CheckSharedTags(all, any);
    audit::CheckTagNames(all, session_.Station, any);
    audit::CheckDirections(all, any);
    for (audit::Finding& finding : findings)
        if (std::ranges::any_of(here, [&finding](const BoundVariable& own) {
                return own.Variable.Run == finding.Run && own.Variable.Row->TagKey() == finding.Key;
            }))
            sink.Take(std::move(finding));
}

} // namespace gfc::forms
