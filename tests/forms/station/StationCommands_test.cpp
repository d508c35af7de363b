#include "forms/main_window/GFCPrincipal.h"
#include "forms/station/IOReports.h"
#include "forms/station/StationCommands.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using Names = std::vector<std::string>;
using forms::GFCPrincipal;

// Notes what the status bar says whenever the windows may paint.
class PaintingScreen : public HeadlessScreen {
public:
    std::function<void()> OnPaint;
    void DoEvents() override {
        if (OnPaint)
            OnPaint();
    }
};

// All of the station, of whatever class.
std::size_t TagsIn(const project::TagInventory& tags) {
    std::size_t count = 0;
    for (const auto* list : {&tags.PhysX, &tags.PhysY, &tags.PhysAX, &tags.PhysAY, &tags.PhysFX, &tags.PhysFY,
                             &tags.PhysLX, &tags.PhysLY, &tags.VirtX, &tags.VirtY, &tags.VirtAX, &tags.VirtAY,
                             &tags.VirtFX, &tags.VirtFY, &tags.VirtLX, &tags.VirtLY})
        count += list->size();
    return count;
}

struct StationCommands : testing::Test, World {
    StationCommands() {
        AddStation("North", LargeStationTags());
        AddStation("Bare", {});
        OpenProject();
    }
    GFCPrincipal& Window() { return Program.Forms.Get<GFCPrincipal>(); }
};

TEST_F(StationCommands, opening_reads_sorts_and_chooses) {
    Station.CurrentStation = "North";
    EXPECT_TRUE(forms::OpenStation(Program));
    EXPECT_EQ(TagsIn(Session.Inventory), Library.TagsOf["North"].size());
    EXPECT_EQ(Session.Inventory.VirtFX.size(), 428U);
    EXPECT_EQ(Session.Inventory.PhysX.size(), 40U);
    ASSERT_EQ(Session.Modules.FloatCandidates.size(), 2U);
    EXPECT_EQ(Session.Modules.FloatCandidates.front().ModuleName, "VF0");
    EXPECT_EQ(Library.Calls.back(), "ReadTags North");
}

TEST_F(StationCommands, opening_another_station_leaves_no_tag_of_the_first) {
    Station.CurrentStation = "North";
    (void)forms::OpenStation(Program);
    AddStation("Small", TagsInModule("AI", "Physical AI", "AX", "A", 3));
    Station.CurrentStation = "Small";
    EXPECT_FALSE(forms::OpenStation(Program));
    EXPECT_EQ(TagsIn(Session.Inventory), 3U);
    EXPECT_EQ(Session.Inventory.PhysAX.size(), 3U);
    EXPECT_TRUE(Session.Inventory.VirtFX.empty());
}

TEST_F(StationCommands, a_station_without_tags_is_told_and_opened_empty) {
    TheStory.Box("Flow Gas Computer", "Error: There are not Tags in Station", ui::Icon::Critical);
    Station.CurrentStation = "Bare";
    EXPECT_FALSE(forms::OpenStation(Program));
    EXPECT_EQ(TagsIn(Session.Inventory), 0U);
}

TEST_F(StationCommands, status_bar_shows_the_tag_that_was_copied_last) {
    Window().StatusBar1.SetVisible(false);
    Station.CurrentStation = "North";
    (void)forms::OpenStation(Program);
    EXPECT_EQ(Window().StatusBar1.PanelText(1), "Loading Tags:XV-40");
    EXPECT_TRUE(Window().StatusBar1.Visible());
}

// The library may take its time, and nothing else runs meanwhile.
TEST(Loading, shows_a_busy_pointer_for_as_long_as_the_library_is_asked) {
    PaintingScreen screen;
    FakeProgram fake(screen);
    fake.AddStation("Big", TagsInModule("VF0", "Virtual FI", "FX", "FT-", 600));
    fake.OpenProject();
    fake.Station.CurrentStation = "Big";
    std::vector<int> times;
    screen.OnPaint = [&] { times.push_back(screen.BusyNow); };
    (void)forms::OpenStation(fake.Program);
    EXPECT_EQ(times, (std::vector<int>{0, 1, 0})) << "before, amid and after the tags";
}

