#include "project/Project.h"
#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

namespace gfc::project {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Call {
    std::string Function, Station, Local, Target;
    bool operator==(const Call&) const = default;
};

void PrintTo(const Call& call, std::ostream* out) {
    *out << call.Function << " " << call.Station << " " << call.Local << " " << call.Target;
}

// A tool that answers as the test says, and notes what it was asked.
struct Tool : AddOnLibrary {
    std::string File = "/jobs/plant.KPJ";
    std::optional<std::vector<Station>> Answer =
        std::vector<Station>{{"North", "", "", 0}, {"South", "", "", 0}};
    int RemoveResult = 1;
    bool AskedForStations = false;
    std::vector<Call> Calls;

    std::string GetProjectFile() override { return File; }
    std::optional<std::vector<Station>> GetStations() override {
        AskedForStations = true;
        return Answer;
    }
    TagList ReadTags(const std::string&, const std::string&,
                     const std::function<void(std::string_view)>&) override {
        return {};
    }
    void AddFileToLoad(const std::string& station, const std::string& local,
                       const std::string& target) override {
        Calls.push_back({"add", station, local, target});
    }
    int RemoveFileToLoad(const std::string& station, const std::string& local,
                         const std::string& target) override {
        Calls.push_back({"remove", station, local, target});
        return RemoveResult;
    }
    void CoInitialize() override {}
};

TEST(ProjectName, is_cut_between_the_last_separator_and_the_extension) {
    const struct {
        const char* Path;
        const char* Name;
    } table[] = {{"C:\\A.B\\Plant.kpj", "Plant"},
                 {"C:\\A.B\\Plant.KPJ", "Plant"},
                 {"/jobs/A.kpj/Plant.KPJ", "Plant"},
                 {"/jobs\\mixed/Plant.kpj", "Plant"},
                 {"Plant.KPJ", "Plant"},
                 {"C:\\A\\P.x.kpj", "P.x"},
                 {"C:\\A\\P.KPJ.kpj", "P.KPJ"},
                 {"C:\\A\\P.kpj.kpj", "P"},
                 {"C:\\A\\.kpj", ""},
                 {"", ""}};
    for (const auto& [path, name] : table)
        EXPECT_EQ(ProjectNameOf(path), name) << path;
}

TEST(ProjectName, knows_the_extension_in_two_spellings_only) {
    EXPECT_EQ(ProjectNameOf("C:\\A\\Plant.Kpj"), "Plant.Kpj");
}

TEST(ProjectName, ends_at_a_nul) {
    EXPECT_EQ(ProjectNameOf(std::string_view("C:\\A\\P.kpj\0\0", 12)), "P");
}

TEST(LoadProject, takes_path_name_and_stations) {
    Tool tool;
    Project project;
    EXPECT_EQ(LoadProject(tool, project), LoadOutcome::Loaded);
    EXPECT_EQ(project.ProjectFile, "/jobs/plant.KPJ");
    EXPECT_EQ(project.ProjectName, "plant");
    ASSERT_EQ(project.Stations.size(), 2U);
    EXPECT_EQ(project.Stations[1].Name, "South");
    EXPECT_EQ(project.Stations[1].Type, "");
}

TEST(LoadProject, asks_for_no_stations_without_a_project) {
    Tool tool;
    tool.File = "";
    Project project;
    EXPECT_EQ(LoadProject(tool, project), LoadOutcome::NoProject);
    EXPECT_FALSE(tool.AskedForStations);
    EXPECT_THAT(project.Stations, IsEmpty());
}

TEST(LoadProject, tells_a_failed_list_from_an_empty_one) {
    Tool tool;
    Project project;
    tool.Answer = std::nullopt;
    EXPECT_EQ(LoadProject(tool, project), LoadOutcome::ListFailed);
    EXPECT_EQ(project.ProjectName, "plant");
    tool.Answer.emplace();
    EXPECT_EQ(LoadProject(tool, project), LoadOutcome::NoStations);
    EXPECT_THAT(project.Stations, IsEmpty());
}

TEST(LoadProject, forgets_the_stations_of_an_earlier_project) {
    Tool tool;
    Project project;
    EXPECT_EQ(LoadProject(tool, project), LoadOutcome::Loaded);
    tool.Answer = std::nullopt;
    EXPECT_EQ(LoadProject(tool, project), LoadOutcome::ListFailed);
    EXPECT_THAT(project.Stations, IsEmpty());
    tool.File = "";
    project.Stations.resize(1);
    EXPECT_EQ(LoadProject(tool, project), LoadOutcome::NoProject);
    EXPECT_THAT(project.Stations, IsEmpty());
}

struct Registration : testing::Test {
    Tool Library;
    test::MemoryFiles Files;
    config::FileIni Ini{Files};
    Project Plant;

    Registration() {
        EXPECT_EQ(LoadProject(Library, Plant), LoadOutcome::Loaded);
        Plant.Paths = config::PathsOf(Plant.ProjectFile);
    }
    [[nodiscard]] std::string Local(const std::string& station) const {
        return Plant.Paths.ConfigFilePrefix + "plant_" + station + ".ini";
    }
};

const std::string Target = "/etc/stacfg/kdormaga.ini";

TEST_F(Registration, enters_stations_with_a_file_and_takes_out_the_others) {
    Files.Content[Local("South")] = "";
    RegisterAllStations(Library, Ini, Plant, "South");
    EXPECT_THAT(Library.Calls, ElementsAre(Call{"remove", "North", Local("South"), Target},
                                           Call{"add", "South", Local("South"), Target}));
}

TEST_F(Registration, gives_every_station_the_same_target) {
    Files.Content[Local("North")] = Files.Content[Local("South")] = "";
    RegisterAllStations(Library, Ini, Plant, "");
    EXPECT_THAT(Library.Calls, ElementsAre(Call{"add", "North", Local("North"), Target},
                                           Call{"add", "South", Local("South"), Target}));
}

TEST_F(Registration, can_be_repeated) {
    Files.Content[Local("North")] = "";
    RegisterAllStations(Library, Ini, Plant, "North");
    const auto once = Library.Calls;
    Library.Calls.clear();
    RegisterAllStations(Library, Ini, Plant, "North");
    EXPECT_EQ(Library.Calls, once);
}

TEST_F(Registration, takes_out_a_station_whose_name_no_file_bears) {
    Plant.Stations = {{"../North", "", "", 0}};
    RegisterAllStations(Library, Ini, Plant, "South");
    EXPECT_THAT(Library.Calls, ElementsAre(Call{"remove", "../North", Local("South"), Target}));
}

// Deliberate: the path is that of the current station, which every caller passes anyway.
TEST_F(Registration, takes_out_the_file_of_the_current_station) {
    Library.RemoveResult = 7;
    EXPECT_EQ(UnregisterStation(Library, Plant, std::string("North\0\0", 7), std::string("North\0", 6)), 7);
    EXPECT_EQ(UnregisterStation(Library, Plant, "North", ""), 7);
    EXPECT_THAT(Library.Calls, ElementsAre(Call{"remove", "North", Local("North"), Target},
                                           Call{"remove", "North", Local(""), Target}));
}

} // namespace
} // namespace gfc::project
