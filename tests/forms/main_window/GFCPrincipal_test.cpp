#include "forms/main_window/GFCPrincipal.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

namespace {

using Names = std::vector<std::string>;
using forms::GFCPrincipal;

// The main window over a project of two stations: North is configured with run 2 on, South is not.
struct MainWindow : testing::Test, World {
    MainWindow() {
        AddStation("North", LargeStationTags());
        AddStation("South", LargeStationTags());
        Configure("North", "[FlowRuns]\r\nRun1=No\r\nRun2=Yes\r\nRun3=yes\r\nRun4=YES\r\n");
    }

    void Configure(const std::string& station, const std::string& content) {
        Files.Content["/jobs/KDOrmAGA_plant_" + station + ".ini"] = content;
    }
    GFCPrincipal& Window() { return Program.Forms.Get<GFCPrincipal>(); }
    void Play() {
        Window().Show();
        Screen.RunToEnd();
    }
    [[nodiscard]] int CallsOf(const std::string& call) const {
        return static_cast<int>(std::count(Library.Calls.begin(), Library.Calls.end(), call));
    }
};

const std::string north = "All Stations\\North";
const std::string northRuns = "All Stations\\North\\Individual Parameters";

struct MenuState {
    std::string Node;
    bool ConfigWiard, ConfigPar, optRun, copiar, undo;
};

// clang-format off
const MenuState menuStates[] = {
    {"All Stations",                true,  true, true,  true,  true},
    {north,                         true,  true, false, true,  true},
    {"All Stations\\South",         true,  true, false, true,  true},
    {north + "\\Common Parameters", false, true, false, false, false},
    {northRuns,                     true,  true, true,  true,  true},
    {northRuns + "\\Run 1",         false, true, true,  false, false},
    {northRuns + "\\Run 2",         false, true, true,  false, false},
    {northRuns + "\\Run 3",         false, true, true,  false, false},
    {northRuns + "\\Run 4",         false, true, true,  false, false},
    {northRuns + "\\Run 5",         false, true, true,  false, false},
};
// clang-format on

void ExpectMenu(const GFCPrincipal& window, const MenuState& expected) {
    EXPECT_EQ(window.ConfigWiard.Enabled(), expected.ConfigWiard) << expected.Node;
    EXPECT_EQ(window.ConfigPar.Enabled(), expected.ConfigPar) << expected.Node;
    EXPECT_EQ(window.optRun.Enabled(), expected.optRun) << expected.Node;
    EXPECT_EQ(window.copiar.Enabled(), expected.copiar) << expected.Node;
    EXPECT_EQ(window.undo.Enabled(), expected.undo) << expected.Node;
}

TEST_F(MainWindow, menu_has_its_entries_in_order) {
    Names captions;
    for (const auto* control : Window().Controls())
        if (control->TheKind() == ui::Kind::MenuEntry)
            captions.push_back((control->Container() == nullptr ? "" : control->Container()->Name() + ">") +
                               control->Caption());
    EXPECT_EQ(captions, (Names{"&Menu",
                               "Config>Configuration  Wizard",
                               "Config>-",
                               "Config>Configure",
                               "Config>-",
                               "Config>Run",
                               "optRun>Enable run",
                               "optRun>Disable run",
                               "Config>-",
                               "Config>Copy to",
                               "copiar>Configuration to another station",
                               "copiar>Configuration to a different project",
                               "Config>-",
                               "Config>Delete",
                               "Config>-",
                               "Config>Exit",
                               "&Tools",
                               "Tools>Check all stations...",
                               "Tools>Copy to several stations...",
                               "Tools>Bind anew...",
                               "Tools>Drafts...",
                               "Tools>History...",
                               "Tools>Compare...",
                               "Tools>Report...",
                               "&Help"}));
}

TEST_F(MainWindow, menu_pictures_are_attached_by_place) {
    Play();
    const auto& images = Window().ImageList2;
    ASSERT_EQ(images.Images().size(), 5U);
    EXPECT_EQ(Window().ConfigWiard.Image(), images.Image(1));
    EXPECT_EQ(Window().ConfigPar.Image(), images.Image(2));
    EXPECT_EQ(Window().optRun.Image(), images.Image(5));
    EXPECT_EQ(Window().copiar.Image(), images.Image(4));
    EXPECT_EQ(Window().undo.Image(), images.Image(3));
    EXPECT_EQ(Window().exit.Image(), "");
    EXPECT_EQ(Window().linea1.Image(), "");
}

TEST_F(MainWindow, menu_state_follows_the_selected_node) {
    for (const auto& state : menuStates) {
        TheStory.ClickNode("GFCPrincipal", "TreeGFC", state.Node).Click("GFCPrincipal", "Config");
        TheStory.Check([&](Driver&) { ExpectMenu(Window(), state); });
    }
    Play();
}

TEST_F(MainWindow, menu_is_all_on_while_nothing_is_selected) {
    TheStory.Click("GFCPrincipal", "Config");
    TheStory.Check([&](Driver&) { ExpectMenu(Window(), {"none", true, true, true, true, true}); });
    Play();
}

TEST_F(MainWindow, right_click_pops_the_menu_up_in_the_state_of_the_node) {
    for (const auto& state : menuStates) {
        if (state.Node == "All Stations")
            continue;
        TheStory.Do("forget the menu", [&](Driver&) { Screen.LastPopUp = nullptr; });
        TheStory.RightClickNode("GFCPrincipal", "TreeGFC", state.Node);
        TheStory.Check([&](Driver&) {
            EXPECT_EQ(Screen.LastPopUp, &Window().Config) << state.Node;
            ExpectMenu(Window(), state);
        });
    }
    Play();
}

TEST_F(MainWindow, right_click_on_all_stations_or_on_nothing_offers_no_menu) {
    TheStory.Do("press beside the nodes",
                [&](Driver&) { Window().TreeGFC.PersonPresses(ui::MouseButton::Right); });
    TheStory.RightClickNode("GFCPrincipal", "TreeGFC", "All Stations");
    Play();
    EXPECT_EQ(Screen.LastPopUp, nullptr);
}

TEST_F(MainWindow, left_press_offers_no_menu) {
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", north);
    Play();
    EXPECT_EQ(Screen.LastPopUp, nullptr);
}

TEST_F(MainWindow, help_opens_the_page_of_what_is_visible) {
    const auto show = [this](bool list) {
        return [this, list](Driver&) { Window().ListView1.SetVisible(list); };
    };
    TheStory.PressKey("GFCPrincipal", "F1")
        .ClickNode("GFCPrincipal", "TreeGFC", north + "\\Common Parameters")
        .Do("hide the list", show(false))
        .PressKey("GFCPrincipal", "F1")
        .Menu("GFCPrincipal", "HelpPrincipal")
        // The list comes first, even above a summary.
        .Do("show the list", show(true))
        .PressKey("GFCPrincipal", "F1")
        .ClickNode("GFCPrincipal", "TreeGFC", north)
        .Menu("GFCPrincipal", "HelpPrincipal");
    Play();
    const std::vector<std::pair<std::string, int>> expected = {
        {"AGA.chm", 2300}, {"AGA.chm", 2000}, {"AGA.chm", 2000}, {"AGA.chm", 2300}, {"AGA.chm", 2300}};
    EXPECT_EQ(Screen.HelpOpened, expected);
}

struct RunTabHelp {
    std::string Algorithm, Source;
    int Tab;
    int Context;
};

// clang-format off
const RunTabHelp runTabHelps[] = {
    {"AGA3",                 "MEASURED",         0, 2100},
    {"Accelabar-AGA-3-1992", "AGA8",             0, 2100},
    {"SYT6143-2004",         "AGA8",             0, 7700},
    {"AGA7",                 "AGA8",             0, 2200},
    {"AGA7",                 "SGERG88",          2, 7700},
    {"AGA3",                 "ISO-12213-3-1997", 2, 7700},
    // No page: the viewer opens all the same.
    {"AGA3",                 "AGA8",             2, 0},
    {"AGA3",                 "AGA8",             1, 0},
};
// clang-format on

TEST_F(MainWindow, help_goes_by_the_heading_of_the_run_tab) {
    for (const auto& expected : runTabHelps) {
        World other;
        other.AddStation("North", {});
        other.Files.Content["/jobs/KDOrmAGA_plant_North.ini"] =
            "[FlowRuns]\r\nFlowAlgorithm=" + expected.Algorithm + "\r\nGasDensitySource=" + expected.Source +
            "\r\n";
        other.TheStory.ClickNode("GFCPrincipal", "TreeGFC", northRuns + "\\Run 1");
        if (expected.Tab != 0)
            other.TheStory.SelectTab("GFCPrincipal", "SSTab2", expected.Tab);
        other.TheStory.PressKey("GFCPrincipal", "F1");
        auto& window = other.Program.Forms.Get<GFCPrincipal>();
        window.Show();
        other.Screen.RunToEnd();
        ASSERT_EQ(other.Screen.HelpOpened.size(), 1U);
        EXPECT_EQ(other.Screen.HelpOpened.front().second, expected.Context)
            << expected.Algorithm << " " << expected.Source << " tab " << expected.Tab;
    }
}

TEST_F(MainWindow, help_is_called_for_other_keys_too_with_no_page) {
    TheStory.PressKey("GFCPrincipal", "Escape").PressKey("GFCPrincipal", "Enter");
    Play();
    const std::vector<std::pair<std::string, int>> expected = {{"AGA.chm", 0}, {"AGA.chm", 0}};
    EXPECT_EQ(Screen.HelpOpened, expected);
}

TEST_F(MainWindow, activation_rebuilds_the_tree_when_it_is_asked_for) {
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", north + "\\Common Parameters")
        .Do("configure South from outside",
            [&](Driver&) {
                Configure("South", {});
                Window().Activated();
                EXPECT_TRUE(Window().SSTab1.Visible());
                Session.TreeRefreshNeeded = true;
                Window().Activated();
            })
        .Check([&](Driver& d) {
            EXPECT_FALSE(Session.TreeRefreshNeeded);
            EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\South"), "StationConfig");
            EXPECT_EQ(d.Cell("GFCPrincipal", "ListView1", 2, 1), "Yes");
            EXPECT_EQ(d.Rows("GFCPrincipal", "ListView1"), 2);
            EXPECT_TRUE(Window().ListView1.Shown());
            EXPECT_EQ(Window().ListView1.Columns().size(), 6U);
            EXPECT_FALSE(Window().SSTab1.Visible());
            EXPECT_FALSE(Window().SSTab2.Visible());
            EXPECT_FALSE(Window().ListView2.Visible());
            EXPECT_FALSE(Window().ListView3.Visible());
        });
    Play();
}

TEST_F(MainWindow, a_rebuild_keeps_the_selected_node_where_it_is_still_there) {
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", northRuns + "\\Run 2")
        .Do("rebuild", [&](Driver&) { Window().RebuildAfterCommand(); })
        .Check([&](Driver&) {
            EXPECT_EQ(Window().TreeGFC.FullPath(Window().TreeGFC.SelectedNode()), northRuns + "\\Run 2");
            EXPECT_EQ(Session.SelectedNodeText, "Run 2");
        })
        .Do("take the file away and rebuild",
            [&](Driver&) {
                Files.Content.clear();
                Window().RebuildAfterCommand();
            })
        .Check([&](Driver&) {
            EXPECT_EQ(Window().TreeGFC.SelectedNode(), 0);
            EXPECT_EQ(Session.SelectedNodeText, "");
        })
        .ClickNode("GFCPrincipal", "TreeGFC", "All Stations")
        .Do("rebuild", [&](Driver&) { Window().RebuildAfterCommand(); })
        .Check([&](Driver&) { EXPECT_EQ(Window().TreeGFC.SelectedNode(), 1); });
    Play();
}

TEST_F(MainWindow, exit_registers_twice_and_ends_the_process) {
    TheStory.Menu("GFCPrincipal", "exit");
    Play();
    EXPECT_TRUE(Screen.Ended());
    EXPECT_EQ(Screen.ExitCode, 0);
    EXPECT_EQ(CallsOf("AddFileToLoad North"), 2);
    EXPECT_EQ(CallsOf("RemoveFileToLoad South"), 2);
    EXPECT_EQ(CallsOf("AddFileToLoad South"), 0);
    ASSERT_EQ(Library.FilesToLoad.size(), 1U);
    EXPECT_EQ(Library.FilesToLoad.front(),
              std::tuple(std::string("North"), ConfigFile("North"), std::string("/etc/stacfg/kdormaga.ini")));
}

TEST_F(MainWindow, closing_the_window_registers_once_and_ends_the_process) {
    TheStory.CloseWindow("GFCPrincipal");
    Play();
    EXPECT_TRUE(Screen.Ended());
    EXPECT_EQ(CallsOf("AddFileToLoad North"), 1);
    EXPECT_EQ(CallsOf("RemoveFileToLoad South"), 1);
}

TEST_F(MainWindow, a_station_configured_meanwhile_is_registered_at_exit) {
    TheStory.Do("configure South", [&](Driver&) { Configure("South", {}); }).Menu("GFCPrincipal", "exit");
    Play();
    EXPECT_EQ(CallsOf("AddFileToLoad South"), 2);
    EXPECT_EQ(Library.FilesToLoad.size(), 2U);
}

} // namespace

} // namespace gfc::test
