#pragma once

#include "config/VarINIFile.h"
#include "forms/program/Program.h"
#include "ui/Buttons.h"
#include "ui/ControlArray.h"

#include <string>

// What the editors of a run's fixed data have in common.
namespace gfc::forms {

// "Run 1" to "Run 5", the source of a copy.
using SourceRuns = ui::ControlArray<ui::OptionButton, config::MaxRuns>;

[[nodiscard]] std::string SourceRunCaption(int run);
void DisableAll(SourceRuns& runs);

// Offers each run but the edited one whose element of the mechanical array has this field; the index goes
// directly into the array, whatever the arrangement.
void OfferMechanicalSources(const Session& session, SourceRuns& runs,
                            std::string config::RunMechanical::*witness);
// Copies element run (0 to 4) of the mechanical array into EditedMechanical; nothing if there is no such
// element.
void CopyMechanical(Session& session, int run);

// Context help at this number if the help button is available, otherwise at 0.
void OpenEditorHelp(ui::Screen& screen, const ui::CommandButton& helpButton, int context);

// Asks the question; on Yes the editor is cancelled and the control given back.
void CancelEditor(Program& program, ui::Form& editor, const std::string& title, const std::string& question);
// The same with the words of both mechanical editors.
void CancelMechanicalEditor(Program& program, ui::Form& editor);

} // namespace gfc::forms
