#include "ConfiguradorPassWorld.h"

namespace gfc::test {
namespace {

// The tag of the common pressure by its own button.

struct CommonPressure : ConfiguradorWorld {
    CommonPressure() : ConfiguradorWorld(WizardFile("aga3_densimeter_external")) {
        TheStory.Menu(Configurator, "PG").SelectTab(Configurator, "SSTab2", 3);
    }
    void OpenTags() {
        TheStory.Click(Configurator, "btExtAtmChange")
            .SeeText("Step", "Label1",
                     "Press 'Continue' to configure common Atmospheric Pressure I/O assignment")
            .Click("Step", "Command1")
            .SeeCaption("TagRuns", "Configuring input I/O assignments common to all Runs...");
    }
    void Rebind(int row) {
        TheStory.ClickNode("TagRuns", "TreeAGA", "Common Inputs\\Atmospheric Pressure")
            .Click("TagRuns", "Command4")
            .ClickRow("TagRuns", "ListViewRuns", row)
            .Click("TagRuns", "Command1")
            .Click("TagRuns", "Command5");
    }
};

TEST(ConfiguradorCommonPressure, takes_another_tag) {
    CommonPressure world;
    world.OpenTags();
    world.Rebind(3);
    world.TheStory.SeeText(Configurator, "AtmExtName", "Name: FT-20")
        .SeeText(Configurator, "AtmExtType", " Type: FX")
        .SeeText(Configurator, "AtmExtAddr", " Addr: 1020")
        .SeeVisible(Configurator, "SalvarSalir2")
        .SeeVisible(Configurator, "SalvarSalir", false);
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_TRUE(Holds(world.File(), "CommonPaKDIOTag=FT-20\n"));
    EXPECT_TRUE(Holds(world.File(), "\nPaKDIORegAddr=1020\n"));
}

// Neither what the runs of the file are bound to, nor what the pressure is bound to by now; the tag that it
// had in the file may be taken again.
TEST(ConfiguradorCommonPressure, is_offered_no_tag_that_is_in_use) {
    CommonPressure world;
    world.OpenTags();
    world.TheStory.Check([](Driver& d) { EXPECT_EQ(d.Cell("TagRuns", "ListViewRuns", 1, 1), "FT-18"); });
    world.Rebind(3);
    world.OpenTags();
    world.TheStory
        .Check([](Driver& d) {
            EXPECT_EQ(d.Cell("TagRuns", "ListViewRuns", 1, 1), "FT-1");
            EXPECT_EQ(d.Cell("TagRuns", "ListViewRuns", 3, 1), "FT-19");
            EXPECT_EQ(d.Cell("TagRuns", "ListViewRuns", 4, 1), "FT-21");
        })
        .Click("TagRuns", "Command5");
    world.PlayAndCancel();
}

TEST(ConfiguradorCommonPressure, a_cancel_keeps_the_tag_and_the_way_to_the_save) {
    CommonPressure world;
    const std::string before = world.File();
    world.OpenTags();
    world.TheStory.Click("TagRuns", "Command2")
        .Box("Gas Flow Computer", "", ui::Icon::Question, ui::Answer::Yes)
        .SeeShown(Configurator)
        .SeeText(Configurator, "AtmExtName", "Name: FT-1");
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_EQ(world.File(), With(before, "WrkAnalogModName", "WrkAnalogModNAme"));
}

TEST(ConfiguradorCommonPressure, settles_the_tags_that_a_stored_configuration_owed) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter_external"));
    world.TheStory.Menu(Configurator, "tg")
        .Box("Orm Gas Flow Computer", "", ui::Icon::Information)
        .SelectTab(Configurator, "SSTab2", 3)
        .Click(Configurator, "btExtAtmChange")
        .Click("Step", "Command1")
        .Click("TagRuns", "Command5")
        .SeeVisible(Configurator, "SalvarSalir2");
    world.ThenSave("SalvarSalir2");
    world.Show();
}

TEST(ConfiguradorCommonPressure, leaves_what_the_pass_has_bound) {
    PassOfConfigurador world({0, 0, false, true, {2, 5}});
    world.AllRuns();
    world.TheStory.SelectTab(Configurator, "SSTab2", 3)
        .Click(Configurator, "btExtAtmChange")
        .Click("Step", "Command1")
        .Check([](Driver& d) { EXPECT_EQ(d.Cell("TagRuns", "ListViewRuns", 1, 1), "FT-18"); })
        .Click("TagRuns", "Command5");
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_EQ(world.File(), WizardFile("aga3_densimeter_external"));
}

} // namespace
} // namespace gfc::test
