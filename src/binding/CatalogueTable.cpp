#include "binding/Catalogue.h"
#include "config/Vocabulary.h"

namespace gfc::binding {

namespace {

using config::Quantity;
using config::RunIO;
using config::StationConfig;
using enum TagClass;
using enum BindingStage;
using enum config::GasSlot;
namespace algorithm = config::algorithm;

using C = const Conditions&;

bool Always(C) {
    return true;
}
bool IsAGA7(C c) {
    return c.FlowAlgorithm == algorithm::AGA7;
}
bool IsNotAGA7(C c) {
    return !IsAGA7(c);
}
bool IsSYT(C c) {
    return c.FlowAlgorithm == algorithm::SYT6143;
}
bool IsAGA3Like(C c) {
    return !IsAGA7(c) && !IsSYT(c);
}
bool HasOrificePlate(C c) {
    return c.FlowAlgorithm == algorithm::AGA3 || IsSYT(c);
}
bool IsDifferential(C c) {
    return HasOrificePlate(c) || c.FlowAlgorithm == algorithm::Accelabar;
}

bool IsMeasured(C c) {
    return c.Measured;
}
bool IsMeasuredByKnown(C c) {
    return c.Measured && (IsDifferential(c) || IsAGA7(c));
}
bool IsCalculated(C c) {
    return !c.Measured;
}
bool IsGasModel(C c) {
    return config::IsGasModel(c.GasDensitySource);
}
bool IsDetail(C c) {
    return config::IsDetail(c.GasDensitySource);
}

bool NeedsFlowingState(C c) {
    return !(IsAGA7(c) && c.Measured);
}
bool ChecksFlowingState(C c) {
    return IsDifferential(c) || (IsAGA7(c) && IsGasModel(c));
}

// The Accelabar's atmospheric pressure is deliberately not looked at.
bool ChecksCommonPressure(C c) {
    return c.ExtAtmPress && (HasOrificePlate(c) || (IsAGA7(c) && !c.Measured));
}
bool ShowsCommonPressure(C c) {
    return c.ExtAtmPress && NeedsFlowingState(c);
}

// A "Yes" left over from another standard deliberately counts for the Accelabar here.
bool BindsDiameters(C c) {
    return !IsAGA7(c) && c.ExtMech;
}
bool HasDiameters(C c) {
    return HasOrificePlate(c) && c.ExtMech;
}
bool ChecksCorrection(C c) {
    return IsSYT(c) && c.ExtCorr;
}
// By the diameters' option and not by the correction's, deliberately.
bool ShowsCorrection(C c) {
    return IsSYT(c) && c.ExtMech;
}

bool OutputsDetail(C c) {
    return !c.Measured && IsDetail(c);
}
bool OutputsOther(C c) {
    return !c.Measured && !IsDetail(c);
}
bool IsGross(C c) {
    return IsGasModel(c) && !IsDetail(c);
}
bool BindsComposition(C c) {
    return OutputsDetail(c) && c.CompositionMeasured;
}
bool ChecksComposition(C c) {
    return IsDetail(c) && c.CompositionMeasured;
}
bool BindsGasParameters(C c) {
    return OutputsOther(c) && c.CompositionMeasured;
}
bool ChecksGasParameters(C c) {
    return IsGross(c) && c.CompositionMeasured;
}

// clang-format off
//                               in the tree         in the check          in the summary
constexpr Presence Each        {Always,             Always,               Always};
constexpr Presence Densimeter  {IsMeasured,         IsMeasuredByKnown,    IsMeasured};
constexpr Presence Flowing     {NeedsFlowingState,  ChecksFlowingState,   NeedsFlowingState};
constexpr Presence Differential{IsNotAGA7,          IsDifferential,       IsNotAGA7};
// Whoever shows the common inputs has decided on them, before the choice need stand in the record.
constexpr Presence Atmosphere  {Always,             ChecksCommonPressure, ShowsCommonPressure};
constexpr Presence Diameters   {BindsDiameters,     HasDiameters,         HasDiameters};
constexpr Presence Correction  {IsSYT,              ChecksCorrection,     ShowsCorrection};
constexpr Presence Turbine     {IsAGA7,             IsAGA7,               IsAGA7};
constexpr Presence StatusAGA3  {IsAGA3Like,         IsAGA3Like,           IsAGA3Like};
constexpr Presence StatusSYT   {IsSYT,              IsSYT,                IsSYT};
constexpr Presence GasModel    {IsCalculated,       IsGasModel,           IsCalculated};
constexpr Presence StatusAGA8  {OutputsDetail,      IsDetail,             OutputsDetail};
constexpr Presence StatusSGERG {OutputsOther,       IsGross,              OutputsOther};
constexpr Presence Composition {BindsComposition,   ChecksComposition,    BindsComposition};
constexpr Presence GasValues   {BindsGasParameters, ChecksGasParameters,  BindsGasParameters};

// One text for all three, where they agree.
consteval Captions Alike(std::string_view caption) { return {caption, caption, caption}; }

constexpr std::nullopt_t NoUnit = std::nullopt;

// The captions of one row differ on purpose; "Diferential Pressure", "Volune" and "Hydrogen Sulfite" are this
// system's own words and are not to be mended.
const VariableRow Rows[] = {
    {RunInputs, Float, &RunIO::GasDensity, "GasDensityKDIO",
     Alike("Density"), Quantity::Density, Densimeter, 5},
    {RunInputs, Float, &RunIO::GasTemp, "GasTempKDIO",
     Alike("Temperature"), Quantity::Temperature, Flowing, 7},
    {RunInputs, Float, &RunIO::GasPress, "GasPressKDIO",
     Alike("Pressure"), Quantity::AbsolutePressure, Flowing, 8},
    {RunInputs, Float, &RunIO::GasDP, "GasDPKDIO",
     {"Differential Pressure", "Diferential Pressure", "Differential Pressure"},
     Quantity::DifferentialPressure, Differential, 9},
    {CommonInputs, Float, &StationConfig::CommonPa, "CommonPaKDIO",
     Alike("Atmospheric Pressure"), Quantity::AbsolutePressure, Atmosphere, 0, "PaKDIO"},
    {RunInputs, Float, &RunIO::PipeDia, "PipeDiaKDIO",
     {"Pipe diameter", "Int.Pipe Dia.", "Pipe diameter"}, Quantity::Length, Diameters, 10},
    {RunInputs, Float, &RunIO::OrificeDia, "OrificeDiaKDIO",
     Alike("Orifice diameter"), Quantity::Length, Diameters, 11},
    {RunInputs, Float, &RunIO::PipeAbsRoughness, "PipeAbsRoughnessKDIO",
     {"Pipe abs.roughness (K)", "Pipe Absolute Roughness", "Pipe abs.roughness"},
     Quantity::Length, Correction, 12},
    {RunInputs, Float, &RunIO::OrificeServiceTime, "OrificeServiceTimeKDIO",
     {"Orifice service time (t)", "Orifice Service Time", "Orifice service time (year)"},
     NoUnit, Correction, 13},
    {RunInputs, Long, &RunIO::GasPulseInput, "GasPulseInputKDIO",
     {"Turbine Pulses", "Pulse Input", "Pulse Input"}, Quantity::MeterFactor, Turbine, 6},
    {RunInputs, Digital, &RunIO::GFCRunHold, "GFCRunHoldKDIO",
     {"Flow Run / Hold", "Flow Run/Hold", "Flow Run / Hold"}, NoUnit, Each, 2},
    {RunInputs, Digital, &RunIO::GFCTotalizeHold, "GFCTotalizeHoldKDIO",
     {"Totalize Run / Hold", "Totalize Run/Hold", "Totalize Run / Hold"}, NoUnit, Each, 3},
    {RunInputs, Digital, &RunIO::ResetTotals, "ResetTotalsKDIO",
     {"Reset", "Reset", "Reset Totals"}, NoUnit, Each, 1},

    {RunOutputs, Float, &RunIO::StdVolFlow, "StdVolFlowKDIO",
     {"Volume Flow", "Std. Volume Flow", "Vol Flow @ Std."}, Quantity::VolumeRate, Each, 15},
    {RunOutputs, Float, &RunIO::StdMassFlow, "StdMassFlowKDIO",
     {"Mass Flow", "Std. Mass Flow", "Mass Flow"}, Quantity::MassRate, Each, 14},
    {RunOutputs, Float, &RunIO::GasVolume, "GasVolumeKDIO",
     {"Volume", "Volune", "Volume @ Std."}, Quantity::Volume, Each, 16},
    {RunOutputs, Float, &RunIO::GasMass, "GasMassKDIO",
     Alike("Mass"), Quantity::Mass, Each, 17},
    // The check says "AGA 3 Status" for every standard.
    {RunOutputs, Analog, &RunIO::AGA3Status, "AGA3StatusKDIO",
     {"AGA-3 Status", "AGA 3 Status", "AGA 3 Status"}, NoUnit, StatusAGA3, 4},
    {RunOutputs, Analog, &RunIO::AGA3Status, "AGA3StatusKDIO",
     {"AGA-7 Status", "AGA 3 Status", "AGA 7 Status"}, NoUnit, Turbine, 4},
    {RunOutputs, Analog, &RunIO::AGA3Status, "AGA3StatusKDIO",
     {"SYT6143-2004 Status", "AGA 3 Status", "SYT6143-2004 Status"}, NoUnit, StatusSYT, 4},

    {GasOutputs, Float, AGA8rhotp, "AGA8rhotpKDIO",
     {"Density(T,P)", "rhotp", "Density @ flowing cond."}, Quantity::Density, GasModel, 21},
    {GasOutputs, Float, AGA8rhos, "AGA8rhosKDIO",
     {"Standard Density", "rhos", "Density @ std. cond."}, Quantity::Density, GasModel, 20},
    {GasOutputs, Float, AGA8z, "AGA8zKDIO",
     {"Compressibility (Z)", "Compressibility", "Compressibility factor (Z) @ flowing cond."},
     NoUnit, GasModel, 23},
    {GasOutputs, Float, AGA8zs, "AGA8zsKDIO",
     {"Standard Compressibility (Zs)", "Std. Compressibility", "Compressibility factor (Zs) @ std. cond."},
     NoUnit, GasModel, 24},
    {GasOutputs, Float, AGA8fpvs, "AGA8fpvsKDIO",
     {"Supercompressibility (Fpvs)", "FPVS", "Supercompressibility factor @ std/flowing cond."},
     NoUnit, GasModel, 19},
    {GasOutputs, Float, AGA8GRs, "AGA8GRsKDIO",
     {"Relative Density (GRs)", "Rel. Density", "Relative density (GRs)"}, NoUnit, GasModel, 25},
    {GasOutputs, Float, AGA8uncert, "AGA8uncertKDIO",
     {"Uncertainty", "UNCERT", "Uncertainty (%)"}, NoUnit, GasModel, 22},
    {GasOutputs, Analog, AGA8Status, "AGA8StatusKDIO",
     {"AGA 8 Status", "AGA 8 Status", "AGA8 Status"}, NoUnit, StatusAGA8, 18},
    {GasOutputs, Analog, AGA8Status, "AGA8StatusKDIO",
     {"SGERG 88 Status", "AGA 8 Status", "SGERG 88 Status"}, NoUnit, StatusSGERG, 18},

    {GasInputs, Float, GC_C1,   "GC_C1KDIO",   Alike("Methane"),           NoUnit, Composition, 31},
    {GasInputs, Float, GC_N2,   "GC_N2KDIO",   Alike("Nitrogen"),          NoUnit, Composition, 32},
    {GasInputs, Float, GC_CO2,  "GC_CO2KDIO",  Alike("Carbon Dioxide"),    NoUnit, Composition, 33},
    {GasInputs, Float, GC_C2,   "GC_C2KDIO",   Alike("Ethane"),            NoUnit, Composition, 34},
    {GasInputs, Float, GC_C3,   "GC_C3KDIO",   Alike("Propane"),           NoUnit, Composition, 35},
    {GasInputs, Float, GC_H2O,  "GC_H2OKDIO",  Alike("Water"),             NoUnit, Composition, 36},
    {GasInputs, Float, GC_H2S,  "GC_H2SKDIO",  Alike("Hydrogen Sulfite"),  NoUnit, Composition, 37},
    {GasInputs, Float, GC_H,    "GC_HKDIO",   Alike("Hydrogen"),         NoUnit, Composition, 38,"GC_HKDIOA"},
    {GasInputs, Float, GC_CO,   "GC_COKDIO",   Alike("Carbon Monoxide"),   NoUnit, Composition, 39},
    {GasInputs, Float, GC_O2,   "GC_O2KDIO",   Alike("Oxygen"),            NoUnit, Composition, 40},
    {GasInputs, Float, GC_iC4,  "GC_iC4KDIO",  Alike("i-Butane"),          NoUnit, Composition, 41},
    {GasInputs, Float, GC_nC4,  "GC_nC4KDIO",  Alike("n-Butane"),          NoUnit, Composition, 42},
    {GasInputs, Float, GC_iC5,  "GC_iC5KDIO",  Alike("i-Pentane"),         NoUnit, Composition, 43},
    {GasInputs, Float, GC_nC5,  "GC_nC5KDIO",  Alike("n-Pentane"),         NoUnit, Composition, 44},
    {GasInputs, Float, GC_nC6,  "GC_nC6KDIO",  Alike("n-Hexane"),          NoUnit, Composition, 45},
    {GasInputs, Float, GC_nC7,  "GC_nC7KDIO",  Alike("n-Heptane"),         NoUnit, Composition, 46},
    {GasInputs, Float, GC_nC8,  "GC_nC8KDIO",  Alike("n-Octane"),          NoUnit, Composition, 47},
    {GasInputs, Float, GC_nC9,  "GC_nC9KDIO",  Alike("n-Nonane"),          NoUnit, Composition, 48},
    {GasInputs, Float, GC_nC10, "GC_nC10KDIO", Alike("n-Decane"),          NoUnit, Composition, 49},
    {GasInputs, Float, GC_He,   "GC_HeKDIO",   Alike("Helium"),            NoUnit, Composition, 50},
    {GasInputs, Float, GC_Ar,   "GC_ArKDIO",   Alike("Argon"),             NoUnit, Composition, 51},
    {GasInputs, Digital, GCEnable, "GCEnableKDIO",
     {"Enable", "Gas composition enable", "Enable"}, NoUnit, Composition, 52},

    {GasInputs, Float, VolCalorificValue, "VolCalorificValueKDIO",
     {"Calorific Vol.", "Vol. Calorific Value", "Vol. Calorific Value"},
     Quantity::HeatingValue, GasValues, 26},
    {GasInputs, Float, RelativeDensity, "RelativeDensityKDIO",
     Alike("Relative Density"), NoUnit, GasValues, 27},
    {GasInputs, Float, XCO2, "XCO2KDIO",
     {"CO2 content", "CO2 content", "CO2 content (Mole fraction)"}, NoUnit, GasValues, 28, "GC_CO2KDIO"},
    {GasInputs, Float, XH2, "XH2KDIO",
     {"H2 content", "H2 content", "H2 content (Mole fraction)"}, NoUnit, GasValues, 29, "H2KDIO"},
    {GasInputs, Digital, GCEnable, "GCEnableKDIO",
     {"Enable", "Gas composition strobe", "Enable"}, NoUnit, GasValues, 30, "GCStrobeKDIO"},
};
// clang-format on

} // namespace

std::span<const VariableRow> Catalogue() {
    return Rows;
}

std::string_view VariableRow::CheckGroup() const {
    switch (Stage) {
    case RunOutputs:
        return group::Outputs;
    case GasOutputs:
        return group::GasOutputs;
    case GasInputs:
        // The enabling digital counts to the composition in both families.
        return &Presence == &GasValues && Class == Float ? group::GasParameters : group::Composition;
    default:
        return group::Inputs;
    }
}

} // namespace gfc::binding
