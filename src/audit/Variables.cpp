#include "audit/Finding.h"
#include "binding/Catalogue.h"
#include "services/CodePage.h"

#include <algorithm>
#include <array>
#include <map>

namespace gfc::audit {

namespace {

struct CaptionRow {
    std::string_view Key;
    std::string_view Caption;
};

// What the summaries call the values that are no bindings. The diameters' heading there stands in a row of
// its own.
// clang-format off
constexpr std::array Captions = std::to_array<CaptionRow>({
    {"Project",                "Project Name"},
    {"OrmStation",             "Orm Station"},
    {"FlowAlgorithm",          "Algorithm"},
    {"SystemUnits",            "Units"},
    {"GasDensitySource",       "Gas Density Source"},
    {"AGA8CalInput",           "Gas Composition Source"},
    {"EnableDataTraces",       "Enable Data Traces"},
    {"DeviceDataTraces",       "Trace Device"},
    {"NumberTraces",           "Number of Traces"},
    {"StandardT",              "Standard Temperature"},
    {"StandardP",              "Standard Pressure"},
    {"GasDensityStandardT",    "Standard Temperature"},
    {"GasDensityStandardP",    "Standard Pressure"},
    {"Compressible",           "Fluid Compressible?"},
    {"FlowingViscosity",       "Flowing Viscosity"},
    {"IsentropicCoeff",        "Isentropic Coefficient"},
    {"PressType",              "Pressure Type"},
    {"AtmPress",               "Atmospheric Pressure"},
    {"ExtAtmPress",            "Atmospheric Pressure"},
    {"WrkAnalogModName",       "Virtual AI"},
    {"WrkIntLongModName",      "Virtual LI"},
    {"WrkFloatModName",        "Virtual FI"},
    {"CalibrationFactor",      "Calibration Factor"},
    {"ContractHour",           "Contract Time"},
    {"ContractMin",            "Contract Time"},
    {"meterKFactor",           "Meter K-Factor"},
    {"GasDensityStandard",     "Density @ Std. Cond."},
    {"OrificeDia",             "Orifice Plate Internal Dia."},
    {"OrificeDiaRefTemp",      "Orifice Plate Ref. Temperature"},
    {"OrificeMaterial",        "Orifice Plate Material"},
    {"OrificeThermalExpCoeff", "Orifice Plate Thermal Coefficient"},
    {"InternalPipeDia",        "Pipe Internal Dia."},
    {"InternalPipeDiaRefTemp", "Pipe Ref. Temperature"},
    {"PipeMaterial",           "Pipe Material"},
    {"PipeThermalExpCoeff",    "Pipe Thermal Coefficient"},
    {"PressureTap",            "Pressure Tap Type"},
    {"PressureTapPos",         "Pressure Tap Location"},
    {"AccelabarSize",          "Accelabar Size (in)"},
    {"AccelabarY",             "Gas expansion factor coeff. (Ya-coeff)"},
    {"AccelabarK",             "Flow coefficient ( K )"},
    {"AccelabarThroatDia",     "Accelabar Throat Dia. (in)"},
});
// clang-format on

// Without regard to case, as keys are.
struct Less {
    bool operator()(const std::string& left, const std::string& right) const {
        return std::ranges::lexicographical_compare(
            left, right, {}, [](char c) { return services::FoldByte(c); },
            [](char c) { return services::FoldByte(c); });
    }
};

using CaptionMap = std::map<std::string, std::string, Less>;

// A fixed gas value has its variable's stem without its ending as key. The three statuses share one stem: the
// first caption stands for them.
CaptionMap MakeCaptions() {
    constexpr std::string_view ending = "KDIO";
    CaptionMap captions;
    for (const CaptionRow& row : Captions)
        captions.emplace(row.Key, row.Caption);
    for (const binding::VariableRow& row : binding::Catalogue()) {
        const std::string caption(row.Captions.Summary);
        for (const auto& key : {row.TagKey(), row.TypeKey(), row.AddressKey()})
            captions.emplace(key, caption);
        if (row.Stage == binding::BindingStage::GasInputs)
            captions.emplace(row.Stem.substr(0, row.Stem.size() - ending.size()), caption);
    }
    return captions;
}

} // namespace

std::string VariableOf(std::string_view key) {
    static const CaptionMap captions = MakeCaptions();
    const auto found = captions.find(std::string(key));
    return found == captions.end() ? std::string(key) : found->second;
}

} // namespace gfc::audit
