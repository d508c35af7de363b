#pragma once

#include "binding/SummaryPage.h"
#include "config/VarINIFile.h"

#include <array>

// What the summary shows of the run that was loaded last: that of the single-run arrangement, with its fixed
// gas values in GasComposition. The choices are taken from the record's texts, since a station that is only
// looked at has not set the flags beside them.
namespace gfc::binding {

[[nodiscard]] SummaryPage RunInputsPage(const config::StationConfig& station);
[[nodiscard]] SummaryPage RunOutputsPage(const config::StationConfig& station);
// The fixed values or the tags of the composition.
[[nodiscard]] SummaryPage GasInputsPage(const config::StationConfig& station);
[[nodiscard]] SummaryPage GasOutputsPage(const config::StationConfig& station);
// Empty for an algorithm that is none of the four.
[[nodiscard]] SummaryPage RunParametersPage(const config::StationConfig& station);

// The headings of the first four pages; that of the parameters never changes.
[[nodiscard]] std::array<std::string, 4> RunTabCaptions(const config::StationConfig& station);

} // namespace gfc::binding
