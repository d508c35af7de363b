#pragma once

#include "config/VarINIFile.h"

#include <string>
#include <string_view>

namespace gfc::audit {

// "Usual: 14.65, 14.696, 14.73, 15.025 psia" for a base of the station's unit system; empty for what is none.
[[nodiscard]] std::string UsualBasesText(std::string_view key, const config::StationConfig& station);

} // namespace gfc::audit
