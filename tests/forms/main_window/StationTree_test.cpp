#include "audit/Check.h"
#include "forms/main_window/GFCPrincipal.h"
#include "project/TagsMark.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <array>

namespace gfc::test {

namespace {

using Names = std::vector<std::string>;
using forms::GFCPrincipal;

struct StationTree : testing::Test, World {
    // An empty content makes a configured station all the same.
    void Configure(const std::string& station, const std::string& content) {
        Files.Content["/jobs/KDOrmAGA_plant_" + station + ".ini"] = content;
    }
    GFCPrincipal& Window() { return Program.Forms.Get<GFCPrincipal>(); }
    ui::Tree& Tree() { return Window().TreeGFC; }
    const ui::Tree::Node& At(const std::string& path) { return Tree().At(Tree().FindPath(path)); }
    void Play() {
        Window().Show();
        Screen.RunToEnd();
    }
    Names Paths() {
        Names paths;
        for (int node = 1; node <= Tree().Count(); ++node)
            paths.push_back(Tree().FullPath(node));
        return paths;
    }
    // As a check reports of a station: that many errors, warnings and notes.
    static audit::StationReport Report(const std::string& station, const std::vector<std::size_t>& counts,
                                       std::size_t tagsMark = 0) {
        audit::StationReport report{.Station = station, .File = {}, .Configured = true, .TagsMark = tagsMark};
        for (std::size_t severity = 0; severity < counts.size(); ++severity)
            for (std::size_t i = 0; i < counts[severity]; ++i)
                report.Findings.push_back({.Severity = static_cast<audit::Severity>(severity)});
        return report;
    }
    void Check(const audit::StationReport& report) { Window().MarkChecked(std::array{&report}); }
    std::string Overview() { return Window().StatusBar1.PanelText(2); }
    std::string Panel() { return Window().StatusBar1.PanelText(1); }
};

TEST_F(StationTree, shows_an_unconfigured_station_red_and_without_children) {
    AddStation("North", {});
    Play();
    EXPECT_EQ(Paths(), (Names{"All Stations", "All Stations\\North"}));
    EXPECT_EQ(Tree().At(2).Image, "StationNoConfig");
    EXPECT_EQ(Tree().At(2).TheColour, ui::Colour::Red);
    EXPECT_EQ(Tree().At(2).Key, "North");
    EXPECT_EQ(Window().ListView1.Cell(1, 1), "No");
}

TEST_F(StationTree, root_is_bold_and_opens_on_its_stations) {
    AddStation("North", {});
    Play();
    EXPECT_EQ(Tree().At(1).Key, "Stations");
    EXPECT_EQ(Tree().At(1).Image, "Carpeta");
    EXPECT_EQ(Tree().At(1).SelectedImage, "CarpetaOpen");
    EXPECT_TRUE(Tree().At(1).Bold);
    EXPECT_TRUE(Tree().At(1).Expanded);
    EXPECT_EQ(Tree().SelectedNode(), 0);
}

TEST_F(StationTree, shows_a_configured_station_blue_with_its_children) {
    AddStation("East", {});
    AddStation("North", {});
    Configure("North", "[FlowRuns]\r\nRun1=Yes\r\nRun2=No\r\nRun3=yes\r\nRun5=Yes\r\n");
    Play();
    const std::string runs = "All Stations\\North\\Individual Parameters";
    EXPECT_EQ(Paths(), (Names{"All Stations", "All Stations\\East", "All Stations\\North",
                              "All Stations\\North\\Common Parameters", runs, runs + "\\Run 1",
                              runs + "\\Run 2", runs + "\\Run 3", runs + "\\Run 4", runs + "\\Run 5"}));
    EXPECT_EQ(At("All Stations\\North").Image, "StationConfig");
    EXPECT_EQ(At("All Stations\\North").TheColour, ui::Colour::Blue);
    EXPECT_FALSE(At("All Stations\\North").Bold);
    EXPECT_EQ(At("All Stations\\North\\Common Parameters").Key, "Comunes1");
    EXPECT_EQ(At("All Stations\\North\\Common Parameters").Image, "Carpeta");
    EXPECT_EQ(At("All Stations\\North\\Common Parameters").SelectedImage, "Carpeta");
    EXPECT_FALSE(At("All Stations\\North\\Common Parameters").Bold);
    EXPECT_EQ(At(runs).Key, "Individuales1");
    EXPECT_EQ(At(runs).SelectedImage, "CarpetaOpen");
    EXPECT_EQ(At(runs + "\\Run 3").Key, "North3");
}

TEST_F(StationTree, a_run_is_on_only_if_its_key_reads_exactly_yes) {
    AddStation("North", {});
    Configure("North", "[FlowRuns]\r\nRun1=Yes\r\nRun2=No\r\nRun3=yes\r\nRun4=YES\r\n");
    Play();
    const std::string runs = "All Stations\\North\\Individual Parameters\\Run ";
    EXPECT_EQ(At(runs + "1").Image, "Run");
    for (const char* off : {"2", "3", "4", "5"})
        EXPECT_EQ(At(runs + off).Image, "NoRun") << off;
    for (const char* run : {"1", "2", "3", "4", "5"})
        EXPECT_EQ(At(runs + run).TheColour, ui::Colour::Green) << run;
}

TEST_F(StationTree, reads_a_station_file_once_for_its_five_runs) {
    AddStation("North", {});
    Configure("North", "[FlowRuns]\r\nRun1=Yes\r\n");
    Window().EnsureLoaded();
    const int before = Files.Reads;
    Window().RebuildAfterCommand();
    EXPECT_EQ(Files.Reads, before + 1);
    EXPECT_EQ(Files.Replaces, 0);
}

TEST_F(StationTree, takes_a_file_that_cannot_be_read_for_a_configured_station_with_its_runs_off) {
    AddStation("North", {});
    Configure("North", "[FlowRuns]\r\nRun1=Yes\r\n");
    Files.Unreadable.insert("/jobs/KDOrmAGA_plant_North.ini");
    Play();
    EXPECT_EQ(At("All Stations\\North").Image, "StationConfig");
    EXPECT_EQ(At("All Stations\\North\\Individual Parameters\\Run 1").Image, "NoRun");
    EXPECT_EQ(Window().ListView1.Cell(1, 1), "Yes");
}

TEST_F(StationTree, table_lists_the_stations_in_the_order_of_the_project) {
    Library.Stations = {{"North", "Orm 5", "10.0.0.1", 12345}, {"South", "", "", -7}};
    Configure("South", {});
    Play();
    Names headings;
    for (const auto& column : Window().ListView1.Columns())
        headings.push_back(column.Heading);
    EXPECT_EQ(headings, (Names{"N\xC2\xB0", "Configured as FC", "Station Name", "Station Type", "IP Address",
                               "Serial Number"}));
    ASSERT_EQ(Window().ListView1.Count(), 2);
    EXPECT_EQ(Window().ListView1.At(1), (Names{"1", "No", "North", "Orm 5", "10.0.0.1", "12345"}));
    EXPECT_EQ(Window().ListView1.At(2), (Names{"2", "Yes", "South", "", "", "-7"}));
}

// Notes what a window would be told.
struct TreeNotes : ui::TreeObserver {
    std::vector<int> ScrolledTo;
    void TreeReset() override {}
    void NodeAdded(int) override {}
    void NodeChanged(int) override {}
    void SelectionChanged() override {}
    void ScrollTo(int node) override { ScrolledTo.push_back(node); }
};

TEST_F(StationTree, a_rebuild_scrolls_to_the_first_station) {
    AddStation("North", {});
    Play();
    TreeNotes notes;
    Tree().SetTreeObserver(&notes);
    Window().RebuildAfterCommand();
    EXPECT_EQ(notes.ScrolledTo, std::vector<int>{2});
    Session.Project.Stations.clear();
    Window().RebuildAfterCommand();
    EXPECT_EQ(notes.ScrolledTo, std::vector<int>{2}) << "there is no node 2 without stations";
    Tree().SetTreeObserver(nullptr);
}

struct FormNotes : ui::FormObserver {
    explicit FormNotes(ui::Form& form) : form_(form) {}
    std::vector<bool> Enabled;
    void ControlChanged(ui::Control&) override {}
    void FormChanged() override { Enabled.push_back(form_.Enabled()); }
    void FocusMoved(ui::Control&) override {}

private:
    ui::Form& form_;
};

TEST_F(StationTree, the_window_takes_no_input_while_a_node_is_read) {
    AddStation("North", {});
    Play();
    FormNotes notes(Window());
    Window().SetObserver(&notes);
    Tree().PersonClicks(2);
    EXPECT_EQ(notes.Enabled, (std::vector<bool>{false, true}));
    Tree().PersonClicks(1);
    EXPECT_EQ(notes.Enabled.size(), 2U) << "the root has nothing to read";
    Window().SetObserver(nullptr);
}

TEST_F(StationTree, a_file_made_from_outside_turns_the_station_blue_at_the_next_build) {
    AddStation("North", {});
    Play();
    Configure("North", "this is no INI file");
    Window().RebuildAfterCommand();
    EXPECT_EQ(At("All Stations\\North").TheColour, ui::Colour::Blue);
    EXPECT_EQ(Tree().Count(), 9);
    EXPECT_EQ(At("All Stations\\North\\Individual Parameters\\Run 1").Image, "NoRun");
    EXPECT_EQ(Window().ListView1.Cell(1, 1), "Yes");
    EXPECT_EQ(Window().ListView1.Count(), 1);
    EXPECT_EQ(Window().ListView1.Columns().size(), 6U);
}

TEST_F(StationTree, carries_a_thousand_stations) {
    for (int i = 1; i <= 1000; ++i) {
        AddStation("S" + std::to_string(i), {});
        Configure("S" + std::to_string(i), "[FlowRuns]\r\nRun1=Yes\r\n");
    }
    Play();
    EXPECT_EQ(Tree().Count(), 1 + 1000 * 8);
    EXPECT_EQ(Window().ListView1.Count(), 1000);
}

TEST_F(StationTree, names_that_no_file_can_bear_stay_unconfigured_and_harmless) {
    for (const char* name : {"../North", "a\\b", "a/b", "", "x\ny"})
        AddStation(name, {});
    Files.Content["/jobs/KDOrmAGA_plant_.ini"] = {};
    TheStory.Do("select each", [this](Driver&) {
        for (int node = 2; node <= Tree().Count(); ++node)
            Tree().PersonClicks(node);
    });
    Play();
    EXPECT_EQ(At("All Stations\\../North").Image, "StationNoConfig");
    EXPECT_EQ(At("All Stations\\a/b").Image, "StationNoConfig");
}

TEST_F(StationTree, a_backslash_in_a_name_leads_to_no_other_station) {
    AddStation("North", {});
    AddStation("North\\East", {});
    Configure("North", "[FlowRuns]\r\nFlowAlgorithm=AGA7\r\n");
    TheStory.Do("select it", [this](Driver&) { Tree().PersonClicks(Tree().Count()); });
    Play();
    EXPECT_EQ(Session.SelectedPath, "All Stations\\North\\East");
    EXPECT_EQ(Station.CurrentStation, "North\\East");
    EXPECT_EQ(Session.ConfigFile(), "");
    EXPECT_EQ(Panel(), "North\\East");
}

TEST_F(StationTree, selecting_a_station_shows_the_table_under_its_name) {
    AddStation("North", {});
    Configure("North", {});
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North").Check([this](Driver&) {
        EXPECT_EQ(Panel(), "North");
        EXPECT_TRUE(Window().ListView1.Shown());
        EXPECT_FALSE(Window().SSTab1.Visible());
        EXPECT_EQ(Station.CurrentStation, "North");
        EXPECT_EQ(Session.SelectedNodeText, "North");
        EXPECT_EQ(Session.SelectedPath, "All Stations\\North");
        EXPECT_TRUE(Window().Enabled());
    });
    Play();
}

