#include "WizardWorld.h"
#include "forms/WizardFC.h"

#include <gtest/gtest.h>

namespace gfc::test {
namespace {

constexpr const char* Form = "WizardFC";
constexpr int AGA3 = 0, AGA7 = 1, Accelabar = 2;
constexpr int Densimeter = 0, AGA8 = 1, SGERG88 = 2, ISO2 = 3, ISO3 = 4;

// Plays the story that was told on the wizard, and leaves it.
void Play(WizardWorld& world) {
    world.ThenQuit();
    world.Program.Forms.Get<forms::WizardFC>().ShowModal();
}

TEST(WizardFC, starts_with_the_defaults_of_a_new_configuration) {
    WizardWorld world;
    (void)world.Program.Forms.Touch<forms::WizardFC>();
    world.TheStory.SeeCaption(Form, "Gas Flow Computer Wizard     Station Name : North")
        .SeeText(Form, "lbStep", "Step 1 of 3")
        .SeeText(Form, "lbInfo", "Common parameters to all runs")
        .SeeText(Form, "CombUnits", "US")
        .SeeText(Form, "CombStandard", "")
        .SeeText(Form, "cbSourceGas", "")
        .SeeText(Form, "TextDensityStandardTemp", "60.00")
        .SeeText(Form, "TextDensityStandardP", "14.73")
        .SeeText(Form, "unitStandardP", "psia")
        .SeeText(Form, "Text1", "0.010268")
        .SeeText(Form, "Label6", "cP")
        .SeeText(Form, "Text2", "1.3")
        .SeeText(Form, "txtAtmPress", "14.695949")
        .SeeText(Form, "unitAtmPress", "PSI")
        .SeeText(Form, "TextDevice", "/nvram/kdormaga.txt")
        .SeeText(Form, "TextNumTraces", "1000");
    for (const char* option : {"OptComprensible", "OptAbsPress", "OptAtmPressFixed", "OptComp", "OptDetail"})
        world.TheStory.SeeChecked(Form, option);
    for (const char* option :
         {"OptNoComprensible", "OptGagePress", "OptAtmPressExt", "OptCromatografo", "OptGross1", "OptGross2"})
        world.TheStory.SeeChecked(Form, option, false);
    Play(world);
}

TEST(WizardFC, starts_on_the_first_page_with_the_ways_on_and_out_alone) {
    WizardWorld world;
    world.TheStory.SeeEnabled(Form, "atras", false)
        .SeeEnabled(Form, "finalizar", false)
        .SeeVisible(Form, "finalizar", false)
        .SeeVisible(Form, "siguiente")
        .SeeEnabled(Form, "siguiente")
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Form, "wizard"), 0); });
    Play(world);
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>());
}

TEST(WizardFC, hides_the_frames_of_later_pages_at_load) {
    WizardWorld world;
    auto& form = world.Program.Forms.Touch<forms::WizardFC>();
    EXPECT_FALSE(form.Frame9.Visible());
    EXPECT_FALSE(form.Frame4.Visible());
    EXPECT_FALSE(form.FrCompGas.Visible());
    EXPECT_FALSE(form.FrMetAGA8.Visible());
}

TEST(WizardFC, is_left_by_its_own_buttons_only) {
    WizardWorld world;
    world.TheStory.CloseWindow(Form).PressKey(Form, "Escape").SeeShown(Form);
    Play(world);
}

TEST(WizardFC, shows_the_temperature_unit_with_another_degree_sign_until_units_are_chosen) {
    WizardWorld world;
    world.TheStory
        .SeeText(Form, "unitStandardTemp",
                 "\xC2\xB0"
                 "F")
        .Select(Form, "CombUnits", 0)
        .SeeText(Form, "unitStandardTemp",
                 "\xC2\xBA"
                 "F");
    Play(world);
}

