#include "ConfiguradorWorld.h"
#include "support/Named.h"

namespace gfc::test {
namespace {

void ExpectMissing(ConfiguradorWorld& world, const std::string& entry) {
    world.TheStory.Menu(Configurator, entry)
        .Box("Missing Parameters...", "Can`t continue, some parameters have not been configured",
             ui::Icon::Exclamation)
        .SeeShown(Configurator);
}

// Deliberately: of a stored configuration only the other entry writes.
TEST(ConfiguradorSave, after_all_station_writes_nothing_of_a_stored_configuration) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    const std::string before = world.File();
    world.TheStory.Menu(Configurator, "ConfigAll")
        .SelectTab(Configurator, "SSTab2", 1)
        .Type(Configurator, "Text1_1", "61");
    world.ThenSave("SalvarSalir");
    world.Show();
    EXPECT_EQ(world.File(), before);
}

class ConfiguradorMissing : public testing::TestWithParam<const char*> {};

TEST_P(ConfiguradorMissing, is_not_saved) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.TheStory.Menu(Configurator, "PG")
        .SelectTab(Configurator, "SSTab2", 1)
        .Type(Configurator, GetParam(), "");
    ExpectMissing(world, "SalvarSalir2");
    world.PlayAndCancel();
}

INSTANTIATE_TEST_SUITE_P(Entries, ConfiguradorMissing,
                         testing::Values("Text1_1", "Text2_1", "Text3_1", "Text4_1"), byText);

TEST(ConfiguradorSave, aga7_needs_neither_viscosity_nor_isentropic_coefficient) {
    ConfiguradorWorld world(WizardFile("aga7_densimeter"));
    world.TheStory.Menu(Configurator, "PG")
        .SelectTab(Configurator, "SSTab2", 1)
        .Type(Configurator, "Text2_1", "");
    ExpectMissing(world, "SalvarSalir2");
    world.TheStory.Type(Configurator, "Text2_1", "14.7");
    world.ThenSave("SalvarSalir2");
    world.Show();
}

TEST(ConfiguradorSave, an_external_pressure_needs_its_tag) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.TheStory.Menu(Configurator, "PG")
        .SelectTab(Configurator, "SSTab2", 1)
        .Click(Configurator, "OptGagePress")
        .Click(Configurator, "OptAtmPressExt");
    ExpectMissing(world, "SalvarSalir2");
    // Chosen, but not in use.
    world.TheStory.Click(Configurator, "OptAbsPress");
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_TRUE(Holds(world.File(), "PressType=Absolute\nExtAtmPress=No\n"));
}

TEST(ConfiguradorSave, a_new_configuration_needs_a_run) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll");
    ExpectMissing(world, "SalvarSalir");
    world.PlayAndCancel();
    EXPECT_FALSE(world.HasFile());
}

TEST(ConfiguradorSave, a_new_configuration_needs_its_tags) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll")
        .Click(Configurator, "Run11")
        .Menu(Configurator, "SalvarSalir")
        .Box("I/O Tag assignments configuration...", "", ui::Icon::Exclamation)
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Configurator, "SSTab2"), 3); });
    world.PlayAndCancel();
    EXPECT_FALSE(world.HasFile());
}

} // namespace
} // namespace gfc::test
