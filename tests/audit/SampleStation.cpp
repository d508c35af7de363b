#include "SampleStation.h"

#include "binding/Catalogue.h"
#include "config/AccelabarSizes.h"
#include "config/ConfigWriter.h"
#include "config/Units.h"
#include "platform/Profile.h"
#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace gfc::test {

namespace {

using config::GasSlot;
using config::StationConfig;

const std::string file = "/jobs/KDOrmAGA_plant_North.ini";
const std::string projectFile = "/jobs/plant.KPJ";

bool IsUS(const StationConfig& station) {
    return station.SystemUnits == config::units::US || station.SystemUnits == config::units::USdegC;
}

void FillCommon(StationConfig& station, const SampleChoices& choices) {
    station.ProjectFile = projectFile;
    station.ProjectName = "plant";
    station.CurrentStation = "North";
    station.UserId = "1234";
    station.EnableDataTraces = "No";
    station.FlowAlgorithm = choices.Algorithm;
    station.SystemUnits = choices.Units;
    station.GasDensitySource = choices.Source;
    const auto& defaults = config::DefaultsOf(choices.Units);
    station.StandardT = defaults.StandardT;
    station.StandardP = defaults.StandardP;
    station.AtmPress = defaults.AtmPress;
    station.Compressible = "Yes";
    station.FlowingViscosity = config::start::FlowingViscosity;
    station.IsentropicCoeff = config::start::IsentropicCoeff;
    station.PressType = choices.GageFixed || choices.GageExternal ? config::Gage : config::Absolute;
    station.ExtAtmPress = choices.GageExternal ? config::Yes : config::No;
    station.AGA8Method = config::DetailMethod;
    station.AGA8CalInput = choices.Chromatograph ? config::CompositionMeasured : config::CompositionFixed;
    station.Measured = choices.Source == config::source::Measured;
    station.FlagAGA7 = choices.Algorithm == config::algorithm::AGA7;
    station.ActiveRunCount = static_cast<int>(choices.Runs.size());
    for (int run = 1; run <= config::MaxRuns; ++run)
        station.RunList[static_cast<std::size_t>(run - 1)] = {
            "Run" + std::to_string(run), std::ranges::count(choices.Runs, run) > 0 ? "Yes" : "No"};
}

void FillMechanical(const StationConfig& station, bool external, config::RunMechanical& record) {
    const bool us = IsUS(station);
    const bool isFahrenheit =
        station.SystemUnits == config::units::US || station.SystemUnits == config::units::MetricDegF;
    record.OrificeDia = us ? "0.57811" : "193.675";
    record.InternalPipeDia = us ? "2.90039" : "363.513";
    record.OrificeDiaRefTemp = record.InternalPipeDiaRefTemp = isFahrenheit ? "68.00" : "20.00";
    record.OrificeMaterial = "SS";
    record.PipeMaterial = "CS";
    record.PressureTap = "Flange";
    record.PressureTapPos = "Up";
    record.ExtMechParam = external ? "Yes" : "No";
}

void FillAccelabar(config::RunMechanical& record) {
    const auto& size = config::AccelabarSizes.front();
    record.AccelabarSize = size.Size;
    record.AccelabarY = size.Y;
    record.AccelabarK = size.K;
    record.AccelabarThroatDia = size.ThroatDia;
}

// Amarillo gas, and the first gas of ISO 12213-3.
void FillGas(const StationConfig& station, config::RunGas& gas) {
    static const std::array<const char*, config::Components> amarillo = {
        "0.906724", "0.031284", "0.004676", "0.045279", "0.008280", "0", "0", "0", "0", "0", "0.001037",
        "0.001563", "0.000321", "0.000443", "0.000393", "0",        "0", "0", "0", "0", "0"};
    if (config::IsDetail(station.GasDensitySource))
        for (std::size_t i = 0; i < amarillo.size(); ++i)
            gas[static_cast<GasSlot>(i)].Tag = amarillo[i];
    if (config::FamilyOf(station.GasDensitySource) != config::GasFamily::Gross)
        return;
    const bool metric = station.SystemUnits.starts_with("Metric");
    gas[GasSlot::VolCalorificValue].Tag = IsUS(station) ? "1091.28" : metric ? "11.29444" : "40.66";
    gas[GasSlot::RelativeDensity].Tag = "0.581";
    gas[GasSlot::XCO2].Tag = "0.006";
    gas[GasSlot::XH2].Tag = "0.000";
}

void FillRun(StationConfig& station, int element, const SampleChoices& choices) {
    const auto place = static_cast<std::size_t>(element);
    config::RunIO& io = station.Runs.IO[place];
    io.CalibrationFactor = "1.0";
    io.meterKFactor = "25.5";
    io.GasDensityStandard = IsUS(station) ? "0.0458" : "0.7336";
    io.ContractHour = "6";
    io.ContractMin = "0";
    auto& mechanical = station.Runs.Mechanical[place];
    if (choices.Algorithm == config::algorithm::Accelabar)
        FillAccelabar(mechanical);
    else if (choices.Algorithm != config::algorithm::AGA7)
        FillMechanical(station, choices.ExternalDiameters, mechanical);
    if (!choices.Chromatograph)
        FillGas(station, station.Runs.Gas[place]);
}

std::string TypeOf(const binding::VariableRow& row) {
    const bool isOutput =
        row.Stage == binding::BindingStage::RunOutputs || row.Stage == binding::BindingStage::GasOutputs;
    static const std::array<const char*, 4> letters = {"F", "L", "A", ""};
    return std::string(letters[static_cast<std::size_t>(row.Class)]) + (isOutput ? "Y" : "X");
}

std::string WriteAll(const StationConfig& station) {
    MemoryFiles files;
    config::FileIni ini(files);
    config::SaveWholeConfiguration(ini, station, file);
    return files.Content[file];
}

} // namespace

