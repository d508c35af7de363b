#include "forms/station/WizardPass.h"

#include "config/Vocabulary.h"
#include "forms/binding/TagRuns.h"
#include "forms/editors/FrAccelabar.h"
#include "forms/editors/FrParMec.h"
#include "forms/editors/GasSources.h"
#include "forms/editors/MDetail.h"
#include "forms/editors/frSGERG88.h"
#include "forms/station/Step.h"
#include "forms/wizard/PassDraft.h"
#include "services/Text.h"

#include <utility>

namespace gfc::forms {

const PassTexts WizardPassTexts = {
    .Opening = "",
    .AnnounceMechanical = "Run {run} Mechanical parameters",
    .AnnounceAccelabar = "Run {run} Mechanical parameters",
    .AnnounceExternalDetail = "Run {run} external AGA-8 Gas Composition I/O configuration.",
    .AnnounceExternalGross = "Run {run} external SGERG88 Gas Parameters I/O configuration",
    .MechanicalCaption = "Mechanical Parameters Station: {station}, Run: {run}",
    .AccelabarCaption = "Accelabar Parameters Station: {station}, Run: {run}",
    .StepOf = " of ",
    .LastStepOf = " of ",
};

namespace {

using config::GasSlot;
using drafts::Dialog;
using drafts::PassStep;

// The letters of "assignemnts" are those of the announcement.
constexpr std::string_view AnnounceCommon = "Configuring I/O Tag assignemnts common to all Runs...";
constexpr std::string_view AnnounceInputs = "Run {run} flow calculation input tag assignments";
constexpr std::string_view AnnounceOutputs = "Run {run} flow calculation output tag assignments";
constexpr std::string_view AnnounceDetail = "Please enter Run {run} gas composition";
constexpr std::string_view AnnounceGross = "Please enter SGERG-88/ISO 12213-3 1997 parameters";

void Replace(std::string& text, std::string_view mark, const std::string& by) {
    for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at + by.size()))
        text.replace(at, mark.size(), by);
}

} // namespace

int WizardPass::TotalSteps(const config::StationConfig& station) {
    // Inputs and outputs; the meter's data unless it is a turbine; the gas data and outputs of a gas model.
    const int perRun =
        2 + (station.FlagAGA7 ? 0 : 1) + (config::IsGasModel(station.GasDensitySource) ? 2 : 0);
    return perRun * station.ActiveRunCount;
}

bool WizardPass::Run() {
    StartCount(TotalSteps(station_));
    return Open() && Common() && EachRun();
}

void WizardPass::StartCount(int total) {
    total_ = total;
    step_ = total > 0 ? 1 : 0;
}

// A pass that goes on has its records, and a person who knows where it leads.
bool WizardPass::Open() {
    session_.Cancelled = false;
    if (draft_ != nullptr && draft_->GoesOn())
        return !program_.Screen.Ended();
    auto& step = program_.Forms.Touch<Step>();
    if (!texts_.Opening.empty())
        step.Label1.SetCaption(std::string(texts_.Opening));
    step.ShowModal();
    station_.Runs.PrepareWholeStation(station_.ActiveRunCount);
    session_.Cancelled = false;
    return !program_.Screen.Ended();
}

bool WizardPass::Common() {
    const bool external = services::EqualNoCase(station_.ExtAtmPress, config::Yes);
    total_ += external ? 1 : 0;
    if (IsBehind({0, Dialog::CommonInputs}))
        return true;
    // The wizard's file is a new one: an earlier configuration of the station must not shine through. What a
    // stored configuration holds of a pressure that is not in use stays.
    if (external || session_.EditMode != EditMode::Configurator)
        station_.CommonPa = {};
    return !external || Bind(BindingStage::CommonInputs, {1, 0}, AnnounceCommon);
}

bool WizardPass::EachRun() {
    int element = 0;
    for (int run = 0; run < config::MaxRuns; ++run) {
        if (!config::IsRunActive(station_, run))
            continue;
        const TheRun active{run + 1, element++};
        if (!Mechanical(active) || !TagsAndGas(active))
            return false;
    }
    return true;
}

bool WizardPass::TagsAndGas(const TheRun& run) {
    return Bind(BindingStage::RunInputs, run, AnnounceInputs) &&
           Bind(BindingStage::RunOutputs, run, AnnounceOutputs) && GasData(run) && GasOutputs(run);
}

bool WizardPass::Mechanical(const TheRun& run) {
    if (station_.FlagAGA7)
        return true;
    if (station_.FlowAlgorithm == config::algorithm::Accelabar)
        return EditMechanical<FrAccelabar>(run, texts_.AnnounceAccelabar, texts_.AccelabarCaption);
    // An algorithm of another kind has no editor.
    return !config::IsOrificeAlgorithm(station_.FlowAlgorithm) ||
           EditMechanical<FrParMec>(run, texts_.AnnounceMechanical, texts_.MechanicalCaption);
}