TEST(WizardFC, lists_the_working_modules_inputs_first_and_skips_those_without_a_name) {
    WizardWorld world;
    world.Session.Modules.LongCandidates = {{8, "VL0"}, {9, ""}, {10, "VLO"}};
    world.Session.Modules.AnalogCandidates = {{32, "VA1"}, {32, "VAO"}};
    auto& form = world.Program.Forms.Touch<forms::WizardFC>();
    EXPECT_EQ(form.Combo2.Entries(), (std::vector<std::string>{"VL0", "VLO"}));
    EXPECT_EQ(form.Combo1.Entries(), (std::vector<std::string>{"VA1", "VAO"}));
    EXPECT_EQ(form.Combo3.Entries(), (std::vector<std::string>{"VF0"}));
    EXPECT_EQ(form.Combo1.Text() + form.Combo2.Text() + form.Combo3.Text(), "VA1VL0VF0");
}

TEST(WizardFC, lists_the_choices_with_the_blank_of_the_last_source) {
    WizardWorld world;
    auto& form = world.Program.Forms.Touch<forms::WizardFC>();
    EXPECT_EQ(form.CombStandard.Entries(),
              (std::vector<std::string>{"AGA-3 1992", "AGA-7", "Accelabar-AGA-3 1992", "GBT21446-2008"}));
    EXPECT_EQ(form.cbSourceGas.Entries(),
              (std::vector<std::string>{"Densimeter", "AGA-8", "SGERG-88", "ISO 12213-2 1997",
                                        "ISO 12213-3 1997 "}));
    EXPECT_EQ(form.CombUnits.Entries(),
              (std::vector<std::string>{"US", "US-degC", "Metric", "Metric-degF", "Practical-SI"}));
}

TEST(WizardFC, counts_four_steps_from_the_first_passed_check_on) {
    WizardWorld world;
    world.TheStory.SeeText(Form, "lbStep", "Step 1 of 3")
        .Select(Form, "cbSourceGas", Densimeter)
        .SeeText(Form, "lbStep", "Step 1 of 4");
    Play(world);
}

// Each page in a walk forward and back.

TEST(WizardFC, walks_four_pages_forward) {
    WizardWorld world;
    (void)world.Preset(AGA3, AGA8, 1);
    world.TheStory.Click(Form, "siguiente")
        .SeeText(Form, "lbStep", "Step 2 of 4")
        .SeeText(Form, "lbInfo", "Select the virtual modules required for API21.1 datalogging")
        .SeeVisible(Form, "Frame9")
        .SeeVisible(Form, "Frame1", false)
        .SeeEnabled(Form, "atras")
        .Click(Form, "siguiente")
        .SeeText(Form, "lbStep", "Step 3 of 4")
        .SeeText(Form, "lbInfo", "Pressure measurement and Atmospheric Pressure configuration")
        .SeeVisible(Form, "FrameAtmPress")
        .SeeVisible(Form, "siguiente")
        .Click(Form, "siguiente")
        .SeeText(Form, "lbStep", "Step 4 of 4")
        .SeeText(Form, "lbInfo", "Gas properties configuration")
        .SeeVisible(Form, "Frame4")
        .SeeVisible(Form, "siguiente", false)
        .SeeEnabled(Form, "siguiente", false)
        .SeeVisible(Form, "finalizar")
        .SeeEnabled(Form, "finalizar")
        .SeeEnabled(Form, "atras");
    Play(world);
}

TEST(WizardFC, walks_back_to_the_first_page) {
    WizardWorld world;
    (void)world.Preset(AGA3, AGA8, 1);
    world.TheStory.Click(Form, "siguiente")
        .Click(Form, "siguiente")
        .Click(Form, "siguiente")
        .Click(Form, "atras")
        .SeeVisible(Form, "FrameAtmPress")
        .SeeVisible(Form, "finalizar", false)
        .SeeEnabled(Form, "finalizar", false)
        .SeeVisible(Form, "siguiente")
        .SeeEnabled(Form, "siguiente")
        .SeeEnabled(Form, "atras")
        .Click(Form, "atras")
        .SeeVisible(Form, "Frame9")
        .Click(Form, "atras")
        .SeeVisible(Form, "Frame1")
        .SeeText(Form, "lbStep", "Step 1 of 4")
        // With a capital now, unlike at load.
        .SeeText(Form, "lbInfo", "Common Parameters to all runs")
        .SeeEnabled(Form, "atras", false);
    Play(world);
}

