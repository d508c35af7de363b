#pragma once

#include "binding/BindingStage.h"
#include "binding/ExpectedTags.h"
#include "config/VarINIFile.h"
#include "project/Project.h"
#include "project/WorkingModules.h"

#include <string>

namespace gfc::forms {

// Who drives the dialogs.
enum class EditMode { None = 0, Wizard = 1, Configurator = 2, ModifyTags = 3 };

using BindingStage = binding::BindingStage;

// What the user decided when a configuration turned out to have errors.
enum class TagsChangedChoice { None = 0, Ignore = 1, BackToConfigure = 2, Discard = 3 };

// What the windows share while the program runs. One object, owned by main.
struct Session {
    config::StationConfig Station;
    project::Project Project;
    project::TagInventory Inventory; // of the station opened last
    project::WorkingModuleCandidates Modules;

    bool UserIdCancelled = false;
    bool TreeRefreshNeeded = false;
    forms::EditMode EditMode = EditMode::None;
    bool Cancelled = false; // set by a sub-dialog to stop the sequence; cleared before each dialog
    std::string SelectedNodeText;
    std::string SelectedPath;

    // Set by the caller before TagRuns is shown.
    forms::BindingStage BindingStage = BindingStage::None;
    int RunPosition = 0; // element of the run arrays
    int RunNumber = 0;   // 0 to 4

    // Set by the caller before FrParMec or FrAccelabar is shown; they hand their result back in the record.
    int EditRun = 0; // 1 to 5
    config::RunMechanical EditedMechanical;

    // Set by the caller before MDetail or frSGERG88 is shown.
    int GasRun = 0;           // 0 to 4
    bool GasAccepted = false; // the form was accepted

    // What frCopyStation was left with; empty for none.
    std::string CopyDestination;

    // Of the configuration file that was checked last.
    binding::ExpectedTags Expected;
    // The answer of TagsChanged, and whether its log was free of errors of gas inputs: set true by the caller
    // before the form is shown.
    forms::TagsChangedChoice TagsChangedChoice = forms::TagsChangedChoice::None;
    bool GasInputsValid = true;

    [[nodiscard]] std::string ConfigFile() const { return Project.ConfigFileOf(Station.CurrentStation); }
};

} // namespace gfc::forms
