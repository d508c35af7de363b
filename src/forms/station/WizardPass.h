#pragma once

#include "drafts/Draft.h"
#include "forms/program/Program.h"

#include <string>
#include <string_view>

namespace gfc::forms {

class PassDraft;

// The words of a pass that differ by who drives it. {run} stands for the run's number, {station} for the
// station's name.
struct PassTexts {
    std::string_view Opening; // of the first announcement; empty for that of the form's design
    std::string_view AnnounceMechanical;
    std::string_view AnnounceAccelabar;
    std::string_view AnnounceExternalDetail;
    std::string_view AnnounceExternalGross;
    std::string_view MechanicalCaption; // of the editors
    std::string_view AccelabarCaption;
    std::string_view StepOf;     // between the step and the total
    std::string_view LastStepOf; // the same in a run's last step
    std::string_view AnnounceGasOutputs = "Run {run} gas properties calculation output tag assignments";
};

extern const PassTexts WizardPassTexts;

// The pass over all active runs of the committed choices: one dialog after the other, each announced by Step
// with the count of the steps. The results stand in the run records, compactly over the active runs.
class WizardPass {
public:
    // draft keeps what is entered, and says which dialogs are behind a pass that goes on; null for a pass of
    // which none is kept.
    WizardPass(Program& program, const PassTexts& texts, PassDraft* draft = nullptr)
        : program_(program), texts_(texts), draft_(draft) {}

    // True once all runs are through. False as soon as a dialog was cancelled, or the program has ended.
    [[nodiscard]] bool Run();
    // The steps of the pass, without that of a common atmospheric pressure.
    [[nodiscard]] static int TotalSteps(const config::StationConfig& station);

    struct TheRun {
        int Number;  // 1 to 5
        int Element; // of the run records
    };

    // The two halves of one run's steps, for a caller that drives them itself and has prepared the records.
    // False as in Run.
    [[nodiscard]] bool Mechanical(const TheRun& run);
    [[nodiscard]] bool TagsAndGas(const TheRun& run);
    // Nothing is counted where total is 0.
    void StartCount(int total);

private:
    bool Open();
    bool Common();
    bool EachRun();
    template <class Editor>
    bool EditMechanical(const TheRun& run, std::string_view announcement, std::string_view caption);
    // A dialog that was finished before the pass was left; it counts as a step all the same.
    bool IsBehind(const drafts::PassStep& step);
    bool GasData(const TheRun& run);
    bool DetailComposition(const TheRun& run);
    bool GrossProperties(const TheRun& run);
    bool GasOutputs(const TheRun& run);
    bool Bind(BindingStage stage, const TheRun& run, std::string_view announcement);
    bool ShowTags(const drafts::PassStep& step, const TheRun& run);
    void PrepareGas(const TheRun& run, config::GasSlot signOfEntry);
    void TakeGas(const TheRun& run);
    bool Announce(std::string_view announcement, const TheRun& run, std::string_view stepOf);
    bool Goes(const drafts::PassStep& step);
    [[nodiscard]] std::string Filled(std::string_view text, const TheRun& run) const;

    Program& program_;
    const PassTexts& texts_;
    PassDraft* draft_;
    Session& session_ = program_.Session;
    config::StationConfig& station_ = session_.Station;
    int step_ = 1;
    int total_ = 0;
};

} // namespace gfc::forms
