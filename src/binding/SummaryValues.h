#pragma once

#include "binding/SummaryPage.h"
#include "config/Units.h"
#include "config/VarINIFile.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

// How the summaries write values. Parameter lists and tag lists deliberately differ in the word for what has
// never been set.
namespace gfc::binding {

constexpr std::string_view NumberHeading = "N°"; // U+00B0
constexpr std::string_view NotConfigured = "Not Configured";
constexpr std::string_view NotConfiguredTag = "Not configured";
// For what the pressure measurement makes pointless, and for what the algorithm does: also two words.
constexpr std::string_view NotApplicable = "Not Applicable";
constexpr std::string_view NotApplicableHere = "Not applicable";
constexpr std::string_view ExternalIO = "External I/O";

using ValueText = std::string (*)(const config::StationConfig&);
using ValueTest = bool (*)(const config::StationConfig&);

// One row of a parameter list, as it is printed.
struct ParameterRow {
    std::string_view Number;
    std::string_view Caption;
    ValueText Value;             // null for a heading, which has no value
    ValueTest IsThere = nullptr; // null for a row that is always there
};

// A page in the parameter list: the rows that are there.
[[nodiscard]] SummaryPage ParameterPage(std::span<const ParameterRow> rows,
                                        const config::StationConfig& station,
                                        std::string_view valueHeading = "Value");

// A page without a list.
[[nodiscard]] SummaryPage LinePage(std::string line);

// A flag of a configuration is read without regard to case.
[[nodiscard]] bool IsYes(std::string_view flag);
[[nodiscard]] bool IsMeasured(const config::StationConfig& station);
// True for the three algorithms over a differential pressure.
[[nodiscard]] bool HasFlowingProperties(const config::StationConfig& station);
// The run's diameters come from tags.
[[nodiscard]] bool HasExternalDiameters(const config::StationConfig& station);

// The single run's record; an empty one where no run was loaded.
[[nodiscard]] const config::RunMechanical& MechanicalOf(const config::StationConfig& station);

[[nodiscard]] std::string OrNotConfigured(std::string_view value);
// "15.00 ºC"; without a unit where there is no value.
[[nodiscard]] std::string ValueWithUnit(const config::StationConfig& station, std::string_view value,
                                        std::optional<config::Quantity> unit);
// The value of the fixed atmospheric pressure, or from where it comes, in a run's list.
[[nodiscard]] std::string RunAtmosphericPressure(const config::StationConfig& station);

template <auto Field>
const std::string& FieldOf(const config::StationConfig& station) {
    if constexpr (std::is_same_v<decltype(Field), std::string config::RunMechanical::*>)
        return MechanicalOf(station).*Field;
    else
        return station.*Field;
}

template <auto Field>
std::string Plain(const config::StationConfig& station) {
    return OrNotConfigured(FieldOf<Field>(station));
}

template <auto Field, config::Quantity Unit>
std::string WithUnit(const config::StationConfig& station) {
    return ValueWithUnit(station, FieldOf<Field>(station), Unit);
}

} // namespace gfc::binding
