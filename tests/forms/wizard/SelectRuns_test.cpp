#include "WizardWorld.h"
#include "forms/wizard/SelectRuns.h"
#include "project/Requirements.h"

#include <gtest/gtest.h>

namespace gfc::test {
namespace {

using forms::SelectRuns;

// The window that chooses the runs, and what a person does in it.
struct Selection : WizardWorld {
    explicit Selection(const Room& room = Plenty, bool isAGA7 = false) : WizardWorld(room) {
        (void)Preset(isAGA7 ? 1 : 0);
        Program.Forms.Get<SelectRuns>().FlagAGA7 = isAGA7;
    }
    Story& Tick(const std::vector<int>& runs) {
        for (const int run : runs)
            TheStory.Click("SelectRuns", "CheckRun_" + std::to_string(run - 1));
        return TheStory;
    }
    Story& Accept(const std::vector<int>& runs) { return Tick(runs).Click("SelectRuns", "Command1"); }
    void ThenCancel() {
        TheStory.Click("SelectRuns", "Command2")
            .Box("Gas flow Computer", "Are you sure do you want to cancel the configuration process?",
                 ui::Icon::None, ui::Answer::Yes);
    }
    void Show() { Program.Forms.Get<SelectRuns>().ShowModal(); }
};

TEST(SelectRuns, starts_with_its_captions_and_nothing_chosen) {
    Selection world;
    world.TheStory.SeeCaption("SelectRuns", "Enable Calculation Runs")
        .SeeText("SelectRuns", "Command1", "Accept")
        .SeeText("SelectRuns", "Command2", "Cancel");
    for (int i = 0; i < 5; ++i)
        world.TheStory.SeeText("SelectRuns", "CheckRun_" + std::to_string(i), "Run " + std::to_string(i + 1))
            .SeeChecked("SelectRuns", "CheckRun_" + std::to_string(i), false);
    world.ThenCancel();
    world.Show();
    EXPECT_FALSE(world.Program.Forms.IsLoaded<SelectRuns>());
}

TEST(SelectRuns, is_left_by_its_own_buttons_only) {
    Selection world;
    world.TheStory.CloseWindow("SelectRuns").SeeShown("SelectRuns");
    world.ThenCancel();
    world.Show();
}

TEST(SelectRuns, setting_the_algorithm_flag_does_not_load_it) {
    Selection world;
    world.Program.Forms.Get<SelectRuns>().FlagAGA7 = true;
    EXPECT_FALSE(world.Program.Forms.IsLoaded<SelectRuns>());
}

TEST(SelectRuns, accept_without_a_run_asks_for_one) {
    Selection world;
    world.Accept({})
        .Box("Flow Gas Computer", "Select at least one Run ", ui::Icon::Critical)
        .SeeShown("SelectRuns")
        .SeeEnabled("SelectRuns", "Command1");
    world.ThenCancel();
    world.Show();
    EXPECT_EQ(world.Station.ActiveRunCount, 0);
}

TEST(SelectRuns, accept_stores_the_flags_and_opens_the_wizard) {
    Selection world;
    world.Accept({2, 5}).SeeShown("SelectRuns", false).SeeShown("WizardFC").Check([&](Driver&) {
        EXPECT_EQ(world.Station.ActiveRunCount, 2);
        // Not to be pressed twice.
        EXPECT_FALSE(world.Program.Forms.Get<SelectRuns>().Command1.Enabled());
        const std::array<const char*, 5> flags = {"No", "Yes", "No", "No", "Yes"};
        for (std::size_t i = 0; i < flags.size(); ++i) {
            EXPECT_EQ(world.Station.RunList.at(i).Name, "Run" + std::to_string(i + 1));
            EXPECT_EQ(world.Station.RunList.at(i).Flag, flags.at(i));
            EXPECT_EQ(world.Station.Run.at(i), flags.at(i));
        }
    });
    world.ThenQuit();
    world.Show();
    EXPECT_TRUE(world.Program.Forms.Get<SelectRuns>().Command1.Enabled());
}

TEST(SelectRuns, a_count_left_by_an_earlier_configuration_is_not_added_to) {
    Selection world;
    world.Station.ActiveRunCount = 3;
    world.Accept({1}).Check([&](Driver&) { EXPECT_EQ(world.Station.ActiveRunCount, 1); });
    world.ThenQuit();
    world.Show();
}

TEST(SelectRuns, boxes_are_cleared_when_it_is_shown_again) {
    Selection world;
    world.Accept({1});
    world.ThenQuit();
    world.Show();
    world.OpenStation("North");
    world.TheStory.SeeChecked("SelectRuns", "CheckRun_0", false);
    world.ThenCancel();
    world.Show();
}

TEST(SelectRuns, cancel_answered_no_stays) {
    Selection world;
    world.Tick({3})
        .Click("SelectRuns", "Command2")
        .Box("Gas flow Computer", "Are you sure do you want to cancel the configuration process?",
             ui::Icon::None, ui::Answer::No)
        .SeeChecked("SelectRuns", "CheckRun_2");
    world.ThenCancel();
    world.Show();
}

TEST(SelectRuns, cancel_drops_the_preset_wizard_and_the_candidate_counts) {
    Selection world;
    world.ThenCancel();
    world.Show();
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>());
    EXPECT_EQ(world.Session.Modules.NFX, 0);
    EXPECT_EQ(world.Session.Modules.NAX, 0);
    EXPECT_EQ(world.Session.Modules.NLX, 0);
}

struct FloorCase {
    const char* What;
    bool AGA7;
    Room Enough;
    Room Short;

