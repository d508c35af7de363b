#include "audit/Figures.h"

#include "config/Vocabulary.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace gfc::audit {

namespace {

constexpr double Inch = 25.4;                  // mm, exactly
constexpr double Psi = 6.894757293168;         // kPa
constexpr double PoundPerFt3 = 16.01846337396; // kg/m3
constexpr double BtuPerFt3 = 0.037258945783;   // MJ/m3, of the Btu of the International Table
constexpr double KilowattHour = 3.6;           // MJ
constexpr double PerFahrenheit = 1.8;

// "US-degC" has the expansion coefficient in the Fahrenheit form, as its caption says.
// clang-format off
constexpr std::array<Scale, 5> Scales = {{
    // length  temp.  pressure density      heating value expansion
    {Inch,     true,  Psi,     PoundPerFt3, BtuPerFt3,    PerFahrenheit}, // US
    {Inch,     false, Psi,     PoundPerFt3, BtuPerFt3,    PerFahrenheit}, // US-degC
    {1.0,      false, 100.0,   1.0,         KilowattHour, 1.0},           // Metric
    {1.0,      true,  100.0,   1.0,         KilowattHour, 1.0},           // Metric-degF
    {1.0,      false, 1000.0,  1.0,         1.0,          1.0},           // Practical-SI
}};
// clang-format on

constexpr double Rounding = 1e-9; // of the limit

double Slack(double limit) {
    return Rounding * std::max(1.0, std::abs(limit));
}

} // namespace

const Scale& ScaleOf(std::string_view systemUnits) {
    return Scales[static_cast<std::size_t>(config::UnitsIndex(systemUnits))];
}

double Celsius(double temperature, const Scale& scale) {
    return scale.IsFahrenheit ? (temperature - 32) / 1.8 : temperature;
}

std::string Figure(double value) {
    constexpr int digits = 6;
    constexpr int mostDecimals = 20;
    const int leading = value == 0 ? 0 : static_cast<int>(std::floor(std::log10(std::abs(value))));
    const int decimals = std::clamp(digits - 1 - leading, 0, mostDecimals);
    std::array<char, 400> text{}; // room for any double
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    std::string figure(text.data(), end.ptr);
    if (figure.find('.') != std::string::npos)
        figure.erase(figure.find_last_not_of('0') + 1);
    if (figure.ends_with('.'))
        figure.pop_back();
    return figure;
}

std::string WithUnit(std::string_view value, config::Quantity quantity,
                     const config::StationConfig& station) {
    return std::string(value).append(" ").append(
        config::UnitCaption(quantity, station.SystemUnits, station.FlowAlgorithm));
}

bool IsBelow(double value, double limit) {
    return value < limit - Slack(limit);
}

bool IsAbove(double value, double limit) {
    return value > limit + Slack(limit);
}

} // namespace gfc::audit
