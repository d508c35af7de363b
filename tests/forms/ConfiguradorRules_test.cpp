#include "ConfiguradorWorld.h"

namespace gfc::test {
namespace {

using Texts = std::vector<std::string>;

const Texts pressureFrames = {"FrameAtmPress", "FrameType", "FrameAtmPressSource_1", "OptAbsPress",
                              "OptGagePress"};
const Texts pressureGroup = {"FrameAtmPress",  "FrameType",      "FrameAtmPressSource_1",
                             "OptAbsPress",    "OptGagePress",   "LbAtmPress",
                             "txtAtmPress",    "unitAtmPress",   "OptAtmPressFixed",
                             "OptAtmPressExt", "AtmExtName",     "AtmExtType",
                             "AtmExtAddr",     "btExtAtmChange", "FrameExtAtmPress"};

bool Enabled(forms::Configurador& form, const std::string& control) {
    const ui::Control* found = form.Find(control);
    EXPECT_NE(found, nullptr) << control;
    return found != nullptr && found->Enabled();
}

void ExpectEnabled(forms::Configurador& form, const Texts& controls, bool enabled) {
    for (const auto& control : controls)
        EXPECT_EQ(Enabled(form, control), enabled) << control;
}

// Standard.

TEST(ConfiguradorStandard, a_click_resets_the_pressure_to_absolute_whatever_the_file_says) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter_external"));
    ASSERT_TRUE(world.Form().OptGagePress.Value());
    world.Form().CombStandard.SetListIndex(3);
    EXPECT_TRUE(world.Form().OptAbsPress.Value());
    ExpectEnabled(world.Form(), pressureFrames, true);
}

TEST(ConfiguradorStandard, touches_neither_units_nor_values) {
    ConfiguradorWorld world;
    auto& form = world.Preset();
    form.Text1.SetText("70");
    form.CombStandard.SetListIndex(3);
    EXPECT_EQ(form.CombUnits.Text(), "US");
    EXPECT_EQ(form.Text1.Text(), "70");
    EXPECT_EQ(form.Text3.Text(), "1.3");
    EXPECT_EQ(form.Text4.Text(), "0.010268");
}

TEST(ConfiguradorStandard, aga7_with_a_densimeter_has_no_pressure_at_all) {
    ConfiguradorWorld world;
    auto& form = world.Preset();
    form.OptGagePress.SetValue(true);
    form.CombStandard.SetListIndex(1);
    EXPECT_TRUE(world.Station.FlagAGA7);
    EXPECT_TRUE(form.OptAbsPress.Value());
    ExpectEnabled(form, pressureGroup, false);
}

TEST(ConfiguradorStandard, aga7_with_a_gas_model_keeps_the_pressure) {
    ConfiguradorWorld world;
    auto& form = world.Preset(0, 1);
    form.OptGagePress.SetValue(true);
    form.CombStandard.SetListIndex(1);
    EXPECT_TRUE(form.OptGagePress.Value());
    ExpectEnabled(form, pressureFrames, true);
}

TEST(ConfiguradorStandard, leaving_aga7_gives_the_pressure_back) {
    ConfiguradorWorld world;
    auto& form = world.Preset(1);
    form.CombStandard.SetListIndex(2);
    EXPECT_FALSE(world.Station.FlagAGA7);
    ExpectEnabled(form, pressureFrames, true);
    form.OptGagePress.SetValue(true);
    ExpectEnabled(form, {"txtAtmPress", "OptAtmPressFixed", "OptAtmPressExt"}, true);
}

TEST(ConfiguradorStandard, viscosity_follows_the_list_click_until_the_tab_is_entered) {
    ConfiguradorWorld world;
    auto& form = world.Preset(1);
    // Deliberately enabled under AGA-7, and under Accelabar not.
    ExpectEnabled(form, {"Text4_1"}, true);
    ExpectEnabled(form, {"Text3_1", "LbIsentropic", "LbViscosity", "Label25"}, false);
    form.SSTab2.SetTab(1);
    ExpectEnabled(form, {"Text3_1", "Text4_1"}, false);
    form.SSTab2.SetTab(0);
    form.CombStandard.SetListIndex(2);
    ExpectEnabled(form, {"Text4_1"}, false);
    ExpectEnabled(form, {"Text3_1", "LbIsentropic", "LbViscosity", "Label25"}, true);
    form.SSTab2.SetTab(1);
    ExpectEnabled(form, {"Text4_1"}, false);
    ExpectEnabled(form, {"Text3_1"}, true);
    form.CombStandard.SetListIndex(0);
    form.SSTab2.SetTab(2);
    form.SSTab2.SetTab(1);
    ExpectEnabled(form, {"Text3_1", "Text4_1"}, true);
}

TEST(ConfiguradorStandard, viscosity_under_aga7_as_a_person_meets_it) {
    ConfiguradorWorld world;
    world.Preset();
    world.TheStory.Menu(Configurator, "ConfigAll")
        .Select(Configurator, "CombStandard", 1)
        .SeeEnabled(Configurator, "Text4_1")
        .SelectTab(Configurator, "SSTab2", 1)
        .SeeEnabled(Configurator, "Text4_1", false);
    world.PlayAndCancel();
}

// Source.

TEST(ConfiguradorSource, no_run_ticked_goes_back_to_the_densimeter) {
    for (const int source : {1, 2}) {
        ConfiguradorWorld world;
        world.Preset();
        world.TheStory.Menu(Configurator, "ConfigAll")
            .Select(Configurator, "cbSourceGas", source)
            .Box("Orm Gas Flow Computer Configurator", "Error: please select at least one run",
                 ui::Icon::Exclamation)
            .SeeText(Configurator, "cbSourceGas", "Densimeter");
        world.PlayAndCancel();
    }
}

TEST(ConfiguradorSource, iso_sources_go_untested) {
    for (const int source : {3, 4}) {
        ConfiguradorWorld world(TagsOf({0, 0, 0, 0}));
        auto& form = world.Form();
        world.Station.ActiveRunCount = 5;
        form.cbSourceGas.SetListIndex(source);
        EXPECT_EQ(form.cbSourceGas.ListIndex(), source);
        EXPECT_TRUE(world.Screen.BoxesShown.empty());
    }
}

TEST(ConfiguradorSource, a_gas_model_starts_with_a_manual_composition) {
    ConfiguradorWorld world;
    auto& form = world.Preset();
    form.Option5.SetValue(true);
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&form.Option5, &form.Option6, &form.Option16})
        control->SetEnabled(false);
    form.cbSourceGas.SetListIndex(2);
    EXPECT_TRUE(form.Option6.Value());
    EXPECT_TRUE(form.Option16.Value());
    ExpectEnabled(form, {"Option5", "Option6", "Option16"}, true);
}

