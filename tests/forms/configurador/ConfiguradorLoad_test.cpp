#include "ConfiguradorWorld.h"
#include "support/Named.h"

namespace gfc::test {
namespace {

using Texts = std::vector<std::string>;

const std::string base = "Parameter Configurator";

TEST(ConfiguradorLoad, a_new_configuration_starts_with_the_start_values) {
    ConfiguradorWorld world;
    world.Station.FlowAlgorithm = "AGA7"; // of a station that was open before
    world.Station.CommonPa = {"old", "FX", "1"};
    world.Station.ActiveRunCount = 4;
    auto& form = world.Form();
    EXPECT_EQ(form.caso, 3);
    EXPECT_EQ(world.Station.ActiveRunCount, 1);
    EXPECT_EQ(world.Station.CurrentStation, "North");
    EXPECT_EQ(world.Station.FlowAlgorithm, "");
    EXPECT_FALSE(world.Station.CommonPa.IsMade());
    EXPECT_EQ(form.Text1.Text(), "60.00");
    EXPECT_EQ(form.Text2.Text(), "14.73");
    EXPECT_EQ(form.Text3.Text(), "1.3");
    EXPECT_EQ(form.Text4.Text(), "0.010268");
    EXPECT_EQ(form.pressure.txtAtmPress.Text(), "14.695949");
    EXPECT_EQ(form.pressure.unitAtmPress.Caption(), "PSI");
    EXPECT_EQ(form.unitStandardTemp.Caption(), "\u00BAF");
    EXPECT_EQ(form.unitStandardP.Caption(), "psia");
    EXPECT_EQ(form.Label25.Caption(), "cP");
    EXPECT_EQ(form.traces.Device.Text(), "/nvram/kdormaga.txt");
    EXPECT_EQ(form.traces.Number.Text(), "1000");
    EXPECT_EQ(form.general.CombUnits.Text(), "US");
    EXPECT_TRUE(form.OptComprensible.Value());
    EXPECT_TRUE(form.pressure.OptAbsPress.Value());
    EXPECT_TRUE(form.pressure.OptAtmPressFixed.Value());
    EXPECT_EQ(form.Caption(), base);
    EXPECT_EQ(world.Session.EditMode, forms::EditMode::Configurator);
}

TEST(ConfiguradorLoad, a_new_configuration_leaves_standard_and_source_to_be_chosen) {
    ConfiguradorWorld world;
    EXPECT_EQ(world.Form().general.CombStandard.ListIndex(), -1);
    EXPECT_EQ(world.Form().general.cbSourceGas.ListIndex(), -1);
    EXPECT_TRUE(world.Form().general.CombStandard.Enabled());
    EXPECT_TRUE(world.Form().general.cbSourceGas.Enabled());
    for (ui::Control* box : std::initializer_list<ui::Control*>{&world.Form().Run11, &world.Form().Run55})
        EXPECT_TRUE(box->Enabled());
}

TEST(ConfiguradorLoad, lists_hold_their_own_texts) {
    ConfiguradorWorld world;
    EXPECT_EQ(world.Form().general.CombStandard.Entries(),
              (Texts{"AGA-3 1992", "AGA-7", "Accelabar-AGA-3-1992", "GBT21446-2008"}));
    EXPECT_EQ(world.Form().general.cbSourceGas.Entries(),
              (Texts{"Densimeter", "AGA-8", "SGERG-88", "ISO 12213-2 1997", "ISO 12213-3 1997"}));
    EXPECT_EQ(world.Form().general.CombUnits.Entries(),
              (Texts{"US", "US-degC", "Metric", "Metric-degF", "Practical-SI"}));
    EXPECT_EQ(world.Form().modules.Combo1.Text(), "VA0");
    EXPECT_EQ(world.Form().modules.Combo2.Text(), "VL0");
    EXPECT_EQ(world.Form().modules.Combo3.Text(), "VF0");
}

TEST(ConfiguradorLoad, absolute_pressure_disables_what_it_does_not_need) {
    ConfiguradorWorld world;
    auto& form = world.Form();
    for (const ui::Control* control : std::initializer_list<ui::Control*>{
             &form.pressure.LbAtmPress, &form.pressure.txtAtmPress, &form.pressure.unitAtmPress,
             &form.pressure.OptAtmPressFixed, &form.pressure.OptAtmPressExt, &form.btExtAtmChange,
             &form.traces.Device, &form.traces.Number, &form.traces.LabelDevice, &form.traces.LabelNumTrace,
             &form.Option17, &form.Option18})
        EXPECT_FALSE(control->Enabled()) << control->Name();
}

TEST(ConfiguradorLoad, a_stored_file_shows_its_values) {
    std::string file = WizardFile("aga3_densimeter");
    file = With(file, "EnableDataTraces=No\nDeviceDataTraces=\nNumberTraces=\n",
                "EnableDataTraces=Yes\nDeviceDataTraces=/tmp/trace\nNumberTraces=7\n");
    file = With(file, "StandardT=60.00\nStandardP=14.73\nFlowingViscosity=0.010268",
                "StandardT=61\nStandardP=15\nFlowingViscosity=0.02");
    ConfiguradorWorld world(file);
    auto& form = world.Form();
    EXPECT_EQ(form.caso, 1);
    EXPECT_TRUE(form.traces.Check1.Value());
    EXPECT_EQ(form.traces.Device.Text(), "/tmp/trace");
    EXPECT_EQ(form.traces.Number.Text(), "7");
    EXPECT_TRUE(form.traces.Device.Enabled());
    EXPECT_TRUE(form.traces.Number.Enabled());
    EXPECT_EQ(form.Text1.Text(), "61");
    EXPECT_EQ(form.Text2.Text(), "15");
    EXPECT_EQ(form.Text3.Text(), "1.3");
    EXPECT_EQ(form.Text4.Text(), "0.02");
    EXPECT_EQ(form.general.CombStandard.Text(), "AGA-3 1992");
    EXPECT_EQ(form.general.cbSourceGas.Text(), "Densimeter");
    EXPECT_TRUE(form.pressure.OptAbsPress.Value());
    EXPECT_TRUE(world.Screen.BoxesShown.empty());
}

struct ShownStandard {
    const char* Stored;
    const char* Shown;

