#include "Contest.h"
#include "Library.h"
#include "Material.h"
#include "binding/ExpectedTags.h"
#include "project/WorkingModules.h"

#include <chrono>
#include <cstdlib>
#include <cstring>

// The tags of a large station.
namespace gfc::bench {

namespace {

constexpr std::size_t Tags = 100'000;

double SecondsSince(std::chrono::steady_clock::time_point begin) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void Open(benchmark::State& state, int scale) {
    const auto records = StationRecords(Tags * static_cast<std::size_t>(scale));
    const auto library = LibraryOver(records);
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        project::TagInventory inventory;
        project::WorkingModuleCandidates modules;
        const auto tags = library->ReadTags("North", "/jobs/plant.KPJ", {});
        project::BuildInventory(tags, inventory);
        const bool chosen = project::ChooseWorkingModules(inventory, modules);
        project::BuildAvailableLists(inventory, {"AX-0", "LX-0", "FX-0"}, true);
        TakeSeconds(state, SecondsSince(begin));
        if (!chosen || inventory.AvailFloat.empty())
            state.SkipWithError("the station was not opened");
    }
}

// Into fresh memory, as whoever takes the records over needs.
void Copy(benchmark::State& state, int scale) {
    const auto records = StationRecords(Tags * static_cast<std::size_t>(scale));
    const std::size_t size = records.size() * sizeof(records.front());
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        void* const copy = std::malloc(size);
        benchmark::DoNotOptimize(std::memcpy(copy, records.data(), size));
        benchmark::ClobberMemory();
        std::free(copy);
        TakeSeconds(state, SecondsSince(begin));
    }
}

void Check(benchmark::State& state, int scale) {
    const Folder folder;
    const std::string file = folder.File("station.ini");
    Put(file, StationFile());
    const auto files = platform::MakeFiles();
    const config::FileIni ini(*files);
    const auto inventory = StationInventory(Tags * static_cast<std::size_t>(scale));
    config::StationConfig station;
    binding::ExpectedTags expected;
    for (auto _ : state) {
        binding::BuildExpectedTags(ini, file, station, expected);
        benchmark::DoNotOptimize(binding::CheckExpectedTags(expected, inventory));
    }
    if (expected.ExpectedFloat.empty() || !expected.ExpectedFloat.back().Found)
        state.SkipWithError("the tags were not found");
}

// One number of each record is looked at.
void OnePass(benchmark::State& state, int scale) {
    const auto records = StationRecords(Tags * static_cast<std::size_t>(scale));
    for (auto _ : state) {
        std::int64_t sum = 0;
        for (const auto& record : records)
            sum += record.RegAddr;
        benchmark::DoNotOptimize(sum);
    }
}

} // namespace

void ContestTags() {
    Contest("tags", Ours, Open, Pace::Once);
    Contest("tags", Floor, Copy, Pace::Once);
    Contest("check", Ours, Check);
    Contest("check", Floor, OnePass);
}

} // namespace gfc::bench