TEST(WizardFC, a_turbine_with_a_densimeter_has_no_pressure_page) {
    WizardWorld world;
    (void)world.Preset(AGA7, Densimeter, 1);
    world.TheStory.Click(Form, "siguiente")
        .SeeVisible(Form, "Frame9")
        .Click(Form, "siguiente")
        .SeeVisible(Form, "Frame4")
        .SeeText(Form, "lbStep", "Step 4 of 4")
        .SeeVisible(Form, "finalizar")
        .Click(Form, "atras")
        .SeeVisible(Form, "Frame9")
        .SeeText(Form, "lbStep", "Step 2 of 4")
        .Click(Form, "atras")
        .SeeVisible(Form, "Frame1");
    Play(world);
}

TEST(WizardFC, a_turbine_with_a_gas_model_has_the_pressure_page) {
    WizardWorld world;
    (void)world.Preset(AGA7, AGA8, 1);
    world.TheStory.Click(Form, "siguiente")
        .Click(Form, "siguiente")
        .SeeVisible(Form, "FrameAtmPress")
        .Click(Form, "siguiente")
        .Click(Form, "atras")
        .SeeVisible(Form, "FrameAtmPress");
    Play(world);
}

TEST(WizardFC, a_densimeter_leaves_the_gas_properties_alone_in_the_middle) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, Densimeter, 1);
    for (int page = 0; page < 3; ++page)
        world.TheStory.Click(Form, "siguiente");
    world.TheStory.SeeVisible(Form, "Frame4")
        .SeeVisible(Form, "FrCompGas", false)
        .SeeVisible(Form, "FrMetAGA8", false)
        .Check([&](Driver&) { EXPECT_TRUE(form.Frame4.Centred()); });
    Play(world);
}

class WizardGasPage : public testing::TestWithParam<int> {};

TEST_P(WizardGasPage, shows_composition_and_method_beside_the_gas_properties) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, GetParam(), 1);
    for (int page = 0; page < 3; ++page)
        world.TheStory.Click(Form, "siguiente");
    world.TheStory.SeeVisible(Form, "FrCompGas").SeeVisible(Form, "FrMetAGA8").Check([&](Driver&) {
        EXPECT_FALSE(form.Frame4.Centred());
    });
    Play(world);
}

INSTANTIATE_TEST_SUITE_P(Sources, WizardGasPage, testing::Values(AGA8, SGERG88, ISO2, ISO3));

TEST(WizardFC, tab_headers_do_not_navigate) {
    WizardWorld world;
    world.TheStory.SelectTab(Form, "wizard", 2)
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Form, "wizard"), 0); })
        .SelectTab(Form, "wizard", 4)
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Form, "wizard"), 0); })
        .SeeText(Form, "lbInfo", "Common parameters to all runs");
    Play(world);
}

TEST(WizardFC, help_goes_by_the_page_from_the_button_and_from_F1) {
    WizardWorld world;
    (void)world.Preset(AGA3, AGA8, 1);
    world.TheStory.Click(Form, "Command2")
        .Click(Form, "siguiente")
        .PressKey(Form, "F1")
        .Click(Form, "siguiente")
        .Click(Form, "Command2")
        .Click(Form, "siguiente")
        .PressKey(Form, "F1");
    Play(world);
    using Opened = std::vector<std::pair<std::string, int>>;
    EXPECT_EQ(world.Screen.HelpOpened,
              (Opened{{"AGA.chm", 3000}, {"AGA.chm", 3100}, {"AGA.chm", 3200}, {"AGA.chm", 3300}}));
}