    friend void PrintTo(const FloorCase& the, std::ostream* out) { *out << the.What; }
};

class SelectRunsFloor : public testing::TestWithParam<FloorCase> {};

TEST_P(SelectRunsFloor, accepts_exactly_what_two_runs_need) {
    Selection world(GetParam().Enough, GetParam().AGA7);
    world.Accept({1, 4}).SeeShown("WizardFC");
    world.ThenQuit();
    world.Show();
}

TEST_P(SelectRunsFloor, refuses_one_register_less) {
    Selection world(GetParam().Short, GetParam().AGA7);
    const int fit = project::MaximumRuns({world.Session.Inventory, world.Session.Modules}, GetParam().AGA7);
    world.Accept({1, 4});
    if (GetParam().AGA7 && fit > 0)
        world.TheStory.Box("Gas Flow Computer", project::MaximumRunsText(fit), ui::Icon::Information);
    if (fit == 1)
        world.TheStory.Box("Missing tags", "Unselect Runs", ui::Icon::None);
    // Somebody always says why.
    if (fit != 1 && (!GetParam().AGA7 || fit < 1))
        world.TheStory.Box(GetParam().AGA7 ? "Error: Configuring AGA7" : "Error: Configuring AGA3", "",
                           ui::Icon::Exclamation);
    world.TheStory.SeeShown("SelectRuns").SeeShown("WizardFC", false).Check([&](Driver&) {
        EXPECT_EQ(world.Station.ActiveRunCount, 0);
    });
    world.ThenCancel();
    world.Show();
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, SelectRunsFloor, testing::Values(
    FloorCase{"floats",             false, {34, 2, 6, 0}, {33, 2, 6, 0}},
    FloorCase{"analogs",            false, {34, 2, 6, 0}, {34, 1, 6, 0}},
    FloorCase{"digitals",           false, {34, 2, 6, 0}, {34, 2, 5, 0}},
    FloorCase{"floats_of_AGA7",     true,  {12, 2, 6, 6}, {11, 2, 6, 6}},
    FloorCase{"analogs_of_AGA7",    true,  {12, 2, 6, 6}, {12, 1, 6, 6}},
    FloorCase{"digitals_of_AGA7",   true,  {12, 2, 6, 6}, {12, 2, 5, 6}},
    // Three longs for each run here, although one is bound.
    FloorCase{"longs_of_AGA7",      true,  {12, 2, 6, 6}, {12, 2, 6, 5}}),
    [](const auto& row) { return row.param.What; });
// clang-format on

struct OverCase {
    const char* What;
    int Floats; // for which the station carries Fit runs
    int Fit;
    const char* Title;

    friend void PrintTo(const OverCase& the, std::ostream* out) { *out << the.What; }
};

class OverSelection : public testing::TestWithParam<OverCase> {
protected:
    // Too few analogs for all five, so that the selection never fits.
    Selection World{Room{GetParam().Floats, 4, 40, 0}};
};

TEST_P(OverSelection, is_reported_under_its_own_title) {
    World.Accept({1, 2, 3, 4, 5}).Box(GetParam().Title, "Unselect Runs", ui::Icon::None);
    World.TheStory.SeeChecked("SelectRuns", "CheckRun_4").SeeEnabled("SelectRuns", "Command1");
    World.ThenCancel();
    World.Show();
}

// But that the station does not carry them is said.
TEST_P(OverSelection, is_not_reported_for_as_many_runs_as_fit) {
    const int fit = GetParam().Fit;
    std::vector<int> runs;
    for (int n = 1; n <= fit; ++n)
        runs.push_back(n);
    World.Accept(runs).Box("Error: Configuring AGA3",
                           project::IOShortageText(project::ShortageKind::AGA3Family, fit),
                           ui::Icon::Exclamation);
    World.ThenCancel();
    World.Show();
    ASSERT_EQ(World.Screen.BoxesShown.size(), 2U);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Titles, OverSelection, testing::Values(
    OverCase{"one",    8, 1, "Missing tags"},
    OverCase{"two",   16, 2, "Missing Tag"},
    OverCase{"three", 24, 3, "Missing Tags"},
    OverCase{"four",  32, 4, "Missing Tags"}),
    [](const auto& row) { return row.param.What; });
// clang-format on

TEST(SelectRuns, on_a_turbine_station_the_number_of_runs_is_said_first) {
    Selection world(Room{10, 4, 40, 40}, true);
    world.Accept({1, 2, 3})
        .Box("Gas Flow Computer", "Only two Runs can be configured", ui::Icon::Information)
        .Box("Missing Tag", "Unselect Runs", ui::Icon::None);
    world.ThenCancel();
    world.Show();
}

TEST(SelectRuns, two_float_and_two_analog_modules_carry_any_selection) {
    project::TagList tags = TagsOf({0, 0, 0, 0});
    tags += TagsInModule("VA1", "Virtual AO", "AY", "A1-", 32);
    tags += TagsInModule("VF1", "Virtual FO", "FY", "F1-", 128);
    WizardWorld world(tags);
    (void)world.Preset();
    for (int i = 0; i < 5; ++i)
        world.TheStory.Click("SelectRuns", "CheckRun_" + std::to_string(i));
    world.TheStory.Click("SelectRuns", "Command1").SeeShown("WizardFC");
    world.ThenQuit();
    world.Program.Forms.Get<SelectRuns>().ShowModal();
}

} // namespace
} // namespace gfc::test
