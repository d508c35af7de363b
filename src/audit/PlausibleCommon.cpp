#include "audit/Figures.h"
#include "audit/Plausible.h"
#include "audit/Ranges.h"
#include "audit/ValueTable.h"
#include "config/Vocabulary.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <vector>

namespace gfc::audit {

namespace {

using config::Quantity;

// The bases that are usual in each unit system, in its units.
constexpr double FahrenheitUS[] = {60};
constexpr double CelsiusUS[] = {15.5556};
constexpr double CelsiusMetric[] = {0, 15, 20, 25};
constexpr double FahrenheitMetric[] = {32, 59, 68, 77};
constexpr double Psia[] = {14.65, 14.696, 14.73, 15.025};
constexpr double Bar[] = {0.980665, 1, 1.01325};
constexpr double Megapascal[] = {0.0980665, 0.1, 0.101325};

struct Bases {
    std::span<const double> T;
    std::span<const double> P;
};

constexpr std::array<Bases, 5> UsualBases = {{
    {FahrenheitUS, Psia},        // US
    {CelsiusUS, Psia},           // US-degC
    {CelsiusMetric, Bar},        // Metric
    {FahrenheitMetric, Bar},     // Metric-degF
    {CelsiusMetric, Megapascal}, // Practical-SI
}};

constexpr double SameT = 0.05;   // degrees C
constexpr double SameP = 0.0005; // of the value

// What a base is judged by, for the temperature and for the pressure.
struct BaseRow {
    std::string_view Key;
    std::string config::StationConfig::*Text;
    config::Quantity Unit;
    std::span<const double> Bases::*Usual;
    bool (*IsSame)(double left, const Scale& leftScale, double right, const Scale& rightScale);
    RuleId Unusual;
    RuleId OfOthers;
};

bool SameTemperature(double left, const Scale& leftScale, double right, const Scale& rightScale) {
    return std::abs(Celsius(left, leftScale) - Celsius(right, rightScale)) <= SameT;
}

bool SamePressure(double left, const Scale& leftScale, double right, const Scale& rightScale) {
    const double kPa = right * rightScale.Kilopascals;
    return std::abs(left * leftScale.Kilopascals - kPa) <= SameP * kPa;
}

constexpr std::array<BaseRow, 2> BaseRows = {{
    {"StandardT", &config::StationConfig::StandardT, Quantity::Temperature, &Bases::T, SameTemperature,
     RuleId::StandardTUnusual, RuleId::StandardTOfOthers},
    {"StandardP", &config::StationConfig::StandardP, Quantity::AbsolutePressure, &Bases::P, SamePressure,
     RuleId::StandardPUnusual, RuleId::StandardPOfOthers},
}};

bool IsUsual(const BaseRow& row, double value, const Scale& scale, std::size_t system) {
    const Scale& theirs = ScaleOf(config::UnitSystems[system].Stored);
    return std::ranges::any_of(UsualBases[system].*row.Usual,
                               [&](double usual) { return row.IsSame(value, scale, usual, theirs); });
}

std::string ListOf(std::span<const double> values, Quantity unit, const config::StationConfig& station) {
    std::string list;
    for (const double value : values)
        list.append(list.empty() ? "" : ", ").append(Figure(value));
    return WithUnit(list, unit, station);
}

void CheckBase(const BaseRow& row, const config::StationConfig& station, Sink& sink) {
    const std::string& text = station.*row.Text;
    const auto value = NumberOf(text);
    if (!value)
        return;
    const Scale& scale = ScaleOf(station.SystemUnits);
    const auto own = static_cast<std::size_t>(config::UnitsIndex(station.SystemUnits));
    if (IsUsual(row, *value, scale, own))
        return;
    bool ofOthers = false;
    for (std::size_t system = 0; system < UsualBases.size(); ++system)
        ofOthers = ofOthers || IsUsual(row, *value, scale, system);
    sink.Add(ofOthers ? row.OfOthers : row.Unusual, {row.Key, text},
             {WithUnit(text, row.Unit, station), ListOf(UsualBases[own].*row.Usual, row.Unit, station)});
}

// A turbine with a densimeter reads no pressure.
bool UsesFixedAtmosphere(const config::StationConfig& station) {
    const bool readsPressure = station.FlowAlgorithm != config::algorithm::AGA7 ||
                               station.GasDensitySource != config::source::Measured;
    return readsPressure && station.PressType == config::Gage && station.ExtAtmPress == config::No;
}

bool UsesViscosity(const config::StationConfig& station) {
    return station.FlowAlgorithm == config::algorithm::AGA3 ||
           station.FlowAlgorithm == config::algorithm::SYT6143;
}

void CheckTyped(std::string_view key, const std::string& value, Sink& sink) {
    CheckValue(*ValueRowOf(key), value, sink);
}

void CheckAtmosphere(const config::StationConfig& station, Sink& sink) {
    const UsualRange& range = UsualRangeOf("AtmPress");
    const auto value = NumberOf(station.AtmPress);
    if (!value || !UsesFixedAtmosphere(station))
        return;
    const double kPa = *value * ScaleOf(station.SystemUnits).Kilopascals;
    if (IsBelow(kPa, range.Least) || IsAbove(kPa, range.Most))
        sink.Add(RuleId::AtmosphericPressure, {"AtmPress", station.AtmPress},
                 {WithUnit(station.AtmPress, Quantity::AbsolutePressure, station), Figure(kPa)});
}

void CheckRange(RuleId rule, std::string_view key, const std::string& text, Sink& sink) {
    const UsualRange& range = UsualRangeOf(key);
    const auto value = NumberOf(text);
    if (value && *value > 0 && (IsBelow(*value, range.Least) || IsAbove(*value, range.Most)))
        sink.Add(rule, {key, text}, {text, Figure(range.Least) + " to " + Figure(range.Most)});
}

void CheckMeterFactor(const std::string& text, Sink& sink) {
    CheckRange(RuleId::MeterFactor, "meterKFactor", text, sink);
    if (NumberOf(text) == 1.0)
        sink.Add(RuleId::MeterFactorDefault, {"meterKFactor", text});
}

void CheckStandardDensity(const config::StationConfig& station, const std::string& text, Sink& sink) {
    const UsualRange& usual = UsualRangeOf("GasDensityStandard");
    const double unit = ScaleOf(station.SystemUnits).KilogramsPerM3;
    const auto value = NumberOf(text);
    if (!value || *value == 0 || !(IsBelow(*value * unit, usual.Least) || IsAbove(*value * unit, usual.Most)))
        return;
    const std::string range = Figure(usual.Least / unit) + " to " + Figure(usual.Most / unit);
    sink.Add(RuleId::StandardDensity, {"GasDensityStandard", text},
             {WithUnit(text, Quantity::Density, station), WithUnit(range, Quantity::Density, station)});
}

} // namespace

std::string UsualBasesText(std::string_view key, const config::StationConfig& station) {
    const auto row = std::ranges::find(BaseRows, key, &BaseRow::Key);
    if (row == BaseRows.end())
        return {};
    const auto own = static_cast<std::size_t>(config::UnitsIndex(station.SystemUnits));
    return "Usual: " + ListOf(UsualBases[own].*row->Usual, row->Unit, station);
}

void CheckCommonValues(const config::StationConfig& station, Sink& sink) {
    for (const BaseRow& row : BaseRows)
        CheckBase(row, station, sink);
    CheckAtmosphere(station, sink);
    if (UsesViscosity(station))
        CheckRange(RuleId::Viscosity, "FlowingViscosity", station.FlowingViscosity, sink);
    if (config::IsOrificeAlgorithm(station.FlowAlgorithm))
        CheckRange(RuleId::Isentropic, "IsentropicCoeff", station.IsentropicCoeff, sink);
}

void CheckRunValues(const config::StationConfig& station, const config::RunIO& io, Sink& sink) {
    CheckRange(RuleId::CalibrationFactor, "CalibrationFactor", io.CalibrationFactor, sink);
    if (station.FlowAlgorithm == config::algorithm::AGA7)
        CheckMeterFactor(io.meterKFactor, sink);
    if (station.GasDensitySource == config::source::Measured)
        CheckStandardDensity(station, io.GasDensityStandard, sink);
}

void CheckTypedCommonValues(const config::StationConfig& station, Sink& sink) {
    for (const BaseRow& row : BaseRows)
        CheckTyped(row.Key, station.*row.Text, sink);
    if (UsesFixedAtmosphere(station))
        CheckTyped("AtmPress", station.AtmPress, sink);
    if (UsesViscosity(station))
        CheckTyped("FlowingViscosity", station.FlowingViscosity, sink);
    if (config::IsOrificeAlgorithm(station.FlowAlgorithm))
        CheckTyped("IsentropicCoeff", station.IsentropicCoeff, sink);
    CheckCommonValues(station, sink);
}

void CheckTypedRunValues(const config::StationConfig& station, const config::RunIO& io, Sink& sink) {
    CheckTyped("CalibrationFactor", io.CalibrationFactor, sink);
    if (station.FlowAlgorithm == config::algorithm::AGA7)
        CheckTyped("meterKFactor", io.meterKFactor, sink);
    if (station.GasDensitySource == config::source::Measured)
        CheckTyped("GasDensityStandard", io.GasDensityStandard, sink);
    CheckRunValues(station, io, sink);
}

} // namespace gfc::audit
