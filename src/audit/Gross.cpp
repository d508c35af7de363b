#include "audit/Gross.h"

#include "audit/Figures.h"
#include "audit/ValueTable.h"

#include <algorithm>
#include <array>
#include <optional>

namespace gfc::audit {

namespace {

using config::GasSlot;

// A cubic metre at 20 degrees C holds so much less than one at 0: the room for a calorific value whose volume
// has another reference temperature than the standard's.
constexpr double Room = 293.15 / 273.15;

struct GrossRange {
    std::string_view Key;
    GasSlot Slot;
    bool IsCalorific;
    double Least, Most;       // pipeline quality
    double FarLeast, FarMost; // wider
};

// ISO 12213-3:1997, 4.4.1 and 4.4.2; calorific values in MJ/m3 at 0 degrees C.
// clang-format off
constexpr std::array<GrossRange, 4> Ranges = {{
    {"VolCalorificValue", GasSlot::VolCalorificValue, true,  30,   45,   20,   48},
    {"RelativeDensity",   GasSlot::RelativeDensity,   false, 0.55, 0.80, 0.55, 0.90},
    {"XCO2",              GasSlot::XCO2,              false, 0,    0.20, 0,    0.30},
    {"XH2",               GasSlot::XH2,               false, 0,    0.10, 0,    0.10},
}};
// clang-format on

// The value may be as much below the range as another reference temperature makes it.
bool IsPast(double value, double least, double most, bool isCalorific) {
    return IsBelow(value, isCalorific ? least / Room : least) || IsAbove(value, most);
}

// True within the wider range.
bool CheckRange(const GrossRange& range, const std::string& text, double value, Sink& sink) {
    const std::string unit = range.IsCalorific ? " MJ/m^3" : "";
    const auto add = [&](RuleId rule, double least, double most) {
        sink.Add(rule, {range.Key, text},
                 {range.Key, Figure(value) + unit, Figure(least) + " to " + Figure(most) + unit});
    };
    if (IsPast(value, range.FarLeast, range.FarMost, range.IsCalorific)) {
        add(RuleId::GrossWider, range.FarLeast, range.FarMost);
        return false;
    }
    if (IsPast(value, range.Least, range.Most, range.IsCalorific))
        add(RuleId::GrossPipeline, range.Least, range.Most);
    return true;
}

// What the equivalent hydrocarbon and the nitrogen of a gas are.
struct Split {
    double Nitrogen; // mole fraction
    double HeatOfCH; // of the hydrocarbon, kJ/mol
};

// SGERG-88: the molar mass of the equivalent hydrocarbon is linear in its molar calorific value (kJ/mol at 25
// degrees C), and a gas with hydrogen has 0.0964 of it as carbon monoxide. Masses in g/mol.
std::optional<Split> SplitOf(const GrossGas& gas, double room) {
    constexpr double molarVolume = 22.36;     // dm3/mol at 0 degrees C, of a natural gas
    constexpr double densityOfAir = 1.292923; // kg/m3 there
    constexpr double massPerHeat = 0.021062199, massAtNone = -2.709328;
    constexpr double massN2 = 28.0135, massCO2 = 44.010, massH2 = 2.0159, massCO = 28.010;
    constexpr double heatH2 = 285.83, heatCO = 282.98;
    const double carbonMonoxide = 0.0964 * gas.H2;
    const double rest = 1 - gas.CO2 - gas.H2 - carbonMonoxide;
    const double heat = gas.CalorificValue * room * molarVolume - gas.H2 * heatH2 - carbonMonoxide * heatCO;
    const double mass = gas.RelativeDensity * densityOfAir * molarVolume - gas.CO2 * massCO2 -
                        gas.H2 * massH2 - carbonMonoxide * massCO;
    const double hydrocarbon = (massPerHeat * heat + massN2 * rest - mass) / (massN2 - massAtNone);
    if (hydrocarbon <= 0)
        return std::nullopt;
    return Split{rest - hydrocarbon, heat / hydrocarbon};
}

std::string Percent(double fraction) {
    return Figure(static_cast<double>(static_cast<int>(fraction * 1000)) / 10) + " mol %";
}

} // namespace

std::string GrossRangeText(std::string_view key, const config::StationConfig& station) {
    const auto range = std::ranges::find(Ranges, key, &GrossRange::Key);
    if (range == Ranges.end())
        return {};
    const double unit = range->IsCalorific ? ScaleOf(station.SystemUnits).MegajoulesPerM3 : 1;
    const std::string figures = Figure(range->Least / unit) + " to " + Figure(range->Most / unit);
    return "By the standard: " +
           (range->IsCalorific
                ? WithUnit(figures, config::Quantity::HeatingValue, station) + " (volume at 0 degrees C)"
                : figures);
}

std::string Contradiction(const GrossGas& gas) {
    constexpr double leastNitrogen = -0.01, mostNitrogen = 0.5; // the first for the roundings of all values
    constexpr double leastHeat = 890.63 * 0.99;                 // nearly methane's, kJ/mol
    const auto cold = SplitOf(gas, 1);
    const auto warm = SplitOf(gas, Room);
    if (!cold || !warm)
        return "they leave no hydrocarbon";
    if (cold->Nitrogen < leastNitrogen)
        return "the gas is too light for its calorific value and its CO2";
    if (warm->Nitrogen > mostNitrogen)
        return "they leave " + Percent(warm->Nitrogen) + " of nitrogen";
    if (warm->HeatOfCH < leastHeat)
        return "the gas is too light for so low a calorific value";
    return {};
}

void CheckGross(const config::StationConfig& station, const config::RunGas& fixed, Sink& sink) {
    std::array<double, Ranges.size()> values{};
    bool isSound = true;
    for (std::size_t i = 0; i < Ranges.size(); ++i) {
        const std::string& text = fixed[Ranges[i].Slot].Tag;
        const auto value = NumberOf(text);
        if (!value) {
            isSound = false;
            continue;
        }
        const double unit = Ranges[i].IsCalorific ? ScaleOf(station.SystemUnits).MegajoulesPerM3 : 1;
        values[i] = *value * unit;
        isSound = CheckRange(Ranges[i], text, values[i], sink) && isSound;
    }
    if (!isSound)
        return;
    const std::string reason = Contradiction({values[0], values[1], values[2], values[3]});
    if (!reason.empty())
        sink.Add(RuleId::GrossFit, {"VolCalorificValue", fixed[GasSlot::VolCalorificValue].Tag}, {reason});
}

} // namespace gfc::audit
