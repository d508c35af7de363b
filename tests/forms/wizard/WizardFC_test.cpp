#include "WizardWorld.h"
#include "forms/wizard/WizardFC.h"
#include "support/Named.h"

#include <gtest/gtest.h>

namespace gfc::test {
namespace {

constexpr const char* Form = "WizardFC";
constexpr int AGA3 = 0, AGA7 = 1;
constexpr int Densimeter = 0, AGA8 = 1, SGERG88 = 2, ISO2 = 3, ISO3 = 4;

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
    world.PlayPages();
}

TEST(WizardFC, starts_on_the_first_page_with_the_ways_on_and_out_alone) {
    WizardWorld world;
    world.TheStory.SeeEnabled(Form, "atras", false)
        .SeeEnabled(Form, "finalizar", false)
        .SeeVisible(Form, "finalizar", false)
        .SeeVisible(Form, "siguiente")
        .SeeEnabled(Form, "siguiente")
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Form, "wizard"), 0); });
    world.PlayPages();
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>());
}

TEST(WizardFC, hides_the_frames_of_later_pages_at_load) {
    WizardWorld world;
    auto& form = world.Program.Forms.Touch<forms::WizardFC>();
    EXPECT_FALSE(form.modules.Frame9.Visible());
    EXPECT_FALSE(form.Frame4.Visible());
    EXPECT_FALSE(form.FrCompGas.Visible());
    EXPECT_FALSE(form.FrMetAGA8.Visible());
}

TEST(WizardFC, is_left_by_its_own_buttons_only) {
    WizardWorld world;
    world.TheStory.CloseWindow(Form).PressKey(Form, "Escape").SeeShown(Form);
    world.PlayPages();
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
    world.PlayPages();
}

TEST(WizardFC, lists_the_working_modules_inputs_first_and_skips_those_without_a_name) {
    WizardWorld world;
    world.Session.Modules.LongCandidates = {{8, "VL0"}, {9, ""}, {10, "VLO"}};
    world.Session.Modules.AnalogCandidates = {{32, "VA1"}, {32, "VAO"}};
    auto& form = world.Program.Forms.Touch<forms::WizardFC>();
    EXPECT_EQ(form.modules.Combo2.Entries(), (std::vector<std::string>{"VL0", "VLO"}));
    EXPECT_EQ(form.modules.Combo1.Entries(), (std::vector<std::string>{"VA1", "VAO"}));
    EXPECT_EQ(form.modules.Combo3.Entries(), (std::vector<std::string>{"VF0"}));
    EXPECT_EQ(form.modules.Combo1.Text() + form.modules.Combo2.Text() + form.modules.Combo3.Text(),
              "VA1VL0VF0");
}

TEST(WizardFC, lists_the_choices_with_the_blank_of_the_last_source) {
    WizardWorld world;
    auto& form = world.Program.Forms.Touch<forms::WizardFC>();
    EXPECT_EQ(form.general.CombStandard.Entries(),
              (std::vector<std::string>{"AGA-3 1992", "AGA-7", "Accelabar-AGA-3 1992", "GBT21446-2008"}));
    EXPECT_EQ(form.general.cbSourceGas.Entries(),
              (std::vector<std::string>{"Densimeter", "AGA-8", "SGERG-88", "ISO 12213-2 1997",
                                        "ISO 12213-3 1997 "}));
    EXPECT_EQ(form.general.CombUnits.Entries(),
              (std::vector<std::string>{"US", "US-degC", "Metric", "Metric-degF", "Practical-SI"}));
}

TEST(WizardFC, counts_four_steps_from_the_first_passed_check_on) {
    WizardWorld world;
    world.TheStory.SeeText(Form, "lbStep", "Step 1 of 3")
        .Select(Form, "cbSourceGas", Densimeter)
        .SeeText(Form, "lbStep", "Step 1 of 4");
    world.PlayPages();
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
    // Enter once more must not throw all away.
    world.TheStory.Check([](Driver& eyes) { EXPECT_EQ(eyes.Focused(Form), "finalizar"); });
    world.PlayPages();
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
        .SeeEnabled(Form, "atras", false)
        .Check([](Driver& eyes) { EXPECT_EQ(eyes.Focused(Form), "siguiente"); });
    world.PlayPages();
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
    world.PlayPages();
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
    world.PlayPages();
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
    world.PlayPages();
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
    world.PlayPages();
}

INSTANTIATE_TEST_SUITE_P(Sources, WizardGasPage, testing::Values(AGA8, SGERG88, ISO2, ISO3),
                         By([](int entry) { return StoredOf(config::GasDensitySources, entry); }));

TEST(WizardFC, tab_headers_do_not_navigate) {
    WizardWorld world;
    world.TheStory.SelectTab(Form, "wizard", 2)
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Form, "wizard"), 0); })
        .SelectTab(Form, "wizard", 4)
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Form, "wizard"), 0); })
        .SeeText(Form, "lbInfo", "Common parameters to all runs");
    world.PlayPages();
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
    world.PlayPages();
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
    world.PlayPages();
}

TEST(WizardFC, quitting_forgets_the_station) {
    WizardWorld world;
    (void)world.Preset(AGA3, AGA8, 2);
    world.PlayPages();
    EXPECT_EQ(world.Station.CurrentStation, "");
    EXPECT_EQ(world.Station.ActiveRunCount, 0);
    EXPECT_EQ(world.Station.RunList[0].Flag, "");
    EXPECT_TRUE(world.Station.Runs.IO.empty());
    EXPECT_TRUE(world.Session.Inventory.VirtFX.empty());
    EXPECT_TRUE(world.Session.Inventory.AvailFloat.empty());
    EXPECT_EQ(world.Session.Modules.NFX, 0);
}

} // namespace
} // namespace gfc::test
