#include "SoundStation.h"

#include "Material.h"
#include "binding/Catalogue.h"
#include "config/ConfigWriter.h"
#include "config/Vocabulary.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <iterator>

namespace gfc::bench {

namespace {

using binding::BindingStage;

constexpr int FirstBound = 1000; // the registers below are the working modules'

template <std::size_t Width>
void PutField(char (&field)[Width], const std::string& text) {
    std::memcpy(field, text.data(), std::min(text.size(), Width));
}

project::TagRecord RecordOf(const config::TagBinding& tag, const std::string& module) {
    project::TagRecord record{};
    PutField(record.TagName, tag.Tag);
    record.RegAddr = std::stoi(tag.RegAddr);
    PutField(record.RegType, tag.Type);
    PutField(record.ModuleName, module);
    PutField(record.ModuleType, "Virtual Module");
    return record;
}

void AddModule(const std::string& module, const std::string& type, int registers,
               std::vector<project::TagRecord>& records) {
    for (int i = 1; i <= registers; ++i)
        records.push_back(RecordOf({module + "_" + std::to_string(i), type, std::to_string(i)}, module));
}

std::string TypeOf(const binding::VariableRow& row) {
    const bool isOutput = row.Stage == BindingStage::RunOutputs || row.Stage == BindingStage::GasOutputs;
    constexpr std::array<const char*, 4> letters = {"F", "L", "A", ""};
    return std::string(letters[static_cast<std::size_t>(row.Class)]) + (isOutput ? "Y" : "X");
}

// "Run2_Static_Pressure": the caption with the run in front.
std::string NameOf(const binding::VariableRow& row, int run) {
    std::string name = "Run" + std::to_string(run) + "_" + std::string(row.Captions.Summary);
    name.resize(std::min<std::size_t>(name.size(), sizeof(project::TagRecord::TagName) - 1));
    std::ranges::replace_if(
        name, [](char c) { return c == ' ' || c == ','; }, '_');
    return name;
}

void BindAll(config::StationConfig& station, std::vector<project::TagRecord>& records) {
    int address = FirstBound;
    for (int element = 0; element < config::MaxRuns; ++element)
        for (const auto stage : {BindingStage::RunInputs, BindingStage::RunOutputs, BindingStage::GasInputs,
                                 BindingStage::GasOutputs})
            for (const auto& variable : binding::VariablesOf(stage, station, element)) {
                const std::string type = TypeOf(*variable.Row);
                *variable.Binding = {NameOf(*variable.Row, element + 1), type, std::to_string(address++)};
                records.push_back(RecordOf(*variable.Binding, "Gas" + type));
            }
}

void ForgetBindings(config::StationConfig& station) {
    station.Runs.PrepareWholeStation(config::MaxRuns);
    for (int element = 0; element < config::MaxRuns; ++element) {
        const auto place = static_cast<std::size_t>(element);
        auto& io = station.Runs.IO[place];
        io.CalibrationFactor = "1.0";
        io.ContractHour = "6";
        io.ContractMin = "0";
        auto& mechanical = station.Runs.Mechanical[place];
        mechanical.ExtMechParam = config::Yes;
        mechanical.OrificeDiaRefTemp = mechanical.InternalPipeDiaRefTemp = "68.00";
        mechanical.OrificeMaterial = mechanical.PipeMaterial = "SS";
        mechanical.InternalPipeDia = "2.90039";
        mechanical.OrificeDia = "1.50000";
        mechanical.PressureTap = "Flange";
        mechanical.PressureTapPos = "Up";
    }
}

std::string BytesOf(const config::StationConfig& station) {
    const Folder folder;
    const auto files = platform::MakeFiles();
    config::FileIni ini(*files);
    config::SaveWholeConfiguration(ini, station, folder.File("station.ini"));
    std::ifstream file(folder.File("station.ini"), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

template <std::size_t Width>
std::string TextOf(const char (&field)[Width]) {
    return {field, ::strnlen(field, Width)};
}

} // namespace

SoundStation::SoundStation(const std::string& name, std::size_t tags) : Name(name) {
    config::StationConfig station = FullStation();
    station.CurrentStation = name;
    station.EnableDataTraces = config::No;
    ForgetBindings(station);
    AddModule("WF", "FX", 128, Records);
    AddModule("WA", "AX", 32, Records);
    AddModule("WL", "LX", 8, Records);
    station.WorkingModules = {"WF", "FX", "1", "WL", "LX", "1", "WA", "AX", "1"};
    BindAll(station, Records);
    for (int address = 1; Records.size() < tags; ++address)
        Records.push_back(RecordOf(
            {"Skid4_Valve_" + std::to_string(address) + "_Position", "FX", std::to_string(10'000 + address)},
            "Skid" + std::to_string(address / 256)));
    File = BytesOf(station);
}

std::string SoundStation::Table() const {
    std::string table;
    for (const project::TagRecord& record : Records)
        table += Name + ",10.0.0.5," + TextOf(record.ModuleName) + "," + TextOf(record.ModuleType) + "," +
                 TextOf(record.TagName) + "," + TextOf(record.RegType) + "," +
                 std::to_string(record.RegAddr) + "\n";
    return table;
}

} // namespace gfc::bench
