#include "Contest.h"
#include "Library.h"
#include "Material.h"
#include "binding/ExpectedTags.h"
#include "project/WorkingModules.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <malloc.h>

// The tags of a large station.
namespace gfc::bench {

namespace {

constexpr std::size_t Tags = 100'000;

constexpr int Rounds = 100; // of a short work at the row's size

std::vector<project::TagRecord> RecordsAt(int scale) {
    return StationRecords(Tags * static_cast<std::size_t>(scale));
}

// Whoever opens a station for the first time has no memory for its tags yet. What earlier rounds have used
// goes back, so that each round asks the system for its own: the rest of the process must not decide the
// figure.
void ForgetMemory() {
    ::malloc_trim(0);
}

void Open(benchmark::State& state, int scale) {
    const auto records = RecordsAt(scale);
    const auto library = LibraryOver(records);
    for (auto _ : state) {
        project::TagInventory inventory;
        project::WorkingModuleCandidates modules;
        bool chosen = false;
        ForgetMemory();
        TakeSeconds(state, SecondsOf([&] {
                        const auto tags = library->ReadTags("North", "/jobs/plant.KPJ", {});
                        project::BuildInventory(tags, inventory);
                        chosen = project::ChooseWorkingModules(inventory, modules);
                        project::BuildAvailableLists(inventory, {"AX-0", "LX-0", "FX-0"}, true);
                    }));
        if (!chosen || inventory.AvailFloat.empty())
            state.SkipWithError("the station was not opened");
    }
}

void Copy(benchmark::State& state, int scale) {
    const auto records = RecordsAt(scale);
    const std::size_t size = records.size() * sizeof(records.front());
    for (auto _ : state) {
        ForgetMemory();
        TakeSeconds(state, SecondsOf([&] {
                        void* const copy = std::malloc(size);
                        benchmark::DoNotOptimize(std::memcpy(copy, records.data(), size));
                        benchmark::ClobberMemory();
                        std::free(copy);
                    }));
    }
}

void CopyOver(benchmark::State& state, int scale) {
    const auto records = RecordsAt(scale);
    auto copy = records;
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] {
                        std::memcpy(copy.data(), records.data(), records.size() * sizeof(records.front()));
                        benchmark::DoNotOptimize(copy.data());
                        benchmark::ClobberMemory();
                    }));
}

// The mean of many rounds: one is too short to be timed, and the tags take too long to be made for each.
double SecondsOfOne(int scale, const std::function<void()>& round) {
    const int rounds = std::max(Rounds / scale, 2);
    return SecondsOf([&] {
               for (int i = 0; i < rounds; ++i)
                   round();
           }) /
           rounds;
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
    for (auto _ : state)
        TakeSeconds(state, SecondsOfOne(scale, [&] {
                        binding::BuildExpectedTags(ini, file, station, expected);
                        benchmark::DoNotOptimize(binding::CheckExpectedTags(expected, inventory));
                    }));
    if (expected.ExpectedFloat.empty() || !expected.ExpectedFloat.back().Found)
        state.SkipWithError("the tags were not found");
}

// One number of each record is looked at.
void OnePass(benchmark::State& state, int scale) {
    const auto records = RecordsAt(scale);
    for (auto _ : state)
        TakeSeconds(state, SecondsOfOne(scale, [&] {
                        std::int64_t sum = 0;
                        for (const auto& record : records)
                            sum += record.RegAddr;
                        benchmark::DoNotOptimize(sum);
                        benchmark::ClobberMemory();
                    }));
}

} // namespace

void ContestTags() {
    Contest("tags", Ours, Open, Pace::Once);
    Contest("tags", Floor, Copy, Pace::Once);
    Contest("tags", "kept memory", CopyOver, Pace::Once);
    Contest("check", Ours, Check, Pace::Once);
    Contest("check", Floor, OnePass, Pace::Once);
}

} // namespace gfc::bench
