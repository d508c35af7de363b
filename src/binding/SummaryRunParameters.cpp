#include "binding/SummaryRun.h"
#include "binding/SummaryValues.h"
#include "config/Vocabulary.h"

namespace gfc::binding {

namespace {

using config::Quantity;
using config::RunMechanical;
using config::StationConfig;
using Station = const StationConfig&;

// A diameter goes with the temperature at which it was measured: both are fixed or neither is.
template <auto Field, Quantity Unit>
std::string UnlessExternal(Station station) {
    return HasExternalDiameters(station) ? std::string(ExternalIO) : WithUnit<Field, Unit>(station);
}

// The Accelabar's own list deliberately writes the word as the tag lists do.
template <auto Field>
std::string OfAccelabar(Station station) {
    const std::string& value = FieldOf<Field>(station);
    return value.empty() ? std::string(NotConfiguredTag) : value;
}

// A turbine with a densimeter reads no pressure.
std::string TurbinePressureType(Station station) {
    return IsMeasured(station) ? std::string(NotApplicable) : Plain<&StationConfig::PressType>(station);
}

std::string TurbineAtmosphericPressure(Station station) {
    return IsMeasured(station) ? std::string(NotApplicable) : RunAtmosphericPressure(station);
}

constexpr auto Length = Quantity::Length;
constexpr auto Temperature = Quantity::Temperature;
constexpr auto Expansion = Quantity::ExpansionCoefficient;

// clang-format off
const ParameterRow OrificeRows[] = {
    {"1",   "Orifice Plate",        nullptr},
    {"1.1", "Internal Dia.",        UnlessExternal<&RunMechanical::OrificeDia, Length>},
    {"1.2", "Ref. Temperature",     UnlessExternal<&RunMechanical::OrificeDiaRefTemp, Temperature>},
    {"1.3", "Material",             Plain<&RunMechanical::OrificeMaterial>},
    {"1.4", "Thermal Coefficient",  WithUnit<&RunMechanical::OrificeThermalExpCoeff, Expansion>},
    {"2",   "Pipe",                 nullptr},
    {"2.1", "Internal Dia.",        UnlessExternal<&RunMechanical::InternalPipeDia, Length>},
    {"2.2", "Ref. Temperature",     UnlessExternal<&RunMechanical::InternalPipeDiaRefTemp, Temperature>},
    {"2.3", "Material",             Plain<&RunMechanical::PipeMaterial>},
    {"2.4", "Thermal Coefficient",  WithUnit<&RunMechanical::PipeThermalExpCoeff, Expansion>},
    {"3",   "Pressure Tap",         nullptr},
    {"3.1", "Type",                 Plain<&RunMechanical::PressureTap>},
    {"3.2", "Location",             Plain<&RunMechanical::PressureTapPos>},
    {"4",   "Pressure Measurement", nullptr},
    {"4.1", "Type",                 Plain<&StationConfig::PressType>},
    {"4.2", "Atmospheric Pressure", RunAtmosphericPressure},
};

// The numbering deliberately starts at 1.2, and the size and the throat are in inches in every unit system.
const ParameterRow AccelabarRows[] = {
    {"1",   "Accelabar Parameters",                   nullptr},
    {"1.2", "Accelabar Size (in)",                    OfAccelabar<&RunMechanical::AccelabarSize>},
    {"1.3", "Gas expansion factor coeff. (Ya-coeff)", OfAccelabar<&RunMechanical::AccelabarY>},
    {"1.4", "Flow coefficient ( K )",                 OfAccelabar<&RunMechanical::AccelabarK>},
    {"1.5", "Accelabar Throat Dia. (in)",             OfAccelabar<&RunMechanical::AccelabarThroatDia>},
};

const ParameterRow TurbineRows[] = {
    {"1",   "Pressure Measurement", nullptr},
    {"1.1", "Type",                 TurbinePressureType},
    {"1.2", "Atmospheric Pressure", TurbineAtmosphericPressure},
};
// clang-format on

std::span<const ParameterRow> RowsOf(std::string_view algorithm) {
    if (algorithm == config::algorithm::AGA3 || algorithm == config::algorithm::SYT6143)
        return OrificeRows;
    if (algorithm == config::algorithm::Accelabar)
        return AccelabarRows;
    if (algorithm == config::algorithm::AGA7)
        return TurbineRows;
    return {};
}

} // namespace

SummaryPage RunParametersPage(Station station) {
    return ParameterPage(RowsOf(station.FlowAlgorithm), station);
}

} // namespace gfc::binding