TEST(WizardFC, quitting_answered_no_stays) {
    WizardWorld world;
    (void)world.Preset(AGA3, AGA8, 1);
    world.TheStory.Click(Form, "cancelar")
        .Box("Gas Flow Computer", "Do you want to quit the configuration wizard ?", ui::Icon::None,
             ui::Answer::No)
        .SeeShown(Form)
        .Check([&](Driver&) { EXPECT_EQ(world.Station.CurrentStation, "North"); });
    Play(world);
}

TEST(WizardFC, quitting_forgets_the_station) {
    WizardWorld world;
    (void)world.Preset(AGA3, AGA8, 2);
    Play(world);
    EXPECT_EQ(world.Station.CurrentStation, "");
    EXPECT_EQ(world.Station.ActiveRunCount, 0);
    EXPECT_EQ(world.Station.RunList[0].Flag, "");
    EXPECT_TRUE(world.Station.Runs.IO.empty());
    EXPECT_TRUE(world.Session.Inventory.VirtFX.empty());
    EXPECT_TRUE(world.Session.Inventory.AvailFloat.empty());
    EXPECT_EQ(world.Session.Modules.NFX, 0);
}

// What the controls do to each other.

TEST(WizardRules, traces_are_entered_once_they_are_enabled) {
    WizardWorld world;
    const std::array<const char*, 4> fields = {"TextDevice", "TextNumTraces", "LabelDevice", "LabelNumTrace"};
    for (const char* field : fields)
        world.TheStory.SeeEnabled(Form, field, false);
    world.TheStory.Click(Form, "Check1");
    for (const char* field : fields)
        world.TheStory.SeeEnabled(Form, field);
    world.TheStory.Click(Form, "Check1");
    for (const char* field : fields)
        world.TheStory.SeeEnabled(Form, field, false);
    Play(world);
}

TEST(WizardRules, the_atmospheric_pressure_follows_pressure_type_and_source) {
    WizardWorld world;
    (void)world.Preset(AGA3, Densimeter, 1);
    const auto see = [&](bool fields, bool sources) {
        for (const char* field : {"LbAtmPress", "txtAtmPress", "unitAtmPress"})
            world.TheStory.SeeEnabled(Form, field, fields);
        for (const char* option : {"OptAtmPressFixed", "OptAtmPressExt"})
            world.TheStory.SeeEnabled(Form, option, sources);
    };
    world.TheStory.Click(Form, "siguiente").Click(Form, "siguiente");
    see(false, false);
    world.TheStory.Click(Form, "OptGagePress");
    see(true, true);
    world.TheStory.Click(Form, "OptAtmPressExt");
    see(false, true);
    world.TheStory.Click(Form, "OptAbsPress");
    see(false, false);
    world.TheStory.Click(Form, "OptGagePress");
    see(false, true);
    world.TheStory.Click(Form, "OptAtmPressFixed");
    see(true, true);
    Play(world);
}

TEST(WizardRules, choosing_gbt_brings_its_units_and_values) {
    WizardWorld world;
    (void)world.Preset(AGA3, Densimeter, 1);
    world.TheStory.Select(Form, "CombStandard", 3)
        .SeeText(Form, "CombUnits", "Practical-SI")
        .SeeText(Form, "unitStandardP", "MPa")
        .SeeText(Form, "unitStandardTemp", "ºC")
        .SeeText(Form, "unitAtmPress", "MPa")
        .SeeText(Form, "TextDensityStandardTemp", "20.00")
        .SeeText(Form, "TextDensityStandardP", "0.101325")
        .SeeText(Form, "txtAtmPress", "0.101325")
        .SeeText(Form, "Text1", "0.01096")
        .SeeText(Form, "Label6", "mPa-s")
        .SeeText(Form, "Text2", "1.36");
    Play(world);
    EXPECT_EQ(world.Station.SystemUnits, ""); // forgotten with the rest
}

