#include "Contest.h"
#include "Floors.h"
#include "Library.h"
#include "Material.h"
#include "audit/Check.h"
#include "platform/Files.h"

// The look over a whole plant. The library has its records at hand here, as no real one does: that is the
// hardest floor that there can be.
namespace gfc::bench {

namespace {

constexpr std::size_t TagsOfStation = 2000;
constexpr int Stations = 10;

struct PlantAtHand {
    PlantAtHand() { Put(File, StationFile()); }

    Folder InFolder;
    std::string File = InFolder.File("KDOrmAGA_plant_North.ini");
    std::vector<project::TagRecord> Records = StationRecords(TagsOfStation);
    std::unique_ptr<project::AddOnLibrary> Library = LibraryOver(Records);
    std::unique_ptr<platform::Files> Files = platform::MakeFiles();
};

void Audit(benchmark::State& state, int scale) {
    const PlantAtHand plant;
    std::size_t findings = 0;
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] {
                        for (int station = 0; station < Stations * scale; ++station) {
                            const auto tags = plant.Library->ReadTags("North", "/jobs/plant.KPJ", {});
                            findings +=
                                audit::CheckFile(*plant.Files,
                                                 {plant.File, "/jobs/plant.KPJ", "plant", "North"}, &tags)
                                    .Findings.size();
                        }
                    }));
    if (findings == 0)
        state.SkipWithError("nothing was found");
}

void AskAndRead(benchmark::State& state, int scale) {
    const PlantAtHand plant;
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] {
                        for (int station = 0; station < Stations * scale; ++station) {
                            benchmark::DoNotOptimize(plant.Library->ReadTags("North", "/jobs/plant.KPJ", {}));
                            benchmark::DoNotOptimize(plant.Files->Read(plant.File));
                        }
                    }));
}

} // namespace

void ContestAudit() {
    Contest("audit", Ours, Audit, Pace::Once);
    Contest("audit", Floor, AskAndRead, Pace::Once);
}

} // namespace gfc::bench
