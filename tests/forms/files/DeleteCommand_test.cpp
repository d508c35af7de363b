#include "forms/main_window/GFCPrincipal.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

constexpr const char* file = "/jobs/KDOrmAGA_plant_North.ini";

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

TEST_F(DeleteCommand, waits_until_the_file_is_gone) {
    Files.Unwritable.insert(file);
    int waits = 0;
    bool unregisteredFirst = false;
    Screen.OnWait = [&] {
        unregisteredFirst = Library.FilesToLoad.empty();
        if (++waits == 3)
            Files.Unwritable.clear();
    };
    ChooseAt("All Stations\\North");
    Confirm(Answer::Yes);
    TheStory.Check([](Driver& d) {
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\North"), "StationNoConfig");
    });
    Play();
    EXPECT_EQ(waits, 3);
    EXPECT_TRUE(unregisteredFirst);
    EXPECT_TRUE(Files.Content.empty());
}

// However long it takes.
TEST_F(DeleteCommand, asks_nothing_while_it_waits) {
    Files.Unwritable.insert(file);
    int waits = 0;
    Screen.OnWait = [&] {
        if (++waits == 5000)
            Files.Unwritable.clear();
    };
    ChooseAt("All Stations\\North");
    Confirm(Answer::Yes);
    Play();
    EXPECT_EQ(Screen.BoxesShown.size(), 1U);
    EXPECT_TRUE(Files.Content.empty());
}

TEST_F(DeleteCommand, ends_with_the_program_when_the_window_is_closed_meanwhile) {
    Files.Unwritable.insert(file);
    ChooseAt("All Stations\\North");
    Confirm(Answer::Yes);
    TheStory.CloseWindow("GFCPrincipal");
    Play();
    EXPECT_TRUE(Screen.Ended());
    EXPECT_TRUE(Files.Content.contains(file));
    EXPECT_EQ(Library.FilesToLoad.size(), 1U) << "the list follows the file that is still there";
}

} // namespace

} // namespace gfc::test
