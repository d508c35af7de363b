#include "forms/editors/EditorParts.h"

#include "forms/program/HelpFile.h"
#include "forms/program/Loss.h"
#include "forms/station/GiveBack.h"

namespace gfc::forms {

namespace {

// Null if the array does not reach that far, as after the load of one run.
const config::RunMechanical* MechanicalAt(const Session& session, int run) {
    const auto& records = session.Station.Runs.Mechanical;
    const auto index = static_cast<std::size_t>(run);
    return index < records.size() ? &records[index] : nullptr;
}

} // namespace

std::string SourceRunCaption(int run) {
    return "Run " + std::to_string(run + 1);
}

void DisableAll(SourceRuns& runs) {
    for (int run = 0; run < SourceRuns::Size(); ++run)
        runs[run].SetEnabled(false);
}

void OfferMechanicalSources(const Session& session, SourceRuns& runs,
                            std::string config::RunMechanical::*witness) {
    for (int run = 0; run < SourceRuns::Size(); ++run) {
        const auto* record = MechanicalAt(session, run);
        const bool entered = record != nullptr && !(record->*witness).empty();
        if (entered && run + 1 != session.EditRun)
            runs[run].SetEnabled(true);
    }
}

void CopyMechanical(Session& session, int run) {
    if (const auto* record = MechanicalAt(session, run); record != nullptr)
        session.EditedMechanical = *record;
}

void OpenEditorHelp(ui::Screen& screen, const ui::CommandButton& helpButton, int context) {
    screen.OpenHelp(HelpFile, helpButton.Visible() && helpButton.Enabled() ? context : 0);
}

void CancelEditor(Program& program, ui::Form& editor, const std::string& title, const std::string& question) {
    if (MayLose(program, title, question))
        GiveBackFromEditor(program, editor);
}

void CancelMechanicalEditor(Program& program, ui::Form& editor) {
    CancelEditor(program, editor, "Close mechanical parameters",
                 "Are you sure want to discard the changes made to the current configuration ?");
}

} // namespace gfc::forms
