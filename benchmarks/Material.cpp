#include "Material.h"

#include "Library.h"
#include "config/CommonLayout.h"
#include "config/ConfigWriter.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"
#include "project/AddOnGate.h"
#include "support/RunPlace.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace gfc::bench {

namespace {

constexpr int RegistersPerRun = 200;

std::string ReadAll(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// As tags are named in plants: some 24 characters.
std::string TagName(int number) {
    const std::string digits = std::to_string(number);
    return "GasTrain_Skid4_" + std::string(7 - std::min<std::size_t>(digits.size(), 7), '0') + digits + "_PV";
}

void FillRun(config::StationConfig& station, int run) {
    const auto element = static_cast<std::size_t>(run);
    config::RunGas unread;
    const config::RunTarget to{station.Runs.IO[element], station.Runs.Gas[element],
                               station.Runs.Mechanical[element], unread};
    int number = run * RegistersPerRun;
    for (const config::RunRow& row : config::RunRows()) {
        ++number;
        config::ForEachPart(row, [&](config::BindingPart part) {
            std::string* place = test::PlaceOf(row, part, to);
            if (place != nullptr)
                *place = !config::IsBinding(row)             ? "1.25"
                         : part == config::BindingPart::Tag  ? TagName(number)
                         : part == config::BindingPart::Type ? "FX"
                                                             : std::to_string(number);
        });
    }
    station.Runs.Mechanical[element].ExtMechParam = config::Yes;
}

void FillCommon(config::StationConfig& station) {
    station.ProjectFile = "/jobs/plant.KPJ";
    station.ProjectName = "plant";
    station.CurrentStation = "North";
    station.UserId = "4711";
    station.EnableDataTraces = config::Yes;
    station.DeviceDataTraces = "/nvram/kdormaga.txt";
    station.NumberTraces = "1000";
    station.FlowAlgorithm = config::algorithm::AGA3;
    station.GasDensitySource = config::source::AGA8;
    station.SystemUnits = config::units::US;
    station.StandardT = "60.00";
    station.StandardP = "14.73";
    station.Compressible = config::Yes;
    station.FlowingViscosity = "0.010268";
    station.IsentropicCoeff = "1.3";
    station.PressType = config::Absolute;
    station.ExtAtmPress = config::No;
    station.AtmPress = "14.695949";
    station.AGA8Method = config::DetailMethod;
    station.AGA8CalInput = config::CompositionMeasured;
}

template <std::size_t Width>
void PutField(char (&field)[Width], const std::string& text) {
    std::memcpy(field, text.data(), std::min(text.size(), Width));
}

struct Share {
    const char* RegType;
    const char* ModuleType;
    int OfAHundred; // tags
};

// Most tags of a large station are floats of virtual modules.
constexpr std::array<Share, 8> Shares = {{{"FX", "Virtual Module", 60},
                                          {"FY", "Virtual Module", 10},
                                          {"AX", "Virtual Module", 5},
                                          {"LX", "Virtual Module", 5},
                                          {"AX", "Analog Input 8", 5},
                                          {"AY", "Analog Output 4", 5},
                                          {"X", "Digital Input 16", 5},
                                          {"Y", "Digital Output 16", 5}}};

const Share& ShareOf(std::size_t index, std::size_t count) {
    std::size_t upTo = 0;
    for (const Share& share : Shares) {
        upTo += count * static_cast<std::size_t>(share.OfAHundred) / 100;
        if (index < upTo)
            return share;
    }
    return Shares.back();
}

} // namespace

Folder::Folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "gfc-bench-XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
}

Folder::~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void Put(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

config::StationConfig FullStation(int runs) {
    config::StationConfig station;
    FillCommon(station);
    station.Runs.PrepareWholeStation(runs);
    for (int run = 0; run < config::MaxRuns; ++run) {
        const auto element = static_cast<std::size_t>(run);
        station.Run[element] = run < runs ? config::Yes : config::No;
        station.RunList[element] = {"Run" + std::to_string(run + 1), station.Run[element]};
        if (run < runs)
            FillRun(station, run);
    }
    return station;
}

std::string StationFile(int runs) {
    const Folder folder;
    const auto files = platform::MakeFiles();
    config::FileIni ini(*files);
    config::SaveWholeConfiguration(ini, FullStation(runs), folder.File("station.ini"));
    return ReadAll(folder.File("station.ini"));
}

std::string LongStationFile(std::size_t size) {
    std::string bytes = StationFile();
    const std::string lastRun = bytes.substr(bytes.rfind("[Run5]") + std::strlen("[Run5]"));
    for (int run = config::MaxRuns + 1; bytes.size() < size; ++run)
        bytes += "[Run" + std::to_string(run) + "]" + lastRun;
    return bytes;
}

std::vector<project::TagRecord> StationRecords(std::size_t count) {
    std::vector<project::TagRecord> records(count);
    for (std::size_t i = 0; i < count; ++i) {
        const Share& share = ShareOf(i, count);
        const int number = static_cast<int>(i) + 1;
        PutField(records[i].TagName, TagName(number));
        records[i].RegAddr = number;
        PutField(records[i].RegType, share.RegType);
        // Modules of 256 registers.
        PutField(records[i].ModuleName, std::string(share.RegType) + "-" + std::to_string(i / 256));
        PutField(records[i].ModuleType, share.ModuleType);
    }
    return records;
}

project::TagInventory StationInventory(std::size_t count) {
    const auto records = StationRecords(count);
    const auto library = LibraryOver(records);
    project::TagInventory inventory;
    project::BuildInventory(library->ReadTags("North", "/jobs/plant.KPJ", {}), inventory);
    return inventory;
}

project::TagList FloatTags(std::size_t count) {
    project::TagList tags;
    tags.reserve(count);
    for (int number = 1; number <= static_cast<int>(count); ++number)
        tags.push_back({TagName(number), number, "FX", "FX-0", "Virtual Module"});
    return tags;
}

} // namespace gfc::bench