TEST(Loading, paints_now_and_then_but_not_for_each_of_100000_tags) {
    PaintingScreen screen;
    FakeProgram fake(screen);
    fake.AddStation("Big", TagsInModule("VF0", "Virtual FI", "FX", "FT-", 100000));
    fake.OpenProject();
    fake.Station.CurrentStation = "Big";
    Names seen;
    screen.OnPaint = [&] { seen.push_back(fake.Program.Forms.Get<GFCPrincipal>().StatusBar1.PanelText(1)); };
    EXPECT_FALSE(forms::OpenStation(fake.Program));
    ASSERT_GE(seen.size(), 100U);
    EXPECT_LE(seen.size(), 1000U);
    EXPECT_EQ(seen.front(), "");
    EXPECT_EQ(seen.back(), "Loading Tags:FT-100000");
}

TEST_F(StationCommands, clearing_forgets_the_open_station) {
    Station.CurrentStation = "North";
    (void)forms::OpenStation(Program);
    Session.Inventory.PhysFX.resize(1);
    Session.Inventory.PhysFY.resize(1);
    Session.Inventory.PhysLX.resize(1);
    Session.Inventory.PhysLY.resize(1);
    ActivateRuns({2, 5});
    Session.SelectedNodeText = "North";
    Session.TreeRefreshNeeded = true;
    Station.FlowAlgorithm = "AGA7";
    Station.CommonPa.RegAddr = "7";
    Station.WorkingModules.WrkFloatModName = "VF0";
    Station.Compressible = "Yes";
    for (auto* combo : {&Window().Combo1, &Window().Combo2, &Window().Combo3})
        combo->AddEntry("module");

    forms::ClearSession(Program);

    EXPECT_EQ(Station.ActiveRunCount, 0);
    EXPECT_EQ(Station.CurrentStation, "");
    EXPECT_EQ(Session.SelectedNodeText, "");
    EXPECT_FALSE(Session.TreeRefreshNeeded);
    EXPECT_EQ(Station.FlowAlgorithm, "");
    EXPECT_EQ(Station.CommonPa, config::TagBinding{});
    EXPECT_EQ(Station.WorkingModules.WrkFloatModName, "");
    for (const auto& run : Station.RunList)
        EXPECT_EQ(run.Name + run.Flag, "");
    for (auto* combo : {&Window().Combo1, &Window().Combo2, &Window().Combo3})
        EXPECT_TRUE(combo->Entries().empty());
    // What the project and the user gave stays.
    EXPECT_EQ(Station.ProjectName, "plant");
    EXPECT_EQ(Station.UserId, "4711");
    EXPECT_EQ(Station.Compressible, "Yes");
}

TEST_F(StationCommands, clearing_empties_all_lists_but_those_that_stay) {
    Station.CurrentStation = "North";
    (void)forms::OpenStation(Program);
    auto& lists = Session.Inventory;
    auto& modules = Session.Modules;
    const project::TagList one(1);
    for (auto* list : {&lists.PhysX, &lists.PhysY, &lists.PhysAX, &lists.PhysAY, &lists.PhysFX, &lists.PhysFY,
                       &lists.PhysLX, &lists.PhysLY, &lists.VirtX, &lists.VirtY, &lists.VirtAX, &lists.VirtAY,
                       &lists.VirtFX, &lists.VirtFY, &lists.VirtLX, &lists.VirtLY})
        *list = one;
    for (auto* names : {&modules.NamesLX, &modules.NamesLY, &modules.NamesAX, &modules.NamesAY,
                        &modules.NamesFX, &modules.NamesFY})
        *names = {"module"};

    forms::ClearSession(Program);

    for (const auto* list :
         {&lists.PhysX, &lists.PhysY, &lists.PhysAX, &lists.PhysAY, &lists.VirtX, &lists.VirtY, &lists.VirtAX,
          &lists.VirtAY, &lists.VirtFX, &lists.VirtFY, &lists.VirtLX, &lists.VirtLY})
        EXPECT_TRUE(list->empty());
    for (const auto* list : {&lists.PhysFX, &lists.PhysFY, &lists.PhysLX, &lists.PhysLY})
        EXPECT_EQ(list->size(), 1U);
    for (const auto* names :
         {&modules.NamesLX, &modules.NamesLY, &modules.NamesAX, &modules.NamesAY, &modules.NamesFY})
        EXPECT_TRUE(names->empty());
    EXPECT_EQ(modules.NamesFX, Names{"module"});
    for (const int count : {modules.NLX, modules.NLY, modules.NAX, modules.NAY, modules.NFX, modules.NFY})
        EXPECT_EQ(count, 0);
    EXPECT_EQ(modules.FloatCandidates.size(), 2U);
}

