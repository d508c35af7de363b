#include "forms/runs/AddRun.h"

#include "binding/RequiredTags.h"
#include "config/ConfigReader.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "forms/binding/UnusedTags.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/HelpFile.h"
#include "forms/station/IOReports.h"
#include "forms/station/StationCommands.h"
#include "forms/station/Step.h"
#include "forms/station/WizardPass.h"
#include "forms/wizard/WizardFC.h"

namespace gfc::forms {

namespace {

constexpr PassTexts AddedRunTexts = {
    .Opening = "",
    .AnnounceMechanical = "Run {run} Mechanical Parameters",
    .AnnounceAccelabar = "Run {run} Accelabar Parameters",
    .AnnounceExternalDetail = "Run {run} external AGA-8 Gas Composition I/O configuration.",
    .AnnounceExternalGross = "Run {run} external SGERG88 Gas Parameters I/O configuration",
    .MechanicalCaption = "Mechanical Parameters Station: {station}",
    .AccelabarCaption = "Accelabar Parameters Station: {station}",
    .StepOf = " of ",
    .LastStepOf = " of ",
    .AnnounceGasOutputs = "Run {run} flow calculation output AGA8 tag assignments",
};

constexpr int allKinds = 5;

// 0, and nothing is counted, for a source that is neither a densimeter nor a gas model.
int StepsInAll(const config::StationConfig& station) {
    const auto& source = station.GasDensitySource;
    const bool known = source == config::source::Measured || config::IsGasModel(source);
    return known ? WizardPass::TotalSteps(station) : 0;
}

// The fixed data of the run sections, each at its number: from there the editors copy. The thermal
// coefficients deliberately do not come with them.
std::vector<config::RunMechanical> MechanicalOfAllRuns(const Program& program) {
    const std::string file = program.Session.ConfigFile();
    const config::FileBatch oneRead(program.Ini, file);
    std::vector<config::RunMechanical> records;
    for (int run = 1; run <= config::MaxRuns; ++run) {
        auto record = config::LoadRunMechanical(program.Ini, file, run);
        record.OrificeThermalExpCoeff.clear();
        record.PipeThermalExpCoeff.clear();
        records.push_back(std::move(record));
    }
    return records;
}

void PrepareRecords(Program& program) {
    auto& runs = program.Session.Station.Runs;
    runs.PrepareSingleRun();
    runs.Mechanical = MechanicalOfAllRuns(program);
}

// From here on the records are those of the new run alone. Its editor has left its own in the first element;
// without an editor another run's data must not stand in for it.
void KeepOwnMechanical(config::StationConfig& station) {
    auto& records = station.Runs.Mechanical;
    if (!config::IsOrificeAlgorithm(station.FlowAlgorithm))
        records.front() = {};
    records.resize(1);
}

bool EnoughTagsAreFree(Program& program) {
    const auto& pools = program.Session.Inventory;
    const auto needed = binding::CountRequiredTags(program.Session.Station, 0, allKinds);
    const auto fits = [](int count, const project::TagList& pool) {
        return static_cast<std::size_t>(count) <= pool.size();
    };
    if (fits(needed.Float, pools.AvailFloat) && fits(needed.Analog, pools.AvailAnalog) &&
        fits(needed.Digital, pools.AvailDigital) && fits(needed.Long, pools.AvailLong))
        return true;
    program.Screen.Ask({.Title = "Missing Tags...",
                        .Text = "Error : There are not enough available tags to make this configuration, "
                                "please make more tags available using the I/O Workshop",
                        .HelpContext = MinimumIOContext,
                        .HelpFile = HelpFile});
    return false;
}

// False if a dialog was cancelled, or tags are missing.
bool Gather(Program& program, int run) {
    auto& window = program.Forms.Get<GFCPrincipal>();
    auto& station = program.Session.Station;
    OfferUnusedTags(
        program,
        {.Analog = window.Combo1.Text(), .Long = window.Combo2.Text(), .Float = window.Combo3.Text()});
    PrepareRecords(program);
    WizardPass pass(program, AddedRunTexts);
    pass.StartCount(StepsInAll(station));
    const WizardPass::TheRun added{run, 0};
    if (!pass.Mechanical(added))
        return false;
    KeepOwnMechanical(station);
    return EnoughTagsAreFree(program) && pass.TagsAndGas(added);
}

bool WishesToSave(Program& program) {
    const auto answer = program.Screen.Ask({.Title = "Configuration finished.",
                                            .Text = "Do you want to save your changes ?",
                                            .TheButtons = ui::Buttons::YesNo});
    return answer == ui::Answer::Yes && !program.Screen.Ended();
}

// The tree is built anew, since nothing is selected in it any more.
void Forget(Program& program) {
    ClearSession(program);
    program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
}

} // namespace

void AddRunSequence(Program& program, int run) {
    const bool gathered = Gather(program, run);
    if (program.Screen.Ended())
        return;
    program.Forms.Unload<WizardFC>();
    program.Forms.Unload<Step>();
    const bool save = gathered && WishesToSave(program);
    if (program.Screen.Ended())
        return;
    if (save)
        SaveAddedRun(program, run);
    else
        Forget(program);
    program.Forms.Unload<Step>();
}

void SetRunInMemory(config::StationConfig& station, int run, bool active) {
    const auto element = static_cast<std::size_t>(run - 1);
    const std::string flag(active ? config::Yes : config::No);
    station.Run.at(element) = flag;
    station.RunList.at(element) = {config::RunSection(run), flag};
}

} // namespace gfc::forms