TEST(WizardRules, leaving_gbt_keeps_its_isentropic_coefficient) {
    WizardWorld world;
    (void)world.Preset(AGA3, Densimeter, 1);
    world.TheStory.Select(Form, "CombStandard", 3)
        .Select(Form, "CombStandard", AGA3)
        .SeeText(Form, "CombUnits", "US")
        .SeeText(Form, "TextDensityStandardTemp", "60.00")
        .SeeText(Form, "TextDensityStandardP", "14.73")
        .SeeText(Form, "Text1", "0.010268")
        .SeeText(Form, "Text2", "1.36");
    Play(world);
}

struct UnitCase {
    int Entry;
    const char* StandardT;
    const char* StandardP;
    const char* Temperature;
    const char* Pressure;
    const char* Atmosphere;
    const char* AtmPress;
    const char* Viscosity;
};

class WizardUnits : public testing::TestWithParam<UnitCase> {};

TEST_P(WizardUnits, overwrite_what_was_entered_with_their_row) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, Densimeter, 1);
    const auto& row = GetParam();
    for (auto* field :
         {&form.TextDensityStandardTemp, &form.TextDensityStandardP, &form.txtAtmPress, &form.Text1})
        field->SetText("70");
    world.TheStory.Select(Form, "CombUnits", row.Entry)
        .SeeText(Form, "TextDensityStandardTemp", row.StandardT)
        .SeeText(Form, "TextDensityStandardP", row.StandardP)
        .SeeText(Form, "unitStandardTemp", row.Temperature)
        .SeeText(Form, "unitStandardP", row.Pressure)
        .SeeText(Form, "unitAtmPress", row.Atmosphere)
        .SeeText(Form, "txtAtmPress", row.AtmPress)
        .SeeText(Form, "Label6", row.Viscosity)
        .SeeText(Form, "Text1", "0.010268")
        .Check([&](Driver& d) { EXPECT_EQ(world.Station.SystemUnits, d.Text(Form, "CombUnits")); });
    Play(world);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Systems, WizardUnits, testing::Values(
    UnitCase{0, "60.00",   "14.73",    "ºF", "psia", "PSI", "14.695949", "cP"},
    UnitCase{1, "15.5556", "14.73",    "ºC", "psia", "PSI", "14.695949", "cP"},
    UnitCase{2, "15.00",   "1.01325",  "ºC", "bar",  "bar", "1.01325",   "cP"},
    UnitCase{3, "59.00",   "1.01325",  "ºF", "bar",  "bar", "1.01325",   "cP"},
    UnitCase{4, "20.00",   "0.101325", "ºC", "MPa",  "MPa", "0.101325",  "mPa-s"}));
// clang-format on

TEST(WizardRules, the_standard_brings_the_units_back_only_where_they_differ) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, Densimeter, 1);
    form.TextDensityStandardTemp.SetText("70");
    world.TheStory
        .Select(Form, "CombStandard", Accelabar)
        // "US" was selected already, so its row is not applied again.
        .SeeText(Form, "TextDensityStandardTemp", "70")
        .Select(Form, "CombUnits", 2)
        .Select(Form, "CombStandard", AGA3)
        .SeeText(Form, "TextDensityStandardTemp", "60.00");
    Play(world);
}

struct EntryCase {
    int Standard;
    bool Viscosity;
    bool Others; // the isentropic coefficient and the captions
    bool AGA7;
};

class WizardStandard : public testing::TestWithParam<EntryCase> {};

TEST_P(WizardStandard, decides_which_gas_values_are_entered) {
    WizardWorld world;
    auto& form = world.Preset(GetParam().Standard == AGA3 ? AGA7 : AGA3, Densimeter, 1);
    world.TheStory.Select(Form, "CombStandard", GetParam().Standard).Check([&](Driver&) {
        EXPECT_EQ(form.Text1.Enabled(), GetParam().Viscosity);
        EXPECT_EQ(form.LbViscosity.Enabled(), GetParam().Others);
        EXPECT_EQ(form.Label6.Enabled(), GetParam().Others);
        EXPECT_EQ(form.Text2.Enabled(), GetParam().Others);
        EXPECT_EQ(form.LbIsentropic.Enabled(), GetParam().Others);
        EXPECT_EQ(world.Station.FlagAGA7, GetParam().AGA7);
    });
    Play(world);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Entries, WizardStandard, testing::Values(
    EntryCase{0, true,  true,  false},
    EntryCase{1, false, false, true},
    // Deliberate: the caption stays while the entry is shut.
    EntryCase{2, false, true,  false},
    EntryCase{3, true,  true,  false}));
