#pragma once

#include "config/Units.h"
#include "config/VarINIFile.h"

#include <optional>
#include <string>
#include <string_view>

// A configuration's texts as numbers in units of one kind, and numbers as texts. For judging alone.
namespace gfc::audit {

// What one unit of each quantity of a unit system is.
struct Scale {
    double Millimetres;     // of a length
    bool IsFahrenheit;      // temperatures
    double Kilopascals;     // of a pressure
    double KilogramsPerM3;  // of a density
    double MegajoulesPerM3; // of a heating value
    double PerCelsius;      // of an expansion coefficient
};

// A unit system that is none of the five counts as "Practical-SI".
[[nodiscard]] const Scale& ScaleOf(std::string_view systemUnits);
[[nodiscard]] double Celsius(double temperature, const Scale& scale);

// Of at least six digits that say something, without zeros at the end and without a power of ten: the fields
// take none. The point is one whatever the machine's language.
[[nodiscard]] std::string Figure(double value);
// "2.9 in"
[[nodiscard]] std::string WithUnit(std::string_view value, config::Quantity quantity,
                                   const config::StationConfig& station);

// False within a rounding of the limit: a figure that is the limit is not past it.
[[nodiscard]] bool IsBelow(double value, double limit);
[[nodiscard]] bool IsAbove(double value, double limit);

} // namespace gfc::audit
