#include "ConfiguradorWorld.h"
#include "support/Named.h"

namespace gfc::test {
namespace {

using Texts = std::vector<std::string>;

// Units.

class ConfiguradorUnitSystem : public testing::TestWithParam<std::tuple<int, Texts>> {};

TEST_P(ConfiguradorUnitSystem, bring_captions_and_without_a_file_the_standard_conditions) {
    const auto& [index, shown] = GetParam();
    ConfiguradorWorld world;
    auto& form = world.Preset();
    form.general.CombUnits.SetListIndex(index == 0 ? 1 : 0);
    form.general.CombUnits.SetListIndex(index);
    EXPECT_EQ(form.Text1.Text(), shown[0]);
    EXPECT_EQ(form.Text2.Text(), shown[1]);
    EXPECT_EQ(form.unitStandardTemp.Caption(), shown[2]);
    EXPECT_EQ(form.unitStandardP.Caption(), shown[3]);
    EXPECT_EQ(form.pressure.unitAtmPress.Caption(), shown[4]);
    EXPECT_EQ(form.Label25.Caption(), shown[5]);
    EXPECT_EQ(form.pressure.txtAtmPress.Text(), "14.695949"); // deliberately not changed with the units
    EXPECT_EQ(form.Text4.Text(), "0.010268");
    EXPECT_EQ(world.Station.SystemUnits, form.general.CombUnits.Text());
}

INSTANTIATE_TEST_SUITE_P(
    Systems, ConfiguradorUnitSystem,
    testing::Values(std::tuple{0, Texts{"60.00", "14.73", "\u00BAF", "psia", "psi", "cP"}},
                    std::tuple{1, Texts{"15.5556", "14.73", "\u00BAC", "psia", "psi", "cP"}},
                    std::tuple{2, Texts{"15.00", "1.01325", "\u00BAC", "bar", "bar", "cP"}},
                    std::tuple{3, Texts{"59.00", "1.01325", "\u00BAF", "bar", "bar", "cP"}},
                    std::tuple{4, Texts{"20.00", "0.101325", "\u00BAC", "MPa", "MPa", "mPa-s"}}),
    By([](const auto& row) { return StoredOf(config::UnitSystems, std::get<0>(row)); }));

const std::string unitsWarning = "Warning: When changing the system units, please make sure to convert any "
                                 "previously configured parameter "
                                 "values for temperatures, pressures and lengths to the new system units, so "
                                 "that the Orm Gas Flow Computer "
                                 "can continue to work correctly.";

TEST(ConfiguradorUnits, a_change_of_stored_units_warns_and_keeps_the_numbers) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    world.TheStory.Menu(Configurator, "PG")
        .SelectTab(Configurator, "SSTab2", 1)
        .Type(Configurator, "Text1_1", "70")
        .SelectTab(Configurator, "SSTab2", 0)
        .Select(Configurator, "CombUnits", 2)
        .Box("System Units change...", unitsWarning, ui::Icon::Information)
        .SelectTab(Configurator, "SSTab2", 1)
        .SeeText(Configurator, "Text1_1", "70")
        .SeeText(Configurator, "Text2_1", "14.73")
        .SeeText(Configurator, "unitStandardP", "bar")
        .SelectTab(Configurator, "SSTab2", 0)
        .Select(Configurator, "CombUnits", 0); // those of the file: nothing to warn of
    world.PlayAndCancel();
}

TEST(ConfiguradorUnits, a_new_configuration_is_never_warned) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll").Select(Configurator, "CombUnits", 2);
    world.PlayAndCancel();
}

TEST(ConfiguradorUnits, opening_on_stored_units_warns_of_nothing) {
    ConfiguradorWorld world(With(WizardFile("aga3_densimeter"), "SystemUnits=US", "SystemUnits=Metric"));
    world.TheStory.Menu(Configurator, "PG").SeeText(Configurator, "CombUnits", "Metric");
    world.PlayAndCancel();
}

TEST(ConfiguradorUnits, an_unknown_stored_system_warns_once_a_person_chooses) {
    ConfiguradorWorld world(With(WizardFile("aga3_densimeter"), "SystemUnits=US", "SystemUnits=Cubits"));
    world.TheStory.Menu(Configurator, "PG")
        .SeeText(Configurator, "CombUnits", "Practical-SI")
        .Select(Configurator, "CombUnits", 4)
        .Box("System Units change...", unitsWarning, ui::Icon::Information);
    world.PlayAndCancel();
}

