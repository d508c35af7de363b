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
    ASSERT_TRUE(world.Form().pressure.OptGagePress.Value());
    world.Form().general.CombStandard.SetListIndex(3);
    EXPECT_TRUE(world.Form().pressure.OptAbsPress.Value());
    ExpectEnabled(world.Form(), pressureFrames, true);
}

TEST(ConfiguradorStandard, touches_neither_units_nor_values) {
    ConfiguradorWorld world;
    auto& form = world.Preset();
    form.Text1.SetText("70");
    form.general.CombStandard.SetListIndex(3);
    EXPECT_EQ(form.general.CombUnits.Text(), "US");
    EXPECT_EQ(form.Text1.Text(), "70");
    EXPECT_EQ(form.Text3.Text(), "1.3");
    EXPECT_EQ(form.Text4.Text(), "0.010268");
}

TEST(ConfiguradorStandard, aga7_with_a_densimeter_has_no_pressure_at_all) {
    ConfiguradorWorld world;
    auto& form = world.Preset();
    form.pressure.OptGagePress.SetValue(true);
    form.general.CombStandard.SetListIndex(1);
    EXPECT_TRUE(world.Station.FlagAGA7);
    EXPECT_TRUE(form.pressure.OptAbsPress.Value());
    ExpectEnabled(form, pressureGroup, false);
}

TEST(ConfiguradorStandard, aga7_with_a_gas_model_keeps_the_pressure) {
    ConfiguradorWorld world;
    auto& form = world.Preset(0, 1);
    form.pressure.OptGagePress.SetValue(true);
    form.general.CombStandard.SetListIndex(1);
    EXPECT_TRUE(form.pressure.OptGagePress.Value());
    ExpectEnabled(form, pressureFrames, true);
}

TEST(ConfiguradorStandard, leaving_aga7_gives_the_pressure_back) {
    ConfiguradorWorld world;
    auto& form = world.Preset(1);
    form.general.CombStandard.SetListIndex(2);
    EXPECT_FALSE(world.Station.FlagAGA7);
    ExpectEnabled(form, pressureFrames, true);
    form.pressure.OptGagePress.SetValue(true);
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
    form.general.CombStandard.SetListIndex(2);
    ExpectEnabled(form, {"Text4_1"}, false);
    ExpectEnabled(form, {"Text3_1", "LbIsentropic", "LbViscosity", "Label25"}, true);
    form.SSTab2.SetTab(1);
    ExpectEnabled(form, {"Text4_1"}, false);
    ExpectEnabled(form, {"Text3_1"}, true);
    form.general.CombStandard.SetListIndex(0);
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
        form.general.cbSourceGas.SetListIndex(source);
        EXPECT_EQ(form.general.cbSourceGas.ListIndex(), source);
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
    form.general.cbSourceGas.SetListIndex(2);
    EXPECT_TRUE(form.Option6.Value());
    EXPECT_TRUE(form.Option16.Value());
    ExpectEnabled(form, {"Option5", "Option6", "Option16"}, true);
}

TEST(ConfiguradorSource, a_gas_model_gives_aga7_its_pressure_back) {
    ConfiguradorWorld world;
    auto& form = world.Preset(1);
    form.general.cbSourceGas.SetListIndex(1);
    EXPECT_TRUE(form.pressure.OptAbsPress.Value());
    ExpectEnabled(form, pressureFrames, true);
    form.general.cbSourceGas.SetListIndex(0);
    ExpectEnabled(form, pressureGroup, false);
}

// Notes.

TEST(ConfiguradorNotes, say_what_is_implausible_in_what_is_stored_and_in_what_is_typed) {
    std::string file = WizardFile("aga3_densimeter_external");
    ConfiguradorWorld world(file);
    auto& form = world.Form();
    form.Text2.PersonEdits("1.01325");
    const std::string noted = form.Notes.Caption();
    EXPECT_NE(noted.find("1.01325"), std::string::npos) << noted;
    form.Text2.PersonEdits("14.73");
    EXPECT_NE(form.Notes.Caption(), noted);
}

} // namespace
} // namespace gfc::test
