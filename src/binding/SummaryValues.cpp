#include "binding/SummaryValues.h"

#include "config/Vocabulary.h"
#include "services/Text.h"

#include <utility>

namespace gfc::binding {

bool IsYes(std::string_view flag) {
    return services::EqualNoCase(flag, config::Yes);
}

bool IsMeasured(const config::StationConfig& station) {
    return station.GasDensitySource == config::source::Measured;
}

bool HasFlowingProperties(const config::StationConfig& station) {
    return config::IsOrificeAlgorithm(station.FlowAlgorithm);
}

bool HasExternalDiameters(const config::StationConfig& station) {
    return IsYes(MechanicalOf(station).ExtMechParam);
}

const config::RunMechanical& MechanicalOf(const config::StationConfig& station) {
    static const config::RunMechanical none;
    return station.Runs.Mechanical.empty() ? none : station.Runs.Mechanical.front();
}

std::string OrNotConfigured(std::string_view value) {
    return std::string(value.empty() ? NotConfigured : value);
}

std::string ValueWithUnit(const config::StationConfig& station, std::string_view value,
                          std::optional<config::Quantity> unit) {
    std::string text = OrNotConfigured(value);
    if (unit && !value.empty())
        text.append(" ").append(config::UnitCaption(*unit, station.SystemUnits, station.FlowAlgorithm));
    return text;
}

std::string RunAtmosphericPressure(const config::StationConfig& station) {
    if (station.PressType == config::Absolute)
        return std::string(NotApplicable);
    if (IsYes(station.ExtAtmPress))
        return std::string(ExternalIO);
    return ValueWithUnit(station, station.AtmPress, config::Quantity::AbsolutePressure);
}

SummaryPage ParameterPage(std::span<const ParameterRow> rows, const config::StationConfig& station,
                          std::string_view valueHeading) {
    SummaryPage page;
    page.List = SummaryList::Parameters;
    page.Columns = {std::string(NumberHeading), "Parameters", std::string(valueHeading)};
    for (const ParameterRow& row : rows)
        if (row.IsThere == nullptr || row.IsThere(station))
            page.Rows.push_back({std::string(row.Number), std::string(row.Caption),
                                 row.Value == nullptr ? std::string() : row.Value(station)});
    return page;
}

SummaryPage LinePage(std::string line) {
    SummaryPage page;
    page.Line = std::move(line);
    return page;
}

} // namespace gfc::binding
