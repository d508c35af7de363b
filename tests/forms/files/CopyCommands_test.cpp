#include "forms/files/CopyCommands.h"
#include "forms/main_window/GFCPrincipal.h"
#include "support/InJobs.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string failed = "Could not copy the configuration file \r\n";
const std::string reminder = "Reminder: Please make sure the destination station satisfies the minimun I/O "
                             "requirements (The source station's I/O amount).";
const std::string content = "[General]\r\nPackage=kdormaga\r\nProject=/jobs/plant.KPJ\r\nOrmStation=North\r\n"
                            "UserID=4711\r\n[FlowRuns]\r\nRun1=Yes\r\nOddity=\xB0\r\n";

std::string Path(const std::string& station) {
    return InJobs("KDOrmAGA_plant_" + station + ".ini");
}

// A configuration for that project and station, all else as in the source.
std::string Named(const std::string& project, const std::string& station) {
    std::string text = content;
    text.replace(text.find("/jobs/plant.KPJ"), 15, project);
    text.replace(text.find("OrmStation=North"), 16, "OrmStation=" + station);
    return text;
}

struct CopyWorld : testing::Test, World {
    void AddStations(const std::vector<std::string>& names) {
        for (const auto& name : names)
            AddStation(name, {});
    }
    forms::GFCPrincipal& Window() { return Program.Forms.Get<forms::GFCPrincipal>(); }
    void ChooseAt(const std::string& node, const std::string& command) {
        TheStory.ClickNode("GFCPrincipal", "TreeGFC", node).Menu("GFCPrincipal", command);
    }
    void ExpectFailure(const std::string& reason) {
        TheStory.Box("Error: Copy configuration file", failed + reason, Icon::None);
    }
    void ExpectNoCopy(const std::string& reason, Answer answer) {
        TheStory.Box("Error: Copy configuration file",
                     failed + Path("South") + "\r\n\r\nThe system says: " + reason +
                         "\r\nThere is no such file now.",
                     Icon::Exclamation, answer);
    }
    void Play() {
        Window().Show();
        Screen.RunToEnd();
        EXPECT_TRUE(TheStory.Done());
    }
};

struct CopyToStation : CopyWorld {
    CopyToStation() {
        AddStations({"North", "South", "West"});
        Files.Content[Path("North")] = content;
    }
    void ExpectDone() {
        TheStory.Box("Copy configuration from a station to another station within the same project...",
                     reminder, Icon::Information);
    }
};

TEST_F(CopyToStation, copies_the_file_and_names_project_and_station) {
    ChooseAt("All Stations\\North", "copiar1");
    TheStory.Select("frCopyStation", "Combo1", 1).Click("frCopyStation", "Command1");
    ExpectDone();
    TheStory.Check([](Driver& d) {
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\West"), "StationConfig");
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\West\\Individual Parameters\\Run 1"),
                  "Run");
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\South"), "StationNoConfig");
    });
    Play();
    EXPECT_EQ(Files.Content[Path("North")], content);
    EXPECT_EQ(Files.Content[Path("West")], Named(InJobs("plant.KPJ"), "West"));
    EXPECT_EQ(Files.Content.size(), 2U);
    EXPECT_EQ(Files.Replaces, 1);
    EXPECT_TRUE(Library.FilesToLoad.empty()) << "registered at the end of the program only";
}

TEST_F(CopyToStation, writes_the_project_with_its_ending_in_capitals) {
    Library.ProjectFile = "/jobs/plant.kpj";
    ChooseAt("All Stations\\North", "copiar1");
    TheStory.Click("frCopyStation", "Command1");
    ExpectDone();
    Play();
    EXPECT_EQ(Files.Content[Path("South")], Named(InJobs("plant.KPJ"), "South"));
}

TEST_F(CopyToStation, does_nothing_without_a_selected_station) {
    TheStory.Menu("GFCPrincipal", "copiar1");
    ChooseAt("All Stations", "copiar1");
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North");
    ChooseAt("All Stations", "copiar1");
    Play();
    EXPECT_TRUE(Screen.BoxesShown.empty());
}

TEST_F(CopyToStation, needs_a_configured_source) {
    ChooseAt("All Stations\\South", "copiar1");
    ExpectFailure("The station is not configured");
    Play();
}

TEST_F(CopyToStation, says_that_all_are_configured_before_it_shows_a_window) {
    Files.Content[Path("South")] = Files.Content[Path("West")] = content;
    ChooseAt("All Stations\\North", "copiar1");
    TheStory.Box("Error: Copy configuration...", "Cannot copy. All stations are already configured",
                 Icon::None);
    Play();
    EXPECT_EQ(Screen.FormsShown, std::vector<std::string>{"GFCPrincipal"});
}

TEST_F(CopyToStation, ends_silently_on_cancel) {
    Session.CopyDestination = "South"; // of an earlier copy
    for (const bool byButton : {true, false}) {
        ChooseAt("All Stations\\North", "copiar1");
        byButton ? TheStory.Click("frCopyStation", "Command2") : TheStory.CloseWindow("frCopyStation");
    }
    Play();
    EXPECT_TRUE(Screen.BoxesShown.empty());
    EXPECT_EQ(Files.Content.size(), 1U);
}