TEST_F(StationTree, a_row_of_the_table_leads_to_its_station) {
    AddStation("East", {});
    AddStation("North", {});
    TheStory.Do("open the second row", [&](Driver&) { EXPECT_TRUE(Window().ListView1.PersonOpensRow(2)); })
        .Check([&](Driver&) {
            EXPECT_EQ(Tree().FullPath(Tree().SelectedNode()), "All Stations\\North");
            EXPECT_EQ(Program.Session.Station.CurrentStation, "North");
            EXPECT_EQ(Panel(), "North");
        });
    Play();
}

TEST_F(StationTree, the_status_bar_says_how_much_of_the_project_is_configured) {
    AddStation("East", {});
    AddStation("North", {});
    Configure("North", "");
    TheStory.Check([&](Driver&) { EXPECT_EQ(Overview(), "plant: 1 of 2 stations configured"); });
    Play();
}

TEST_F(StationTree, the_status_bar_counts_the_findings_that_are_open) {
    for (const char* station : {"East", "North"}) {
        AddStation(station, {});
        Configure(station, "");
    }
    TheStory.Check([&](Driver&) {
        const std::string configured = "plant: 2 of 2 stations configured";
        EXPECT_EQ(Overview(), configured);
        Check(Report("North", {2, 1, 5}));
        EXPECT_EQ(Overview(), configured + "; open findings: 2 errors, 1 warning in 1 station; not checked: "
                                           "1 station");
        // Notes are no work that is left, and warnings alone leave no mark in the tree.
        Check(Report("East", {0, 3, 1}));
        EXPECT_EQ(Overview(), configured + "; open findings: 2 errors, 4 warnings in 2 stations");
        EXPECT_EQ(At("All Stations\\North").Image, "StationErrors");
        EXPECT_EQ(At("All Stations\\East").Image, "StationConfig");
        Check(Report("North", {0, 0, 5}));
        Check(Report("East", {}));
        EXPECT_EQ(Overview(), configured + "; no open findings");
        EXPECT_EQ(At("All Stations\\North").Image, "StationConfig");
    });
    Play();
}

