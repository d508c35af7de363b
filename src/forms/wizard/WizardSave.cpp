// The end of the wizard: the pass over the runs, the save, and the ways out.
#include "config/ConfigWriter.h"
#include "forms/binding/TagRuns.h"
#include "forms/files/WaitForFile.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/Loss.h"
#include "forms/program/MainWindow.h"
#include "forms/station/Step.h"
#include "forms/station/WizardPass.h"
#include "forms/wizard/SelectRuns.h"
#include "forms/wizard/WizardFC.h"

namespace gfc::forms {

void WizardFC::Finish() {
    if (LacksValue()) {
        // The message is the same whichever of the four is missing.
        program_.Screen.Ask({.Title = "Gas Flow Computer",
                             .Text = "Error: Missing gas flowing viscosity or gas isentropic coefficient",
                             .TheIcon = ui::Icon::Exclamation});
        siguiente.SetVisible(true);
        siguiente.SetEnabled(true);
        return;
    }
    HidePageButtons();
    StoreWizardValues();
    HideMainWindow(program_);
    SetModulesAside();
    Hide();
    draft_.emplace(program_);
    PassRuns();
}

void WizardFC::GoOn(drafts::Draft draft) {
    const auto alive = KeepAlive();
    HidePageButtons();
    // It is the pages that are judged there, and these say nothing.
    Notes.SetVisible(false);
    HideMainWindow(program_);
    draft_.emplace(program_, std::move(draft));
    PassRuns();
}

void WizardFC::HidePageButtons() {
    for (ui::CommandButton* button : {&atras, &siguiente, &finalizar})
        button->SetVisible(false);
}

void WizardFC::PassRuns() {
    const bool through = WizardPass(program_, WizardPassTexts, &*draft_).Run();
    if (program_.Screen.Ended())
        return;
    if (!through)
        return Abandon();
    draft_->Reach("All runs are through");
    program_.Forms.Unload<TagRuns>();
    ShowClosingPage();
    ShowModal();
}

// Their tags are not offered for binding.
void WizardFC::SetModulesAside() {
    project::BuildAvailableLists(session_.Inventory, modules.Chosen(session_.Station.WorkingModules),
                                 session_.Station.FlagAGA7);
}

// After a cancel in the pass. Nothing was written to the station's file; what was entered stays as a draft.
void WizardFC::Abandon() {
    CloseForms();
    ForgetStation(session_);
    ShowMainWindow(program_);
    SayWhatIsKept();
}

void WizardFC::SayWhatIsKept() {
    if (!draft_ || program_.Screen.Ended() || !program_.Forms.IsLoaded<GFCPrincipal>())
        return;
    const std::string trouble = draft_->TakeTrouble();
    const std::string text =
        trouble.empty() && draft_->IsKept() ? "What was entered is kept: menu Tools, Drafts..." : trouble;
    if (!text.empty())
        program_.Forms.Get<GFCPrincipal>().StatusBar1.SetPanelText(1, text);
}

void WizardFC::CloseForms() {
    program_.Forms.Unload<TagRuns>();
    program_.Forms.Unload<SelectRuns>();
    program_.Forms.Unload<Step>();
    Unload();
}

// The old file is deleted and then the new one put there, which stands safe beside it by then. Where that
// does not succeed the page stays, with all that was entered.
void WizardFC::Save() {
    const std::string file = session_.ConfigFile();
    const bool stored = program_.Storage.PutAnew(
        {"The configuration of the station was not saved."}, file,
        [&](config::FileIni& ini) { config::SaveWholeConfiguration(ini, session_.Station, file); },
        [&] { return DeletePatiently(program_, file); });
    if (!stored)
        return;
    if (draft_)
        draft_->LetGo();
    CloseForms();
    ShowMainWindow(program_);
    session_.TreeRefreshNeeded = true;
}

void WizardFC::Quit() {
    if (!MayLose(program_, "Gas Flow Computer", "Do you want to quit the configuration wizard ?"))
        return;
    Unload();
    ShowMainWindow(program_);
    ForgetStation(session_);
    SayWhatIsKept();
}

} // namespace gfc::forms