SampleStation::SampleStation(const SampleChoices& choices) {
    StationConfig station;
    FillCommon(station, choices);
    station.Runs.PrepareWholeStation(station.ActiveRunCount);
    for (int element = 0; element < station.ActiveRunCount; ++element)
        FillRun(station, element, choices);
    AddModules(station);
    BindAll(station);
    Bytes = WriteAll(station);
}

void SampleStation::AddTag(std::string_view type, std::string_view module, int address,
                           config::TagBinding& binding) {
    const std::string name = "T" + std::to_string(1000 + static_cast<int>(Tags.size()));
    Tags.push_back({name, address, type, module, "Virtual Module"});
    binding = {name, std::string(type), std::to_string(address)};
}

void SampleStation::AddModules(StationConfig& station) {
    config::TagBinding none;
    for (int i = 0; i < 128; ++i)
        AddTag("FX", "VF0", 1 + i, none);
    for (int i = 0; i < 32; ++i)
        AddTag("AX", "VA0", 1 + i, none);
    for (int i = 0; i < 8; ++i)
        AddTag("LX", "VL0", 1 + i, none);
    station.WorkingModules = {"VF0", "FX", "1", "VL0", "LX", "1", "VA0", "AX", "1"};
}

// Addresses from 200 on, each once in the whole station: those of a type are alone then, too.
void SampleStation::BindAll(StationConfig& station) {
    int address = 200;
    if (station.ExtAtmPress == config::Yes)
        AddTag("FX", "VF1", address++, station.CommonPa);
    for (int element = 0; element < station.ActiveRunCount; ++element)
        for (const auto stage : {binding::BindingStage::RunInputs, binding::BindingStage::RunOutputs,
                                 binding::BindingStage::GasInputs, binding::BindingStage::GasOutputs})
            for (const auto& variable : binding::VariablesOf(stage, station, element)) {
                const std::string type = TypeOf(*variable.Row);
                AddTag(type, "M" + type, address++, *variable.Binding);
            }
}

SampleStation& SampleStation::Set(std::string_view section, std::string_view key, const std::string& value) {
    platform::Profile profile(Bytes);
    profile.Write(section, key, value);
    Bytes = profile.Bytes();
    return *this;
}

SampleStation& SampleStation::Remove(std::string_view section, std::string_view key) {
    platform::Profile profile(Bytes);
    profile.Write(section, key, std::nullopt);
    Bytes = profile.Bytes();
    return *this;
}

SampleStation& SampleStation::RemoveSection(const std::string& section) {
    const auto begin = Bytes.find("[" + section + "]");
    EXPECT_NE(begin, std::string::npos) << section;
    const auto end = Bytes.find("\r\n[", begin);
    Bytes.erase(begin, end == std::string::npos ? end : end + 2 - begin);
    return *this;
}

SampleStation& SampleStation::Append(const std::string& lines) {
    Bytes += lines;
    return *this;
}

SampleStation& SampleStation::Replace(const std::string& text, const std::string& by) {
    const auto at = Bytes.find(text);
    EXPECT_NE(at, std::string::npos) << text;
    if (at != std::string::npos)
        Bytes.replace(at, text.size(), by);
    return *this;
}

SampleStation& SampleStation::BindAlike(std::string_view section, std::string_view stem,
                                        std::string_view otherSection, std::string_view otherStem) {
    for (const std::string part : {"Tag", "Type", "RegAddr"})
        Set(otherSection, std::string(otherStem) + part, Value(section, std::string(stem) + part));
    return *this;
}

SampleStation& SampleStation::Name(std::string_view section, std::string_view stem, const std::string& name) {
    TagOf(section, stem).TagName = name;
    return Set(section, std::string(stem) + "Tag", name);
}

std::string SampleStation::Value(std::string_view section, std::string_view key) const {
    return platform::Profile(Bytes).Read(section, key);
}

project::Tag& SampleStation::TagOf(std::string_view section, std::string_view stem) {
    const std::string name = Value(section, std::string(stem) + "Tag");
    const auto tag = std::ranges::find(Tags, name, [](const project::Tag& t) { return t.TagName.View(); });
    EXPECT_NE(tag, Tags.end()) << name;
    return *tag;
}

audit::StationReport SampleStation::Check() const {
    MemoryFiles files;
    files.Content[file] = Bytes;
    auto report = audit::CheckFile(files, {file, projectFile, Project, Station}, &Tags);
    EXPECT_EQ(files.Replaces, 0);
    EXPECT_EQ(files.Content[file], Bytes);
    return report;
}

audit::StationReport SampleStation::CheckWithoutTags() const {
    MemoryFiles files;
    files.Content[file] = Bytes;
    return audit::CheckFile(files, {file, projectFile, Project, Station}, nullptr);
}

} // namespace gfc::test
