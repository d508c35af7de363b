#pragma once

#include "project/WorkingModules.h"

#include <string>

// What the flow computer software needs of a station's registers.
namespace gfc::project {

struct StationCapacity {
    const TagInventory& Inventory;
    const WorkingModuleCandidates& Candidates;
};

// Numbers of free registers that are needed.
[[nodiscard]] bool RunCapacity(const StationCapacity& station, int floats, int analogs, int digitals);
[[nodiscard]] bool LongCapacity(const StationCapacity& station, int longs);
// 0 to 4 by the tests in their required order; see MaximumRunsText.
[[nodiscard]] int MaximumRuns(const StationCapacity& station, bool isAGA7);
// The empty text for 0.
[[nodiscard]] std::string MaximumRunsText(int runs);

enum class ShortageKind { AGA3Family = 1, AGA7 = 2 };
[[nodiscard]] std::string IOShortageTitle(ShortageKind kind);
// Lines joined by carriage returns only.
[[nodiscard]] std::string IOShortageText(ShortageKind kind, int activeRuns);

} // namespace gfc::project