struct Reports : StationCommands {};

TEST_F(Reports, shortage_says_what_the_active_runs_need) {
    TheStory.Box("Error: Configuring AGA3", {}, ui::Icon::Exclamation);
    TheStory.Box("Error: Configuring AGA7", {}, ui::Icon::Exclamation);
    Station.ActiveRunCount = 2;
    forms::ReportIOShortage(Program, project::ShortageKind::AGA3Family);
    forms::ReportIOShortage(Program, project::ShortageKind::AGA7);
    const std::string start =
        "ERROR: The number of available tags/modules is below the minimum required for the flow computer "
        "software.\rPlease make sure that at least the following I/O memory is available for the flow "
        "computer software usage:\r- One LI or LO Virtual Module containing 8 registers for datalogging\r- "
        "One AI or AO Virtual Module containing 32 registers for datalogging\r- One FI or FO Virtual Module "
        "containing 128 registers for datalogging\r";
    ASSERT_EQ(Screen.BoxesShown.size(), 2U);
    const auto& aga3 = Screen.BoxesShown[0];
    EXPECT_EQ(aga3.Title, "Error: Configuring AGA3");
    EXPECT_EQ(aga3.Text,
              start +
                  "- 34 FI or FO, 2 AI or AO and 6 DI or DO registers for 2 enabled flow calculation runs\r- "
                  "46 FI or FO, 4 AI or AO and 6 DI or DO registers if AGA-8 calculation block is "
                  "enabled\r- 88 FI or FO, 4 AI or AO and 8 DI or DO registers if AGA-8 is enabled and gas "
                  "composition source is from an external gas chromatograph");
    EXPECT_EQ(aga3.TheIcon, ui::Icon::Exclamation);
    EXPECT_EQ(aga3.TheButtons, ui::Buttons::Ok);
    EXPECT_EQ(aga3.HelpFile, "AGA.chm");
    EXPECT_EQ(aga3.HelpContext, 7300);
    EXPECT_EQ(Screen.BoxesShown[1].Title, "Error: Configuring AGA7");
    EXPECT_NE(Screen.BoxesShown[1].Text.find("- 12 FI or FO, 2 AI or AO and 6 DI or DO"), std::string::npos);
}

TEST_F(Reports, maximum_runs_speaks_only_when_it_is_asked_to) {
    Session.Inventory = {};
    Session.Inventory.VirtFX.resize(16);
    Session.Inventory.VirtAX.resize(2);
    Session.Inventory.PhysX.resize(2);
    EXPECT_EQ(forms::MaximumRuns(Program, false, false), 2);
    EXPECT_TRUE(Screen.BoxesShown.empty());
    TheStory.Box("Gas Flow Computer", "Only two Runs can be configured", ui::Icon::Information);
    EXPECT_EQ(forms::MaximumRuns(Program, false, true), 2);
    ASSERT_EQ(Screen.BoxesShown.size(), 1U);
    EXPECT_EQ(Screen.BoxesShown.front().HelpFile, "AGA.chm");
    EXPECT_EQ(Screen.BoxesShown.front().HelpContext, 7300);
}

TEST_F(Reports, maximum_runs_of_none_or_all_says_nothing) {
    Session.Inventory = {};
    EXPECT_EQ(forms::MaximumRuns(Program, false, true), 0);
    EXPECT_TRUE(Screen.BoxesShown.empty());
}

} // namespace

} // namespace gfc::test