// Pressure, traces and the entries.

TEST(ConfiguradorPressure, follows_its_options) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll")
        .SelectTab(Configurator, "SSTab2", 1)
        .Click(Configurator, "OptGagePress");
    world.SeeAll({"OptAtmPressFixed", "OptAtmPressExt", "LbAtmPress", "txtAtmPress", "unitAtmPress"}, true);
    world.SeeAll({"btExtAtmChange", "AtmExtName"}, false);
    world.TheStory.Click(Configurator, "OptAtmPressExt");
    world.SeeAll({"LbAtmPress", "txtAtmPress", "unitAtmPress"}, false);
    world.SeeAll({"FrameExtAtmPress", "btExtAtmChange", "AtmExtName", "AtmExtType", "AtmExtAddr"}, true);
    world.TheStory.Click(Configurator, "OptAbsPress");
    world.SeeAll({"OptAtmPressFixed", "OptAtmPressExt", "txtAtmPress", "btExtAtmChange"}, false);
    world.TheStory.Click(Configurator, "OptGagePress");
    world.SeeAll({"txtAtmPress"}, false); // still from outside
    world.SeeAll({"btExtAtmChange"}, true);
    world.TheStory.Click(Configurator, "OptAtmPressFixed");
    world.SeeAll({"LbAtmPress", "txtAtmPress", "unitAtmPress"}, true);
    world.SeeAll({"FrameExtAtmPress", "btExtAtmChange", "AtmExtName", "AtmExtType", "AtmExtAddr"}, false);
    world.PlayAndCancel();
}

TEST(ConfiguradorTraces, follow_their_box) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll")
        .SelectTab(Configurator, "SSTab2", 1)
        .Click(Configurator, "Check1");
    world.SeeAll({"LabelDevice", "Text8", "LabelNumTrace", "Text9"}, true);
    world.TheStory.Click(Configurator, "Check1");
    world.SeeAll({"LabelDevice", "Text8", "LabelNumTrace", "Text9"}, false);
    world.PlayAndCancel();
}

TEST(ConfiguradorEntries, take_the_keys_that_belong_to_them) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll").SelectTab(Configurator, "SSTab2", 1);
    for (const char* field : {"Text1_1", "Text3_1", "Text4_1"})
        world.TheStory.Type(Configurator, field, "1a.2-").SeeText(Configurator, field, "1.2");
    // Deliberately not filtered.
    world.TheStory.Type(Configurator, "Text2_1", "1a").SeeText(Configurator, "Text2_1", "1a");
    world.TheStory.Click(Configurator, "OptGagePress")
        .Type(Configurator, "txtAtmPress", "1x.2.3")
        .SeeText(Configurator, "txtAtmPress", "1.2.3")
        .Click(Configurator, "Check1") // the atmospheric pressure is left unchecked
        .Type(Configurator, "Text9", "1e3")
        .SeeText(Configurator, "Text9", "13");
    world.PlayAndCancel();
}

const std::string format = "Error: Data format should be as follows:\r\r.####\r#.####\r##.####\r###.####";

TEST(ConfiguradorEntries, are_held_to_their_shape_when_left) {
    for (const char* field : {"Text1_1", "Text2_1", "Text3_1", "Text4_1"}) {
        ConfiguradorWorld world;
        world.Preset();
        world.TheStory.Menu(Configurator, "ConfigAll")
            .SelectTab(Configurator, "SSTab2", 1)
            .Type(Configurator, field, "1.2.3")
            .Focus(Configurator, "OptComprensible")
            .Box("Incorrect value", format, ui::Icon::Exclamation)
            .Check([field](Driver& d) { EXPECT_EQ(d.Focused(Configurator), field); });
        world.PlayAndCancel();
    }
}

TEST(ConfiguradorEntries, cannot_be_saved_out_of_shape_by_way_of_the_menu) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter"));
    const std::string before = world.File();
    world.TheStory.Menu(Configurator, "PG")
        .SelectTab(Configurator, "SSTab2", 1)
        .Type(Configurator, "Text1_1", "1.2.3")
        .Menu(Configurator, "SalvarSalir2")
        .Box("Incorrect value", format, ui::Icon::Exclamation)
        .SeeShown(Configurator);
    world.PlayAndCancel();
    EXPECT_EQ(world.File(), before);
}

} // namespace
} // namespace gfc::test