// Nobody knows what is left of the findings in a file that has been changed; in one that is no more there
// are none.
TEST_F(StationTree, findings_are_open_as_long_as_the_file_is_the_one_that_was_checked) {
    for (const char* station : {"East", "North", "West"}) {
        AddStation(station, {});
        Configure(station, "");
    }
    TheStory.Check([&](Driver&) {
        for (const char* station : {"East", "North", "West"})
            Check(Report(station, {1, 0, 0}));
        Configure("North", "[General]\r\n");
        Files.Content.erase("/jobs/KDOrmAGA_plant_West.ini");
        Window().RebuildAfterCommand();
        const std::string configured = "plant: 2 of 3 stations configured";
        EXPECT_EQ(Overview(), configured + "; open findings: 1 error, 0 warnings in 1 station; not checked: "
                                           "1 station");
        EXPECT_EQ(At("All Stations\\North").Image, "StationConfig");
        EXPECT_EQ(At("All Stations\\East").Image, "StationErrors");
        Check(Report("North", {0, 1, 0}));
        Window().RebuildAfterCommand();
        EXPECT_EQ(Overview(), configured + "; open findings: 1 error, 1 warning in 2 stations");
        EXPECT_EQ(At("All Stations\\East").Image, "StationErrors") << "unchanged";
    });
    Play();
}

