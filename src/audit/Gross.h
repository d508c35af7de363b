#pragma once

#include "audit/Finding.h"
#include "config/VarINIFile.h"

#include <string>
#include <string_view>

namespace gfc::audit {

// The four gas properties of SGERG-88: calorific value by the unit system, relative density, and the mole
// fractions of CO2 and H2.
void CheckGross(const config::StationConfig& station, const config::RunGas& fixed, Sink& sink);

// The pipeline range of one of these keys in the station's units, for the tip of its field; empty for any
// other key.
[[nodiscard]] std::string GrossRangeText(std::string_view key, const config::StationConfig& station);

struct GrossGas {
    double CalorificValue; // superior, MJ/m3; the volume's reference temperature is not known
    double RelativeDensity;
    double CO2; // mole fractions
    double H2;
};

// Why no gas of equivalent hydrocarbon, nitrogen, CO2 and H2 has these properties; empty where there is one
// at any reference temperature from 0 to 20 degrees C.
[[nodiscard]] std::string Contradiction(const GrossGas& gas);

} // namespace gfc::audit
