#include "Contest.h"
#include "Floors.h"
#include "Library.h"
#include "Material.h"
#include "SoundStation.h"
#include "Workshop.h"
#include "audit/Plant.h"
#include "platform/DynamicLibrary.h"
#include "platform/Files.h"
#include "platform/Machine.h"
#include "project/AddOnGate.h"

#include <QByteArray>

// The look over a whole plant, beside asking for the tags of its stations and reading their files alone: once
// from a library that has its records at hand, as no real one does, and once from the one of the stand-in,
// which reads them from a project.
namespace gfc::bench {

namespace {

constexpr std::size_t TagsOfStation = 2000;
constexpr int Stations = 10;

// The files of ten stations, and what to ask for their tags.
class Plant {
public:
    Plant() {
        for (int number = 1; number <= Stations; ++number)
            Add(SoundStation("Station" + std::to_string(number), TagsOfStation));
    }
    virtual ~Plant() = default;

    [[nodiscard]] project::TagList Ask(int station) {
        return Library->ReadTags(NameOf(station), Project.ProjectFile, {});
    }
    // As many of the ten, one after the other.
    [[nodiscard]] audit::ProjectPlant Of(int stations) {
        audit::ProjectPlant::OnlyStations names;
        for (int station = 0; station < stations; ++station)
            names.Names.push_back(NameOf(station));
        return {*files_, *Library, Project, std::move(names)};
    }
    [[nodiscard]] std::optional<std::string> Read(int station) {
        return files_->Read(Project.ConfigFileOf(NameOf(station)));
    }
    [[nodiscard]] const std::string& NameOf(int station) const {
        return stations_[static_cast<std::size_t>(station % Stations)].Name;
    }

protected:
    [[nodiscard]] const std::vector<SoundStation>& All() const { return stations_; }

    Folder InFolder;
    project::Project Project{.ProjectFile = InFolder.File("plant.KPJ"),
                             .ProjectName = "plant",
                             .Paths = config::PathsOf(InFolder.File("plant.KPJ")),
                             .Stations = {}};
    std::unique_ptr<project::AddOnLibrary> Library;

private:
    void Add(SoundStation station) {
        Put(Project.ConfigFileOf(station.Name), station.File);
        stations_.push_back(std::move(station));
    }

    std::vector<SoundStation> stations_;
    std::unique_ptr<platform::Files> files_ = platform::MakeFiles();
};

struct PlantAtHand : Plant {
    PlantAtHand() { Library = LibraryOver(All().front().Records); }
};

struct PlantOfTheWorkshop : Plant {
    PlantOfTheWorkshop() {
        qputenv("XDG_STATE_HOME", InFolder.Path().c_str());
        std::string table = TableHeading;
        for (const SoundStation& station : All())
            table += station.Table();
        Put(InFolder.File("tags.csv"), table);
        Workshop("new " + Project.ProjectFile);
        Workshop("open " + Project.ProjectFile);
        Workshop("import-tags " + InFolder.File("tags.csv"));
        std::string error;
        Library = project::LoadAddOnLibrary(platform::LoadLibraryAt,
                                            platform::MakePaths()->ExecutableFolder(), error);
    }
};

// A sound plant is looked at to its end, and nothing but notes is found. The first that is worse; empty for
// none.
std::string WorstOf(const audit::Findings& findings) {
    const bool isSound = findings.empty() || findings.front().Severity == audit::Severity::Note;
    return isSound ? std::string() : findings.front().Text;
}

template <class Kind>
void Audit(benchmark::State& state, int scale) {
    Kind plant;
    std::string worst = plant.Ask(0).empty() ? "there are no tags" : "";
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] {
                        const audit::ProjectPlant all = plant.Of(Stations * scale);
                        for (audit::PlantCheck check(all); !check.IsAtEnd();)
                            worst = std::max(worst, WorstOf(check.Next().Findings));
                    }));
    if (!worst.empty())
        state.SkipWithError(worst.c_str());
}

template <class Kind>
void AskAndRead(benchmark::State& state, int scale) {
    Kind plant;
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] {
                        for (int station = 0; station < Stations * scale; ++station) {
                            benchmark::DoNotOptimize(plant.Ask(station));
                            benchmark::DoNotOptimize(plant.Read(station));
                        }
                    }));
}

// Of the command that looks over as many, one after the other.
template <int StationsOf(int scale)>
void PeakOfCommand(benchmark::State& state, int scale) {
    const PlantOfTheWorkshop plant;
    std::string command = "exec " + Beside("bench-peak-of") + " " + Beside("gfc-audit") + " check";
    for (int station = 0; station < StationsOf(scale); ++station)
        command += " " + plant.NameOf(station);
    for (auto _ : state)
        TakeBytes(state, 1024 * std::atof(FirstLineOf(command).c_str()));
}

constexpr int All(int scale) {
    return Stations * scale;
}
constexpr int One(int) {
    return 1;
}

} // namespace

void ContestAudit() {
    Contest("audit", Ours, Audit<PlantOfTheWorkshop>, Pace::Once);
    Contest("audit", Floor, AskAndRead<PlantOfTheWorkshop>, Pace::Once);
    Contest("audit_at_hand", Ours, Audit<PlantAtHand>, Pace::Once);
    Contest("audit_at_hand", Floor, AskAndRead<PlantAtHand>, Pace::Once);
    Contest("audit_memory", Ours, PeakOfCommand<All>, Pace::Once);
    Contest("audit_memory", Floor, PeakOfCommand<One>, Pace::Once);
}

} // namespace gfc::bench