// clang-format on

class WizardSource : public testing::TestWithParam<int> {};

TEST_P(WizardSource, decides_what_can_be_said_of_the_composition) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, GetParam() == Densimeter ? AGA8 : Densimeter, 1);
    const bool gross = GetParam() == SGERG88 || GetParam() == ISO3;
    world.TheStory.Select(Form, "cbSourceGas", GetParam()).Check([&](Driver&) {
        EXPECT_EQ(form.OptCromatografo.Enabled(), !gross);
        EXPECT_EQ(form.OptDetail.Enabled(), !gross);
        EXPECT_EQ(form.OptComp.Value(), GetParam() != Densimeter);
        EXPECT_EQ(form.FrCompGas.Visible(), GetParam() != Densimeter);
        EXPECT_FALSE(form.OptGross1.Enabled());
        EXPECT_FALSE(form.OptGross2.Enabled());
    });
    Play(world);
}

INSTANTIATE_TEST_SUITE_P(Entries, WizardSource, testing::Range(0, 5));

TEST(WizardRules, another_source_takes_the_composition_from_outside_back) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, AGA8, 1);
    form.OptCromatografo.SetValue(true);
    EXPECT_TRUE(form.OptCromatografo.Value());
    world.TheStory.Select(Form, "cbSourceGas", SGERG88).Check([&](Driver&) {
        EXPECT_TRUE(form.OptComp.Value());
        EXPECT_FALSE(form.OptCromatografo.Value());
    });
    Play(world);
}

TEST(WizardRules, fields_take_numbers_and_are_checked_when_left) {
    WizardWorld world;
    (void)world.Preset(AGA3, AGA8, 1);
    for (int page = 0; page < 3; ++page)
        world.TheStory.Click(Form, "siguiente");
    for (const char* field : {"Text1", "Text2", "TextDensityStandardTemp"})
        world.TheStory.Type(Form, field, "1a.2x.3")
            .SeeText(Form, field, "1.2.3")
            .Focus(Form, "OptComprensible")
            .Box("Incorrect value", "", ui::Icon::Exclamation)
            .Check([field](Driver& d) { EXPECT_EQ(d.Focused(Form), field); })
            .Type(Form, field, "1.2");
    Play(world);
}

TEST(WizardRules, the_standard_pressure_takes_any_key_but_is_checked) {
    WizardWorld world;
    (void)world.Preset(AGA3, AGA8, 1);
    for (int page = 0; page < 3; ++page)
        world.TheStory.Click(Form, "siguiente");
    world.TheStory.Type(Form, "TextDensityStandardP", "1,4.7.3 psi")
        .SeeText(Form, "TextDensityStandardP", "1,4.7.3 psi")
        .Focus(Form, "Text1")
        .Box("Incorrect value", "", ui::Icon::Exclamation)
        .Type(Form, "TextDensityStandardP", "14 psi")
        .Focus(Form, "Text1")
        .SeeText(Form, "TextDensityStandardP", "14 psi");
    Play(world);
}

TEST(WizardRules, the_atmospheric_pressure_takes_numbers_of_any_shape) {
    WizardWorld world;
    (void)world.Preset(AGA3, AGA8, 1);
    world.TheStory.Click(Form, "siguiente")
        .Click(Form, "siguiente")
        .Click(Form, "OptGagePress")
        .Type(Form, "txtAtmPress", "1.0-1.3")
        .Focus(Form, "OptGagePress")
        .SeeText(Form, "txtAtmPress", "1.01.3");
    Play(world);
}

} // namespace
} // namespace gfc::test
