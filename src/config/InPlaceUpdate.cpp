#include "config/InPlaceUpdate.h"

#include "config/CommonLayout.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"

#include <algorithm>
#include <array>

namespace gfc::config {
namespace {

using namespace std::string_view_literals;

constexpr std::array CommonValueKeys = {"StandardT"sv,        "StandardP"sv,       "Compressible"sv,
                                        "FlowingViscosity"sv, "IsentropicCoeff"sv, "FlowAlgorithm"sv,
                                        "GasDensitySource"sv};
constexpr std::array PressureKeys = {"PressType"sv, "ExtAtmPress"sv, "AtmPress"sv};
constexpr std::array MechanicalKeys = {"PressureTap"sv,
                                       "PressureTapPos"sv,
                                       "InternalPipeDia"sv,
                                       "InternalPipeDiaRefTemp"sv,
                                       "PipeMaterial"sv,
                                       "OrificeMaterial"sv,
                                       "OrificeDia"sv,
                                       "OrificeDiaRefTemp"sv,
                                       "OrificeThermalExpCoeff"sv,
                                       "PipeThermalExpCoeff"sv};
constexpr std::array ExtMechParamKey = {"ExtMechParam"sv};
constexpr std::array AccelabarKeys = {"AccelabarK"sv, "AccelabarY"sv, "AccelabarSize"sv,
                                      "AccelabarThroatDia"sv};

struct SavedKey {
    CommonSection Section;
    std::string_view Key;
    CommonField Value;
};

using enum CommonSection;
using Config = StationConfig;
using Working = WorkingModules;

// The configurator's save, before and after the copies in the runs. The order counts where a key is new in
// the file; WrkAnalogModNAme stands in this form deliberately.
// clang-format off
constexpr std::array SavedBeforeRuns = std::to_array<SavedKey>({
    {Station,  "NumberTraces",        &Config::NumberTraces},
    {Station,  "EnableDataTraces",    &Config::EnableDataTraces},
    {Station,  "DeviceDataTraces",    &Config::DeviceDataTraces},
    {General,  "UserID",              &Config::UserId},
    {FlowRuns, "FlowAlgorithm",       &Config::FlowAlgorithm},
    {FlowRuns, "GasDensityStandardT", &Config::StandardT},
    {FlowRuns, "GasDensityStandardP", &Config::StandardP},
    {FlowRuns, "GasDensitySource",    &Config::GasDensitySource},
    {Flow,     "StandardT",           &Config::StandardT},
    {Flow,     "StandardP",           &Config::StandardP},
});

constexpr std::array SavedAfterRuns = std::to_array<SavedKey>({
    {Flow,     "Compressible",        &Config::Compressible}, // as chosen, unlike in a full write
    {Flow,     "FlowingViscosity",    &Config::FlowingViscosity},
    {Flow,     "IsentropicCoeff",     &Config::IsentropicCoeff},
    {Flow,     "PressType",           &Config::PressType},
    {Flow,     "ExtAtmPress",         &Config::ExtAtmPress},
    {Flow,     "AtmPress",            &Config::AtmPress},
    {Flow,     "CommonPaKDIOTag",     BindingPart::Tag},
    {Flow,     "CommonPaKDIOType",    BindingPart::Type},
    {Flow,     "CommonPaKDIORegAddr", BindingPart::RegAddr},
    {FlowRuns, "SystemUnits",         &Config::SystemUnits},
    {FlowRuns, "WrkFloatModName",     &Working::WrkFloatModName},
    {FlowRuns, "WrkFloatRegAddr",     &Working::WrkFloatRegAddr},
    {FlowRuns, "WrkFloatRegType",     &Working::WrkFloatRegType},
    {FlowRuns, "WrkIntLongModName",   &Working::WrkIntLongModName},
    {FlowRuns, "WrkIntLongRegAddr",   &Working::WrkIntLongRegAddr},
    {FlowRuns, "WrkIntLongRegType",   &Working::WrkIntLongRegType},
    {FlowRuns, "WrkAnalogModNAme",    &Working::WrkAnalogModName},
    {FlowRuns, "WrkAnalogRegAddr",    &Working::WrkAnalogRegAddr},
    {FlowRuns, "WrkAnalogRegType",    &Working::WrkAnalogRegType},
});

// The copies in each configured run. The atmospheric pressure binding is deliberately written whether it is
// in use or not, unlike in the full write.
struct RunCopy {
    std::string_view Key;
    CommonField Value;
};
constexpr std::array CopiesInRuns = std::to_array<RunCopy>({
    {"StandardT",        &Config::StandardT},
    {"StandardP",        &Config::StandardP},
    {"FlowingViscosity", &Config::FlowingViscosity},
    {"Compressible",     Literal{Yes}},
    {"IsentropicCoeff",  &Config::IsentropicCoeff},
    {"SystemUnits",      &Config::SystemUnits},
    {"PressType",        &Config::PressType},
    {"ExtAtmPress",      &Config::ExtAtmPress},
    {"AtmPress",         &Config::AtmPress},
    {"PaKDIOTag",        BindingPart::Tag},
    {"PaKDIOType",       BindingPart::Type},
    {"PaKDIORegAddr",    BindingPart::RegAddr},
});
// clang-format on

void Save(FileIni& ini, const StationConfig& station, std::span<const SavedKey> keys,
          const std::string& file) {
    for (const SavedKey& saved : keys)
        ini.WriteKey(SectionToWrite(saved.Section, station), saved.Key, CommonTextOf(saved.Value, station),
                     file);
}

std::string ConfiguredKey(int run) {
    return RunSection(run) + std::to_string(run);
}

constexpr std::string_view KeyGroups = "ABCDE";

std::string RunKeyValue(std::string_view key, const RunSource& from) {
    if (key == "Compressible")
        return std::string(Yes);
    const auto row = std::ranges::find_if(RunRows(), [&](const RunRow& r) {
        return r.Name == key && KeyGroups.find(r.Group) != std::string_view::npos;
    });
    return row == RunRows().end() ? std::string{} : TextOf(*row, BindingPart::Tag, from);
}

} // namespace

namespace runkeys {
const std::span<const std::string_view> CommonValues = CommonValueKeys;
const std::span<const std::string_view> Pressure = PressureKeys;
const std::span<const std::string_view> Mechanical = MechanicalKeys;
const std::span<const std::string_view> ExtMechParam = ExtMechParamKey;
const std::span<const std::string_view> Accelabar = AccelabarKeys;
} // namespace runkeys

void WriteRunKeys(FileIni& ini, const StationConfig& station, const RunMechanical& mechanical,
                  std::span<const std::string_view> keys, int run, const std::string& file) {
    const FileBatch batch(ini, file);
    const RunIO io;
    const RunGas gas;
    const RunSource from{station, io, gas, mechanical};
    for (const std::string_view key : keys)
        ini.WriteKey(RunSection(run), key, RunKeyValue(key, from), file);
}

void WriteAddedRunKeys(FileIni& ini, const StationConfig& station, const RunMechanical& mechanical, int run,
                       const std::string& file) {
    const FileBatch batch(ini, file);
    const auto write = [&](std::span<const std::string_view> keys) {
        WriteRunKeys(ini, station, mechanical, keys, run, file);
    };
    ini.WriteKey("FlowRuns", RunSection(run), std::string(Yes), file);
    ini.WriteKey("FlowRuns", ConfiguredKey(run), std::string(Yes), file);
    write(runkeys::CommonValues);
    if (station.FlowAlgorithm == algorithm::AGA3 || station.FlowAlgorithm == algorithm::SYT6143) {
        write(runkeys::Mechanical);
        write(runkeys::ExtMechParam);
        write(runkeys::Pressure);
    } else if (station.FlowAlgorithm == algorithm::Accelabar) {
        write(runkeys::Accelabar); // deliberately no pipe, orifice or pressure keys
    } else if (station.FlowAlgorithm == algorithm::AGA7 && IsGasModel(station.GasDensitySource)) {
        write(runkeys::Pressure);
    }
}

void WriteFlowKeys(FileIni& ini, const StationConfig& station, std::span<const std::string_view> keys,
                   const std::string& file) {
    const FileBatch batch(ini, file);
    for (const std::string_view key : keys)
        for (const CommonRow& row : CommonRows())
            if (row.Section == CommonSection::Flow && row.Key == key)
                ini.WriteKey(FlowSectionToWrite(station), key, CommonTextOf(row.Read, station), file);
}

void SaveConfiguratorChanges(FileIni& ini, const StationConfig& station, const std::string& file) {
    const FileBatch batch(ini, file);
    Save(ini, station, SavedBeforeRuns, file);
    for (int run = 1; run <= MaxRuns; ++run) {
        if (ini.ReadKey("FlowRuns", ConfiguredKey(run), file) != Yes)
            continue;
        for (const RunCopy& copy : CopiesInRuns)
            ini.WriteKey(RunSection(run), copy.Key, CommonTextOf(copy.Value, station), file);
    }
    Save(ini, station, SavedAfterRuns, file);
}

} // namespace gfc::config
