#include "forms/runs/ModifyFlowFile.h"

#include "config/ConfigWriter.h"
#include "config/InPlaceUpdate.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "forms/program/Session.h"
#include "forms/program/Storage.h"

#include <array>

namespace gfc::forms {

namespace {

using namespace std::string_view_literals;

// A kind of the in-place update, and which choices call for it.
struct KindRow {
    int Kind;
    bool ModifySelection::*Choice;
    bool ModifySelection::*OrChoice;
};

// In the order of writing. The mechanical parameters bring the inputs with them, since it is there that tags
// of the diameters come and go.
// clang-format off
constexpr std::array<KindRow, 4> Kinds = {{
    {4, &ModifySelection::FixedGas,   &ModifySelection::GasInputs},
    {1, &ModifySelection::RunInputs,  &ModifySelection::Mechanical},
    {2, &ModifySelection::RunOutputs, &ModifySelection::RunOutputs},
    {3, &ModifySelection::GasOutputs, &ModifySelection::GasOutputs},
}};
// clang-format on

constexpr std::array CommonFlowKeys = {"StandardT"sv, "StandardP"sv, "Compressible"sv, "FlowingViscosity"sv,
                                       "IsentropicCoeff"sv};

// An Accelabar run has neither an orifice of its own nor external diameters.
void WriteMechanicalKeys(config::FileIni& ini, const config::StationConfig& station,
                         const config::RunMechanical& mechanical, int run, const std::string& file) {
    const auto write = [&](auto keys) { config::WriteRunKeys(ini, station, mechanical, keys, run, file); };
    if (station.FlowAlgorithm == config::algorithm::Accelabar)
        return write(config::runkeys::Accelabar);
    write(config::runkeys::Mechanical);
    write(config::runkeys::ExtMechParam);
}

} // namespace

int EditedRun(const config::StationConfig& station) {
    for (int run = 1; run <= config::MaxRuns; ++run)
        if (station.Run.at(static_cast<std::size_t>(run - 1)) == config::Yes)
            return run;
    return 0;
}

void ApplyModifiedTags(config::FileIni& ini, const config::StationConfig& station,
                       const ModifySelection& selection, const std::string& file) {
    const config::FileBatch batch(ini, file);
    if (selection.HasGas())
        config::WriteGasSection(ini, station, file);
    const int run = EditedRun(station);
    if (run == 0)
        return;
    for (const KindRow& row : Kinds)
        if (selection.*row.Choice || selection.*row.OrChoice)
            config::WriteRunBindings(ini, station, row.Kind, run, file);
    const config::RunMechanical none;
    const auto& mechanical = config::ElementOr(station.Runs.Mechanical, 0, none);
    config::WriteRunKeys(ini, station, mechanical, config::runkeys::CommonValues, run, file);
    if (selection.Mechanical)
        WriteMechanicalKeys(ini, station, mechanical, run, file);
}

void ApplyMechanicalParameters(config::FileIni& ini, const config::StationConfig& station,
                               const std::string& file) {
    const config::FileBatch batch(ini, file);
    if (const int run = EditedRun(station); run > 0) {
        const config::RunMechanical none;
        const auto& mechanical = config::ElementOr(station.Runs.Mechanical, 0, none);
        config::WriteRunKeys(ini, station, mechanical, config::runkeys::Pressure, run, file);
        WriteMechanicalKeys(ini, station, mechanical, run, file);
    }
    config::WriteFlowKeys(ini, station, CommonFlowKeys, file);
}

std::string TrialFile(const Session& session) {
    config::ProjectPaths beside = session.Project.Paths;
    beside.ConfigFilePrefix = beside.ProjectFolder + platform::Separator + "tmpTags_";
    return config::ConfigFilePath(beside, session.Project.ProjectName, session.Station.CurrentStation);
}

const char* const TrialCopy::Lost = "The changes could not be tried on a copy of the configuration file.";

TrialCopy::TrialCopy(Storage& storage, const std::string& original, std::string copy)
    : storage_(storage), copy_(std::move(copy)) {
    (void)storage_.TryToDelete(copy_); // there is mostly none
    made_ = storage_.Copy({Lost}, original, copy_);
}

TrialCopy::~TrialCopy() {
    (void)storage_.TryToDelete(copy_); // the next one does it otherwise
}

void ClearModifyState(Session& session) {
    config::StationConfig none;
    none.ProjectFile = session.Station.ProjectFile;
    none.ProjectName = session.Station.ProjectName;
    none.UserId = session.Station.UserId;
    session.Station = std::move(none);
    session.Inventory = {};
    session.Expected = {};
    session.Modules.ClearCounts();
}

} // namespace gfc::forms
