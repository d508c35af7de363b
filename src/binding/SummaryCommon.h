#pragma once

#include "binding/SummaryPage.h"
#include "config/VarINIFile.h"

#include <span>

// What the summary shows of the common level of a station. Nothing but the texts given is looked at.
namespace gfc::binding {

// What the first page shows of a run that is enabled; as the run's section of the file holds it.
struct EnabledRun {
    int Run = 0; // 1 to 5
    std::string CalibrationFactor;
    std::string ContractTime; // local "hh:mm"; empty for none
    std::string meterKFactor;
    std::string GasDensityStandard;
};

[[nodiscard]] SummaryPage CommonParametersPage(const config::StationConfig& station,
                                               std::span<const EnabledRun> runs);
[[nodiscard]] SummaryPage WorkingModulesPage(const config::StationConfig& station);
[[nodiscard]] SummaryPage GasDensityPage(const config::StationConfig& station);

} // namespace gfc::binding
