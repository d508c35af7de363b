#include "audit/ValueTable.h"

#include "config/AccelabarSizes.h"
#include "config/Materials.h"
#include "config/Vocabulary.h"
#include "platform/NameTable.h"
#include "services/Funciones_III.h"
#include "services/Text.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace gfc::audit {

namespace {

namespace algorithm = config::algorithm;
using C = const Choices&;
using enum Form;

// clang-format off
constexpr std::string_view Flags[] = {config::Yes, config::No};
constexpr std::string_view Packages[] = {"kdormaga"};
constexpr std::string_view Algorithms[] = {algorithm::AGA3, algorithm::AGA7, algorithm::Accelabar, algorithm::SYT6143};
constexpr std::string_view Sources[] = {config::source::Measured, config::source::AGA8, config::source::SGERG88,
                                        config::source::ISO12213_2, config::source::ISO12213_3};
constexpr std::string_view Systems[] = {config::units::US, config::units::USdegC, config::units::Metric,
                                        config::units::MetricDegF, config::units::PracticalSI};
constexpr std::string_view PressTypes[] = {config::Absolute, config::Gage};
constexpr std::string_view Methods[] = {config::DetailMethod};
constexpr std::string_view Inputs[] = {config::CompositionMeasured, config::CompositionFixed};
constexpr std::string_view Taps[] = {"Flange", "Pipe"};
constexpr std::string_view TapPlaces[] = {"Up", "Down"};
// clang-format on

template <class Rows, class Row>
consteval auto WordsOf(const Rows& rows, std::string_view Row::*word) {
    std::array<std::string_view, std::tuple_size_v<Rows>> words;
    std::ranges::transform(rows, words.begin(), word);
    return words;
}

constexpr auto Plates = WordsOf(config::OrificeMaterials, &config::Material::Stored);
constexpr auto Pipes = WordsOf(config::PipeMaterials, &config::Material::Stored);

// The sizes of the table, and one behind them.
constexpr auto Sizes = [] {
    std::array<std::string_view, config::AccelabarSizes.size() + 1> words;
    std::ranges::transform(config::AccelabarSizes, words.begin(), &config::AccelabarSize::Size);
    words.back() = "Other";
    return words;
}();

bool Always(C) {
    return true;
}
bool Never(C) {
    return false;
}
bool HasPlate(C c) {
    return c.Station.FlowAlgorithm == algorithm::AGA3 || c.Station.FlowAlgorithm == algorithm::SYT6143;
}
bool IsAccelabar(C c) {
    return c.Station.FlowAlgorithm == algorithm::Accelabar;
}
bool IsOrifice(C c) {
    return config::IsOrificeAlgorithm(c.Station.FlowAlgorithm);
}
bool OtherPlate(C c) {
    return HasPlate(c) && c.Mechanical.OrificeMaterial == "Other";
}
bool OtherPipe(C c) {
    return HasPlate(c) && c.Mechanical.PipeMaterial == "Other";
}
bool HasTraces(C c) {
    return services::EqualNoCase(c.Station.EnableDataTraces, config::Yes);
}

// The fields of a fixed gas and of what a run has of its own stand here without a test of the choices: a
// section has them only where they count.
// clang-format off
constexpr std::array Rows = std::to_array<ValueRow>({
    {"Package",                Word,     Packages,   Always},
    {"EnableDataTraces",       Word,     Flags,      Always},
    {"NumberTraces",           Whole,    {},         HasTraces},
    {"Run1",                   Word,     Flags,      Always},
    {"Run2",                   Word,     Flags,      Always},
    {"Run3",                   Word,     Flags,      Always},
    {"Run4",                   Word,     Flags,      Always},
    {"Run5",                   Word,     Flags,      Always},
    {"Run11",                  Word,     Flags,      Always},
    {"Run22",                  Word,     Flags,      Always},
    {"Run33",                  Word,     Flags,      Always},
    {"Run44",                  Word,     Flags,      Always},
    {"Run55",                  Word,     Flags,      Always},
    {"FlowAlgorithm",          Word,     Algorithms, Always},
    {"GasDensitySource",       Word,     Sources,    Always},
    {"SystemUnits",            Word,     Systems,    Always},
    {"GasDensityStandardT",    Number,   {},         Always},
    {"GasDensityStandardP",    Number,   {},         Always, true},
    {"WrkFloatRegAddr",        Whole,    {},         Always},
    {"WrkIntLongRegAddr",      Whole,    {},         Always},
    {"WrkAnalogRegAddr",       Whole,    {},         Always},
    {"StandardT",              Number,   {},         Always},
    {"StandardP",              Number,   {},         Always, true},
    {"FlowingViscosity",       Number,   {},         IsOrifice, true},
    {"IsentropicCoeff",        Number,   {},         IsOrifice, true},
    {"Compressible",           Word,     Flags,      Always},
    {"PressType",              Word,     PressTypes, Always},
    {"ExtAtmPress",            Word,     Flags,      Always},
    {"AtmPress",               Number,   {},         Never},
    {"AGA8Method",             Word,     Methods,    Always},
    {"AGA8CalInput",           Word,     Inputs,     Always},

    {"PressureTap",            Word,     Taps,       HasPlate},
    {"PressureTapPos",         Word,     TapPlaces,  HasPlate},
    {"PipeMaterial",           Word,     Pipes,      HasPlate},
    {"InternalPipeDia",        Number,   {},         HasPlate, true},
    {"InternalPipeDiaRefTemp", Number,   {},         HasPlate},
    {"OrificeMaterial",        Word,     Plates,     HasPlate},
    {"OrificeDia",             Number,   {},         HasPlate, true},
    {"OrificeDiaRefTemp",      Number,   {},         HasPlate},
    {"OrificeThermalExpCoeff", Number,   {},         OtherPlate},
    {"PipeThermalExpCoeff",    Number,   {},         OtherPipe},
    {"ExtMechParam",           Word,     Flags,      HasPlate},
    {"AccelabarSize",          Word,     Sizes,      IsAccelabar},
    {"AccelabarY",             Number,   {},         IsAccelabar, true},
    {"AccelabarK",             Number,   {},         IsAccelabar, true},
    {"AccelabarThroatDia",     Number,   {},         IsAccelabar, true},

    {"CalibrationFactor",      Number,   {},         Always, true},
    {"ContractHour",           Whole,    {},         Always, false, 23},
    {"ContractMin",            Whole,    {},         Always, false, 59},
    {"GasDensityStandard",     Number,   {},         Always, true},
    {"meterKFactor",           Number,   {},         Always, true},

    {"VolCalorificValue",      Number,   {},         Always, true},
    {"RelativeDensity",        Fraction, {},         Always, true},
    {"XCO2",                   Fraction, {},         Always},
    {"XH2",                    Number,   {},         Always},
    {"GC_C1",                  Percent,  {},         Always},
    {"GC_N2",                  Percent,  {},         Always},
    {"GC_CO2",                 Percent,  {},         Always},
    {"GC_C2",                  Percent,  {},         Always},
    {"GC_C3",                  Percent,  {},         Always},
    {"GC_H2O",                 Percent,  {},         Always},
    {"GC_H2S",                 Percent,  {},         Always},
    {"GC_H",                   Percent,  {},         Always},
    {"GC_CO",                  Percent,  {},         Always},
    {"GC_O2",                  Percent,  {},         Always},
    {"GC_iC4",                 Percent,  {},         Always},
    {"GC_nC4",                 Percent,  {},         Always},
    {"GC_iC5",                 Percent,  {},         Always},
    {"GC_nC5",                 Percent,  {},         Always},
    {"GC_nC6",                 Percent,  {},         Always},
    {"GC_nC7",                 Percent,  {},         Always},
    {"GC_nC8",                 Percent,  {},         Always},
    {"GC_nC9",                 Percent,  {},         Always},
    {"GC_nC10",                Percent,  {},         Always},
    {"GC_He",                  Percent,  {},         Always},
    {"GC_Ar",                  Percent,  {},         Always},
});
// clang-format on

} // namespace

// Asked of each line of a file.
const ValueRow* ValueRowOf(std::string_view key) {
    static const platform::NameTable places = [] {
        std::vector<std::string_view> keys;
        for (const ValueRow& row : Rows)
            keys.push_back(row.Key);
        return platform::NameTable(std::move(keys));
    }();
    const auto place = places.Find(key);
    return place ? &Rows.at(*place) : nullptr;
}

std::optional<double> NumberOf(std::string_view text) {
    const auto isNumber = [](char c) { return (c >= '0' && c <= '9') || c == '.'; };
    const bool hasDigit = text.find_first_not_of('.') != std::string_view::npos;
    if (!hasDigit || !std::ranges::all_of(text, isNumber) || !services::SingleDecimalPoint(text))
        return std::nullopt;
    return services::ValueOf(text);
}

} // namespace gfc::audit
