#pragma once

#include "audit/Finding.h"
#include "config/VarINIFile.h"

// What a person would doubt at the desk, by the figures of the standards. Also for forms that are being
// filled in: a text that is empty or no number is passed over here. Nothing is changed by it: the numbers are
// for judging alone.
namespace gfc::audit {

void CheckCommonValues(const config::StationConfig& station, Sink& sink);
// Factors, and the density at standard conditions of a densimeter.
void CheckRunValues(const config::StationConfig& station, const config::RunIO& io, Sink& sink);
// Pipe and plate where their diameters are fixed, or the Accelabar.
void CheckMechanicalValues(const config::StationConfig& station, const config::RunMechanical& mechanical,
                           Sink& sink);
// The composition or the gas properties, by the family of the density source; nothing where they are
// measured.
void CheckGasValues(const config::StationConfig& station, const config::RunGas& fixed, Sink& sink);

} // namespace gfc::audit
