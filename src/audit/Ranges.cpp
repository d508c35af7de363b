#include "audit/Ranges.h"

#include "audit/Figures.h"
#include "audit/GasTables.h"
#include "audit/Gross.h"
#include "audit/Plausible.h"
#include "audit/ValueTable.h"
#include "config/AccelabarSizes.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"

#include <algorithm>
#include <array>

namespace gfc::audit {

namespace {

using config::Quantity;
using config::StationConfig;

// clang-format off
constexpr std::array Ranges = std::to_array<UsualRange>({
    {"AtmPress",               Quantity::AbsolutePressure,     55,     110},  // from the highest stations to the deepest high
    {"FlowingViscosity",       {},                             0.005,  0.05},
    {"IsentropicCoeff",        {},                             1.01,   5.0 / 3},
    {"CalibrationFactor",      {},                             0.9,    1.1},
    {"meterKFactor",           {},                             0.001,  1'000'000}, // pulses for one unit of volume
    {"GasDensityStandard",     Quantity::Density,              0.6,    2.0},
    {"OrificeDiaRefTemp",      Quantity::Temperature,          0,      50},
    {"InternalPipeDiaRefTemp", Quantity::Temperature,          0,      50},
    {"OrificeThermalExpCoeff", Quantity::ExpansionCoefficient, 0.5e-6, 40e-6}, // from Invar to zinc
    {"PipeThermalExpCoeff",    Quantity::ExpansionCoefficient, 0.5e-6, 40e-6},
});

// 1.687 in is the bore of a 2 inch pipe with the thickest wall of the standard's table.
constexpr std::array<OrificeLimits, 2> Limits = {{
    {config::algorithm::AGA3,    0.45 * 25.4, true,  1.687 * 25.4, 60 * 25.4},
    {config::algorithm::SYT6143, 12.5,        false, 50,           1000},
}};
// clang-format on

std::string Between(double least, double most) {
    return Figure(least) + " to " + Figure(most);
}

// A figure of the tables in the station's unit.
double InUnits(double value, Quantity unit, const StationConfig& station) {
    const Scale& scale = ScaleOf(station.SystemUnits);
    switch (unit) {
    case Quantity::Length:
        return value / scale.Millimetres;
    case Quantity::Temperature:
        return scale.IsFahrenheit ? value * 1.8 + 32 : value;
    case Quantity::AbsolutePressure:
        return value / scale.Kilopascals;
    case Quantity::Density:
        return value / scale.KilogramsPerM3;
    case Quantity::ExpansionCoefficient:
        return value / scale.PerCelsius;
    default:
        return value;
    }
}

std::string TextOf(const UsualRange& range, const StationConfig& station) {
    if (!range.Unit)
        return "Usual: " + Between(range.Least, range.Most);
    const auto figure = [&](double value) { return InUnits(value, *range.Unit, station); };
    return "Usual: " + WithUnit(Between(figure(range.Least), figure(range.Most)), *range.Unit, station);
}

std::string DiameterText(std::string_view key, const StationConfig& station) {
    const OrificeLimits* limits = OrificeLimitsOf(station.FlowAlgorithm);
    if (limits == nullptr)
        return {};
    const auto figure = [&](double value) { return InUnits(value, Quantity::Length, station); };
    if (key == "InternalPipeDia")
        return "By the standard: " + WithUnit(Between(figure(limits->LeastPipe), figure(limits->MostPipe)),
                                              Quantity::Length, station);
    return (limits->BoreIsPast ? "By the standard: above " : "By the standard: at least ") +
           WithUnit(Figure(figure(limits->Bore)), Quantity::Length, station) + ", and " +
           Between(LeastBeta, MostBeta) + " of the pipe";
}

// Some are bounded together with others only.
std::string ComponentText(const config::GasSlot slot, const StationConfig& station) {
    const bool iso = station.GasDensitySource == config::source::ISO12213_2;
    for (const ComponentRange& range : iso ? RangesOfISO12213() : RangesOfAGA8()) {
        const auto* last = range.Slots.begin() + range.Count;
        if (std::find(range.Slots.begin(), last, slot) == last)
            continue;
        const std::string with = range.Count > 1 ? " (" + std::string(range.Name) + " together)" : "";
        return "Mole fraction. By the standard: " + Between(range.Least, range.Most) + with;
    }
    return "Mole fraction";
}

std::string HardText(std::string_view key) {
    const ValueRow* row = ValueRowOf(key);
    if (row == nullptr)
        return {};
    if (row->Form == Form::Fraction)
        return "0 to 1";
    return row->IsPositive ? "Above 0" : std::string();
}

// A meter of another size has its own; those of the table say of which order they are.
std::string AccelabarText(std::string_view key) {
    const auto its =
        std::ranges::find(config::AccelabarCoefficients, key, &config::AccelabarCoefficient::Key);
    if (its == config::AccelabarCoefficients.end())
        return {};
    const auto constant = [its](const config::AccelabarSize& size) {
        return NumberOf(size.*its->Constant).value_or(0);
    };
    const auto [least, most] = std::ranges::minmax(config::AccelabarSizes, {}, constant);
    return HardText(key) + ". Of the listed sizes: " + Between(constant(least), constant(most)) +
           (its->IsInInches ? " in" : "");
}

} // namespace

const UsualRange& UsualRangeOf(std::string_view key) {
    return *std::ranges::find(Ranges, key, &UsualRange::Key);
}

const OrificeLimits* OrificeLimitsOf(std::string_view algorithm) {
    const auto found = std::ranges::find(Limits, algorithm, &OrificeLimits::Algorithm);
    return found == Limits.end() ? nullptr : &*found;
}

std::string ExpectedText(std::string_view key, const StationConfig& station) {
    if (const auto range = std::ranges::find(Ranges, key, &UsualRange::Key); range != Ranges.end())
        return TextOf(*range, station);
    if (key == "OrificeDia" || key == "InternalPipeDia")
        return DiameterText(key, station);
    if (key.starts_with("GC_"))
        return ComponentText(std::get<config::GasValue>(config::RunRowOf('T', key).Field).Slot, station);
    if (std::string gross = GrossRangeText(key, station); !gross.empty())
        return gross;
    if (std::string bases = UsualBasesText(key, station); !bases.empty())
        return bases;
    if (std::string accelabar = AccelabarText(key); !accelabar.empty())
        return accelabar;
    return HardText(key);
}

} // namespace gfc::audit
