#include "ConfiguradorWorld.h"
#include "forms/main_window/GFCPrincipal.h"
#include "forms/station/StationCommands.h"
#include "project/Requirements.h"

namespace gfc::test {
namespace {

const std::string window = "GFCPrincipal";
const std::string modify = "FrModificarTags";

// 8 free floats and 5 free longs: too few for AGA-3, enough for one run of AGA-7.
project::TagList TurbineTags() {
    project::TagList tags = LargeStationTags(8);
    std::erase_if(tags, [](const project::Tag& tag) { return tag.ModuleName == "VL1" && tag.RegAddr > 105; });
    return tags;
}

struct ConfigureCommand : testing::Test, World {
    ConfigureCommand() {
        AddStation("North", LargeStationTags());
        AddStation("Turbine", TurbineTags());
        AddStation("Small", LargeStationTags(5));
        AddStation("NoModules", TagsInModule("DI", "Physical DI", "X", "XS-", 3));
    }
    std::string& File(const std::string& station) {
        return Files.Content["/jobs/KDOrmAGA_plant_" + station + ".ini"];
    }
    void Configure(const std::string& node) {
        TheStory.ClickNode(window, "TreeGFC", "All Stations\\" + node).Menu(window, "ConfigPar");
    }
    void CancelIt() {
        TheStory.Menu(Configurator, "Salir2")
            .Box("Orm Gas Flow Computer", "", ui::Icon::None, ui::Answer::Yes);
    }
    void Play() {
        Program.Forms.Get<forms::GFCPrincipal>().Show();
        Screen.RunToEnd();
    }
    void DeclineToConfigureTheRun() {
        TheStory.Box("Configure Run", "The selected run is not configured. Do you want to configure it?",
                     ui::Icon::Information, ui::Answer::No);
    }
    void ExpectCleared() {
        EXPECT_EQ(Station.CurrentStation, "");
        EXPECT_EQ(Session.SelectedNodeText, "");
        EXPECT_EQ(Station.ActiveRunCount, 0);
        EXPECT_FALSE(Program.Forms.IsLoaded<forms::Configurador>());
    }
    [[nodiscard]] bool WasRead() const {
        return std::any_of(Library.Calls.begin(), Library.Calls.end(),
                           [](const std::string& call) { return call.starts_with("ReadTags"); });
    }
};

TEST_F(ConfigureCommand, asks_for_one_station) {
    TheStory.Menu(window, "ConfigPar")
        .Box("Orm Gas Flow Computer", "Please select one Station.", ui::Icon::None)
        .ClickNode(window, "TreeGFC", "All Stations")
        .Menu(window, "ConfigPar")
        .Box("Orm Gas Flow Computer", "Please select one Station.", ui::Icon::None);
    Play();
    EXPECT_FALSE(WasRead());
}

TEST_F(ConfigureCommand, opens_a_stored_configuration_and_checks_its_tags) {
    File("North") = With(WizardFile("aga3_densimeter"), "Tag=FT-3", "Tag=Gone");
    Session.Cancelled = true; // left by an earlier dialog
    Configure("North");
    TheStory.SeeCaption(Configurator, "Parameter Configurator   Station : North").Check([this](Driver&) {
        EXPECT_FALSE(Session.Cancelled);
        EXPECT_EQ(Session.SelectedNodeText, "North");
        EXPECT_EQ(Program.Forms.Get<forms::Configurador>().caso, 1);
        const auto& floats = Session.Expected.ExpectedFloat;
        EXPECT_FALSE(floats.empty());
        EXPECT_TRUE(std::any_of(floats.begin(), floats.end(),
                                [](const auto& tag) { return tag.Tag == "Gone" && !tag.Found; }));
    });
    CancelIt();
    Play();
    EXPECT_EQ(Session.Modules.NFX, 0);
}

TEST_F(ConfigureCommand, opens_at_the_common_parameters_too) {
    File("North") = WizardFile("aga3_densimeter");
    Configure("North\\Common Parameters");
    TheStory.SeeCaption(Configurator, "Parameter Configurator   Station : North");
    CancelIt();
    Play();
}

TEST_F(ConfigureCommand, starts_a_new_configuration_on_the_first_standard) {
    Configure("North");
    TheStory.SeeText(Configurator, "CombStandard", "AGA-3 1992")
        .SeeText(Configurator, "cbSourceGas", "Densimeter")
        .Check([this](Driver&) {
            EXPECT_EQ(Program.Forms.Get<forms::Configurador>().caso, 3);
            EXPECT_FALSE(Station.FlagAGA7);
        });
    CancelIt();
    Play();
}

TEST_F(ConfigureCommand, starts_on_aga7_where_the_station_carries_that_alone) {
    Configure("Turbine");
    TheStory.Box("Gas Flow Computer", "Only one Run can be configured", ui::Icon::Information)
        .SeeText(Configurator, "CombStandard", "AGA-7")
        .SeeText(Configurator, "cbSourceGas", "Densimeter")
        .SeeEnabled(Configurator, "FrameAtmPress", false)
        .Check([this](Driver&) { EXPECT_TRUE(Station.FlagAGA7); });
    CancelIt();
    Play();
}

TEST_F(ConfigureCommand, says_nothing_of_the_number_of_runs_at_a_stored_configuration) {
    File("Turbine") = WizardFile("aga7_densimeter");
    Configure("Turbine");
    TheStory.SeeShown(Configurator);
    CancelIt();
    Play();
}

TEST_F(ConfigureCommand, says_once_what_a_station_lacks_that_carries_neither) {
    Configure("Small");
    TheStory.Box(ShortageOfAGA3, project::IOShortageText(project::ShortageKind::AGA3Family, 1),
                 ui::Icon::Exclamation);
    Play();
    ExpectCleared();
}

TEST_F(ConfigureCommand, says_once_what_is_missing_without_working_modules) {
    Configure("NoModules");
    TheStory.Box(ShortageOfAGA7, project::IOShortageText(project::ShortageKind::AGA7, 1),
                 ui::Icon::Exclamation);
    Play();
    ExpectCleared();
}

TEST_F(ConfigureCommand, means_enable_and_nothing_else_at_a_run_that_is_off) {
    File("North") = WizardFile("aga3_densimeter");
    Configure("North\\Individual Parameters\\Run 1");
    DeclineToConfigureTheRun();
    Play();
    EXPECT_EQ(Screen.FormsShown, std::vector<std::string>{window});
    EXPECT_EQ(Session.SelectedNodeText, "Run 1");
}

TEST_F(ConfigureCommand, a_run_is_off_by_the_exact_word_only) {
    File("North") = With(WizardFile("aga3_densimeter"), "Run1=No", "Run1=no");
    OpenProject();
    OpenStation("North");
    for (const char* node : {"Run 1", "Run 2", "North", "Individual Parameters", ""})
        EXPECT_FALSE(forms::ConfigureDisabledRun(Program, node)) << node;
}

TEST_F(ConfigureCommand, leads_to_the_tags_at_nodes_of_runs) {
    File("North") = WizardFile("aga3_densimeter");
    for (const char* node : {"Individual Parameters", "Individual Parameters\\Run 2"}) {
        Configure(std::string("North\\") + node);
        TheStory.SeeShown(modify).Click(modify, "Command2");
    }
    Play();
    EXPECT_FALSE(Program.Forms.IsLoaded<forms::Configurador>());
    EXPECT_EQ(Session.Modules.NFX, 0);
}

TEST_F(ConfigureCommand, finds_the_run_still_selected_after_an_edit) {
    File("North") = WizardFile("aga3_densimeter");
    const std::string title = "Change I/O Tags and Gas Composition   Station : North (Run 5)";
    Configure("North\\Individual Parameters\\Run 5");
    TheStory
        .SeeCaption(modify, title)
        // The tags were read and compared before.
        .Check([this](Driver&) {
            EXPECT_FALSE(Session.Inventory.VirtFX.empty());
            EXPECT_FALSE(Session.Expected.ExpectedFloat.empty());
        })
        .Click(modify, "Command2")
        .Check([this](Driver&) {
            EXPECT_EQ(Station.CurrentStation, "North");
            EXPECT_EQ(Session.SelectedNodeText, "Run 5");
        })
        .Menu(window, "ConfigPar")
        .SeeCaption(modify, title)
        .Click(modify, "Command2");
    Play();
}

TEST_F(ConfigureCommand, refuses_a_station_that_has_no_place_for_its_file) {
    AddStation("North/South", LargeStationTags());
    TheStory.ClickNode(window, "TreeGFC", "All Stations\\North/South")
        .Menu(window, "ConfigPar")
        .Box("Gas Flow Computer", "", ui::Icon::Exclamation);
    Play();
    EXPECT_FALSE(WasRead());
}

TEST_F(ConfigureCommand, ends_in_a_rebuilt_tree_with_the_station_still_selected) {
    File("North") = WizardFile("aga3_densimeter");
    Configure("North");
    TheStory.Menu(Configurator, "PG");
    TheStory.Menu(Configurator, "SalvarSalir2")
        .Box("Configuration Completed.", "", ui::Icon::None, ui::Answer::Yes)
        .Check([this](Driver& d) {
            EXPECT_EQ(d.NodeImage(window, "TreeGFC", "All Stations\\North"), "StationConfig");
            EXPECT_EQ(Station.CurrentStation, "North");
            EXPECT_FALSE(Session.TreeRefreshNeeded);
        })
        // Once more without a click on the tree.
        .Menu(window, "ConfigPar")
        .SeeCaption(Configurator, "Parameter Configurator   Station : North");
    CancelIt();
    Play();
}

} // namespace
} // namespace gfc::test
