// What the stand-in does to a project's database, and to the mark that says which project is open.
#include "faults/Operation.h"
#include "workshop/export/TagExport.h"
#include "workshop/import/TagImport.h"
#include "workshop/load/Download.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/store/OpenProject.h"
#include "workshop/store/Stations.h"
#include "workshop/store/Tags.h"
#include "workshop/store/WholeFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>

namespace gfc::test::faults {

namespace {

namespace fs = std::filesystem;
using namespace workshop;

const std::string ProjectFile = "plant.KPJ";
const std::string CsvFile = "tags.csv";

void Put(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

std::string TagsOfStation(const std::string& station, int count) {
    std::string rows;
    for (int n = 1; n <= count; ++n) {
        const std::string number = std::to_string(n);
        rows += station + ",TT-" + number + ",FX," + number + ",VF1,Virtual FI\n";
    }
    return rows;
}

void PutCsv(const fs::path& folder, const std::string& station) {
    Put(folder / CsvFile, "Station,Tag,Class,Register,Module,Module Type\n" + TagsOfStation(station, 200));
}

void LayProject(const fs::path& folder) {
    Put(folder / "notes.txt", "by hand");
    PutCsv(folder, "North");
    auto project = Project::Create(folder / ProjectFile);
    EXPECT_TRUE(ImportTags(project, {folder / CsvFile}).Complaints.empty());
    EXPECT_TRUE(AddFileToLoad(project, {"North", "old.ini", "/etc/stacfg/kdormaga.ini", -1}));
    PutCsv(folder, "South");
}

void LayNotes(const fs::path& folder) {
    Put(folder / "notes.txt", "by hand");
}

std::string Told(Project& project) {
    std::string text;
    for (const auto& station : ListStations(project)) {
        text += station.Name + "\n";
        for (const auto& tag : ListTags(project, station.Id))
            text += tag.Name + "," + tag.Class + "," + std::to_string(tag.Register) + "," + tag.Module + "\n";
    }
    for (const auto& file : ListFilesToLoad(project))
        text += file.Station + "," + file.Local + "," + file.Target + "\n";
    return text;
}

// As whoever opens the project next sees it; what a death left in the journal is put right by that.
std::string Told(const fs::path& file) {
    try {
        auto project = Project::Open(file, Access::Write);
        Statement check(project.Data(), "PRAGMA integrity_check");
        if (!check.Step() || check.Text(0) != "ok")
            return "damaged";
        return Told(project);
    } catch (const std::exception& failure) {
        return failure.what();
    }
}

Content Look(const fs::path& folder) {
    std::string told = fs::exists(folder / ProjectFile) ? Told(folder / ProjectFile) : "";
    Content content = ContentOf(folder);
    if (const auto project = content.find(ProjectFile); project != content.end())
        project->second.Bytes = std::move(told);
    return content;
}

Operation Done(const std::string& name, std::function<void(const fs::path&)> act) {
    Operation operation;
    operation.Name = name;
    operation.Lay = LayProject;
    operation.Look = Look;
    operation.Play = [act = std::move(act)](const fs::path& folder, const Stage& stage) {
        stage.Begin();
        try {
            act(folder);
        } catch (const std::exception& failure) {
            stage.Say(FailureMark + std::string(failure.what()));
        }
    };
    return operation;
}

Operation OnProject(const std::string& name, std::function<void(Project&, const fs::path&)> act) {
    return Done(name, [act = std::move(act)](const fs::path& folder) {
        auto project = Project::Open(folder / ProjectFile, Access::Write);
        act(project, folder);
    });
}

// Made in the folder itself, with the user's state folder in it.
Operation OpenMark() {
    auto operation = Done("stand-in: open a project", [](const fs::path& folder) {
        ::setenv("XDG_STATE_HOME", folder.c_str(), 1);
        RecordProject(folder / ProjectFile);
    });
    operation.Lay = [](const fs::path& folder) {
        LayNotes(folder);
        fs::create_directories(folder / "io-workshop");
        Put(folder / "io-workshop" / "open-project", "/jobs/before.KPJ\n");
    };
    operation.Look = ContentOf;
    return operation;
}

// What is new may also be missing after it.
Operation NewProject() {
    auto operation = Done("stand-in: new project",
                          [](const fs::path& folder) { (void)Project::Create(folder / ProjectFile); });
    operation.Lay = LayNotes;
    return operation;
}

// To where an earlier one has been.
Operation DownloadAgain() {
    auto operation = OnProject("stand-in: download", [](Project& project, const fs::path& folder) {
        for (const std::string& fault : Download(project, folder / "out").Faults)
            throw std::runtime_error(fault);
    });
    operation.Lay = [](const fs::path& folder) {
        LayProject(folder);
        Put(folder / "old.ini", std::string(20'000, 'n'));
        fs::create_directories(folder / "out/North/etc/stacfg");
        Put(folder / "out/North/etc/stacfg/kdormaga.ini", std::string(30'000, 'o'));
    };
    return operation;
}

} // namespace

std::vector<Operation> WorkshopOperations() {
    return {
        NewProject(),
        OpenMark(),
        OnProject("stand-in: import tags",
                  [](Project& project, const fs::path& folder) {
                      EXPECT_TRUE(ImportTags(project, {folder / CsvFile}).Complaints.empty());
                  }),
        OnProject("stand-in: rename a tag",
                  [](Project& project, const fs::path&) {
                      RenameTag(project, FindStation(project, "North")->Id, "TT-7", "TT-7A");
                  }),
        OnProject(
            "stand-in: enter a file to load",
            [](Project& project, const fs::path&) {
                EXPECT_TRUE(AddFileToLoad(project, {"North", "new.ini", "/etc/stacfg/kdormaga.ini", -1}));
            }),
        OnProject("stand-in: export tags over a file",
                  [](Project& project, const fs::path& folder) {
                      ReplaceWhole(folder / CsvFile, TagTableText(StationTagsOf(project, ""), ';'));
                  }),
        DownloadAgain(),
    };
}

} // namespace gfc::test::faults
