// What is done to many stations at once: each file is the old one or the new one, and what was not done is
// told.
#include "faults/Operation.h"
#include "plan/Apply.h"
#include "plan/Copy.h"
#include "plan/Template.h"
#include "support/Fakes.h"
#include "support/TestFolders.h"

#include <fstream>
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

    std::unique_ptr<platform::Files> Files = platform::MakeFiles();
    FakeLibrary Library;
    config::NoRecorder Recorder;
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

bool CopyOnce(Plant& plant, const Stage& stage) {
    plan::Source source;
    const std::string against =
        plan::TakeSource(*plant.Files, plant.Project, {"North", plant.Library.TagsOf["North"]}, source);
    if (!against.empty()) {
        stage.Say(FailureMark + against);
        return false;
    }
    bool all = true;
    for (const std::string& station : destinations) {
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

} // namespace

std::vector<Operation> PlanOperations() {
    return {
        {.Name = "copy to several stations",
         .Lay = Lay,
         .Play =
             [](const fs::path& folder, const Stage& stage) {
                 Plant plant(folder);
                 stage.Begin();
                 while (!CopyOnce(plant, stage) && stage.TriesAgain()) {
                 }
             }},
        {.Name = "apply a table", .Lay = LayTable, .Play = [](const fs::path& folder, const Stage& stage) {
             Plant plant(folder);
             stage.Begin();
             while (!ApplyOnce(plant, folder, stage) && stage.TriesAgain()) {
             }
         }}};
}

} // namespace gfc::test::faults
