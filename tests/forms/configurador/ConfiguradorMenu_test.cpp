#include "ConfiguradorWorld.h"
#include "forms/main_window/GFCPrincipal.h"

namespace gfc::test {
namespace {

using Texts = std::vector<std::string>;

const Texts runBoxes = {"Run11", "Run22", "Run33", "Run44", "Run55"};

TEST(ConfiguradorMenu, entries_bear_their_captions) {
    ConfiguradorWorld world;
    auto& form = world.Form();
    EXPECT_EQ(form.ConfigAll.Caption(), "All Station");
    EXPECT_EQ(form.PG.Caption(), "Common Parameters");
    EXPECT_EQ(form.tg.Caption(), "I/O  Tag Assignments");
    EXPECT_EQ(form.SalvarSalir.Caption(), "Save and Exit");
    EXPECT_EQ(form.SalvarSalir2.Caption(), "Save and Exit");
    EXPECT_EQ(form.Salir2.Caption(), "Cancel");
    EXPECT_EQ(form.HelpConfigPar.Caption(), "Help");
    EXPECT_EQ(form.conver.Caption(), "Conversion Unidades");
}

TEST(ConfiguradorMenu, two_entries_do_nothing) {
    ConfiguradorWorld world;
    auto& form = world.Form();
    EXPECT_FALSE(form.util.Enabled());
    EXPECT_FALSE(form.util.OnClick);
    EXPECT_FALSE(form.conver.OnClick);
}

TEST(ConfiguradorMenu, tabs_are_closed_until_an_entry_is_chosen) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.TheStory.SeeEnabled(Configurator, "SSTab2", false)
        .SeeVisible(Configurator, "SalvarSalir")
        .SeeVisible(Configurator, "SalvarSalir2", false)
        .SeeEnabled(Configurator, "Config");
    world.PlayAndCancel();
}

TEST(ConfiguradorMenu, common_parameters_close_what_belongs_to_the_runs) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.TheStory.Menu(Configurator, "PG")
        .SeeVisible(Configurator, "SalvarSalir", false)
        .SeeVisible(Configurator, "SalvarSalir2")
        .SeeEnabled(Configurator, "SalvarSalir2")
        .SeeEnabled(Configurator, "SSTab2")
        .SeeEnabled(Configurator, "Config", false);
    world.SeeAll({"Option16", "Option5", "Option6", "Command1", "cbSourceGas", "CombStandard"}, false);
    world.SeeAll(runBoxes, false);
    world.SeeAll({"CombUnits", "Combo1", "Combo2", "Combo3"}, true);
    world.PlayAndCancel();
}

TEST(ConfiguradorMenu, tag_assignments_warn_and_owe_tags) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.TheStory.Menu(Configurator, "tg")
        .Box("Orm Gas Flow Computer",
             "Warning: I/O assingnments already configured. Any changes will overwrite the current "
             "configuration...",
             ui::Icon::Information)
        .SeeVisible(Configurator, "SalvarSalir")
        .SeeEnabled(Configurator, "SalvarSalir")
        .SeeVisible(Configurator, "SalvarSalir2", false)
        .SeeEnabled(Configurator, "SalvarSalir2", false)
        .SeeEnabled(Configurator, "SSTab2")
        .SeeEnabled(Configurator, "Config", false)
        .Check([&](Driver&) {
            EXPECT_TRUE(world.Session.Cancelled);
            EXPECT_EQ(world.Station.ActiveRunCount, 1);
        })
        .SelectTab(Configurator, "SSTab2", 2)
        .Menu(Configurator, "SalvarSalir")
        .Box("I/O Tag assignments configuration...",
             "There are some items that do not have tags assigned.\r\n"
             "Please configure I/O assignmemts before exiting the current configuration",
             ui::Icon::Exclamation)
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Configurator, "SSTab2"), 3); });
    world.PlayAndCancel();
}

TEST(ConfiguradorMenu, all_station_counts_no_run) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll")
        .SeeEnabled(Configurator, "Command1")
        .SeeVisible(Configurator, "SalvarSalir")
        .SeeEnabled(Configurator, "SSTab2")
        .SeeEnabled(Configurator, "Config", false)
        .Check([&](Driver&) { EXPECT_EQ(world.Station.ActiveRunCount, 0); })
        .SelectTab(Configurator, "SSTab2", 2)
        .SelectTab(Configurator, "SSTab2", 0)
        .Click(Configurator, "Command1")
        .Box("Run configuration...", "Error : please select at least one run", ui::Icon::Exclamation)
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Configurator, "SSTab2"), 0); });
    world.PlayAndCancel();
}

TEST(ConfiguradorMenu, cancel_answered_no_leaves_everything) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    const std::string before = world.File();
    world.TheStory.Menu(Configurator, "PG")
        .SelectTab(Configurator, "SSTab2", 1)
        .Type(Configurator, "Text1_1", "70")
        .Menu(Configurator, "Salir2")
        .Box("Orm Gas Flow Computer",
             "Do you want to cancel and discard any changes made to the current configuration?",
             ui::Icon::None, ui::Answer::No)
        .SeeText(Configurator, "Text1_1", "70");
    world.PlayAndCancel();
    EXPECT_EQ(world.File(), before);
    EXPECT_FALSE(world.Session.TreeRefreshNeeded);
}

TEST(ConfiguradorMenu, help_opens_the_topic_of_the_tab) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "HelpConfigPar").Menu(Configurator, "ConfigAll");
    for (const int tab : {1, 2, 3})
        world.TheStory.SelectTab(Configurator, "SSTab2", tab).PressKey(Configurator, "F1");
    world.PlayAndCancel();
    const std::vector<std::pair<std::string, int>> topics = {
        {"AGA.chm", 1000}, {"AGA.chm", 1100}, {"AGA.chm", 1200}, {"AGA.chm", 1300}};
    EXPECT_EQ(world.Screen.HelpOpened, topics);
}

TEST(ConfiguradorMenu, the_windows_own_close_command_asks_as_cancel_does) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    const std::string before = world.File();
    auto& main = world.Program.Forms.Get<forms::GFCPrincipal>();
    main.Show();
    main.Hide();
    const std::string question =
        "Do you want to cancel and discard any changes made to the current configuration?";
    world.TheStory.CloseWindow(Configurator)
        .Box("Orm Gas Flow Computer", question, ui::Icon::None, ui::Answer::No)
        .SeeShown(Configurator)
        .CloseWindow(Configurator)
        .Box("Orm Gas Flow Computer", question, ui::Icon::None, ui::Answer::Yes)
        .SeeShown(Configurator, false)
        .SeeShown("GFCPrincipal");
    world.Show();
    EXPECT_EQ(world.Screen.BoxesShown.back().AtStake, "North");
    EXPECT_EQ(world.File(), before);
    EXPECT_EQ(world.Session.Modules.NFX, 0);
    EXPECT_EQ(world.Session.EditMode, forms::EditMode::None);
}

} // namespace
} // namespace gfc::test
