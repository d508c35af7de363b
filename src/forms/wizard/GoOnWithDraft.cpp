#include "forms/wizard/GoOnWithDraft.h"

#include "config/Vocabulary.h"
#include "drafts/GoOn.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/Agreement.h"
#include "forms/program/CommandRecord.h"
#include "forms/station/CapacityGates.h"
#include "forms/station/StationCommands.h"
#include "forms/wizard/WizardFC.h"
#include "platform/Machine.h"

#include <algorithm>
#include <utility>

namespace gfc::forms {

namespace {

constexpr const char* title = "Drafts";
constexpr std::size_t namesInABox = 10;

bool MayGoOn(Program& program, const std::string& text) {
    return IsAgreed(program, title, text + "\r\n\r\nGo on?", program.Session.Station.CurrentStation);
}

// The wizard has asked this of the person who began.
bool MayReplaceFile(Program& program, const drafts::Draft& draft, const std::string& station) {
    const std::string mark = FileMarkOf(program, station);
    if (mark.empty())
        return true;
    return MayGoOn(program, std::string(mark == draft.FileMark
                                            ? "The station has a configuration."
                                            : "The station has got another configuration since the draft "
                                              "was begun.") +
                                "\r\nIt will be deleted when the pass is finished.");
}

bool IsCandidate(const std::vector<project::Candidate>& candidates, const std::string& module) {
    return std::ranges::find(candidates, module, &project::Candidate::ModuleName) != candidates.end();
}

// Names of the draft that the station does not offer any more; empty if it offers all.
std::string MissingModule(const project::WorkingModuleCandidates& candidates,
                          const project::WorkingModuleNames& names) {
    if (!IsCandidate(candidates.AnalogCandidates, names.Analog))
        return names.Analog;
    if (!IsCandidate(candidates.LongCandidates, names.Long))
        return names.Long;
    return IsCandidate(candidates.FloatCandidates, names.Float) ? std::string() : names.Float;
}

bool MayLackTags(Program& program, const std::vector<std::string>& gone) {
    if (gone.empty())
        return true;
    std::string text = "The station does not have these tags any more:\r\n";
    for (std::size_t i = 0; i < std::min(gone.size(), namesInABox); ++i)
        text += gone[i] + "\r\n";
    if (gone.size() > namesInABox)
        text += "and " + std::to_string(gone.size() - namesInABox) + " more\r\n";
    return MayGoOn(program, text + "\r\nThe dialogs that they were bound in will be shown again.");
}

// By the gates that the choices went through on the wizard's pages.
bool Fits(Program& program) {
    const auto& station = program.Session.Station;
    const GateChoices choices{station.FlagAGA7, config::SourceIndex(station.GasDensitySource)};
    const bool outside =
        config::IsGasModel(station.GasDensitySource) && station.AGA8CalInput == config::CompositionMeasured;
    return SourceVerdict(program, choices) == 0 && (!outside || CompositionVerdict(program, choices) == 0);
}

// The draft's configuration, in the hands of the person who goes on.
void TakeStation(config::StationConfig& station, const drafts::Draft& draft) {
    config::StationConfig taken = draft.Station;
    taken.ProjectFile = std::move(station.ProjectFile);
    taken.ProjectName = std::move(station.ProjectName);
    taken.UserId = std::move(station.UserId);
    station = std::move(taken);
}

// False, after saying why, where the pass cannot go on.
bool Prepare(Program& program, drafts::Draft& draft) {
    auto& session = program.Session;
    auto& working = draft.Station.WorkingModules;
    const project::WorkingModuleNames names{working.WrkAnalogModName, working.WrkIntLongModName,
                                            working.WrkFloatModName};
    if (const std::string missing = MissingModule(session.Modules, names); !missing.empty()) {
        program.Screen.Ask({.Title = title,
                            .Text = "The pass cannot go on: the working module " + missing +
                                    " of the draft is not in the station any more.\r\n"
                                    "Please bring it back in the I/O Workshop, or begin anew.",
                            .TheIcon = ui::Icon::Exclamation});
        return false;
    }
    project::ResolveWorkingModuleRegisters(session.Inventory, names, working);
    project::BuildAvailableLists(session.Inventory, names, draft.Station.FlagAGA7);
    const auto gone = drafts::LetGoOfMissingTags(draft, session.Inventory);
    drafts::TakeOffOffer(draft, session.Inventory);
    // Its pages choose units and the like as they load, which must not touch what was chosen.
    program.Forms.Get<WizardFC>().EnsureLoaded();
    TakeStation(session.Station, draft);
    return MayLackTags(program, gone) && Fits(program);
}

void TakeUp(Program& program, drafts::Draft draft) {
    auto& session = program.Session;
    StartAfresh(session);
    session.EditMode = EditMode::Wizard;
    if (!OpenStation(program)) {
        if (!program.Screen.Ended())
            program.Screen.Ask({.Title = title,
                                .Text = "The pass cannot go on: the station has no working modules any "
                                        "more.",
                                .TheIcon = ui::Icon::Exclamation});
        ClearSession(program);
    } else if (Prepare(program, draft)) {
        program.Forms.Get<WizardFC>().GoOn(std::move(draft));
    } else {
        program.Forms.Unload<WizardFC>();
        ClearSession(program);
    }
    // Nobody drives dialogs any more.
    session.EditMode = EditMode::None;
}

} // namespace

void GoOnWithDraft(Program& program, drafts::Draft draft, const std::string& station) {
    program.Forms.Get<GFCPrincipal>().GoTo(station, 0);
    if (program.Session.Station.CurrentStation != station || !HasPlaceForItsFile(program) ||
        !MayReplaceFile(program, draft, station))
        return;
    draft.Station.CurrentStation = station;
    RunRecorded(program, config::command::Wizard, [&] {
        TakeUp(program, std::move(draft));
        if (!program.Screen.Ended())
            program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
    });
}

} // namespace gfc::forms
