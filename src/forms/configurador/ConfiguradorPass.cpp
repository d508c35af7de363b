// The pass over the runs, and the tag of the atmospheric pressure that is common to them.
#include "forms/binding/TagRuns.h"
#include "forms/binding/UnusedTags.h"
#include "forms/configurador/Configurador.h"
#include "forms/program/MainWindow.h"
#include "forms/station/Step.h"
#include "forms/station/WizardPass.h"

namespace gfc::forms {

namespace {

constexpr PassTexts ConfiguradorPassTexts = {
    .Opening = "Press 'Continue' to configure common and individual Run parameters and I/O...",
    .AnnounceMechanical = "Run {run} Mechanical parameters",
    .AnnounceAccelabar = "Run {run} Accelabar parameters",
    .AnnounceExternalDetail = "Run {run} external AGA-8 Gas Composition I/O configuration.",
    .AnnounceExternalGross = "Run {run} external SGERG-88 Gas Parameters I/O configuration",
    .MechanicalCaption = "Station: {station}, Run: {run} Mechanical Parameters",
    .AccelabarCaption = "Station: {station}, Run: {run} Accelabar Parameters",
    .StepOf = " of ",
    // Deliberately without the blank behind it.
    .LastStepOf = " of",
};

} // namespace

void Configurador::RunPass() {
    if (!MayPass())
        return;
    StoreValues();
    HideMainWindow(program_);
    project::BuildAvailableLists(session_.Inventory, modules.Chosen(session_.Station.WorkingModules),
                                 session_.Station.FlagAGA7);
    SSTab2.SetEnabled(false);
    Hide();
    const bool through = WizardPass(program_, ConfiguradorPassTexts).Run();
    if (program_.Screen.Ended())
        return;
    PassEnded(through);
    ShowModal();
}

bool Configurador::MayPass() {
    if (session_.Station.ActiveRunCount < 1) {
        program_.Screen.Ask({.Title = "Run configuration...",
                             .Text = "Error : please select at least one run",
                             .TheIcon = ui::Icon::Exclamation});
        SSTab2.SetTab(0);
        return false;
    }
    if (!LacksGasValue())
        return true;
    program_.Screen.Ask({.Title = "Gas Flow Computer",
                         .Text = "Error: Missing gas flowing viscosity or gas isentropic coefficient",
                         .TheIcon = ui::Icon::Exclamation});
    return false;
}

// A cancel leads back here with what was entered, but not to a save: Cancelled still says that tags are
// owed.
void Configurador::PassEnded(bool through) {
    program_.Forms.Unload<TagRuns>();
    finished_ = through;
    passed_ = Choices();
    SSTab2.SetEnabled(true);
    OfferInPlaceSave(through);
    ShowBoundPressure();
}

void Configurador::ChangeExternalPressure() {
    HideMainWindow(program_);
    auto& step = program_.Forms.Touch<Step>();
    step.Label1.SetCaption("Press 'Continue' to configure common Atmospheric Pressure I/O assignment");
    step.ShowModal();
    if (program_.Screen.Ended() || !BindExternalPressure())
        return;
    OfferInPlaceSave(true);
    ShowBoundPressure();
}

bool Configurador::BindExternalPressure() {
    auto& runs = session_.Station.Runs;
    // What a pass has bound stays bound, and its tags stay off the list.
    if (!finished_)
        session_.Inventory.AvailFloat =
            UnusedFloats(program_, modules.Chosen(session_.Station.WorkingModules).Float);
    if (runs.IO.empty())
        runs.PrepareWholeStation(1);
    session_.BindingStage = BindingStage::CommonInputs;
    session_.RunPosition = 0;
    session_.RunNumber = 0;
    const bool owed = session_.Cancelled;
    session_.Cancelled = false;
    program_.Forms.Get<TagRuns>().ShowModal();
    if (!session_.Cancelled)
        return !program_.Screen.Ended();
    // Nothing has changed: no more tags are owed than before.
    session_.Cancelled = owed;
    return false;
}

} // namespace gfc::forms
