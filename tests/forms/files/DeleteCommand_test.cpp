#include "forms/main_window/GFCPrincipal.h"
#include "support/InJobs.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string file = InJobs("KDOrmAGA_plant_North.ini");

// A station's file that stays for a while after it was deleted, as where another program still reads it.
struct DeleteCommand : testing::Test, World {
    DeleteCommand() {
        AddStation("North", {});
        AddStation("South", {});
        Files.Content[file] = "[FlowRuns]\r\nRun1=Yes\r\n";
        Library.FilesToLoad.emplace_back("North", file, "/etc/stacfg/kdormaga.ini");
    }
    forms::GFCPrincipal& Window() { return Program.Forms.Get<forms::GFCPrincipal>(); }
    void ChooseAt(const std::string& node) {
        TheStory.ClickNode("GFCPrincipal", "TreeGFC", node).Menu("GFCPrincipal", "undo");
    }
    void Confirm(Answer answer) {
        TheStory.Box("Delete Configuration",
                     "Are you sure that you want to delete the configuration of this station?", Icon::None,
                     answer);
    }
    void ExpectIgnored() {
        TheStory.Box("Orm Gas Flow Computer", "No configuration exists for the current station. Ignoring...",
                     Icon::Exclamation);
    }
    void Play() {
        Window().Show();
        Screen.RunToEnd();
        EXPECT_TRUE(TheStory.Done());
    }
};

TEST_F(DeleteCommand, takes_the_file_and_its_entry_away_and_shows_an_empty_station) {
    ChooseAt("All Stations\\North");
    Confirm(Answer::Yes);
    TheStory.Check([this](Driver& d) {
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\North"), "StationNoConfig");
        EXPECT_EQ(Window().TreeGFC.FindPath("All Stations\\North\\Common Parameters"), 0);
        EXPECT_EQ(Window().ListView1.Cell(1, 1), "No");
        EXPECT_EQ(Window().ListView1.Count(), 2);
        EXPECT_EQ(Session.SelectedNodeText, "North");
    });
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North").Menu("GFCPrincipal", "undo");
    ExpectIgnored();
    Play();
    EXPECT_TRUE(Files.Content.empty());
    EXPECT_TRUE(Library.FilesToLoad.empty());
    EXPECT_EQ(std::ranges::count(Library.Calls, "RemoveFileToLoad North"), 1);
}

TEST_F(DeleteCommand, does_nothing_unless_it_is_confirmed) {
    ChooseAt("All Stations\\North");
    Confirm(Answer::No);
    Play();
    EXPECT_EQ(Screen.BoxesShown.back().AtStake, "North");
    EXPECT_TRUE(Files.Content.contains(file));
    EXPECT_EQ(Library.FilesToLoad.size(), 1U);
}

TEST_F(DeleteCommand, ignores_a_station_without_a_configuration) {
    ChooseAt("All Stations\\South");
    ExpectIgnored();
    Play();
    EXPECT_TRUE(Files.Content.contains(file));
}

// The station that was selected before is not meant.
TEST_F(DeleteCommand, ignores_the_node_of_all_stations) {
    TheStory.Menu("GFCPrincipal", "undo");
    ExpectIgnored();
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North");
    ChooseAt("All Stations");
    ExpectIgnored();
    Play();
    EXPECT_TRUE(Files.Content.contains(file));
}

TEST_F(DeleteCommand, forgets_a_node_that_has_gone_with_the_file) {
    ChooseAt("All Stations\\North\\Individual Parameters");
    Confirm(Answer::Yes);
    Play();
    EXPECT_EQ(Session.SelectedNodeText, "");
    EXPECT_EQ(Window().TreeGFC.SelectedNode(), 0);
}

// The list follows at once, as it does where nothing holds the file.
TEST_F(DeleteCommand, waits_until_the_file_is_gone_and_says_for_what_and_why) {
    Files.Unwritable.insert(file);
    ChooseAt("All Stations\\North");
    Confirm(Answer::Yes);
    for (int wait = 0; wait < 3; ++wait)
        TheStory.SeeText("WaitForFile", "Label1", "Waiting until the configuration file can be deleted:")
            .SeeText("WaitForFile", "Label2", file)
            .SeeText("WaitForFile", "Label3", "The system says: Permission denied")
            .Check([this](Driver&) { EXPECT_TRUE(Library.FilesToLoad.empty()); })
            .Tick("WaitForFile", "timerWait");
    TheStory.Do("let it go", [this](Driver&) { Files.Unwritable.clear(); })
        .Tick("WaitForFile", "timerWait")
        .SeeShown("WaitForFile", false)
        .Check([](Driver& d) {
            EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\North"), "StationNoConfig");
        });
    Play();
    EXPECT_TRUE(Files.Content.empty());
    EXPECT_EQ(Screen.BoxesShown.size(), 1U) << "the question alone";
}

TEST_F(DeleteCommand, is_given_up_with_the_file_and_its_entry_as_they_were) {
    for (const bool byTheButton : {true, false}) {
        Files.Unwritable.insert(file);
        ChooseAt("All Stations\\North");
        Confirm(Answer::Yes);
        byTheButton ? TheStory.Click("WaitForFile", "Command1") : TheStory.CloseWindow("WaitForFile");
        TheStory.SeeShown("WaitForFile", false).Check([this](Driver& d) {
            EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\North"), "StationConfig");
            ASSERT_EQ(Library.FilesToLoad.size(), 1U);
            EXPECT_EQ(std::get<0>(Library.FilesToLoad.front()), "North");
            EXPECT_EQ(std::get<1>(Library.FilesToLoad.front()), file);
        });
    }
    Play();
    EXPECT_TRUE(Files.Content.contains(file));
}

TEST_F(DeleteCommand, ends_with_the_program_while_it_waits) {
    Files.Unwritable.insert(file);
    ChooseAt("All Stations\\North");
    Confirm(Answer::Yes);
    TheStory.Do("end the program", [this](Driver&) { Screen.EndProgram(0); });
    Play();
    EXPECT_TRUE(Files.Content.contains(file));
}

} // namespace

} // namespace gfc::test