TEST_F(StationTree, the_mark_of_a_check_goes_as_soon_as_the_tags_are_known_to_be_others) {
    const project::TagList tags = {{"PIT-101", 7, "FX", "VF1", "Virtual Module"}};
    AddStation("North", tags);
    Configure("North", "");
    TheStory.Check([&](Driver&) {
        const std::string path = "All Stations\\North";
        Check(Report("North", {1}, project::MarkOf(tags)));
        Window().TagsAnswered("North", tags);
        EXPECT_EQ(At(path).Image, "StationErrors");
        auto moved = tags;
        moved.front().RegAddr = 8;
        Window().TagsAnswered("North", moved);
        EXPECT_EQ(At(path).Image, "StationConfig");
        EXPECT_EQ(Overview(), "plant: 1 of 1 station configured");
    });
    Play();
}

TEST_F(StationTree, selecting_all_stations_keeps_the_current_station) {
    AddStation("North", {});
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North")
        .ClickNode("GFCPrincipal", "TreeGFC", "All Stations")
        .Check([this](Driver&) {
            EXPECT_EQ(Panel(), "Gas Flow Computer");
            EXPECT_EQ(Session.SelectedNodeText, "All Stations");
            EXPECT_EQ(Session.SelectedPath, "All Stations\\North");
            EXPECT_EQ(Station.CurrentStation, "North");
        });
    Play();
}

TEST_F(StationTree, selecting_common_parameters_loads_them_and_shows_the_first_pane) {
    AddStation("North", {});
    Configure("North", "[FlowRuns]\r\nFlowAlgorithm=AGA7\r\n[AGA7]\r\nStandardT=15.00\r\n");
    const std::string common = "All Stations\\North\\Common Parameters";
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", common)
        .SelectTab("GFCPrincipal", "SSTab1", 2)
        .ClickNode("GFCPrincipal", "TreeGFC", common)
        .Check([this](Driver&) {
            EXPECT_EQ(Panel(), "Common Parameters (North)");
            EXPECT_TRUE(Window().SSTab1.Visible());
            EXPECT_EQ(Window().SSTab1.Tab(), 0);
            EXPECT_FALSE(Window().SSTab2.Visible());
            EXPECT_EQ(Station.FlowAlgorithm, "AGA7");
            EXPECT_EQ(Station.StandardT, "15.00");
        });
    Play();
}

