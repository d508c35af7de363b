#include "project/Requirements.h"

#include <array>

namespace gfc::project {
namespace {

int Count(const TagList& list) {
    return static_cast<int>(list.size());
}

int Registers(const std::vector<Candidate>& candidates) {
    int sum = 0;
    for (const Candidate& candidate : candidates)
        sum += candidate.Registers;
    return sum;
}

// MaximumRuns alone skips candidates without a name.
int NamedRegisters(const std::vector<Candidate>& candidates) {
    int sum = 0;
    for (const Candidate& candidate : candidates)
        sum += candidate.ModuleName.empty() ? 0 : candidate.Registers;
    return sum;
}

int Floats(const TagInventory& tags) {
    return Count(tags.VirtFX) + Count(tags.VirtFY);
}

int Analogs(const TagInventory& tags) {
    return Count(tags.VirtAX) + Count(tags.VirtAY) + Count(tags.PhysAX) + Count(tags.PhysAY);
}

int Digitals(const TagInventory& tags) {
    return Count(tags.VirtX) + Count(tags.VirtY) + Count(tags.PhysX) + Count(tags.PhysY);
}

int VirtualLongs(const TagInventory& tags) {
    return Count(tags.VirtLX) + Count(tags.VirtLY);
}

struct Available {
    int Floats, Analogs, Digitals, Longs;
};

constexpr int LongsNeverLimit = 10;

Available AvailableForRuns(const StationCapacity& station, bool isAGA7) {
    const TagInventory& tags = station.Inventory;
    const int longs = VirtualLongs(tags) + Count(tags.PhysLX) + Count(tags.PhysLY) -
                      NamedRegisters(station.Candidates.LongCandidates);
    return {Floats(tags) - NamedRegisters(station.Candidates.FloatCandidates),
            Analogs(tags) - NamedRegisters(station.Candidates.AnalogCandidates), Digitals(tags),
            isAGA7 ? longs : LongsNeverLimit};
}

bool FitsRuns(const Available& available, int runs, int floatsPerRun) {
    constexpr int band = 8;
    const int floats = runs * floatsPerRun;
    // Deliberate: four runs ask the floats a second time, and no digital registers.
    const int third = runs == 4 ? available.Floats : available.Digitals;
    return available.Floats >= floats && available.Floats < floats + band && available.Analogs >= runs &&
           third >= runs && available.Longs >= runs;
}

constexpr std::array<std::string_view, 5> MaximumRunsTexts = {
    "", "Only one Run can be configured", "Only two Runs can be configured",
    "Only three Runs can be configured", "Only four Runs can be configured"};

// Float registers per run: without a gas model, with one, and with its composition from a chromatograph.
struct FloatNeeds {
    int Plain, GasModel, Chromatograph;
};

constexpr FloatNeeds NeedsOf(ShortageKind kind) {
    return kind == ShortageKind::AGA3Family ? FloatNeeds{17, 23, 44} : FloatNeeds{6, 11, 32};
}

std::string NeedLine(int floats, int analogs, int digitals) {
    return "- " + std::to_string(floats) + " FI or FO, " + std::to_string(analogs) + " AI or AO and " +
           std::to_string(digitals) + " DI or DO registers";
}

} // namespace

bool RunCapacity(const StationCapacity& station, int floats, int analogs, int digitals) {
    const auto& candidates = station.Candidates;
    const int floatModules = candidates.NFX + candidates.NFY;
    const int analogModules = candidates.NAX + candidates.NAY;
    if (floatModules < 1 || analogModules < 1)
        return false;
    // Two modules of both kinds are deliberately enough, whatever the numbers.
    if (floatModules >= 2 && analogModules >= 2)
        return true;
    const int freeFloats = Floats(station.Inventory) - Registers(candidates.FloatCandidates);
    const int freeAnalogs = Analogs(station.Inventory) - Registers(candidates.AnalogCandidates);
    return (floatModules >= 2 || freeFloats >= floats) && (analogModules >= 2 || freeAnalogs >= analogs) &&
           Digitals(station.Inventory) >= digitals;
}

bool LongCapacity(const StationCapacity& station, int longs) {
    const auto& candidates = station.Candidates;
    return candidates.NLX + candidates.NLY >= 2 ||
           VirtualLongs(station.Inventory) - Registers(candidates.LongCandidates) >= longs;
}

int MaximumRuns(const StationCapacity& station, bool isAGA7) {
    const Available available = AvailableForRuns(station, isAGA7);
    for (const int runs : {2, 3, 4, 1})
        if (FitsRuns(available, runs, isAGA7 ? 5 : 8))
            return runs;
    return 0;
}

std::string MaximumRunsText(int runs) {
    const bool known = runs >= 0 && runs < static_cast<int>(MaximumRunsTexts.size());
    return known ? std::string(MaximumRunsTexts[static_cast<std::size_t>(runs)]) : std::string{};
}

std::string IOShortageTitle(ShortageKind kind) {
    return kind == ShortageKind::AGA3Family ? "Error: Configuring AGA3" : "Error: Configuring AGA7";
}

std::string IOShortageText(ShortageKind kind, int activeRuns) {
    const FloatNeeds needs = NeedsOf(kind);
    const int runs = activeRuns;
    return "ERROR: The number of available tags/modules is below the minimum required for the flow computer "
           "software.\r"
           "Please make sure that at least the following I/O memory is available for the flow computer "
           "software "
           "usage:\r"
           "- One LI or LO Virtual Module containing 8 registers for datalogging\r"
           "- One AI or AO Virtual Module containing 32 registers for datalogging\r"
           "- One FI or FO Virtual Module containing 128 registers for datalogging\r" +
           NeedLine(needs.Plain * runs, runs, 3 * runs) + " for " + std::to_string(runs) +
           " enabled flow calculation runs\r" + NeedLine(needs.GasModel * runs, 2 * runs, 3 * runs) +
           " if AGA-8 calculation block is enabled\r" +
           NeedLine(needs.Chromatograph * runs, 2 * runs, 4 * runs) +
           " if AGA-8 is enabled and gas composition source is from an external gas chromatograph";
}

} // namespace gfc::project