    friend void PrintTo(const ShownStandard& the, std::ostream* out) { *out << the.Stored; }
};

class ConfiguradorStandardShown : public testing::TestWithParam<ShownStandard> {};

TEST_P(ConfiguradorStandardShown, shows_as_its_entry) {
    ConfiguradorWorld world(With(WizardFile("aga3_densimeter"), "FlowAlgorithm=AGA3",
                                 std::string("FlowAlgorithm=") + GetParam().Stored));
    const bool aga7 = std::string(GetParam().Shown) == "AGA-7";
    auto& form = world.Form();
    EXPECT_EQ(form.general.CombStandard.Text(), GetParam().Shown);
    EXPECT_EQ(world.Station.FlagAGA7, aga7);
    for (const ui::Control* control : std::initializer_list<ui::Control*>{
             &form.LbIsentropic, &form.Text3, &form.LbViscosity, &form.Text4, &form.Label25})
        EXPECT_EQ(control->Enabled(), !aga7) << control->Name();
}

INSTANTIATE_TEST_SUITE_P(Words, ConfiguradorStandardShown,
                         testing::Values(ShownStandard{"AGA3", "AGA-3 1992"}, ShownStandard{"AGA7", "AGA-7"},
                                         ShownStandard{"Accelabar-AGA-3-1992", "Accelabar-AGA-3-1992"},
                                         ShownStandard{"SYT6143-2004", "GBT21446-2008"},
                                         ShownStandard{"aga3", "AGA-7"}, ShownStandard{"", "AGA-7"}),
                         By(&ShownStandard::Stored));

// The gates stay silent while a file is shown, on the smallest station too.
TEST(ConfiguradorLoad, a_stored_file_is_shown_whatever_the_station_carries) {
    ConfiguradorWorld world(TagsOf({0, 0, 0, 0}), WizardFile("aga3_aga8_outside"));
    world.Station.ActiveRunCount = 5;
    EXPECT_EQ(world.Form().general.cbSourceGas.Text(), "AGA-8");
    EXPECT_TRUE(world.Form().Option5.Value());
    EXPECT_TRUE(world.Form().Option16.Value());
    EXPECT_TRUE(world.Screen.BoxesShown.empty());
}

TEST(ConfiguradorLoad, a_fixed_composition_shows_as_manual) {
    ConfiguradorWorld world(WizardFile("aga3_sgerg88_fixed"));
    EXPECT_EQ(world.Form().general.cbSourceGas.Text(), "SGERG-88");
    EXPECT_TRUE(world.Form().Option6.Value());
    EXPECT_FALSE(world.Form().Option5.Value());
}

TEST(ConfiguradorLoad, aga7_leaves_the_gas_entries_empty) {
    ConfiguradorWorld world(WizardFile("aga7_densimeter"));
    EXPECT_EQ(world.Form().Text3.Text(), "");
    EXPECT_EQ(world.Form().Text4.Text(), "");
    EXPECT_EQ(world.Station.FlowingViscosity, "0.010268");
    for (const ui::Control* control : std::initializer_list<ui::Control*>{
             &world.Form().pressure.FrameAtmPress, &world.Form().FrameExtAtmPress,
             &world.Form().pressure.OptAbsPress})
        EXPECT_FALSE(control->Enabled()) << control->Name();
}

TEST(ConfiguradorLoad, a_gage_pressure_with_a_tag_shows_the_tag) {
    ConfiguradorWorld world(WizardFile("aga3_densimeter_external"));
    auto& form = world.Form();
    EXPECT_TRUE(form.pressure.OptGagePress.Value());
    EXPECT_TRUE(form.pressure.OptAtmPressExt.Value());
    EXPECT_EQ(form.AtmExtName.Caption(), "Name: FT-1");
    EXPECT_EQ(form.AtmExtType.Caption(), " Type: FX");
    EXPECT_EQ(form.AtmExtAddr.Caption(), " Addr: 1001");
    EXPECT_TRUE(form.btExtAtmChange.Enabled());
    EXPECT_FALSE(form.pressure.txtAtmPress.Enabled());
    EXPECT_EQ(form.pressure.txtAtmPress.Text(), "14.695949");
}

struct ShownPressure {
    const char* Units;
    const char* Caption;
    const char* Text;

