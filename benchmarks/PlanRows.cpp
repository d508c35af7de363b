#include "Contest.h"
#include "Library.h"
#include "Material.h"
#include "SoundStation.h"
#include "plan/Apply.h"
#include "plan/Template.h"
#include "platform/Machine.h"
#include "record/BackgroundRecorder.h"
#include "record/ProjectRecorder.h"
#include "workshop/import/TagImport.h"

// A plant in an afternoon: a foreign table looked through, and a plan carried out.
namespace gfc::bench {

namespace {

constexpr int Rows = 6'000;
constexpr int RowsOfStation = 2'000;

// As another tool exports them: its own titles, semicolons, and a column that nobody needs.
std::string ForeignTable(int rows) {
    std::string table = "RTU;Point Name;Data Type;Direction;Module;Register;Units;Comment\r\n";
    for (int row = 0; row < rows; ++row) {
        const std::string number = std::to_string(row % RowsOfStation + 1);
        table += "Station" + std::to_string(row / RowsOfStation + 1) + ";PIT_" + number + ";FLOAT;" +
                 (row % 2 == 0 ? "IN" : "OUT") + ";M" + std::to_string(row % RowsOfStation / 500 + 1) + ";" +
                 number + ";bar;\"Static pressure, loop " + number + "\"\r\n";
    }
    return table;
}

struct Table {
    explicit Table(int scale) { Put(Request.Csv.string(), ForeignTable(Rows * scale)); }

    Folder InFolder;
    workshop::ImportRequest Request{.Csv = InFolder.File("export.csv"),
                                    .Wishes = {.Columns = {{"Units", "-"}, {"Comment", "Description"}}}};
};

void Preview(benchmark::State& state, int scale) {
    Table table(scale);
    auto project = workshop::Project::Create(table.InFolder.File("plant.KPJ"));
    std::size_t added = 0;
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] {
                        const auto plan = workshop::PlanImport(project, table.Request);
                        added = 0;
                        for (const auto& station : plan.Stations)
                            added += station.Added.size();
                    }));
    if (added != static_cast<std::size_t>(Rows * scale))
        state.SkipWithError("the table was not taken");
}

void ReadRows(benchmark::State& state, int scale) {
    Table table(scale);
    for (auto _ : state)
        TakeSeconds(state, SecondsOf([&] { benchmark::DoNotOptimize(ReadRequested(table.Request)); }));
}

constexpr int Stations = 3;
constexpr std::size_t TagsOfStation = 500;

// One configured station, as many without a configuration, and the table that makes them like it.
struct Planned {
    explicit Planned(int scale) : Library(LibraryOver(Model.Records)) {
        Project.ProjectFile = InFolder.File("plant.KPJ");
        Project.ProjectName = "plant";
        Project.Paths = config::PathsOf(Project.ProjectFile);
        Put(Project.ConfigFileOf("North"), Model.File);
        const config::FileIni ini(*Files);
        const auto model = plan::TemplateOf(ini, {{"North", Project.ConfigFileOf("North"), nullptr}}, {});
        Project.Stations.push_back({.Name = "North"});
        std::vector<std::vector<std::string>> rows = {model.front()};
        for (int station = 1; station <= Stations * scale; ++station) {
            Project.Stations.push_back({.Name = "Station" + std::to_string(station)});
            for (auto row = model.begin() + 1; row != model.end(); ++row)
                rows.emplace_back(*row).front() = Project.Stations.back().Name;
        }
        Sheet = plan::WriteSheet(rows);
    }

    [[nodiscard]] std::vector<plan::Checked> Plan(plan::Faults& faults) {
        return plan::PlanTable(Sheet, *Files, *Library, Project, {.User = "bench", .MayReplace = true},
                               faults, [](const std::string&) { return true; });
    }
    // Each time as for the first time.
    void Forget() {
        for (const project::Station& station : Project.Stations)
            if (station.Name != "North")
                std::filesystem::remove(Project.ConfigFileOf(station.Name));
    }

    SoundStation Model{"North", TagsOfStation};
    Folder InFolder;
    std::unique_ptr<platform::Files> Files = platform::MakeFiles();
    std::unique_ptr<project::AddOnLibrary> Library;
    project::Project Project;
    std::string Sheet;
};

// The project's history, which it has since its first start.
struct Recorded {
    explicit Recorded(const Planned& planned) {
        const auto& project = planned.Project;
        const auto north = planned.Files->Read(project.ConfigFileOf("North"));
        Entries.Record(
            {{config::RecordPath(project.Paths, project.ProjectName), "North", {}, {}, north, north}});
    }

    // Written and entered to the last of them.
    void Write(Planned& planned, const std::vector<plan::Checked>& stations) {
        record::BackgroundRecorder recorder(Entries);
        for (const plan::Checked& each : stations)
            if (const auto written = plan::Write(
                    {*planned.Files, *planned.Library, recorder, planned.Project, "bench"}, each.Change);
                !written.Done)
                Fault = written.Reason;
        recorder.Settle();
    }

    platform::RealMachine Machine;
    record::ProjectRecorder Entries{Machine.Seams().Clock, Machine.Seams().TimeZone, "bench"};
    std::string Fault;
};

// From stations that are planned, or from the table on.
enum class From { Stations, Table };

template <From from>
void Apply(benchmark::State& state, int scale) {
    Planned planned(scale);
    Recorded recorded(planned);
    plan::Faults faults;
    std::vector<plan::Checked> stations = planned.Plan(faults);
    for (auto _ : state) {
        planned.Forget();
        TakeSeconds(state, SecondsOf([&] {
                        if constexpr (from == From::Table)
                            stations = planned.Plan(faults);
                        recorded.Write(planned, stations);
                    }));
    }
    std::string fault = recorded.Fault + recorded.Entries.Trouble();
    for (const plan::Fault& each : faults)
        fault += each.Line();
    if (!fault.empty())
        state.SkipWithError(fault.c_str());
}

void Replace(benchmark::State& state, int scale) {
    Planned planned(scale);
    plan::Faults faults;
    const auto targets = planned.Plan(faults);
    for (auto _ : state) {
        planned.Forget();
        TakeSeconds(state, SecondsOf([&] {
                        for (const plan::Checked& each : targets)
                            (void)planned.Files->Replace(each.Change.File, each.Change.After);
                    }));
    }
}

} // namespace

void ContestPlan() {
    Contest("import", Ours, Preview, Pace::Once);
    Contest("import", Floor, ReadRows, Pace::Once);
    Contest("apply", Ours, Apply<From::Stations>, Pace::Once);
    Contest("apply", Floor, Replace, Pace::Once);
    Contest("plan", Ours, Apply<From::Table>, Pace::Once);
    Contest("plan", Floor, Replace, Pace::Once);
}

} // namespace gfc::bench
