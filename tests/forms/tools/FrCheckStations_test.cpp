#include "forms/main_window/GFCPrincipal.h"
#include "forms/tools/FrCheckStations.h"
#include "support/InJobs.h"
#include "support/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using testing::HasSubstr;
using testing::Not;

const std::string window = "FrCheckStations";
const std::string main = "GFCPrincipal";
const std::string northFile = InJobs("KDOrmAGA_plant_North.ini");

// Errors enough, of the station and of its run.
const std::string faulty = "[General]\r\nPackage=kdormaga\r\nProject=/jobs/plant.KPJ\r\nOrmStation=North\r\n"
                           "[FlowRuns]\r\nRun1=Yes\r\nRun11=Yes\r\nFlowAlgorithm=AGA3\r\n"
                           "GasDensitySource=MEASURED\r\nSystemUnits=US\r\n"
                           "[Run1]\r\nOrificeDia=99.9\r\nInternalPipeDia=2.9\r\n";

struct CheckStations : testing::Test, World {
    CheckStations() {
        AddStation("North", LargeStationTags());
        AddStation("South", {});
        Files.Content[northFile] = faulty;
    }
    forms::FrCheckStations& Form() { return Program.Forms.Get<forms::FrCheckStations>(); }
    forms::GFCPrincipal& Main() { return Program.Forms.Get<forms::GFCPrincipal>(); }
    void Play() {
        Main().Show();
        Screen.RunToEnd();
        EXPECT_EQ(Files.Content[northFile], faulty);
        EXPECT_EQ(Files.Replaces, 0);
    }
    // From the menu on, until both stations are checked.
    Story& CheckBoth() {
        TheStory.Menu(main, "checkStations").Tick(window, "Timer1").Tick(window, "Timer1");
        return TheStory;
    }
    // The row of the finding; 0 if it is not listed.
    int RowOf(const std::string& text) {
        for (int row = 1; row <= Form().ListView1.Count(); ++row)
            if (Form().ListView1.Cell(row, 4).find(text) != std::string::npos)
                return row;
        return 0;
    }
    Story& Exit() { return TheStory.Menu(main, "exit"); }
};

const std::string bore = "The bore of 99.9 in is not below the pipe's diameter of 2.9 in.";

TEST_F(CheckStations, lists_what_is_found_station_by_station) {
    TheStory.Menu(main, "checkStations")
        .Check([&](Driver&) { EXPECT_EQ(Form().ListView1.Count(), 0); })
        .Tick(window, "Timer1")
        .Check([&](Driver& d) {
            EXPECT_THAT(d.Text(window, "Label2"), HasSubstr("Checking: 1 of 2 stations"));
            const int row = RowOf(bore);
            ASSERT_GT(row, 0);
            EXPECT_EQ(Form().ListView1.Cell(row, 0), "North");
            EXPECT_EQ(Form().ListView1.Cell(row, 1), "error");
            EXPECT_EQ(Form().ListView1.Cell(row, 2), "1");
        })
        .Tick(window, "Timer1")
        .Check(
            [&](Driver& d) { EXPECT_THAT(d.Text(window, "Label2"), HasSubstr("Checked: 2 of 2 stations")); })
        .SeeEnabled(window, "Command2", false)
        .Click(window, "Command5");
    Exit();
    Play();
}

TEST_F(CheckStations, filters_as_one_types_and_by_severity) {
    CheckBoth()
        .Type(window, "Text1", "BORE of")
        .Check([&](Driver&) {
            EXPECT_EQ(Form().ListView1.Count(), 1);
            EXPECT_EQ(RowOf(bore), 1);
        })
        .Click(window, "Check1")
        .Check([&](Driver&) { EXPECT_EQ(Form().ListView1.Count(), 0); })
        .Click(window, "Check1")
        .Type(window, "Text1", "")
        .Check([&](Driver&) { EXPECT_GT(Form().ListView1.Count(), 10); })
        .Click(window, "Command5");
    Exit();
    Play();
}

TEST_F(CheckStations, leads_from_a_row_to_its_node_and_marks_the_station_until_its_file_is_another) {
    CheckBoth()
        .Do("open the row", [&](Driver&) { EXPECT_TRUE(Form().ListView1.PersonOpensRow(RowOf(bore))); })
        .SeeShown(window, false)
        .Check([&](Driver& d) {
            const auto& tree = Main().TreeGFC;
            EXPECT_EQ(tree.FullPath(tree.SelectedNode()),
                      "All Stations\\North\\Individual Parameters\\Run 1");
            EXPECT_TRUE(Main().SSTab2.Visible());
            EXPECT_EQ(d.NodeImage(main, "TreeGFC", "All Stations\\North"), "StationErrors");
            Main().RebuildAfterCommand();
            EXPECT_EQ(d.NodeImage(main, "TreeGFC", "All Stations\\North"), "StationErrors");
            EXPECT_EQ(Main().ListView1.Cell(1, 1), "Yes");
            Files.Content[northFile] += "\r\n";
            Main().RebuildAfterCommand();
            EXPECT_EQ(d.NodeImage(main, "TreeGFC", "All Stations\\North"), "StationConfig");
            Files.Content[northFile] = faulty;
        });
    Exit();
    Play();
}

TEST_F(CheckStations, stops_when_it_is_told_to_and_when_it_is_closed) {
    TheStory.Menu(main, "checkStations")
        .Tick(window, "Timer1")
        .Click(window, "Command2")
        .Check(
            [&](Driver& d) { EXPECT_THAT(d.Text(window, "Label2"), HasSubstr("Stopped: 1 of 2 stations")); })
        .Check([&](Driver&) { EXPECT_FALSE(Form().Timer1.Enabled()); })
        .CloseWindow(window)
        .Menu(main, "checkStations")
        .CloseWindow(window)
        .SeeShown(window, false);
    Exit();
    Play();
}

TEST_F(CheckStations, takes_a_tick_and_a_stop_while_the_library_takes_its_time) {
    TheStory.Menu(main, "checkStations")
        .Do("tick within a tick",
            [&](Driver& d) {
                Library.WhileAsked = [&] { d.Tick(window, "Timer1"); };
                d.Tick(window, "Timer1");
            })
        .Check(
            [&](Driver& d) { EXPECT_THAT(d.Text(window, "Label2"), HasSubstr("Checking: 1 of 2 stations")); })
        .Click(window, "Command5")
        .Menu(main, "checkStations")
        .Do("stop within a tick",
            [&](Driver& d) {
                Library.WhileAsked = [&] { d.Click(window, "Command2"); };
                d.Tick(window, "Timer1");
                Library.WhileAsked = nullptr;
            })
        .Check(
            [&](Driver& d) { EXPECT_THAT(d.Text(window, "Label2"), HasSubstr("Stopped: 0 of 2 stations")); })
        .Check([&](Driver&) { EXPECT_FALSE(Form().Timer1.Enabled()); })
        .Click(window, "Command5");
    Exit();
    Play();
}

} // namespace
} // namespace gfc::test