TEST(ConfiguradorSource, a_gas_model_gives_aga7_its_pressure_back) {
    ConfiguradorWorld world;
    auto& form = world.Preset(1);
    form.cbSourceGas.SetListIndex(1);
    EXPECT_TRUE(form.OptAbsPress.Value());
    ExpectEnabled(form, pressureFrames, true);
    form.cbSourceGas.SetListIndex(0);
    ExpectEnabled(form, pressureGroup, false);
}

// Units.

class ConfiguradorUnitSystem : public testing::TestWithParam<std::tuple<int, Texts>> {};

TEST_P(ConfiguradorUnitSystem, bring_captions_and_without_a_file_the_standard_conditions) {
    const auto& [index, shown] = GetParam();
    ConfiguradorWorld world;
    auto& form = world.Preset();
    form.CombUnits.SetListIndex(index == 0 ? 1 : 0);
    form.CombUnits.SetListIndex(index);
    EXPECT_EQ(form.Text1.Text(), shown[0]);
    EXPECT_EQ(form.Text2.Text(), shown[1]);
    EXPECT_EQ(form.unitStandardTemp.Caption(), shown[2]);
    EXPECT_EQ(form.unitStandardP.Caption(), shown[3]);
    EXPECT_EQ(form.unitAtmPress.Caption(), shown[4]);
    EXPECT_EQ(form.Label25.Caption(), shown[5]);
    EXPECT_EQ(form.txtAtmPress.Text(), "14.695949"); // deliberately not changed with the units
    EXPECT_EQ(form.Text4.Text(), "0.010268");
    EXPECT_EQ(world.Station.SystemUnits, form.CombUnits.Text());
}

INSTANTIATE_TEST_SUITE_P(
    Systems, ConfiguradorUnitSystem,
    testing::Values(std::tuple{0, Texts{"60.00", "14.73", "\u00BAF", "psia", "psi", "cP"}},
                    std::tuple{1, Texts{"15.5556", "14.73", "\u00BAC", "psia", "psi", "cP"}},
                    std::tuple{2, Texts{"15.00", "1.01325", "\u00BAC", "bar", "bar", "cP"}},
                    std::tuple{3, Texts{"59.00", "1.01325", "\u00BAF", "bar", "bar", "cP"}},
                    std::tuple{4, Texts{"20.00", "0.101325", "\u00BAC", "MPa", "MPa", "mPa-s"}}));

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
