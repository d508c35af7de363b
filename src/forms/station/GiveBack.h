#pragma once

#include "forms/program/Program.h"

// Where a dialog that was cancelled leads back to: whoever drives the dialogs gets the control again. All set
// Session::Cancelled, which the driver tests once the dialog has gone.
namespace gfc::forms {

// Wizard: closes WizardFC, SelectRuns, TagRuns and Step, shows GFCPrincipal. Configurator: closes TagRuns and
// Step, shows Configurador. Else: closes TagRuns.
void GiveBackFromTagRuns(Program& program);

// For FrParMec, FrAccelabar, MDetail and frSGERG88: closes the editor and Step. Wizard: closes WizardFC and
// enables GFCPrincipal. ModifyTags: enables GFCPrincipal. Else: enables Configurador.
void GiveBackFromEditor(Program& program, ui::Form& editor);

} // namespace gfc::forms
