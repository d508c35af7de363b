#include "config/InPlaceUpdate.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"

#include <array>

namespace gfc::config {
namespace {

enum class PartOrder { TagFirst, TypeFirst };

// When names the group whose presence decides; '*' is always, 'h' the stricter rule of this update for 'H'.
struct UpdateRow {
    char When;
    char Group;
    std::string_view Name;
    PartOrder Order = PartOrder::TagFirst;
};

// The order counts where a key is new in the file.
// clang-format off
constexpr std::array RunInputs = std::to_array<UpdateRow>({
    {'G', 'G', "GasDensityStandard"},
    {'G', 'G', "GasDensity"},
    {'J', 'J', "GasDP"},
    {'h', 'H', "GasPress"},
    {'h', 'H', "GasTemp"},
    {'I', 'I', "Pa"},
    {'L', 'L', "PipeDia"},
    {'L', 'L', "OrificeDia"},
    {'M', 'M', "PipeAbsRoughness"},
    {'M', 'M', "OrificeServiceTime"},
    {'K', 'K', "GasPulseInput", PartOrder::TypeFirst},
    {'K', 'K', "meterKFactor"},
    {'*', 'N', "GFCRunHold"},
    {'*', 'N', "GFCTotalizeHold"},
    {'*', 'N', "ResetTotals"},
    {'*', 'F', "CalibrationFactor"},
    {'*', 'F', "ContractHour"},
    {'*', 'F', "ContractMin"},
});

constexpr std::array RunOutputs = std::to_array<UpdateRow>({
    {'*', 'O', "GasVolume"},
    {'*', 'O', "GasMass"},
    {'*', 'O', "StdMassFlow"},
    {'*', 'O', "StdVolFlow"},
    {'*', 'O', "AGA3Status"},
});

constexpr std::array GasOutputs = std::to_array<UpdateRow>({
    {'*', 'U', "AGA8rhotp"},
    {'*', 'U', "AGA8rhos"},
    {'*', 'U', "AGA8z"},
    {'*', 'U', "AGA8zs"},
    {'*', 'U', "AGA8fpvs"},
    {'*', 'U', "AGA8uncert"},
    {'*', 'U', "AGA8Status"},
    {'*', 'U', "AGA8GRs"},
});
// clang-format on

class BindingUpdate {
public:
    BindingUpdate(FileIni& ini, const RunSource& from, int run, const std::string& file)
        : ini_(ini), from_(from), station_(from.Common), section_(RunSection(run)), file_(file) {}

    void Write(std::span<const UpdateRow> rows) {
        for (const UpdateRow& row : rows)
            WriteRow(RunRowOf(row.Group, row.Name), row.Order, Allowed(row.When));
    }

    void WriteGroup(char group) {
        for (const RunRow& row : RunRows())
            if (row.Group == group)
                WriteRow(row, PartOrder::TagFirst, true);
    }

    // Deliberately without a look at what an earlier source left behind: the reader goes by the same choice.
    void WriteGasInputs() {
        const bool detail = IsDetail(station_.GasDensitySource);
        if (station_.AGA8CalInput != CompositionMeasured)
            return WriteGroup(detail ? 'T' : 'S');
        WriteGroup(detail ? 'R' : 'Q');
        WriteGroup('P');
    }

private:
    [[nodiscard]] bool Allowed(char when) const {
        if (when == '*')
            return true;
        // An unknown algorithm has these keys in a full write and loses them here.
        if (when == 'h' && station_.FlowAlgorithm != algorithm::AGA7)
            return IsOrificeAlgorithm(station_.FlowAlgorithm);
        return GroupPresent(when == 'h' ? 'H' : when, station_, from_.Mechanical);
    }

    void WriteRow(const RunRow& row, PartOrder order, bool allowed) {
        using enum BindingPart;
        static constexpr std::array tagFirst{Tag, Type, RegAddr};
        static constexpr std::array typeFirst{Type, Tag, RegAddr};
        if (!IsBinding(row))
            return WritePart(row, Tag, allowed);
        for (const BindingPart part : order == PartOrder::TypeFirst ? typeFirst : tagFirst)
            WritePart(row, part, allowed);
    }

    void WritePart(const RunRow& row, BindingPart part, bool allowed) {
        const auto value = allowed ? std::optional(TextOf(row, part, from_)) : std::nullopt;
        ini_.WriteKey(section_, KeyOf(row, part, KeyUse::Update), value, file_);
    }

    FileIni& ini_;
    const RunSource& from_;
    const StationConfig& station_;
    std::string section_;
    const std::string& file_;
};

} // namespace

void WriteRunBindings(FileIni& ini, const StationConfig& station, int kind, int run,
                      const std::string& file) {
    const FileBatch batch(ini, file);
    ini.WriteKey("FlowRuns", RunSection(run), std::string(Yes), file);
    const auto& runs = station.Runs;
    const bool ofGas = kind == 3 || kind == 4;
    if (ofGas ? runs.Gas.empty() : runs.IO.empty())
        return; // no run was loaded: nothing to write, and nothing to wipe out
    const RunIO noIO;
    const RunGas noGas;
    const RunMechanical noMechanical;
    const RunSource from{station, ElementOr(runs.IO, 0, noIO), ElementOr(runs.Gas, 0, noGas),
                         ElementOr(runs.Mechanical, 0, noMechanical)};
    BindingUpdate update(ini, from, run, file);
    switch (kind) {
    case 1:
        return update.Write(RunInputs);
    case 2:
        return update.Write(RunOutputs);
    case 3:
        return update.Write(GasOutputs);
    case 4:
        return update.WriteGasInputs();
    default:
        return;
    }
}

} // namespace gfc::config
