#include "forms/main_window/GFCPrincipal.h"
#include "forms/wizard/SelectRuns.h"
#include "forms/wizard/WizardFC.h"
#include "project/Requirements.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gfc::test {

namespace {

using Names = std::vector<std::string>;
using forms::GFCPrincipal;
using forms::SelectRuns;
using forms::WizardFC;

const std::string question = "Creating a new configuration for the station.\r\n"
                             "The current configuration will be deleted.\r\n"
                             "Proceed?";

// 8 free floats and 5 free longs: too few for AGA-3, enough for one run of AGA-7.
project::TagList TurbineTags() {
    project::TagList tags = LargeStationTags(8);
    std::erase_if(tags, [](const project::Tag& tag) { return tag.ModuleName == "VL1" && tag.RegAddr > 105; });
    return tags;
}

// Only so many registers are free of each of the three kinds.
project::TagList TagsLeaving(int floats, int digitals, int longs) {
    project::TagList tags = LargeStationTags(floats);
    std::erase_if(tags, [&](const project::Tag& tag) {
        return tag.RegType == "Y" || (tag.RegType == "X" && digitals-- <= 0) ||
               (tag.ModuleName == "VL1" && longs-- <= 0);
    });
    return tags;
}

struct ConfigWiard : testing::Test, World {
    ConfigWiard() {
        AddStation("Large", LargeStationTags());
        AddStation("Turbine", TurbineTags());
        AddStation("Small", LargeStationTags(5));
        AddStation("NoModules", TagsInModule("DI", "Physical DI", "X", "XS-", 3));
        AddStation("Bare", {});
    }
    GFCPrincipal& Window() { return Program.Forms.Get<GFCPrincipal>(); }
    void Choose(const std::string& station) {
        TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\" + station);
        TheStory.Menu("GFCPrincipal", "ConfigWiard");
    }
    void Answer(ui::Answer answer) { TheStory.Box("Flow Gas Computer", question, ui::Icon::None, answer); }
    void ExpectShortage(int runs) {
        for (const auto kind : {project::ShortageKind::AGA3Family, project::ShortageKind::AGA7})
            TheStory.Box(project::IOShortageTitle(kind), project::IOShortageText(kind, runs),
                         ui::Icon::Exclamation);
    }
    void CancelSelection() {
        TheStory.Click("SelectRuns", "Command2")
            .Box("Gas flow Computer", "Are you sure do you want to cancel the configuration process?",
                 ui::Icon::None, ui::Answer::Yes);
    }
    void Play() {
        Window().Show();
        Screen.RunToEnd();
    }
    void ExpectCleared() {
        EXPECT_EQ(Station.CurrentStation, "");
        EXPECT_EQ(Session.SelectedNodeText, "");
        EXPECT_EQ(Station.ActiveRunCount, 0);
        EXPECT_TRUE(Session.Inventory.VirtFX.empty());
        EXPECT_EQ(Window().TreeGFC.SelectedNode(), 0);
    }
    [[nodiscard]] bool WasRead(const std::string& station) const {
        return std::find(Library.Calls.begin(), Library.Calls.end(), "ReadTags " + station) !=
               Library.Calls.end();
    }
};

TEST_F(ConfigWiard, asks_for_a_station_when_none_is_selected) {
    TheStory.Menu("GFCPrincipal", "ConfigWiard")
        .Box("Gas Flow Computer", "Please select a station...", ui::Icon::None)
        .ClickNode("GFCPrincipal", "TreeGFC", "All Stations")
        .Menu("GFCPrincipal", "ConfigWiard")
        .Box("Gas Flow Computer", "Please select a station...", ui::Icon::None);
    Play();
}

TEST_F(ConfigWiard, refuses_a_station_that_no_file_can_be_named_after) {
    AddStation("North/1", LargeStationTags());
    Choose("North/1");
    TheStory.Box("Gas Flow Computer", "", ui::Icon::Exclamation);
    Play();
    EXPECT_TRUE(Files.Content.empty());
}

TEST_F(ConfigWiard, asks_before_replacing_even_where_there_is_nothing_to_replace) {
    Choose("Large");
    Answer(ui::Answer::No);
    Play();
    EXPECT_FALSE(WasRead("Large"));
    EXPECT_EQ(Station.CurrentStation, "Large");
    EXPECT_EQ(Session.SelectedNodeText, "Large");
    EXPECT_EQ(Session.EditMode, forms::EditMode::None);
}

TEST_F(ConfigWiard, opens_on_the_first_standard_where_the_station_carries_it) {
    Station.FlagAGA7 = true; // of an earlier station
    Choose("Large");
    Answer(ui::Answer::Yes);
    TheStory.Check([this](Driver&) {
        EXPECT_TRUE(WasRead("Large"));
        EXPECT_EQ(Program.Forms.Get<WizardFC>().general.cbSourceGas.ListIndex(), 0);
        EXPECT_EQ(Program.Forms.Get<WizardFC>().general.CombStandard.Text(), "AGA-3 1992");
        EXPECT_FALSE(Program.Forms.Get<SelectRuns>().FlagAGA7);
        EXPECT_FALSE(Station.FlagAGA7);
        EXPECT_EQ(Session.EditMode, forms::EditMode::Wizard);
        EXPECT_EQ(Station.ActiveRunCount, 0);
    });
    CancelSelection();
    Play();
    EXPECT_EQ(Screen.FormsShown, (Names{"GFCPrincipal", "SelectRuns"}));
    EXPECT_EQ(Session.EditMode, forms::EditMode::None) << "nobody drives dialogs any more";
}

TEST_F(ConfigWiard, opens_on_aga7_where_the_station_carries_that_alone) {
    Station.ActiveRunCount = 3;
    Choose("Turbine");
    Answer(ui::Answer::Yes);
    TheStory.Box("Gas Flow Computer", "Only one Run can be configured", ui::Icon::Information);
    TheStory.Check([this](Driver&) {
        EXPECT_EQ(Program.Forms.Get<WizardFC>().general.cbSourceGas.ListIndex(), 0);
        EXPECT_EQ(Program.Forms.Get<WizardFC>().general.CombStandard.Text(), "AGA-7");
        EXPECT_TRUE(Program.Forms.Get<SelectRuns>().FlagAGA7);
        EXPECT_TRUE(Station.FlagAGA7);
        EXPECT_EQ(Session.EditMode, forms::EditMode::Wizard);
    });
    CancelSelection();
    Play();
}

struct Carried {
    int Floats, Digitals, Longs; // free ones
    const char* Standard;        // null: neither
    const char* MaximumRuns;     // null: no box
};

// clang-format off
const Carried carried[] = {
    {17, 3, 1, "AGA-3 1992", "Only two Runs can be configured"},
    {16, 3, 1, "AGA-7",      nullptr},
    {17, 2, 1, nullptr,      nullptr},
    {6,  3, 1, "AGA-7",      "Only one Run can be configured"},
    {5,  3, 1, nullptr,      nullptr},
    {6,  2, 1, nullptr,      nullptr},
    {6,  3, 0, nullptr,      nullptr},
};
// clang-format on

TEST_F(ConfigWiard, goes_by_the_last_register_of_each_kind) {
    for (const auto& row : carried) {
        SCOPED_TRACE(std::to_string(row.Floats) + " " + std::to_string(row.Digitals) + " " +
                     std::to_string(row.Longs));
        World world;
        world.AddStation("Edge", TagsLeaving(row.Floats, row.Digitals, row.Longs));
        world.TheStory.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\Edge")
            .Menu("GFCPrincipal", "ConfigWiard")
            .Box("Flow Gas Computer", question, ui::Icon::None, ui::Answer::Yes);
        if (row.MaximumRuns != nullptr)
            world.TheStory.Box("Gas Flow Computer", row.MaximumRuns, ui::Icon::Information);
        if (row.Standard == nullptr)
            world.TheStory.Box("Error: Configuring AGA3", {}, ui::Icon::Exclamation)
                .Box("Error: Configuring AGA7", {}, ui::Icon::Exclamation);
        else
            world.TheStory.SeeShown("SelectRuns").Check([&](Driver&) {
                EXPECT_EQ(world.Program.Forms.Get<WizardFC>().general.CombStandard.Text(), row.Standard);
                world.Screen.EndProgram(0);
            });
        world.Program.Forms.Get<GFCPrincipal>().Show();
        world.Screen.RunToEnd();
    }
}

TEST_F(ConfigWiard, says_twice_what_a_station_lacks_that_carries_neither) {
    Choose("Small");
    Answer(ui::Answer::Yes);
    ExpectShortage(1);
    Play();
    ExpectCleared();
    EXPECT_FALSE(Program.Forms.IsLoaded<WizardFC>());
}

TEST_F(ConfigWiard, says_what_one_run_needs_where_working_modules_are_missing) {
    Choose("NoModules");
    Answer(ui::Answer::Yes);
    ExpectShortage(1);
    Play();
    ExpectCleared();
}

TEST_F(ConfigWiard, tells_a_station_without_tags_first) {
    Choose("Bare");
    Answer(ui::Answer::Yes);
    TheStory.Box("Flow Gas Computer", "Error: There are not Tags in Station", ui::Icon::Critical);
    ExpectShortage(1);
    Play();
    ExpectCleared();
}

TEST_F(ConfigWiard, ends_in_a_rebuilt_tree) {
    Choose("Large");
    Answer(ui::Answer::Yes);
    TheStory.Do("configure the station meanwhile",
                [this](Driver&) { Files.Content["/jobs/KDOrmAGA_plant_Large.ini"] = {}; });
    CancelSelection();
    TheStory.Check([this](Driver& d) {
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", "All Stations\\Large"), "StationConfig");
        EXPECT_TRUE(Window().ListView1.Shown());
        EXPECT_EQ(Window().ListView1.Cell(1, 1), "Yes");
        EXPECT_EQ(Window().ListView1.Count(), 5);
        for (const ui::Control* pane : std::initializer_list<ui::Control*>{
                 &Window().ListView2, &Window().ListView3, &Window().SSTab1, &Window().SSTab2})
            EXPECT_FALSE(pane->Visible()) << pane->Name();
    });
    Play();
}

TEST_F(ConfigWiard, presets_the_wizard_of_the_station_at_hand) {
    Choose("Large");
    Answer(ui::Answer::Yes);
    CancelSelection();
    Choose("Turbine");
    Answer(ui::Answer::Yes);
    TheStory.Box("Gas Flow Computer", "Only one Run can be configured", ui::Icon::Information);
    TheStory.Check([this](Driver&) {
        const auto& wizard = Program.Forms.Get<WizardFC>();
        EXPECT_EQ(wizard.Caption(), "Gas Flow Computer Wizard     Station Name : Turbine");
        EXPECT_EQ(wizard.modules.Combo3.Entries(), Names{"VF0"});
    });
    CancelSelection();
    Play();
}

} // namespace

} // namespace gfc::test
