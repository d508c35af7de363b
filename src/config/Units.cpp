#include "config/Units.h"

#include "config/Vocabulary.h"

#include <array>
#include <cstddef>

namespace gfc::config {
namespace {

using Row = std::array<std::string_view, 5>;

// Deliberate, and to be kept: the degree sign of the "in H2O" captions is U+00B0 and every other one U+00BA;
// "US-degC" keeps the Fahrenheit form of the expansion coefficient, and "Metric" has a blank in it.
// clang-format off
constexpr std::array<Row, 12> Captions = {{
    // US               US-degC           Metric         Metric-degF    Practical-SI
    {"in",             "in",             "mm",          "mm",          "mm"},          // Length
    {"ºF",             "ºC",             "ºC",          "ºF",          "ºC"},          // Temperature
    {"psia",           "psia",           "bar",         "bar",         "MPa"},         // AbsolutePressure
    {"in H2O at 60°F", "in H2O at 60°F", "mbar",        "mbar",        "Pa"},          // DifferentialPressure
    {"lbm/ft^3",       "lbm/ft^3",       "kg/m^3",      "kg/m^3",      "kg/m^3"},      // Density
    {"scf",            "scf",            "sm^3",        "sm^3",        "m^3"},         // Volume
    {"ft^3/hr",        "ft^3/hr",        "m^3/hr",      "m^3/hr",      "m^3/s"},       // VolumeRate
    {"lbm",            "lbm",            "kg",          "kg",          "kg"},          // Mass
    {"lbm/hr",         "lbm/hr",         "kg/hr",       "kg/hr",       "kg/s"},        // MassRate
    {"pulses/ft^3",    "pulses/ft^3",    "pulses/m^3",  "pulses/m^3",  "pulses/m^3"},  // MeterFactor
    {"in/in ºF",       "in/in ºF",       "mm/mm º C",   "mm/mm ºC",    "mm/mm ºC"},    // ExpansionCoefficient
    {"Btu/ft^3",       "Btu/ft^3",       "KWh/m^3",     "KWh/m^3",     "MJ/m^3"},      // HeatingValue
}};

constexpr std::array<UnitDefaults, 5> Defaults = {{
    // T         P           temp  pressure wizard  config. AtmPress     viscosity
    {"60.00",   "14.73",    "ºF", "psia",  "PSI",  "psi",  "14.695949", "cP"},    // US
    {"15.5556", "14.73",    "ºC", "psia",  "PSI",  "psi",  "14.695949", "cP"},    // US-degC
    {"15.00",   "1.01325",  "ºC", "bar",   "bar",  "bar",  "1.01325",   "cP"},    // Metric
    {"59.00",   "1.01325",  "ºF", "bar",   "bar",  "bar",  "1.01325",   "cP"},    // Metric-degF
    {"20.00",   "0.101325", "ºC", "MPa",   "MPa",  "MPa",  "0.101325",  "mPa-s"}, // Practical-SI
}};
// clang-format on

std::size_t Column(std::string_view systemUnits) {
    return static_cast<std::size_t>(UnitsIndex(systemUnits));
}

} // namespace

std::string_view UnitCaption(Quantity quantity, std::string_view systemUnits,
                             std::string_view flowAlgorithm) {
    // Deliberately in "US" alone: "US-degC" says 60°F for every algorithm.
    if (quantity == Quantity::DifferentialPressure && systemUnits == units::US &&
        flowAlgorithm == algorithm::Accelabar)
        return "in H2O at 68°F";
    return Captions[static_cast<std::size_t>(quantity)][Column(systemUnits)];
}

const UnitDefaults& DefaultsOf(std::string_view systemUnits) {
    return Defaults[Column(systemUnits)];
}

} // namespace gfc::config
