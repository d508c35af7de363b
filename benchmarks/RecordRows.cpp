#include "Contest.h"
#include "Floors.h"
#include "Material.h"
#include "config/InPlaceUpdate.h"
#include "platform/Machine.h"
#include "record/BackgroundRecorder.h"
#include "record/ProjectRecorder.h"
#include "report/MakeReport.h"
#include "report/pdf/Pdf.h"

// What the record adds to a save, and a report.
namespace gfc::bench {

namespace {

constexpr std::size_t SavedSize = 32 * 1024;

struct Saves {
    explicit Saves(int scale) { Put(Path, LongStationFile(SavedSize * static_cast<std::size_t>(scale))); }

    void Save() {
        Station.FlowingViscosity = "0.01" + std::to_string(1000 + ++Viscosity % 9000);
        config::SaveConfiguratorChanges(Ini, Station, Path);
    }

    Folder InFolder;
    std::string Path = InFolder.File("KDOrmAGA_plant_North.ini");
    std::unique_ptr<platform::Files> Files = platform::MakeFiles();
    config::FileIni Ini{*Files};
    config::StationConfig Station = FullStation();
    int Viscosity = 0;
};

void SaveAlone(benchmark::State& state, int scale) {
    Saves saves(scale);
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] { saves.Save(); }));
}

// What a person waits for: the file is read before and after, and the entry is handed over. That it is
// written behind the program's back before the next command comes is not waited for.
void SaveWithTheRecord(benchmark::State& state, int scale) {
    Saves saves(scale);
    platform::RealMachine machine;
    const platform::Machine seams = machine.Seams();
    record::ProjectRecorder entries(seams.Clock, seams.TimeZone, "bench");
    record::BackgroundRecorder recorder(entries);
    const std::string record = saves.InFolder.File("KDOrmAGA_plant_History.sqlite");
    for (auto _ : state) {
        TakeSeconds(state, SecondsOf([&] {
                        auto before = saves.Files->Read(saves.Path);
                        saves.Save();
                        recorder.Record({{record, "North", "Configure", "bench", std::move(before),
                                          saves.Files->Read(saves.Path)}});
                    }));
        recorder.Settle();
    }
    if (!recorder.Trouble().empty())
        state.SkipWithError(recorder.Trouble().c_str());
}

// Stations of five runs, and a history of each.
struct Reported {
    explicit Reported(int stations) {
        Project.ProjectFile = InFolder.File("plant.KPJ");
        Project.ProjectName = "plant";
        Project.Paths = config::PathsOf(Project.ProjectFile);
        for (int station = 1; station <= stations; ++station) {
            Project.Stations.push_back({.Name = "Station" + std::to_string(station)});
            Put(Project.ConfigFileOf(Project.Stations.back().Name), StationFile());
        }
    }

    [[nodiscard]] report::Report Make() {
        report::Request request;
        for (const project::Station& station : Project.Stations)
            request.Stations.push_back(station.Name);
        return report::MakeReport({Seams, nullptr, Project, NoRecord}, request);
    }

    Folder InFolder;
    platform::RealMachine Machine;
    platform::Machine Seams = Machine.Seams();
    config::NoRecorder NoRecord;
    project::Project Project;
};

void PdfReport(benchmark::State& state, int scale) {
    Reported reported(scale);
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] {
                        benchmark::DoNotOptimize(report::ToPdf(reported.Make(), report::Paper::A4));
                    }));
}

void PageReport(benchmark::State& state, int scale) {
    Reported reported(scale);
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] { benchmark::DoNotOptimize(report::ToHtml(reported.Make())); }));
}

} // namespace

void ContestRecord() {
    Contest("record", Ours, SaveWithTheRecord, Pace::Once);
    Contest("record", Floor, SaveAlone, Pace::Once);
    Contest("report", Ours, PdfReport, Pace::Once);
    Contest("report", Floor, PageReport, Pace::Once);
}

} // namespace gfc::bench
