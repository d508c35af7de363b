#pragma once

#include <string_view>

// Unit captions and default values of each unit system. A unit system that is none of the five counts as
// "Practical-SI".
namespace gfc::config {

enum class Quantity {
    Length,
    Temperature,
    AbsolutePressure,
    DifferentialPressure,
    Density,
    Volume,
    VolumeRate,
    Mass,
    MassRate,
    MeterFactor,
    ExpansionCoefficient,
    HeatingValue
};

// flowAlgorithm matters for the differential pressure alone.
[[nodiscard]] std::string_view UnitCaption(Quantity quantity, std::string_view systemUnits,
                                           std::string_view flowAlgorithm = {});

struct UnitDefaults {
    std::string_view StandardT;
    std::string_view StandardP;
    std::string_view TemperatureCaption;
    std::string_view PressureCaption;
    std::string_view AtmCaptionInWizard;
    std::string_view AtmCaptionInConfigurador;
    std::string_view AtmPress;
    std::string_view ViscosityCaption;
};

[[nodiscard]] const UnitDefaults& DefaultsOf(std::string_view systemUnits);

// What a new configuration starts with, whatever its units.
namespace start {
constexpr std::string_view FlowingViscosity = "0.010268"; // cP
constexpr std::string_view IsentropicCoeff = "1.3";
constexpr std::string_view ViscosityOfGBT = "0.01096";
constexpr std::string_view IsentropicOfGBT = "1.36";
constexpr std::string_view DeviceDataTraces = "/nvram/kdormaga.txt";
constexpr std::string_view NumberTraces = "1000";
} // namespace start

} // namespace gfc::config