TEST_F(StationTree, selecting_a_run_loads_it_and_shows_the_second_pane) {
    AddStation("North", {});
    Configure("North", "[FlowRuns]\r\nFlowAlgorithm=SYT6143-2004\r\nGasDensitySource=SGERG88\r\n"
                       "[SGERG88]\r\nAGA8CalInput=FIXED\r\n"
                       "[Run1]\r\nCalibrationFactor=1.1\r\n[Run4]\r\nCalibrationFactor=1.4\r\n");
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North\\Common Parameters")
        .ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North\\Individual Parameters\\Run 4")
        .Check([this](Driver&) {
            EXPECT_EQ(Panel(), "Individual Parameters (North) : Run 4");
            EXPECT_TRUE(Window().SSTab2.Visible());
            EXPECT_FALSE(Window().SSTab1.Visible());
            ASSERT_EQ(Station.Runs.IO.size(), 1U);
            EXPECT_EQ(Station.Runs.IO.front().CalibrationFactor, "1.4");
            EXPECT_EQ(Window().SSTab2.TabCaption(0), "SY/T6143 Input Tags");
            EXPECT_EQ(Window().SSTab2.TabCaption(1), "SY/T6143 Output Tags");
            EXPECT_EQ(Window().SSTab2.TabCaption(2), "SGERG88/ISO-12213-3 Gas Properties");
            EXPECT_EQ(Window().SSTab2.TabCaption(3), "SGERG88/ISO-12213-3 Output Tags");
        });
    Play();
}

TEST_F(StationTree, individual_parameters_leaves_the_panes_as_they_are) {
    AddStation("North", {});
    Configure("North", {});
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North\\Common Parameters")
        .ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North\\Individual Parameters")
        .Check([this](Driver&) {
            EXPECT_TRUE(Window().SSTab1.Visible());
            EXPECT_EQ(Panel(), "Common Parameters (North)");
            EXPECT_EQ(Session.SelectedNodeText, "Individual Parameters");
            EXPECT_EQ(Session.SelectedPath, "All Stations\\North\\Individual Parameters");
        });
    Play();
}

TEST_F(StationTree, the_table_comes_back_whole_after_a_summary) {
    AddStation("North", {});
    AddStation("South", {});
    Configure("North", {});
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\North\\Common Parameters")
        .ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\South")
        .Check([this](Driver&) {
            EXPECT_EQ(Window().ListView1.Columns().size(), 6U);
            EXPECT_EQ(Window().ListView1.Count(), 2);
            EXPECT_EQ(Window().ListView1.Cell(1, 1), "Yes");
            EXPECT_EQ(Window().ListView1.Cell(2, 2), "South");
            EXPECT_TRUE(Window().ListView1.Shown());
            EXPECT_FALSE(Window().SSTab1.Visible());
            EXPECT_EQ(Panel(), "South");
        });
    Play();
}

TEST_F(StationTree, a_path_of_another_station_shows_nothing_new) {
    AddStation("North", {});
    Play();
    Station.CurrentStation = "North";
    Window().ShowPaneFor("All Stations\\South");
    Window().ShowPaneFor("all stations\\North\\Common Parameters");
    Window().ShowPaneFor("");
    EXPECT_EQ(Panel(), "Gas Flow Computer");
    EXPECT_TRUE(Window().ListView1.Visible());
}

TEST_F(StationTree, run_image_is_set_where_the_path_leads_to_a_node) {
    AddStation("North", {});
    Configure("North", {});
    Play();
    const std::string run = "All Stations\\North\\Individual Parameters\\Run 3";
    Window().SetRunImage(run, true);
    EXPECT_EQ(At(run).Image, "Run");
    Window().SetRunImage(run, false);
    EXPECT_EQ(At(run).Image, "NoRun");
    Window().SetRunImage("All Stations\\South\\Individual Parameters\\Run 3", true);
    EXPECT_EQ(At(run).Image, "NoRun");
}

} // namespace

} // namespace gfc::test
