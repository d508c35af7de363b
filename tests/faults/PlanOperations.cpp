// What is done to many stations at once: each file is the old one or the new one, and what was not done is
// told.
#include "faults/Operation.h"
#include "faults/Records.h"
#include "plan/Apply.h"
#include "plan/Copy.h"
#include "plan/Template.h"
#include "record/ProjectRecorder.h"
#include "support/FakeTime.h"
#include "support/Fakes.h"
#include "support/TestFolders.h"

#include <fstream>
#include <functional>
#include <stdexcept>
#include <vector>

namespace gfc::test::faults {

namespace {

namespace fs = std::filesystem;

const std::vector<std::string> destinations = {"South", "West", "East"};

void Put(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

// North is configured, South too and otherwise; the others are not.
struct Plant {
    explicit Plant(const fs::path& folder) {
        Library.ProjectFile = (folder / "plant.KPJ").string();
        Library.TagsOf["North"] = LargeStationTags();
        Project.Stations.push_back({.Name = "North", .Type = {}, .Address = {}});
        for (const std::string& station : destinations) {
            Library.TagsOf[station] = LargeStationTags();
            Project.Stations.push_back({.Name = station, .Type = {}, .Address = {}});
        }
        Project.ProjectFile = Library.ProjectFile;
        Project.ProjectName = "plant";
        Project.Paths = config::PathsOf(Library.ProjectFile);
    }
    [[nodiscard]] plan::Writer Writer() { return {*Files, Library, Recorder, Project, "4711"}; }
    // As each start of the program does: what is there is known from then on.
    void LookAtAll() {
        std::vector<config::FileChange> looks;
        for (const project::Station& station : Project.Stations) {
            const auto state = Files->Read(Project.ConfigFileOf(station.Name));
            looks.push_back(
                {config::RecordPath(Project.Paths, Project.ProjectName), station.Name, {}, {}, state, state});
        }
        Recorder.Record(std::move(looks));
    }
    void TellTrouble(const Stage& stage) {
        if (const std::string trouble = Recorder.Trouble(); !trouble.empty())
            stage.Say(FailureMark + std::string("not entered in the history. ") + trouble);
    }

    std::unique_ptr<platform::Files> Files = platform::MakeFiles();
    FakeLibrary Library;
    const FixedClock Clock{2023, 3, 15, 12, 0};
    const FixedZone Zone{0};
    record::ProjectRecorder Recorder{Clock, Zone, "operator"};
    project::Project Project;
};

void Lay(const fs::path& folder) {
    Put(folder / "notes.txt", "by hand");
    Put(folder / "KDOrmAGA_plant_North.ini", Golden("wizard/aga3_densimeter.ini"));
    Put(folder / "KDOrmAGA_plant_South.ini", Golden("wizard/aga7_densimeter.ini"));
}

void LayTable(const fs::path& folder) {
    Lay(folder);
    Plant plant(folder);
    const config::FileIni ini(*plant.Files);
    const auto row = plan::TemplateOf(ini, {{"North", plant.Project.ConfigFileOf("North"), nullptr}}, {});
    std::vector<std::vector<std::string>> table = {row.front()};
    for (const std::string& station : destinations)
        for (std::size_t run = 1; run < row.size(); ++run) {
            table.push_back(row[run]);
            table.back().front() = station;
        }
    Put(folder / "plan.csv", plan::WriteSheet(table));
}

// Until it is written or given up; each station for itself, as the window and the command do it.
void WriteStation(Plant& plant, const plan::Change& change, const Stage& stage) {
    for (;;) {
        const plan::Written written = plan::Write(plant.Writer(), change);
        if (written.Done)
            return;
        stage.Say(FailureMark + change.Station + ": " + written.Reason);
        if (!stage.TriesAgain())
            return;
    }
}

// False if it cannot be done to one of the stations.
bool Take(Plant& plant, const std::string& from, const std::vector<std::string>& stations,
          const Stage& stage) {
    plan::Source source;
    const std::string against =
        plan::TakeSource(*plant.Files, plant.Project, {from, plant.Library.TagsOf[from]}, source);
    if (!against.empty()) {
        stage.Say(FailureMark + against);
        return false;
    }
    bool all = true;
    for (const std::string& station : stations) {
        const auto planned = plan::PlanFor(*plant.Files, plant.Project, source,
                                           plan::Destination({station, plant.Library.TagsOf[station]}));
        if (planned.Refused.empty()) {
            WriteStation(plant, plan::ChangeFor(plant.Project, source, planned), stage);
            continue;
        }
        stage.Say(FailureMark + station + ": " + planned.Refused);
        all = false;
    }
    return all;
}

bool CopyOnce(Plant& plant, const fs::path&, const Stage& stage) {
    return Take(plant, "North", destinations, stage);
}

// Each into its own file; those that have one.
bool BindAnewOnce(Plant& plant, const fs::path&, const Stage& stage) {
    const bool north = Take(plant, "North", {"North"}, stage);
    return Take(plant, "South", {"South"}, stage) && north;
}

void RenameATag(Plant& plant) {
    for (const std::string station : {"North", "South"})
        for (project::Tag& tag : plant.Library.TagsOf[station])
            if (tag.TagName == "FT-2")
                tag.TagName = "PIT-77";
}

bool ApplyOnce(Plant& plant, const fs::path& folder, const Stage& stage) {
    const auto table = plant.Files->Read((folder / "plan.csv").string());
    if (!table) {
        stage.Say(FailureMark + std::string("the table cannot be read"));
        return false;
    }
    plan::Faults faults;
    const auto applied =
        plan::PlanTable(*table, *plant.Files, plant.Library, plant.Project,
                        {.User = {}, .MayReplace = true, .Strictness = plan::Strictness::AsTheWindows},
                        faults, [](const std::string&) { return true; });
    for (const plan::Fault& fault : faults)
        stage.Say(FailureMark + fault.Line());
    for (const plan::Checked& each : applied)
        WriteStation(plant, each.Change, stage);
    return faults.empty();
}

// The next start of the program, and the next save of each file, which removes what was left beside it.
void StartAgain(const fs::path& folder) {
    Plant plant(folder);
    plant.LookAtAll();
    if (const std::string missing = WhatIsNotMadeUp(folder, "plant"); !missing.empty())
        throw std::runtime_error("the record was not made up: " + missing);
    for (const project::Station& station : plant.Project.Stations) {
        const std::string file = plant.Project.ConfigFileOf(station.Name);
        if (!plant.Files->Replace(file, plant.Files->Read(file).value_or("[General]\r\n")))
            throw std::runtime_error(file + " cannot be saved again");
    }
}

using Once = bool (*)(Plant& plant, const fs::path& folder, const Stage& stage);

Operation ForSeveral(const std::string& name, std::function<void(const fs::path&)> lay, Once once,
                     std::function<void(Plant&)> prepare = {}) {
    Operation operation;
    operation.Name = name;
    operation.Lay = std::move(lay);
    operation.Play = [once, prepare = std::move(prepare)](const fs::path& folder, const Stage& stage) {
        Plant plant(folder);
        plant.LookAtAll();
        if (prepare)
            prepare(plant);
        stage.Begin();
        while (!once(plant, folder, stage) && stage.TriesAgain()) {
        }
        plant.TellTrouble(stage);
    };
    operation.StartAgain = StartAgain;
    return operation;
}

} // namespace

std::vector<Operation> PlanOperations() {
    return {ForSeveral("copy to several stations", Lay, CopyOnce),
            ForSeveral("bind anew", Lay, BindAnewOnce, RenameATag),
            ForSeveral("apply a table", LayTable, ApplyOnce)};
}

} // namespace gfc::test::faults
