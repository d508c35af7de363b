#pragma once

#include "audit/Finding.h"
#include "config/VarINIFile.h"

#include <string>
#include <string_view>

// What a person would doubt at the desk, by the figures of the standards. Also for forms that are being
// filled in: a text that is empty or no number is passed over here. Nothing is changed by it: the numbers are
// for judging alone.
namespace gfc::audit {

// "Usual: 14.65, 14.696, 14.73, 15.025 psia" for a base of the station's unit system, for the tip of its
// field; empty for what is no base.
[[nodiscard]] std::string UsualBasesText(std::string_view key, const config::StationConfig& station);

void CheckCommonValues(const config::StationConfig& station, Sink& sink);
// Factors, and the density at standard conditions of a densimeter.
void CheckRunValues(const config::StationConfig& station, const config::RunIO& io, Sink& sink);
// Both for values that are being typed, with what the table of values says of them: some fields let through
// what is no number.
void CheckTypedCommonValues(const config::StationConfig& station, Sink& sink);
void CheckTypedRunValues(const config::StationConfig& station, const config::RunIO& io, Sink& sink);
// Pipe and plate where their diameters are fixed, or the Accelabar.
void CheckMechanicalValues(const config::StationConfig& station, const config::RunMechanical& mechanical,
                           Sink& sink);
// The composition or the gas properties, by the family of the density source; nothing where they are
// measured.
void CheckGasValues(const config::StationConfig& station, const config::RunGas& fixed, Sink& sink);

} // namespace gfc::audit
