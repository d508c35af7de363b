#pragma once

#include "config/VarINIFile.h"

#include <string>

namespace gfc::config {

struct SampleChoices {
    std::string Algorithm;
    std::string Source;
    std::string CalInput; // "MEASURED" or "FIXED"
};

// Station "North" of "/jobs/plant.KPJ" in the whole-station arrangement, runs 2 and 5 active. Every text of
// it is set, each to one of its own, but for the binding GFCRunHold of run 5. GasDensityStandardT and -P and
// the runs' copies of common values hold what no writer may take.
[[nodiscard]] StationConfig SampleStation(const SampleChoices& choices);

// The same records as a load of that run alone leaves them, 2 or 5.
[[nodiscard]] StationConfig SampleRun(const SampleChoices& choices, int run);

// The files under golden/config: "aga3_densimeter" and so on.
[[nodiscard]] std::string GoldenFile(const std::string& name);

// Lines of a file: each gets its CR LF.
[[nodiscard]] std::string Lines(std::initializer_list<const char*> lines);

} // namespace gfc::config
