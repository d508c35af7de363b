#include "forms/runs/RunCommands.h"

#include "binding/ErrorLog.h"
#include "config/ConfigReader.h"
#include "config/Vocabulary.h"
#include "forms/binding/ErrorLogView.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "forms/runs/AddRun.h"
#include "forms/runs/EnableFault.h"
#include "forms/station/StationCommands.h"

#include <optional>
#include <utility>

namespace gfc::forms {

namespace {

constexpr const char* flags = "FlowRuns";

std::string EnabledKey(int run) {
    return "Run" + std::to_string(run);
}

std::string ConfiguredKey(int run) {
    return EnabledKey(run) + std::to_string(run);
}

void WriteEnabled(config::FileIni& ini, int run, std::string_view flag, const std::string& file) {
    ini.WriteKey(flags, EnabledKey(run), std::string(flag), file);
}

// Of one run, told of where it is not stored. The tree then shows what the file says.
bool StoreEnabled(Program& program, int run, bool enabled) {
    const std::string file = program.Session.ConfigFile();
    const std::string lost = node::RunText(run) + " was not " + (enabled ? "enabled." : "disabled.");
    const bool stored = program.Storage.Change({lost}, file, [&](config::FileIni& ini) {
        WriteEnabled(ini, run, enabled ? config::Yes : config::No, file);
    });
    if (!stored && !program.Screen.Ended())
        program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
    return stored;
}

void ShowEnabled(Program& program, int run, bool enabled) {
    const std::string path = node::RunPath(program.Session.Station.CurrentStation, run);
    program.Forms.Get<GFCPrincipal>().SetRunImage(path, enabled);
}

// Empty if the node is not there any more.
std::string ImageOfSelectedNode(Program& program) {
    const auto& tree = program.Forms.Get<GFCPrincipal>().TreeGFC;
    const int selected = tree.FindPath(program.Session.SelectedPath);
    return selected == 0 ? std::string() : tree.At(selected).Image;
}

// What the command goes by, all from one reading of the file.
struct StoredRun {
    config::StationConfig Station; // the common part
    std::string Configured;        // the flag that says whether the run ever was
};

// Nothing if the file cannot be read, and a person was told. The result of the check as a whole is not used:
// only the entries of the selected run count.
std::optional<StoredRun> ReadStored(Program& program, int run) {
    auto& session = program.Session;
    const std::string file = session.ConfigFile();
    StoredRun stored{session.Station, {}};
    StartAfresh(stored.Station);
    const std::string lost = (run == 0 ? "The run" : node::RunText(run)) + " was not enabled.";
    // Nothing is changed here, but what cannot be read is told in the same way.
    const bool read = program.Storage.Change({lost}, file, [&](config::FileIni&) {
        binding::BuildExpectedTags(program.Ini, file, session.Station, session.Expected);
        config::LoadStationConfig(program.Ini, stored.Station, file);
        stored.Configured = program.Ini.ReadKey(flags, ConfiguredKey(run), file);
    });
    if (!read)
        return std::nullopt;
    (void)binding::CheckExpectedTags(session.Expected, session.Inventory);
    return stored;
}

// Given up, a run with errors goes on being enabled in the file; what is wrong with it is told all the same.
void TurnOff(Program& program, int run, bool allRuns) {
    const std::string file = program.Session.ConfigFile();
    const std::string runs = allRuns ? "The runs were" : node::RunText(run) + " was";
    (void)program.Storage.Change({runs + " not disabled."}, file, [&](config::FileIni& ini) {
        for (int each = 1; each <= config::MaxRuns; ++each)
            if (allRuns || each == run)
                WriteEnabled(ini, each, config::No, file);
    });
}

// The image in the tree deliberately stays as it is until the tree is built anew.
void Refuse(Program& program, int run, const EnableFault& fault) {
    TurnOff(program, run, fault.OfAllRuns);
    if (program.Screen.Ended())
        return;
    // Nothing writes the log here: it is the one of the last check that had an answer from a person.
    const std::string log = binding::ErrorLogPath(program.Session.ConfigFile());
    const auto answer = program.Screen.Ask({.Title = "Failed enable run",
                                            .Text = EnableFaultText(fault, run, log),
                                            .TheIcon = ui::Icon::Question,
                                            .TheButtons = ui::Buttons::YesNo});
    if (answer == ui::Answer::Yes && !program.Screen.Ended())
        ViewFindings(program, log, binding::Findings(program.Session.Expected));
}

// The station as its file has it, but with all runs off in memory: adding a run needs that one alone.
void TakeWithoutRuns(Program& program, config::StationConfig stored) {
    auto& station = program.Session.Station;
    program.Session.EditMode = EditMode::None;
    station = std::move(stored);
    station.FlagAGA7 = station.FlowAlgorithm == config::algorithm::AGA7;
    station.Measured = station.GasDensitySource == config::source::Measured;
    for (int run = 1; run <= config::MaxRuns; ++run)
        SetRunInMemory(station, run, false);
    station.ActiveRunCount = 1;
}

void OfferToConfigure(Program& program, int run) {
    const auto answer =
        program.Screen.Ask({.Title = "Configure Run",
                            .Text = "The selected run is not configured. Do you want to configure it?",
                            .TheIcon = ui::Icon::Information,
                            .TheButtons = ui::Buttons::YesNo});
    if (answer != ui::Answer::Yes || program.Screen.Ended())
        return;
    if (ChkRun(program)) {
        SetRunInMemory(program.Session.Station, run, true);
        AddRunSequence(program, run);
    }
    // The counts of the candidates add up over stations until somebody clears them.
    program.Session.Modules.ClearCounts();
}

void Enable(Program& program, int run, const std::string& configured) {
    if (configured == config::Yes) {
        if (StoreEnabled(program, run, true))
            ShowEnabled(program, run, true);
    } else if (configured == config::No) {
        OfferToConfigure(program, run);
    }
    // Any other word, or none, is deliberately passed over in silence.
}

void EnableSelected(Program& program, int run, const std::string& configured) {
    if (run == 0) {
        program.Screen.Ask({.Title = "Error select run",
                            .Text = "Please select the run that wish to enable at individual parameters",
                            .TheIcon = ui::Icon::Exclamation});
        return;
    }
    if (ImageOfSelectedNode(program) == "Run") {
        program.Screen.Ask({.Title = "Run enabled",
                            .Text = "The selected run is enabled already",
                            .TheIcon = ui::Icon::Information});
        return;
    }
    Enable(program, run, configured);
}

} // namespace

// The check comes first, deliberately whatever is selected.
void EnableRunCommand(Program& program) {
    auto& session = program.Session;
    const int run = node::RunOf(session.SelectedNodeText);
    ReadStationTags(program);
    if (program.Screen.Ended())
        return;
    auto stored = ReadStored(program, run);
    if (!stored)
        return;
    if (const auto fault = FindEnableFault(session.Expected, run))
        return Refuse(program, run, *fault);
    TakeWithoutRuns(program, std::move(stored->Station));
    EnableSelected(program, run, stored->Configured);
    // The panes go on showing the station: its flags are again those of the file.
    if (!program.Screen.Ended() && !session.Station.CurrentStation.empty())
        config::LoadStationConfig(program.Ini, session.Station, session.ConfigFile());
}

void DisableRunCommand(Program& program) {
    const int run = node::RunOf(program.Session.SelectedNodeText);
    if (run == 0) {
        // Deliberately the words of the other command.
        program.Screen.Ask({.Title = "Error select run",
                            .Text = "Please select the run you wish to enable at individual parameters",
                            .TheIcon = ui::Icon::Exclamation});
        return;
    }
    if (ImageOfSelectedNode(program) == "NoRun") {
        program.Screen.Ask({.Title = "Run disabled",
                            .Text = "The run already selected is disabled",
                            .TheIcon = ui::Icon::Information});
        return;
    }
    // A key written now would make a file of its own, and with it a station that counts as configured.
    if (!program.Ini.FileExists(program.Session.ConfigFile()))
        return program.Forms.Get<GFCPrincipal>().RebuildAfterCommand();
    if (StoreEnabled(program, run, false))
        ShowEnabled(program, run, false);
}

} // namespace gfc::forms