TEST_F(CopyToStation, refuses_the_source_as_the_destination) {
    ChooseAt("All Stations\\North", "copiar1");
    TheStory
        .Do("the configuration goes and comes back", [this](Driver&) { Session.CopyDestination = "North"; })
        .CloseWindow("frCopyStation");
    ExpectFailure("the source and destination stations cannot be the same.");
    Play();
}

TEST_F(CopyToStation, does_not_replace_a_file_that_came_up_meanwhile) {
    ChooseAt("All Stations\\North", "copiar1");
    TheStory.Do("configure from outside", [this](Driver&) { Files.Content[Path("South")] = "[General]\r\n"; })
        .Click("frCopyStation", "Command1");
    ExpectFailure("Please, Verify that the station has not been configured previously...");
    Play();
    EXPECT_EQ(Files.Content[Path("South")], "[General]\r\n");
}

TEST_F(CopyToStation, a_failed_copy_says_why_and_leaves_no_file) {
    Files.DiskFull = true;
    ChooseAt("All Stations\\North", "copiar1");
    TheStory.Click("frCopyStation", "Command1");
    ExpectNoCopy("No space left on device", Answer::Retry);
    ExpectNoCopy("No space left on device", Answer::Close);
    Play();
    EXPECT_FALSE(Files.Content.contains(Path("South")));
}

TEST_F(CopyToStation, a_copy_is_made_once_there_is_room_for_it) {
    Files.DiskFull = true;
    ChooseAt("All Stations\\North", "copiar1");
    TheStory.Click("frCopyStation", "Command1");
    ExpectNoCopy("No space left on device", Answer::Retry);
    Screen.OnBox = [this](const ui::Box&) { Files.DiskFull = false; };
    ExpectDone();
    Play();
    EXPECT_TRUE(Files.Content.contains(Path("South")));
}

TEST_F(CopyToStation, says_that_a_copy_could_not_be_named) {
    ChooseAt("All Stations\\North", "copiar1");
    TheStory.Click("frCopyStation", "Command1");
    ExpectDone();
    Screen.OnBox = [this](const ui::Box&) { Files.DiskFull = true; };
    TheStory.Box("Error: Copy configuration file",
                 "The copy was made, but it still names the project and the station that it was copied "
                 "from.\r\n" +
                     Path("South") +
                     "\r\n\r\nThe system says: No space left on device\r\nThe file stands as it was before.",
                 Icon::Exclamation, Answer::Close);
    Play();
    EXPECT_EQ(Files.Content[Path("South")], Files.Content[Path("North")]);
}

TEST_F(CopyToStation, a_copy_stands_whatever_the_tags_of_the_destination) {
    ChooseAt("All Stations\\North", "copiar1");
    TheStory.Click("frCopyStation", "Command1");
    ExpectDone();
    TheStory.Check([this](Driver&) {
        EXPECT_EQ(std::ranges::count(Library.Calls, "ReadTags South"), 0);
        EXPECT_TRUE(Files.Content.contains(Path("South")));
    });
    Play();
}

struct CopyInASmallProject : CopyWorld {};

TEST_F(CopyInASmallProject, needs_several_stations_whatever_is_selected) {
    AddStations({"North"});
    Files.Content[Path("North")] = content;
    const auto expect = [this] {
        TheStory.Box("Error: Copy configuration of a station...",
                     "To use this option the project must have multiple stations", Icon::Exclamation);
    };
    TheStory.Menu("GFCPrincipal", "copiar1");
    expect();
    ChooseAt("All Stations\\North", "copiar1");
    expect();
    Play();
}

struct CopyToProject : CopyWorld {
    CopyToProject() {
        AddStations({"North", "South"});
        Files.Content[Path("North")] = content;
    }
    void Choose(std::optional<std::string> project) {
        ChooseAt("All Stations\\North", "copiar2");
        TheStory.ChooseFile(std::move(project));
    }
    void Answer(const std::string& station) {
        TheStory.Prompt("Name of the destination station to configure", station);
    }
    void ExpectDone() {
        TheStory.Box("Copy configuration from a station to another station of another project", reminder,
                     Icon::Information);
    }
    void ExpectOnlyTheSource() {
        EXPECT_EQ(Files.Content.size(), 1U);
        EXPECT_EQ(Files.Content[Path("North")], content);
    }
};

TEST_F(CopyToProject, copies_into_a_project_in_the_same_folder) {
    Choose("/jobs/other.KPJ");
    Answer("Far Away");
    ExpectDone();
    Play();
    EXPECT_EQ(Files.Content["/jobs/KDOrmAGA_other_Far Away.ini"], Named(InJobs("other.KPJ"), "Far Away"));
    EXPECT_EQ(Files.Content[Path("North")], content);
    EXPECT_EQ(Files.Content.size(), 2U);
}

