#include "Contest.h"
#include "Floors.h"
#include "Material.h"
#include "config/ConfigReader.h"
#include "config/InPlaceUpdate.h"

// The file of one station as its forms read and write it.
namespace gfc::bench {

namespace {

struct OneFile {
    explicit OneFile(const std::string& bytes) { Put(Path, bytes); }

    Folder InFolder;
    std::string Path = InFolder.File("station.ini");
    std::unique_ptr<platform::Files> Files = platform::MakeFiles();
    config::FileIni Ini{*Files};
};

constexpr std::size_t LoadedSize = 5000;
constexpr std::size_t SavedSize = 32 * 1024;

// One run, and for the larger scales others behind it.
std::string OneRunFile(int scale) {
    return scale == 1 ? StationFile(1) : LongStationFile(LoadedSize * static_cast<std::size_t>(scale));
}

void Load(benchmark::State& state, int scale) {
    OneFile file(OneRunFile(scale));
    config::StationConfig station;
    for (auto _ : state) {
        const config::FileBatch batch(file.Ini, file.Path);
        config::LoadStationConfig(file.Ini, station, file.Path);
        config::LoadRun(file.Ini, station, file.Path, 1);
    }
    if (station.Runs.Gas.front()[config::GasSlot::AGA8Status].RegAddr.empty())
        state.SkipWithError("the run was not read");
}

void LoadFloor(benchmark::State& state, int scale) {
    const OneFile file(OneRunFile(scale));
    for (auto _ : state)
        benchmark::DoNotOptimize(PlainRead(file.Path));
}

// Each save changes a value of all runs.
void Save(benchmark::State& state, int scale) {
    OneFile file(LongStationFile(SavedSize * static_cast<std::size_t>(scale)));
    config::StationConfig station = FullStation();
    int viscosity = 0;
    for (auto _ : state) {
        station.FlowingViscosity = "0.01" + std::to_string(1000 + ++viscosity % 9000);
        config::SaveConfiguratorChanges(file.Ini, station, file.Path);
    }
}

void SaveFloor(benchmark::State& state, int scale) {
    const OneFile file(LongStationFile(SavedSize * static_cast<std::size_t>(scale)));
    const std::string bytes = PlainRead(file.Path);
    for (auto _ : state)
        PlainReplace(file.Path, bytes);
}

} // namespace

void ContestStations() {
    Contest("load", Ours, Load);
    Contest("load", Floor, LoadFloor);
    Contest("save", Ours, Save);
    Contest("save", Floor, SaveFloor);
}

} // namespace gfc::bench