    friend void PrintTo(const ShownPressure& the, std::ostream* out) { *out << the.Units; }
};

class ConfiguradorPressureByUnits : public testing::TestWithParam<ShownPressure> {};

TEST_P(ConfiguradorPressureByUnits, stands_where_the_file_holds_none) {
    std::string file = With(WizardFile("aga3_densimeter_external"), "SystemUnits=US",
                            std::string("SystemUnits=") + GetParam().Units);
    ConfiguradorWorld world(With(file, "ExtAtmPress=Yes", "ExtAtmPress="));
    EXPECT_TRUE(world.Form().pressure.OptGagePress.Value());
    EXPECT_TRUE(world.Form().pressure.OptAtmPressFixed.Value());
    EXPECT_TRUE(world.Form().pressure.txtAtmPress.Enabled());
    EXPECT_EQ(world.Form().pressure.unitAtmPress.Caption(), GetParam().Caption);
    EXPECT_EQ(world.Form().pressure.txtAtmPress.Text(), GetParam().Text);
    EXPECT_EQ(world.Form().Text1.Text(), "60.00");
}

INSTANTIATE_TEST_SUITE_P(Systems, ConfiguradorPressureByUnits,
                         testing::Values(ShownPressure{"US", "PSI", "14.695949"},
                                         ShownPressure{"US-degC", "PSI", "14.695949"},
                                         ShownPressure{"Metric", "bar", "1.01325"},
                                         ShownPressure{"Metric-degF", "bar", "1.01325"},
                                         ShownPressure{"Practical-SI", "MPa", "0.101325"},
                                         ShownPressure{"Cubits", "MPa", "0.101325"}),
                         By(&ShownPressure::Units));

TEST(ConfiguradorLoad, a_stored_pressure_takes_the_place_of_the_default) {
    std::string file = With(WizardFile("aga3_densimeter_external"), "ExtAtmPress=Yes\nAtmPress=\n",
                            "ExtAtmPress=No\nAtmPress=13.9\n");
    ConfiguradorWorld world(file);
    EXPECT_EQ(world.Form().pressure.txtAtmPress.Text(), "13.9");
}

TEST(ConfiguradorLoad, values_without_stored_units_stay) {
    std::string file = With(WizardFile("aga3_densimeter"), "SystemUnits=US", "SystemUnits=");
    ConfiguradorWorld world(With(file, "[AGA3]\nStandardT=60.00", "[AGA3]\nStandardT=61"));
    EXPECT_EQ(world.Form().general.CombUnits.Text(), "Practical-SI");
    EXPECT_EQ(world.Form().Text1.Text(), "61");
    EXPECT_EQ(world.Form().Text2.Text(), "14.73");
}

TEST(ConfiguradorLoad, a_compressibility_is_shown_as_stored) {
    ConfiguradorWorld world(With(WizardFile("aga3_densimeter"), "Compressible=Yes", "Compressible=No"));
    EXPECT_TRUE(world.Form().OptNoComprensible.Value());
}

TEST(ConfiguradorLoad, a_module_that_is_no_candidate_any_more_is_not_replaced) {
    ConfiguradorWorld world(
        With(WizardFile("aga3_densimeter"), "WrkFloatModName=VF0", "WrkFloatModName=GONE"));
    EXPECT_EQ(world.Form().modules.Combo3.ListIndex(), -1);
    EXPECT_EQ(world.Form().modules.Combo1.Text(), "VA0");
    world.TheStory.Menu(Configurator, "PG");
    world.ThenSave("SalvarSalir2");
    world.Show();
    EXPECT_TRUE(Holds(world.File(), "WrkFloatModName=GONE"));
}

} // namespace
} // namespace gfc::test
