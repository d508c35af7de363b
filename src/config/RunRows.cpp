#include "config/RunLayout.h"

#include <array>

namespace gfc::config {
namespace {

constexpr std::string_view ShortAddress = "KDIOAddr";

// clang-format off
constexpr std::array<RunRow, 108> Rows = {{
    // Copies of the common values
    {'A', "SystemUnits",            CommonCopy{&StationConfig::SystemUnits}},
    {'A', "FlowAlgorithm",          CommonCopy{&StationConfig::FlowAlgorithm}},
    {'A', "GasDensitySource",       CommonCopy{&StationConfig::GasDensitySource}},
    {'A', "StandardT",              CommonCopy{&StationConfig::StandardT}},
    {'A', "StandardP",              CommonCopy{&StationConfig::StandardP}},
    {'A', "Compressible",           CommonCopy{&StationConfig::Compressible}},
    {'A', "FlowingViscosity",       CommonCopy{&StationConfig::FlowingViscosity}},
    {'A', "IsentropicCoeff",        CommonCopy{&StationConfig::IsentropicCoeff}},

    // Fixed mechanical data
    {'B', "PressureTap",            &RunMechanical::PressureTap},
    {'B', "PressureTapPos",         &RunMechanical::PressureTapPos},
    {'B', "PipeMaterial",           &RunMechanical::PipeMaterial},
    {'B', "InternalPipeDia",        &RunMechanical::InternalPipeDia},
    {'B', "InternalPipeDiaRefTemp", &RunMechanical::InternalPipeDiaRefTemp},
    {'B', "OrificeMaterial",        &RunMechanical::OrificeMaterial},
    {'B', "OrificeDia",             &RunMechanical::OrificeDia},
    {'B', "OrificeDiaRefTemp",      &RunMechanical::OrificeDiaRefTemp},
    {'B', "OrificeThermalExpCoeff", &RunMechanical::OrificeThermalExpCoeff},
    {'B', "PipeThermalExpCoeff",    &RunMechanical::PipeThermalExpCoeff},

    {'C', "AccelabarSize",          &RunMechanical::AccelabarSize},
    {'C', "AccelabarY",             &RunMechanical::AccelabarY},
    {'C', "AccelabarK",             &RunMechanical::AccelabarK},
    {'C', "AccelabarThroatDia",     &RunMechanical::AccelabarThroatDia},

    {'D', "ExtMechParam",           &RunMechanical::ExtMechParam},

    // Copies of the common values
    {'E', "PressType",              CommonCopy{&StationConfig::PressType, &RunMechanical::PressType}},
    {'E', "ExtAtmPress",            CommonCopy{&StationConfig::ExtAtmPress, &RunMechanical::ExtAtmPress}},
    {'E', "AtmPress",               CommonCopy{&StationConfig::AtmPress, &RunMechanical::AtmPress}},

    // The run's own parameters, inputs and outputs
    {'F', "CalibrationFactor",      &RunIO::CalibrationFactor},
    {'F', "ContractHour",           &RunIO::ContractHour},
    {'F', "ContractMin",            &RunIO::ContractMin},

    {'G', "GasDensityStandard",     &RunIO::GasDensityStandard},
    {'G', "GasDensity",             &RunIO::GasDensity},

    {'H', "GasTemp",                &RunIO::GasTemp},
    {'H', "GasPress",               &RunIO::GasPress},

    {'I', "Pa",                     SharedBinding{&StationConfig::CommonPa, &RunIO::Pa}},

    {'J', "GasDP",                  &RunIO::GasDP},

    {'K', "meterKFactor",           &RunIO::meterKFactor},
    {'K', "GasPulseInput",          &RunIO::GasPulseInput},

    {'L', "PipeDia",                &RunIO::PipeDia},
    {'L', "OrificeDia",             &RunIO::OrificeDia},

    {'M', "PipeAbsRoughness",       &RunIO::PipeAbsRoughness},
    {'M', "OrificeServiceTime",     &RunIO::OrificeServiceTime},

    {'N', "GFCRunHold",             &RunIO::GFCRunHold},
    {'N', "GFCTotalizeHold",        &RunIO::GFCTotalizeHold},
    {'N', "ResetTotals",            &RunIO::ResetTotals},

    {'O', "StdMassFlow",            &RunIO::StdMassFlow},
    {'O', "StdVolFlow",             &RunIO::StdVolFlow},
    {'O', "GasVolume",              &RunIO::GasVolume},
    {'O', "GasMass",                &RunIO::GasMass},
    {'O', "AGA3Status",             &RunIO::AGA3Status},

    // Gas quality: bindings, or fixed values
    {'P', "GCEnable",               GasBinding{GasSlot::GCEnable}},

    {'Q', "VolCalorificValue",      GasBinding{GasSlot::VolCalorificValue}, ShortAddress},
    {'Q', "RelativeDensity",        GasBinding{GasSlot::RelativeDensity}, ShortAddress},
    {'Q', "XCO2",                   GasBinding{GasSlot::XCO2}, ShortAddress},
    {'Q', "XH2",                    GasBinding{GasSlot::XH2}, ShortAddress},

    {'R', "GC_C1",                  GasBinding{GasSlot::GC_C1}, ShortAddress},
    {'R', "GC_N2",                  GasBinding{GasSlot::GC_N2}, ShortAddress},
    {'R', "GC_CO2",                 GasBinding{GasSlot::GC_CO2}, ShortAddress},
    {'R', "GC_C2",                  GasBinding{GasSlot::GC_C2}, ShortAddress},
    {'R', "GC_C3",                  GasBinding{GasSlot::GC_C3}, ShortAddress},
    {'R', "GC_H2O",                 GasBinding{GasSlot::GC_H2O}, ShortAddress},
    {'R', "GC_H2S",                 GasBinding{GasSlot::GC_H2S}, ShortAddress},
    {'R', "GC_H",                   GasBinding{GasSlot::GC_H}, ShortAddress},
    {'R', "GC_CO",                  GasBinding{GasSlot::GC_CO}, ShortAddress},
    {'R', "GC_O2",                  GasBinding{GasSlot::GC_O2}, ShortAddress},
    {'R', "GC_iC4",                 GasBinding{GasSlot::GC_iC4}, ShortAddress},
    {'R', "GC_nC4",                 GasBinding{GasSlot::GC_nC4}, ShortAddress},
    {'R', "GC_iC5",                 GasBinding{GasSlot::GC_iC5}, ShortAddress},
    {'R', "GC_nC5",                 GasBinding{GasSlot::GC_nC5}, ShortAddress},
    {'R', "GC_nC6",                 GasBinding{GasSlot::GC_nC6}, ShortAddress},
    {'R', "GC_nC7",                 GasBinding{GasSlot::GC_nC7}, ShortAddress},
    {'R', "GC_nC8",                 GasBinding{GasSlot::GC_nC8}, ShortAddress},
    {'R', "GC_nC9",                 GasBinding{GasSlot::GC_nC9}, ShortAddress},
    {'R', "GC_nC10",                GasBinding{GasSlot::GC_nC10}, ShortAddress},
    {'R', "GC_He",                  GasBinding{GasSlot::GC_He}, ShortAddress},
    {'R', "GC_Ar",                  GasBinding{GasSlot::GC_Ar}, ShortAddress},

    {'S', "VolCalorificValue",      GasValue{GasSlot::VolCalorificValue}},
    {'S', "RelativeDensity",        GasValue{GasSlot::RelativeDensity}},
    {'S', "XCO2",                   GasValue{GasSlot::XCO2}},
    {'S', "XH2",                    GasValue{GasSlot::XH2}},

    {'T', "GC_C1",                  GasValue{GasSlot::GC_C1}},
    {'T', "GC_N2",                  GasValue{GasSlot::GC_N2}},
    {'T', "GC_CO2",                 GasValue{GasSlot::GC_CO2}},
    {'T', "GC_C2",                  GasValue{GasSlot::GC_C2}},
    {'T', "GC_C3",                  GasValue{GasSlot::GC_C3}},
    {'T', "GC_H2O",                 GasValue{GasSlot::GC_H2O}},
    {'T', "GC_H2S",                 GasValue{GasSlot::GC_H2S}},
    {'T', "GC_H",                   GasValue{GasSlot::GC_H}},
    {'T', "GC_CO",                  GasValue{GasSlot::GC_CO}},
    {'T', "GC_O2",                  GasValue{GasSlot::GC_O2}},
    {'T', "GC_iC4",                 GasValue{GasSlot::GC_iC4}},
    {'T', "GC_nC4",                 GasValue{GasSlot::GC_nC4}},
    {'T', "GC_iC5",                 GasValue{GasSlot::GC_iC5}},
    {'T', "GC_nC5",                 GasValue{GasSlot::GC_nC5}},
    {'T', "GC_nC6",                 GasValue{GasSlot::GC_nC6}},
    {'T', "GC_nC7",                 GasValue{GasSlot::GC_nC7}},
    {'T', "GC_nC8",                 GasValue{GasSlot::GC_nC8}},
    {'T', "GC_nC9",                 GasValue{GasSlot::GC_nC9}},
    {'T', "GC_nC10",                GasValue{GasSlot::GC_nC10}},
    {'T', "GC_He",                  GasValue{GasSlot::GC_He}},
    {'T', "GC_Ar",                  GasValue{GasSlot::GC_Ar}},

    // Outputs of the gas model
    {'U', "AGA8fpvs",               GasBinding{GasSlot::AGA8fpvs}},
    {'U', "AGA8rhos",               GasBinding{GasSlot::AGA8rhos}},
    {'U', "AGA8rhotp",              GasBinding{GasSlot::AGA8rhotp}},
    {'U', "AGA8z",                  GasBinding{GasSlot::AGA8z}},
    {'U', "AGA8zs",                 GasBinding{GasSlot::AGA8zs}},
    {'U', "AGA8GRs",                GasBinding{GasSlot::AGA8GRs}},
    {'U', "AGA8uncert",             GasBinding{GasSlot::AGA8uncert}},
    {'U', "AGA8Status",             GasBinding{GasSlot::AGA8Status}},
}};
// clang-format on

} // namespace

std::span<const RunRow> RunRows() {
    return Rows;
}

} // namespace gfc::config
