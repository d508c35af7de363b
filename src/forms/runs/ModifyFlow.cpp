#include "forms/runs/ModifyFlow.h"

#include "binding/Catalogue.h"
#include "config/ConfigReader.h"
#include "config/Vocabulary.h"
#include "forms/binding/TagRuns.h"
#include "forms/binding/TagsChanged.h"
#include "forms/binding/UnusedTags.h"
#include "forms/editors/FrAccelabar.h"
#include "forms/editors/FrParMec.h"
#include "forms/editors/GasSources.h"
#include "forms/editors/MDetail.h"
#include "forms/editors/frSGERG88.h"
#include "forms/runs/StoredFile.h"

namespace gfc::forms {

namespace {

// The buffer that all mechanical editors share, as it was before.
class BufferKept {
public:
    explicit BufferKept(Session& session) : session_(session), kept_(session.EditedMechanical) {}
    ~BufferKept() { session_.EditedMechanical = std::move(kept_); }
    BufferKept(const BufferKept&) = delete;
    BufferKept& operator=(const BufferKept&) = delete;

private:
    Session& session_;
    config::RunMechanical kept_;
};

constexpr const char* lost = "The changes were not saved.";

bool WishesToSave(ui::Screen& screen, ui::Icon icon) {
    const auto answer = screen.Ask({.Title = "Configuration finished.",
                                    .Text = "Do you wish to save your changes ?",
                                    .TheIcon = icon,
                                    .TheButtons = ui::Buttons::YesNo});
    return answer == ui::Answer::Yes && !screen.Ended();
}

} // namespace

ModifyFlow::ModifyFlow(Program& program, const ModifySelection& selection)
    : program_(program), session_(program.Session), station_(session_.Station), selection_(selection),
      run_(EditedRun(station_)), file_(session_.ConfigFile()) {}

void ModifyFlow::Run(const project::WorkingModuleNames& working) {
    OfferUnusedTags(program_, working);
    session_.Cancelled = false;
    const BufferKept kept(session_);
    if (!Edit())
        return;
    if (selection_.IsMechanicalOnly())
        return SaveMechanical();
    TryAndSave();
}

bool ModifyFlow::Edit() {
    if (!EditMechanical())
        return false;
    station_.Measured = station_.GasDensitySource == config::source::Measured;
    return Bind(BindingStage::RunInputs, selection_.RunInputs) && EditGas() &&
           Bind(BindingStage::RunOutputs, selection_.RunOutputs) &&
           Bind(BindingStage::GasOutputs, selection_.GasOutputs);
}

bool ModifyFlow::EditMechanical() {
    if (!selection_.Mechanical || run_ == 0 || !config::IsOrificeAlgorithm(station_.FlowAlgorithm))
        return true;
    session_.EditRun = run_;
    session_.EditedMechanical = config::LoadRunMechanical(program_.Ini, file_, run_);
    const bool edited = station_.FlowAlgorithm == config::algorithm::Accelabar
                            ? ShowMechanical<FrAccelabar>("Accelabar Parameters  ")
                            : ShowMechanical<FrParMec>("Mechanical parameters   ");
    if (edited)
        station_.Runs.Mechanical.at(0) = session_.EditedMechanical;
    return edited;
}

template <class Editor>
bool ModifyFlow::ShowMechanical(std::string_view caption) {
    auto& editor = program_.Forms.Get<Editor>();
    editor.SetCaption(std::string(caption) + station_.CurrentStation + " (Run " + std::to_string(run_) + ")");
    editor.ShowModal();
    return Goes();
}

bool ModifyFlow::EditGas() {
    if (!selection_.FixedGas)
        return Bind(BindingStage::GasInputs, selection_.GasInputs);
    if (run_ == 0 || !config::IsGasModel(station_.GasDensitySource))
        return true;
    return config::IsDetail(station_.GasDensitySource) ? ShowGas<MDetail>() : ShowGas<frSGERG88>();
}

template <class Editor>
bool ModifyFlow::ShowGas() {
    session_.GasRun = run_ - 1;
    session_.GasAccepted = false;
    program_.Forms.Get<Editor>().ShowModal();
    if (!Goes())
        return false;
    if (session_.GasAccepted)
        TakeFixedGas(station_, station_.Runs.Gas.at(0));
    return true;
}

bool ModifyFlow::Bind(BindingStage stage, bool selected) {
    if (!selected || binding::VariablesOf(stage, station_, 0).empty())
        return true;
    session_.BindingStage = stage;
    session_.RunPosition = 0;
    session_.RunNumber = run_ - 1;
    program_.Forms.Get<TagRuns>().ShowModal();
    return Goes();
}

bool ModifyFlow::Goes() const {
    return !session_.Cancelled && !program_.Screen.Ended();
}

// No binding has changed, so that there is nothing to try.
void ModifyFlow::SaveMechanical() {
    if (WishesToSave(program_.Screen, ui::Icon::None))
        Save([this](config::FileIni& ini) { ApplyMechanicalParameters(ini, station_, file_); });
}

void ModifyFlow::TryAndSave() {
    if (!FileIsStillThere(program_, lost))
        return;
    const bool passes = TrialPasses();
    if (!program_.Screen.Ended())
        passes ? SaveIfWished() : SaveIfIgnored();
}

// Where no trial can be made, and a person who was told goes on without one, it works on what is there.
bool ModifyFlow::TrialPasses() {
    {
        const TrialCopy trial(program_.Storage, file_, TrialFile(session_));
        if (trial.IsMade())
            (void)program_.Storage.Change({TrialCopy::Lost}, trial.Path(), [&](config::FileIni& ini) {
                ApplyModifiedTags(ini, station_, selection_, trial.Path());
            });
        // The choices are those of the station's own file: a copy that could not be made knows none.
        config::StationConfig choicesOfTrial;
        session_.Expected = {};
        // Nothing is changed here, but what cannot be read is told in the same way.
        (void)program_.Storage.Change({TrialCopy::Lost}, trial.Path(), [&](config::FileIni&) {
            binding::BuildExpectedTags(program_.Ini, trial.Path(), choicesOfTrial, session_.Expected);
        });
    }
    return binding::CheckExpectedTags(session_.Expected, session_.Inventory);
}

void ModifyFlow::SaveIfWished() {
    if (WishesToSave(program_.Screen, ui::Icon::Information))
        Save([this](config::FileIni& ini) { ApplyModifiedTags(ini, station_, selection_, file_); });
}

void ModifyFlow::SaveIfIgnored() {
    session_.GasInputsValid = true;
    program_.Forms.Get<TagsChanged>().ShowModal();
    const bool ignored = session_.TagsChangedChoice == TagsChangedChoice::Ignore;
    if (ignored && !program_.Screen.Ended())
        Save([this](config::FileIni& ini) { WriteWithErrors(ini); });
}

// Given up, the changes are lost and the file is as it was: whoever opened the window shows what it says.
void ModifyFlow::Save(const config::FileIni::Changes& changes) {
    if (FileIsStillThere(program_, lost))
        (void)program_.Storage.Change({lost}, file_, changes);
}

void ModifyFlow::WriteWithErrors(config::FileIni& ini) {
    ApplyModifiedTags(ini, station_, selection_, file_);
    binding::DisableRunsWithErrors(ini, session_.Expected, file_);
    // Deliberately whatever the error was: a run whose gas inputs were edited goes off with it.
    for (int run = 1; selection_.GasInputs && run <= config::MaxRuns; ++run)
        if (station_.Run.at(static_cast<std::size_t>(run - 1)) == config::Yes)
            DisableRun(ini, run);
    const bool composition =
        config::IsGasModel(station_.GasDensitySource) && station_.AGA8CalInput == config::CompositionMeasured;
    if (!composition || session_.GasInputsValid)
        return;
    // The runs share the gas.
    for (int run = 1; run <= config::MaxRuns; ++run)
        DisableRun(ini, run);
}

void ModifyFlow::DisableRun(config::FileIni& ini, int run) {
    ini.WriteKey("FlowRuns", "Run" + std::to_string(run), std::string(config::No), file_);
}

} // namespace gfc::forms
