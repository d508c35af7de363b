#pragma once

#include "StationUnderTest.h"
#include "binding/SummaryPage.h"

#include <string>
#include <vector>

namespace gfc::test {

using SummaryRows = std::vector<binding::SummaryPage::Row>;

constexpr std::string_view AllUnits[] = {config::units::US, config::units::USdegC, config::units::Metric,
                                         config::units::MetricDegF, config::units::PracticalSI};

// What stands behind a value or in brackets, in the order of AllUnits. Written by code point, so that the two
// degree signs cannot be taken for one another.
struct UnitTexts {
    std::string Length, Temperature, Pressure, Differential, Density, Volume, VolumeRate, Mass, MassRate,
        MeterFactor, Expansion, Heating, Viscosity;
};

inline const UnitTexts TextsOfUnits[] = {
    {"in", "\u00BAF", "psia", "in H2O at 60\u00B0F", "lbm/ft^3", "scf", "ft^3/hr", "lbm", "lbm/hr",
     "pulses/ft^3", "in/in \u00BAF", "Btu/ft^3", "cP"},
    {"in", "\u00BAC", "psia", "in H2O at 60\u00B0F", "lbm/ft^3", "scf", "ft^3/hr", "lbm", "lbm/hr",
     "pulses/ft^3", "in/in \u00BAF", "Btu/ft^3", "cP"},
    {"mm", "\u00BAC", "bar", "mbar", "kg/m^3", "sm^3", "m^3/hr", "kg", "kg/hr", "pulses/m^3",
     "mm/mm \u00BA C", "KWh/m^3", "cP"},
    {"mm", "\u00BAF", "bar", "mbar", "kg/m^3", "sm^3", "m^3/hr", "kg", "kg/hr", "pulses/m^3", "mm/mm \u00BAC",
     "KWh/m^3", "cP"},
    {"mm", "\u00BAC", "MPa", "Pa", "kg/m^3", "m^3", "m^3/s", "kg", "kg/s", "pulses/m^3", "mm/mm \u00BAC",
     "MJ/m^3", "mPa-s"},
};

// Runs the test once for each unit system.
template <class Test>
void ForEachUnits(Test test) {
    for (std::size_t i = 0; i < std::size(AllUnits); ++i)
        test(AllUnits[i], TextsOfUnits[i]);
}

inline std::vector<std::string> ColumnOf(const binding::SummaryPage& page, std::size_t column) {
    std::vector<std::string> cells;
    for (const auto& row : page.Rows)
        cells.push_back(row.at(column));
    return cells;
}

// The value beside that number; "(no such row)" where there is none.
inline std::string ValueAt(const binding::SummaryPage& page, const std::string& number) {
    for (const auto& row : page.Rows)
        if (row.at(0) == number)
            return row.at(2);
    return "(no such row)";
}

} // namespace gfc::test