template <class Editor>
bool WizardPass::EditMechanical(const TheRun& run, std::string_view announcement, std::string_view caption) {
    const PassStep step{run.Number, Dialog::Mechanical};
    if (IsBehind(step))
        return true;
    if (!Announce(announcement, run, texts_.StepOf))
        return false;
    session_.EditRun = run.Number;
    session_.EditedMechanical = {};
    auto& editor = program_.Forms.Get<Editor>();
    editor.SetCaption(Filled(caption, run));
    session_.Cancelled = false;
    editor.ShowModal();
    if (!Goes(step))
        return false;
    // By the run's place among the active ones, not by its number: that is where the writer looks for it.
    station_.Runs.Mechanical.at(static_cast<std::size_t>(run.Element)) = session_.EditedMechanical;
    return true;
}

bool WizardPass::GasData(const TheRun& run) {
    const auto family = config::FamilyOf(station_.GasDensitySource);
    if (family == config::GasFamily::Densimeter)
        return true;
    const bool detail = family == config::GasFamily::Detail;
    if (station_.AGA8CalInput == config::CompositionMeasured)
        return Bind(BindingStage::GasInputs, run,
                    detail ? texts_.AnnounceExternalDetail : texts_.AnnounceExternalGross);
    return detail ? DetailComposition(run) : GrossProperties(run);
}

bool WizardPass::DetailComposition(const TheRun& run) {
    const PassStep step{run.Number, Dialog::GasData};
    if (IsBehind(step))
        return true;
    if (!Announce(AnnounceDetail, run, texts_.StepOf))
        return false;
    PrepareGas(run, GasSlot::GC_N2);
    program_.Forms.Get<MDetail>().ShowModal();
    if (!Goes(step))
        return false;
    TakeGas(run);
    return true;
}

bool WizardPass::GrossProperties(const TheRun& run) {
    const PassStep step{run.Number, Dialog::GasData};
    if (IsBehind(step))
        return true;
    if (!Announce(AnnounceGross, run, texts_.StepOf))
        return false;
    PrepareGas(run, GasSlot::VolCalorificValue);
    program_.Forms.Get<frSGERG88>().ShowModal();
    if (!Goes(step))
        return false;
    TakeGas(run);
    return true;
}

// signOfEntry is the slot by which an editor knows that a composition was entered: a new run has none, and
// must not be offered that of the run before it.
void WizardPass::PrepareGas(const TheRun& run, GasSlot signOfEntry) {
    session_.GasRun = run.Number - 1;
    session_.GasAccepted = false;
    station_.GasComposition[signOfEntry].Tag.clear();
    session_.Cancelled = false;
}

void WizardPass::TakeGas(const TheRun& run) {
    if (session_.GasAccepted)
        TakeFixedGas(station_, station_.Runs.Gas.at(static_cast<std::size_t>(run.Element)));
}

bool WizardPass::GasOutputs(const TheRun& run) {
    if (!config::IsGasModel(station_.GasDensitySource))
        return true;
    const PassStep step{run.Number, Dialog::GasOutputs};
    return IsBehind(step) ||
           (Announce(texts_.AnnounceGasOutputs, run, texts_.LastStepOf) && ShowTags(step, run));
}

bool WizardPass::Bind(BindingStage stage, const TheRun& run, std::string_view announcement) {
    const PassStep step{stage == BindingStage::CommonInputs ? 0 : run.Number, drafts::DialogOf(stage)};
    return IsBehind(step) || (Announce(announcement, run, texts_.StepOf) && ShowTags(step, run));
}

bool WizardPass::ShowTags(const PassStep& step, const TheRun& run) {
    session_.BindingStage = drafts::StageOf(step.What);
    session_.RunPosition = run.Element;
    session_.RunNumber = run.Number - 1;
    session_.Cancelled = false;
    auto& tags = program_.Forms.Get<TagRuns>();
    if (draft_ != nullptr)
        tags.FollowPass(draft_->LeftIn(step),
                        [this, step](drafts::OpenDialog dialog) { draft_->Note(step, std::move(dialog)); });
    tags.ShowModal();
    return Goes(step);
}

bool WizardPass::Announce(std::string_view announcement, const TheRun& run, std::string_view stepOf) {
    auto& step = program_.Forms.Touch<Step>();
    step.Label1.SetCaption(Filled(announcement, run));
    step.Label2.SetCaption("Step " + std::to_string(step_) + std::string(stepOf) + std::to_string(total_));
    if (draft_ != nullptr) {
        draft_->Reach(step.Label2.Caption() + ": " + step.Label1.Caption());
        step.Notes.SetCaption(draft_->TakeTrouble());
    }
    step.ShowModal();
    return !program_.Screen.Ended();
}

bool WizardPass::IsBehind(const PassStep& step) {
    const bool behind = draft_ != nullptr && draft_->IsBehind(step);
    step_ += behind ? 1 : 0;
    return behind;
}

// After each dialog: counts it, and tells whether the pass goes on.
bool WizardPass::Goes(const PassStep& step) {
    ++step_;
    if (session_.Cancelled || program_.Screen.Ended())
        return false;
    if (draft_ != nullptr)
        draft_->Pass(step);
    return true;
}

std::string WizardPass::Filled(std::string_view text, const TheRun& run) const {
    std::string filled(text);
    Replace(filled, "{run}", std::to_string(run.Number));
    Replace(filled, "{station}", station_.CurrentStation);
    return filled;
}

} // namespace gfc::forms