TEST_F(CopyToProject, asks_for_a_project_file_and_a_station) {
    Choose("/jobs/other.KPJ");
    Answer("");
    Play();
    ASSERT_EQ(Screen.FileChoices.size(), 1U);
    EXPECT_EQ(Screen.FileChoices[0].FilterName, "Project File (*.KPJ)");
    EXPECT_EQ(Screen.FileChoices[0].Pattern, "*.KPJ");
    EXPECT_EQ(Screen.Prompts, std::vector<std::string>{
                                  "Please select the destination station to copy the configuration to: "});
}

TEST_F(CopyToProject, copies_to_where_the_other_project_looks_for_it) {
    Choose("/fields/gas.d/other.kpj");
    Answer("Far");
    ExpectDone();
    Play();
    EXPECT_EQ(Files.Content["/fields/gas.d/KDOrmAGA_other_Far.ini"],
              Named(platform::WithOwnSeparators("/fields/gas.d/other.KPJ"), "Far"));
    EXPECT_EQ(Files.Content.size(), 2U);
}

TEST_F(CopyToProject, the_path_may_bear_either_separator) {
    Choose("\\fields\\other.KPJ");
    Answer("Far");
    ExpectDone();
    Play();
    const std::string folder = platform::WithOwnSeparators("/fields");
    EXPECT_EQ(Files.Content[platform::WithOwnSeparators("/fields/KDOrmAGA_other_Far.ini")],
              Named(platform::WithOwnSeparators("/fields/other.KPJ"), "Far"));
}

TEST_F(CopyToProject, shows_a_copy_within_the_open_project) {
    Choose("/jobs/plant.KPJ");
    Answer("South");
    ExpectDone();
    TheStory.Check([](Driver& d) {
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\South"), "StationConfig");
    });
    Play();
}

TEST_F(CopyToProject, does_not_replace_the_configuration_of_the_other_project) {
    Files.Content["/jobs/KDOrmAGA_other_Far.ini"] = "[General]\r\n";
    Choose("/jobs/other.KPJ");
    Answer("Far");
    ExpectFailure("Please verify that the station has not been configured previously");
    Play();
    EXPECT_EQ(Files.Content["/jobs/KDOrmAGA_other_Far.ini"], "[General]\r\n");
}

TEST_F(CopyToProject, does_nothing_without_a_selected_station) {
    TheStory.Menu("GFCPrincipal", "copiar2");
    ChooseAt("All Stations", "copiar2");
    Play();
    EXPECT_TRUE(Screen.BoxesShown.empty());
}

TEST_F(CopyToProject, needs_a_configured_source) {
    ChooseAt("All Stations\\South", "copiar2");
    ExpectFailure("The station is not configured");
    Play();
}

TEST_F(CopyToProject, ends_silently_where_no_project_is_chosen) {
    Choose(std::nullopt);
    Play();
    ExpectOnlyTheSource();
}

TEST_F(CopyToProject, ends_silently_where_no_name_is_given) {
    Choose("/jobs/other.KPJ");
    Answer("");
    Play();
    ExpectOnlyTheSource();
    EXPECT_TRUE(Screen.BoxesShown.empty());
}

TEST_F(CopyToProject, refuses_a_name_that_is_none_for_a_file) {
    for (const char* name : {"../Far", "..\\Far", "/etc/Far", "Fa\nr", "F\x01", "\xE4\xB8\xAD"}) {
        Choose("/jobs/other.KPJ");
        Answer(name);
        TheStory.Box("Error: Copy configuration file",
                     failed + "The name of the station has characters that the name of a file cannot have.",
                     Icon::Exclamation);
    }
    Play();
    ExpectOnlyTheSource();
}

TEST_F(CopyToProject, refuses_a_name_that_no_station_can_have) {
    const std::pair<std::string, std::string> refused[] = {
        {std::string(81, 'x'), "The name of the station is longer than 80 characters."},
        {std::string(300, 'x'), "The name of the station is longer than 80 characters."},
    };
    for (const auto& [name, reason] : refused) {
        Choose("/jobs/other.KPJ");
        Answer(name);
        TheStory.Box("Error: Copy configuration file", failed + reason, Icon::Exclamation);
    }
    Play();
    ExpectOnlyTheSource();
}

TEST_F(CopyToProject, takes_names_that_the_name_of_the_file_can_hold) {
    const std::string longest(80, 'x');
    for (const char* name : {"AUX", "St.", "nul.old", "Com7", "..", " ", "A.B", longest.c_str()}) {
        Choose("/jobs/other.KPJ");
        Answer(name);
        ExpectDone();
    }
    Play();
    EXPECT_EQ(Files.Content.size(), 9U);
}

TEST_F(CopyToProject, takes_a_name_with_accents) {
    Choose("/jobs/other.KPJ");
    Answer("Estaci\xC3\xB3n");
    ExpectDone();
    Play();
    EXPECT_EQ(Files.Content["/jobs/KDOrmAGA_other_Estaci\xC3\xB3n.ini"],
              Named(InJobs("other.KPJ"), "Estaci\xF3n"));
}

} // namespace

} // namespace gfc::test
