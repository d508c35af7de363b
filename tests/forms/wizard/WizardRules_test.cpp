#include "WizardWorld.h"
#include "forms/wizard/WizardFC.h"
#include "support/Named.h"

#include <gtest/gtest.h>

// What the controls of the wizard's pages do to each other.
namespace gfc::test {
namespace {

constexpr const char* Form = "WizardFC";
constexpr int AGA3 = 0, AGA7 = 1, Accelabar = 2;
constexpr int Densimeter = 0, AGA8 = 1, SGERG88 = 2, ISO3 = 4;

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
    world.PlayPages();
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
    world.PlayPages();
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
    world.PlayPages();
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
    world.PlayPages();
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

    friend void PrintTo(const UnitCase& the, std::ostream* out) {
        *out << StoredOf(config::UnitSystems, the.Entry);
    }
};

class WizardUnits : public testing::TestWithParam<UnitCase> {};

TEST_P(WizardUnits, overwrite_what_was_entered_with_their_row) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, Densimeter, 1);
    const auto& row = GetParam();
    for (auto* field :
         {&form.TextDensityStandardTemp, &form.TextDensityStandardP, &form.pressure.txtAtmPress, &form.Text1})
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
    world.PlayPages();
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Systems, WizardUnits, testing::Values(
    UnitCase{0, "60.00",   "14.73",    "ºF", "psia", "PSI", "14.695949", "cP"},
    UnitCase{1, "15.5556", "14.73",    "ºC", "psia", "PSI", "14.695949", "cP"},
    UnitCase{2, "15.00",   "1.01325",  "ºC", "bar",  "bar", "1.01325",   "cP"},
    UnitCase{3, "59.00",   "1.01325",  "ºF", "bar",  "bar", "1.01325",   "cP"},
    UnitCase{4, "20.00",   "0.101325", "ºC", "MPa",  "MPa", "0.101325",  "mPa-s"}),
    By([](const UnitCase& row) { return StoredOf(config::UnitSystems, row.Entry); }));
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
    world.PlayPages();
}

struct EntryCase {
    int Standard;
    bool Viscosity;
    bool Others; // the isentropic coefficient and the captions
    bool AGA7;

    friend void PrintTo(const EntryCase& the, std::ostream* out) {
        *out << StoredOf(config::FlowAlgorithms, the.Standard);
    }
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
    world.PlayPages();
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Entries, WizardStandard, testing::Values(
    EntryCase{0, true,  true,  false},
    EntryCase{1, false, false, true},
    // Deliberate: the caption stays while the entry is shut.
    EntryCase{2, false, true,  false},
    EntryCase{3, true,  true,  false}),
    By([](const EntryCase& row) { return StoredOf(config::FlowAlgorithms, row.Standard); }));
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
    world.PlayPages();
}

INSTANTIATE_TEST_SUITE_P(Entries, WizardSource, testing::Range(0, 5),
                         By([](int entry) { return StoredOf(config::GasDensitySources, entry); }));

TEST(WizardRules, another_source_takes_the_composition_from_outside_back) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, AGA8, 1);
    form.OptCromatografo.SetValue(true);
    EXPECT_TRUE(form.OptCromatografo.Value());
    world.TheStory.Select(Form, "cbSourceGas", SGERG88).Check([&](Driver&) {
        EXPECT_TRUE(form.OptComp.Value());
        EXPECT_FALSE(form.OptCromatografo.Value());
    });
    world.PlayPages();
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
    world.PlayPages();
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
    world.PlayPages();
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
    world.PlayPages();
}

TEST(WizardNotes, say_what_is_implausible_in_the_gas_data_while_it_is_typed) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, AGA8, 1);
    EXPECT_EQ(form.Notes.Caption(), "");
    form.TextDensityStandardP.PersonEdits("101.325");
    EXPECT_NE(form.Notes.Caption().find("101.325"), std::string::npos) << form.Notes.Caption();
    form.TextDensityStandardP.PersonEdits("14.73");
    EXPECT_EQ(form.Notes.Caption(), "");
    form.Text1.PersonEdits("10.3");
    EXPECT_NE(form.Notes.Caption(), "");
    // A turbine needs no viscosity.
    form.general.CombStandard.SetListIndex(AGA7);
    EXPECT_EQ(form.Notes.Caption(), "");
}

// The standard pressure takes any key, and the file takes the text as it stands.
TEST(WizardNotes, say_of_a_text_that_it_is_no_number) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, AGA8, 1);
    for (const char* text : {"14,73", "14.7.3", "0"}) {
        form.TextDensityStandardP.PersonEdits(text);
        EXPECT_TRUE(form.Notes.Caption().starts_with("StandardP")) << form.Notes.Caption();
    }
    form.TextDensityStandardP.PersonEdits("");
    EXPECT_EQ(form.Notes.Caption(), "");
    form.TextDensityStandardP.PersonEdits("14.73");
    form.pressure.txtAtmPress.PersonEdits("14.7.3");
    EXPECT_EQ(form.Notes.Caption(), "") << "the pressure is absolute";
    form.pressure.OptGagePress.SetValue(true);
    EXPECT_TRUE(form.Notes.Caption().starts_with("AtmPress says \"14.7.3\"")) << form.Notes.Caption();
}

TEST(WizardNotes, judge_the_atmospheric_pressure_where_it_counts) {
    WizardWorld world;
    auto& form = world.Preset(AGA3, AGA8, 1);
    form.pressure.txtAtmPress.PersonEdits("101.325");
    EXPECT_EQ(form.Notes.Caption(), "");
    form.pressure.OptGagePress.SetValue(true);
    EXPECT_NE(form.Notes.Caption().find("101.325"), std::string::npos) << form.Notes.Caption();
    form.pressure.OptAbsPress.SetValue(true);
    EXPECT_EQ(form.Notes.Caption(), "");
}

} // namespace
} // namespace gfc::test
