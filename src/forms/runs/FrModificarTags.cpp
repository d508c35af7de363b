#include "forms/runs/FrModificarTags.h"

#include "config/ConfigReader.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "forms/main_window/StationNodes.h"
#include "forms/runs/ModifyFlow.h"
#include "forms/station/ModuleLists.h"

#include <algorithm>
#include <array>
#include <utility>

namespace gfc::forms {

namespace {

namespace algorithm = config::algorithm;

struct CaptionRow {
    std::string_view Algorithm;
    std::string_view Inputs;
    std::string_view Outputs;
};

// An algorithm that is none of these has the words of the first.
// clang-format off
constexpr std::array<CaptionRow, 4> Captions = {{
    {algorithm::AGA3,      "AGA-3 Inputs",        "AGA-3 Outputs"},
    {algorithm::AGA7,      "AGA-7 Inputs",        "AGA-7 Outputs"},
    {algorithm::Accelabar, "AGA-3 Inputs",        "AGA-3-Outputs"}, // the second hyphen is deliberate
    {algorithm::SYT6143,   "SYT6143-2004 Inputs", "SYT6143-2004 Outputs"},
}};
// clang-format on

const CaptionRow& CaptionsOf(std::string_view flowAlgorithm) {
    const auto found = std::ranges::find(Captions, flowAlgorithm, &CaptionRow::Algorithm);
    return found == Captions.end() ? Captions.front() : *found;
}

std::string PathEnd(std::string_view nodeText) {
    return std::string("\\").append(nodeText);
}

} // namespace

FrModificarTags::FrModificarTags(Program& program)
    : ProgramForm(program, "FrModificarTags", "Change I/O Tags and Gas Composition") {
    const std::pair<ui::CheckBox*, bool ModifySelection::*> boxes[] = {
        {&Check1, &ModifySelection::RunInputs},  {&Check2, &ModifySelection::RunOutputs},
        {&Check3, &ModifySelection::Mechanical}, {&Check4, &ModifySelection::GasOutputs},
        {&Check5, &ModifySelection::GasInputs},  {&Check6, &ModifySelection::FixedGas}};
    for (const auto& [box, choice] : boxes)
        box->OnClick = [this, box = box, choice = choice] { selection_.*choice = box->Value(); };
    Command1.OnClick = [this] { Accept(); };
    Command2.OnClick = [this] { Unload(); };
    for (auto* modules : {&Combo1, &Combo2, &Combo3})
        modules->SetVisible(false);
}

void FrModificarTags::Load() {
    auto& station = session_.Station;
    session_.EditMode = EditMode::ModifyTags;
    const std::string file = session_.ConfigFile();
    const config::FileBatch batch(program_.Ini, file);
    config::LoadStationConfig(program_.Ini, station, file);
    station.Measured = station.GasDensitySource == config::source::Measured;
    station.FlagAGA7 = station.FlowAlgorithm == algorithm::AGA7;
    if (const int run = RunOfSelection(); run > 0)
        EditOnly(run);
    station.Runs = {};
    if (const int run = EditedRun(station); run > 0)
        config::LoadRun(program_.Ini, station, file, run);
    ShowModules();
    ShowCaptions();
    ShowWhatExists();
}

void FrModificarTags::Unloading() {
    session_.EditMode = EditMode::None;
    ClearModifyState(session_);
}

int FrModificarTags::RunOfSelection() const {
    const std::string& path = session_.SelectedPath;
    const std::string individual = PathEnd(node::IndividualParameters);
    if (path.ends_with(individual))
        return FirstEnabledRun();
    for (int run = 1; run <= config::MaxRuns; ++run)
        if (path.ends_with(individual + PathEnd(node::RunText(run))))
            return run;
    return 0;
}

// Of the file, from which the flags have just been loaded.
int FrModificarTags::FirstEnabledRun() const {
    return EditedRun(session_.Station);
}

// Also a run that is off in the file: for the flow it counts as enabled, and an edit of its tags enables it.
void FrModificarTags::EditOnly(int run) {
    auto& station = session_.Station;
    for (int other = 1; other <= config::MaxRuns; ++other) {
        const auto index = static_cast<std::size_t>(other - 1);
        station.Run.at(index) = other == run ? config::Yes : config::No;
        station.RunList.at(index) = {config::RunSection(other), station.Run.at(index)};
    }
    station.ActiveRunCount = 1;
    SetCaption(Caption() + "   Station : " + station.CurrentStation + " (" + node::RunText(run) + ")");
}

void FrModificarTags::ShowModules() {
    const auto& candidates = session_.Modules;
    const auto& stored = session_.Station.WorkingModules;
    FillModuleNames(Combo1, candidates.AnalogCandidates);
    FillModuleNames(Combo2, candidates.LongCandidates);
    FillModuleNames(Combo3, candidates.FloatCandidates);
    ShowModule(Combo1, stored.WrkAnalogModName);
    ShowModule(Combo2, stored.WrkIntLongModName);
    ShowModule(Combo3, stored.WrkFloatModName);
}

void FrModificarTags::ShowCaptions() {
    const auto& captions = CaptionsOf(session_.Station.FlowAlgorithm);
    Check1.SetCaption(std::string(captions.Inputs));
    Check2.SetCaption(std::string(captions.Outputs));
    if (session_.Station.FlowAlgorithm == algorithm::Accelabar)
        Check3.SetCaption("Accelabar parameters");
    ShowGasCaptions();
}

void FrModificarTags::ShowGasCaptions() {
    if (config::FamilyOf(session_.Station.GasDensitySource) != config::GasFamily::Gross)
        return;
    Check4.SetCaption("SGERG-88 / ISO-12213-3-1997 Outputs");
    Check5.SetCaption("SGERG-88 / ISO-12213-3-1997 inputs");
    Check6.SetCaption("Change fixed SGERG-88 / ISO-12213-3-1997 parameters");
}

void FrModificarTags::ShowWhatExists() {
    const auto& station = session_.Station;
    const bool composition = station.AGA8CalInput == config::CompositionMeasured;
    Check3.SetVisible(station.FlowAlgorithm != algorithm::AGA7);
    Check4.SetVisible(!station.Measured);
    Check5.SetVisible(!station.Measured && composition);
    Check6.SetVisible(!station.Measured && !composition);
}

void FrModificarTags::Accept() {
    if (selection_.IsNothing()) {
        program_.Screen.Ask({.Title = "AGA",
                             .Text = "Please Select the option that you want to edit",
                             .TheIcon = ui::Icon::Information});
        return;
    }
    ModifyFlow(program_, selection_)
        .Run({.Analog = Combo1.Text(), .Long = Combo2.Text(), .Float = Combo3.Text()});
    if (program_.Screen.Ended())
        return;
    Unload();
    // Once more than the closing itself does, so that nothing of the edit stays, whatever the closing finds.
    ClearModifyState(session_);
}

} // namespace gfc::forms
