#include "WorkshopFixture.h"
#include "workshop/store/FilesToLoad.h"

namespace gfc::workshop {

class ProjectFile : public WorkshopFixture {
protected:
    static std::string PathOfLength(std::size_t length) {
        std::string path = "/";
        path.resize(length - 4, 'a');
        return path.append(".KPJ");
    }
};

TEST_F(ProjectFile, is_not_made_over_another_file) {
    WriteBytes(Folder / "taken.KPJ", "notes");
    EXPECT_NE(FailureOf([&] {
                  auto p = Project::Create(Folder / "taken.KPJ");
              }).find("there is a file of this name"),
              std::string::npos);
    EXPECT_EQ(ReadBytes(Folder / "taken.KPJ"), "notes");
}

TEST_F(ProjectFile, that_is_missing_is_told_and_not_made) {
    EXPECT_NE(
        FailureOf([&] { auto p = Project::Open(Folder / "no.KPJ", Access::Write); }).find("no such project"),
        std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(Folder / "no.KPJ"));
}

TEST_F(ProjectFile, of_another_kind_is_told) {
    WriteBytes(Folder / "text.KPJ", std::string(5000, 'x'));
    WriteBytes(Folder / "empty.KPJ", "");
    Database(Folder / "other.KPJ", Access::Create).Run("CREATE TABLE t (c)");
    for (const char* name : {"text.KPJ", "empty.KPJ", "other.KPJ"}) {
        const std::string failure = FailureOf([&] { auto p = Project::Open(Folder / name, Access::Read); });
        EXPECT_NE(failure.find("is not a project of this workshop"), std::string::npos) << failure;
        EXPECT_NE(failure.find(In(name)), std::string::npos) << failure;
    }
}

TEST_F(ProjectFile, of_a_newer_version_is_told) {
    Project::Create(Folder / "new.KPJ").Data().Run("PRAGMA user_version = 2");
    const std::string failure = FailureOf([&] { auto p = Project::Open(Folder / "new.KPJ", Access::Read); });
    EXPECT_NE(failure.find("is of version 2, this workshop reads up to 1"), std::string::npos) << failure;
}

TEST_F(ProjectFile, that_is_only_read_cannot_be_changed) {
    MakeSmallProject();
    Project project = Project::Open(Folder / "small.KPJ", Access::Read);
    EXPECT_NE(FailureOf([&] { AddStation(project, {0, "East", "", "", 0}); }), "");
}

TEST_F(ProjectFile, that_another_program_writes_to_is_told_after_a_wait) {
    auto other = Project::Create(Folder / "busy.KPJ");
    auto mine = Project::Open(Folder / "busy.KPJ", Access::Write);
    {
        const Transaction writing(other.Data());
        const std::string failure = FailureOf([&] { const Transaction meanwhile(mine.Data()); });
        EXPECT_EQ(failure, In("busy.KPJ") + ": another program is writing to it; try again.");
    }
    EXPECT_EQ(FailureOf([&] { const Transaction then(mine.Data()); }), "");
}

TEST_F(ProjectFile, path_must_fit_what_the_library_hands_out) {
    EXPECT_EQ(FailureOf([] { CheckProjectPath("/jobs/Añelo/plant.KPJ"); }), "");
    EXPECT_EQ(FailureOf([] { CheckProjectPath("/jobs/plant.kpj"); }), "");
    EXPECT_NE(FailureOf([] { CheckProjectPath("/jobs/plant.Kpj"); }), "");
    EXPECT_NE(FailureOf([] { CheckProjectPath("/jobs/plant.db"); }), "");
    EXPECT_NE(FailureOf([] { CheckProjectPath("/jobs/压/plant.KPJ"); }), "");
    EXPECT_NE(FailureOf([] { CheckProjectPath("/jobs/a\nb/plant.KPJ"); }), "");
    EXPECT_EQ(FailureOf([] { CheckProjectPath(PathOfLength(254)); }), "");
    EXPECT_NE(FailureOf([] { CheckProjectPath(PathOfLength(255)); }), "");
}

TEST_F(ProjectFile, keeps_stations_and_tags_in_the_order_in_which_they_came) {
    MakeSmallProject();
    Project project = Project::Open(Folder / "small.KPJ", Access::Read);
    const auto stations = ListStations(project);
    ASSERT_EQ(stations.size(), 2U);
    EXPECT_EQ(stations[0].Name, "North");
    EXPECT_EQ(stations[0].SerialNumber, 4711);
    EXPECT_EQ(stations[1].Name, "South");
    const auto tags = ListTags(project, stations[0].Id);
    ASSERT_EQ(tags.size(), 3U);
    EXPECT_EQ(tags[0].Name, "PIT-101");
    EXPECT_EQ(tags[0].Description, "static pressure");
    EXPECT_EQ(tags[1].Name, "XV-304");
    EXPECT_EQ(tags[1].Module, "DI-16 Slot 3");
    EXPECT_EQ(tags[2].Name, "TIT_1201A"); // neither by name nor by register
    EXPECT_EQ(CountTags(project, stations[1].Id), 0U);
}

TEST_F(ProjectFile, knows_a_station_whatever_the_case_of_its_letters) {
    Project project = MakeSmallProject();
    ASSERT_TRUE(FindStation(project, "NORTH"));
    EXPECT_EQ(FindStation(project, "NORTH")->Name, "North");
    EXPECT_FALSE(FindStation(project, "West"));
}

TEST_F(ProjectFile, without_commit_keeps_what_it_had) {
    Project project = MakeSmallProject();
    {
        Transaction transaction(project.Data());
        AddStation(project, {0, "East", "", "", 0});
    }
    EXPECT_EQ(ListStations(project).size(), 2U);
}

TEST_F(ProjectFile, has_one_file_to_load_per_station_and_target) {
    Project project = MakeSmallProject();
    EXPECT_TRUE(AddFileToLoad(project, {"North", "/a.ini", "/etc/x.ini", -1}));
    EXPECT_TRUE(AddFileToLoad(project, {"North", "/b.ini", "/etc/x.ini", -1}));
    EXPECT_TRUE(AddFileToLoad(project, {"South", "/c.ini", "/etc/x.ini", -1}));
    EXPECT_FALSE(AddFileToLoad(project, {"West", "/d.ini", "/etc/x.ini", -1}));
    const auto files = ListFilesToLoad(project);
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].Station, "North");
    EXPECT_EQ(files[0].Local, "/b.ini");
    EXPECT_EQ(files[0].Flag, -1);
    EXPECT_EQ(files[1].Station, "South");
    EXPECT_TRUE(RemoveFileToLoad(project, "North", "/etc/x.ini"));
    EXPECT_FALSE(RemoveFileToLoad(project, "North", "/etc/x.ini"));
    EXPECT_FALSE(RemoveFileToLoad(project, "West", "/etc/x.ini"));
    EXPECT_EQ(ListFilesToLoad(project).size(), 1U);
}

} // namespace gfc::workshop
